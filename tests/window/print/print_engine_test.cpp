#include "support/list_window.h"

#include <gtest/gtest.h>

namespace {

// Three fonts of different heights, and a context to measure and draw on.
class PrintEngine : public testing::Test {
protected:
    PrintEngine() : dc(CSize(900, 900)) {
        header.CreatePointFont(120, "Tahoma");
        normal.CreatePointFont(90, "Tahoma");
        section.CreatePointFont(160, "Tahoma");
        nHeader = HeightOf(header);
        nNormal = HeightOf(normal);
        nSection = HeightOf(section);
        dc.FillSolidRect(0, 0, 900, 900, RGB(255, 255, 255));
    }
    CSize ExtentIn(CFont& font, const char* psz) {
        CFont* pOld = dc.SelectObject(&font);
        const CSize size = dc.GetTextExtent(CString(psz));
        dc.SelectObject(pOld);
        return size;
    }
    int HeightOf(CFont& font) { return ExtentIn(font, "0").cy; }
    int WidthOf(CFont& font, const char* psz) { return ExtentIn(font, psz).cx; }
    // What the page shows, in order.
    std::string Page(QVPrintEngine& engine, unsigned nPage, const CRect& rc) {
        dc.texts.clear();
        engine.PrintPage(&dc, rc, nPage);
        return dc.All();
    }

    // The same, with some ink on the page and none below it.
    std::string CutPage(QVPrintEngine& engine, unsigned nPage, const CRect& rc) {
        dc.FillSolidRect(0, 0, 900, 900, RGB(255, 255, 255));
        const std::string strPage = Page(engine, nPage, rc);
        int nInk = 0;
        int nOutside = 0;
        for (int y = 0; y < 3 * nSection; ++y) {
            for (int x = 0; x < 100; ++x) {
                (y < rc.bottom ? nInk : nOutside) += dc.GetPixel(x, y) != RGB(255, 255, 255);
            }
        }
        EXPECT_GT(nInk, 0);
        EXPECT_EQ(nOutside, 0);
        return strPage;
    }

    TextRecorder dc;
    CFont header, normal, section;
    int nHeader, nNormal, nSection;
};

TEST_F(PrintEngine, PutsEachItemWhereItBelongs) {
    QVPrintEngine engine(&dc, &header, &normal, &section);
    engine.AddSectionHeader("Section");
    engine.AddGroupHeader("Group");
    engine.AddHeader("Heading", &dc);
    engine.AddBreak();
    engine.AddText("Text", &dc, nullptr);
    CRect rc(100, 50, 700, 850);
    EXPECT_EQ(engine.Paginate(rc), 1u);
    EXPECT_EQ(Page(engine, 1, rc), "Section|Group|Heading|Text");
    EXPECT_EQ(dc.texts[0].rc, CRect(100, 50 + nSection, 700, 50 + 2 * nSection));
    EXPECT_EQ(dc.texts[0].hFont, section.GetSafeHandle());
    const int yGroup = 50 + 3 * nSection;
    EXPECT_EQ(dc.texts[1].rc, CRect(100, yGroup, 700, yGroup + nNormal));
    EXPECT_EQ(dc.texts[1].hFont, normal.GetSafeHandle()) << "not in the header font";
    EXPECT_EQ(dc.texts[2].rc.top, yGroup + nNormal);
    EXPECT_EQ(dc.texts[2].hFont, header.GetSafeHandle());
    EXPECT_EQ(dc.texts[3].rc.top, yGroup + nNormal + nHeader + nNormal) << "behind the blank line";
    EXPECT_EQ(rc, CRect(100, 50, 700, 850));
    EXPECT_EQ(Page(engine, 0, rc), "");
    EXPECT_EQ(Page(engine, 2, rc), "");
    EXPECT_EQ(engine.Paginate(rc), 1u) << "the number comes again, the pages are those of before";
}

TEST_F(PrintEngine, ListsSplitByRowAndRepeatTheirHeadings) {
    ListWindow<> w("a\tb");
    for (int i = 0; i < 5; ++i) {
        w.Add((std::to_string(i) + "\tx").c_str());
    }
    const CRect rc(0, 0, 600, nHeader * 3 / 2 + 2 * nNormal);
    {
        QVPrintEngine engine(&dc, &header, &normal, &section);
        engine.AddList(&w.list, &dc);
        EXPECT_EQ(engine.Paginate(rc), 3u);
        EXPECT_EQ(Page(engine, 3, rc), "a|b|4|x");
        EXPECT_EQ(dc.texts[2].rc.top, nHeader * 3 / 2);
        EXPECT_EQ(dc.texts[2].rc.left, 6);
        EXPECT_EQ(w.list.CalculateItemHeight(&dc), nNormal) << "the list is in its print run";
    }
    TextRecorder other;
    EXPECT_EQ(w.list.CalculateItemHeight(&other), other.GetTextExtent("0", 1).cy)
        << "which ended with the engine";
}

TEST_F(PrintEngine, StringListsUseTheColumnsOfAList) {
    ListWindow<> w("a\tb\tc");
    w.list.SetColFormat(1, LVCFMT_RIGHT);
    CStringArray rows;
    rows.Add("1\t2\t3\t4");
    rows.Add("wide");
    rows.Add("1\t");
    QVPrintEngine engine(&dc, &header, &normal, &section);
    engine.AddStringList(&rows, &w.list, &dc);
    const CRect rc(0, 0, 600, 800);
    EXPECT_EQ(engine.Paginate(rc), 1u);
    EXPECT_EQ(Page(engine, 1, rc), "a|b|c|1|2|3|wide|1") << "no field beyond the columns";
    EXPECT_EQ(dc.texts[4].rc.right, 400 - 6);
    EXPECT_TRUE(dc.texts[4].nFormat & DT_RIGHT);
    EXPECT_EQ(dc.texts[6].rc.right, 600 - 6) << "the last field has all that is left";
    EXPECT_EQ(dc.texts[7].rc.right, 200 - 6) << "unless a TAB ends it";
    EXPECT_EQ(dc.texts[7].rc.top, nHeader * 3 / 2 + 2 * nNormal);
}

TEST_F(PrintEngine, NumbersWiderThanTheirColumnAreWholeWhereItFitsThem) {
    const CRect rc(0, 0, 800, 800);
    for (const char* psz : {"1,234,567,890", "42"}) {
        for (const bool bFit : {false, true}) {
            QVPrintEngine engine(&dc, &header, &normal, &section);
            QVPeDataLabeledList& list = engine.AddLabeledDataList(&dc);
            list.SetFitNumbers(bFit);
            list.AddData("a", psz, QVPeDataLabeledListItem::Right);
            list.AddData("b", "a text that is wider than any number",
                         QVPeDataLabeledListItem::Left);
            ASSERT_EQ(engine.Paginate(rc), 1u);
            Page(engine, 1, rc);
            const int nLeast = WidthOf(normal, "9,999,999");
            const int nWanted = bFit ? std::max(nLeast, WidthOf(normal, psz)) : nLeast;
            EXPECT_EQ(dc.texts[1].rc.Width(), nWanted) << psz;
        }
    }
}

// Nothing of a column that is left out, or too narrow for its padding, may get on paper.
TEST_F(PrintEngine, StringListsDrawNothingInCellsWithoutWidth) {
    ListWindow<> w("a\tb\tc\td");
    w.list.SetColFormat(1, LVCFMT_CENTER);
    w.list.SetColFormat(2, LVCFMT_RIGHT);
    w.list.ExcludeColumnFromPrinting(1);
    w.list.SetColumnWidth(2, 1);
    CStringArray rows;
    rows.Add("1\tWWWW\tMMMM\t4");
    rows.Add("1\tlast");
    QVPrintEngine engine(&dc, &header, &normal, &section);
    engine.AddStringList(&rows, &w.list, &dc);
    const CRect rc(0, 0, 600, 800);
    ASSERT_EQ(engine.Paginate(rc), 1u);
    const std::string strPage = Page(engine, 1, rc);
    EXPECT_EQ(strPage.substr(strPage.find("d|")), "d|1|4|1|last");
    EXPECT_EQ(dc.texts.back().rc.right, 600 - 6) << "the last field has all that is left";
    EXPECT_GT(dc.texts.back().rc.Width(), 100);
}

TEST_F(PrintEngine, LabeledListsLineUpTextsAndNumbers) {
    QVPrintEngine engine(&dc, &header, &normal, &section);
    QVPeDataLabeledList& empty = engine.AddLabeledDataList(&dc);
    EXPECT_EQ(empty.MaxSize(), 0u);
    QVPeDataLabeledList& list = engine.AddLabeledDataList(&dc);
    EXPECT_EQ(list.MinSize(), 0u);
    list.AddData("Label", "text", QVPeDataLabeledListItem::Left);
    EXPECT_EQ(list.MinSize(), static_cast<unsigned>(nNormal));
    list.AddData("Longer label", "12", QVPeDataLabeledListItem::Right);
    list.AddData("x", "13", QVPeDataLabeledListItem::Right);
    EXPECT_EQ(list.MinSize(), static_cast<unsigned>(2 * nNormal));
    EXPECT_EQ(list.MaxSize(), static_cast<unsigned>(3 * nNormal));
    list.SetIndented(TRUE);
    const CRect rc(10, 20, 800, 20 + 2 * nNormal);
    EXPECT_EQ(engine.Paginate(rc), 2u);
    EXPECT_EQ(Page(engine, 1, rc), "Label|text|Longer label|12");
    const int nSpace = WidthOf(normal, "M");
    const int nLabel = 10 + 6 * nSpace;
    const int nData = nLabel + WidthOf(normal, "Longer label") + nSpace;
    EXPECT_EQ(dc.texts[0].rc, CRect(nLabel, 20, 800, 20 + nNormal));
    EXPECT_EQ(dc.texts[1].rc, CRect(nData, 20, 800, 20 + nNormal));
    EXPECT_EQ(dc.texts[3].rc,
              CRect(nData, 20 + nNormal, nData + WidthOf(normal, "9,999,999"), 20 + 2 * nNormal));
    EXPECT_TRUE(dc.texts[3].nFormat & DT_RIGHT);
    EXPECT_EQ(Page(engine, 2, rc), "x|13");
    EXPECT_EQ(dc.texts[0].rc.top, 20);
}

// A page that opens behind a split item still carries that item's row number, unless all rows are
// asked for. Rows that there are not take no room.
TEST_F(PrintEngine, ARowNumberLeftFromASplitItemPrintsFromThatRow) {
    const int nPage = 2 * nSection;
    const auto run = [&](int nEntries, bool bAllRows) {
        QVPrintEngine engine(&dc, &header, &normal, &section);
        engine.SetPrintAllRows(bAllRows);
        CStringArray text;
        for (const char* psz : {"1", "2", "3", "4"}) {
            text.Add(psz);
        }
        engine.AddText(text, &dc, &section);  // two lines a page, so row 2 opens page 2
        QVPeDataLabeledList& list = engine.AddLabeledDataList(&dc);
        for (int i = 0; i < nEntries; ++i) {
            list.AddData("row", std::to_string(i).c_str(), QVPeDataLabeledListItem::Left);
        }
        engine.AddGroupHeader("end");
        const CRect rc(0, 0, 600, nPage);
        EXPECT_GE(engine.Paginate(rc), 3u);
        return Page(engine, 3, rc);
    };
    ASSERT_GE(nPage, 3 * nNormal);
    EXPECT_EQ(run(3, false).substr(0, 5), "row|2");
    EXPECT_EQ(run(2, false), "end");
    EXPECT_EQ(dc.texts[0].rc.top, 0);
    EXPECT_EQ(run(3, true).substr(0, 17), "row|0|row|1|row|2");
    EXPECT_EQ(run(2, true).substr(0, 11), "row|0|row|1");
}

TEST_F(PrintEngine, RowsThatFitNoPageAreCutAndNotLeftOut) {
    ListWindow<> w("a\tb");
    w.Add("0\tx");
    w.Add("1\ty");
    CStringArray rows;
    rows.Add("2\tz");
    QVPrintEngine engine(&dc, &header, &normal, &section);
    engine.AddText("WWWW", &dc, &section);
    engine.AddList(&w.list, &dc);
    const CRect rc(0, 0, 600, nSection / 2);
    ASSERT_EQ(engine.Paginate(rc), 2u);
    EXPECT_EQ(CutPage(engine, 1, rc), "WWWW");
    const CRect rcLow(0, 0, 600, nHeader * 3 / 2 + nNormal / 2);
    EXPECT_EQ(CutPage(engine, 2, rcLow), "a|b|0|x") << "the row that the least height counts";
    QVPrintEngine strings(&dc, &header, &normal, &section);
    strings.AddStringList(&rows, &w.list, &dc);
    ASSERT_EQ(strings.Paginate(rcLow), 1u);
    EXPECT_EQ(CutPage(strings, 1, rcLow), "a|b|2|z");
}

TEST_F(PrintEngine, CopiesShareTheirItemsAndNoHandleIsKept) {
    ListWindow<> w("a");
    w.Add("x");
    const long nHandles = AfxGetOwnedHandleCount();
    for (int i = 0; i < 100; ++i) {
        QVPrintEngine engine(&dc, &header, &normal, &section);
        engine.AddList(&w.list, &dc);
        engine.AddText("some text to be wrapped", &dc, nullptr);
        const QVPrintEngine copy(engine);
        const CRect rc(0, 0, 50, 800);
        for (unsigned nPage = engine.Paginate(rc); nPage > 0; --nPage) {
            engine.PrintPage(&dc, rc, nPage);
        }
    }
    EXPECT_EQ(AfxGetOwnedHandleCount(), nHandles);
    QVPrintEngine none(nullptr, nullptr, nullptr, nullptr);
    EXPECT_EQ(none.Paginate(CRect(0, 0, 10, 10)), 0u);
    none.AddBreak();
    none.AddSectionHeader("flat");
    EXPECT_EQ(none.Paginate(CRect(0, 0, 10, 10)), 1u);
}

}  // namespace
