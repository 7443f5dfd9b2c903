// Each allocation on the way to paper is refused in turn: nothing may be thrown, the document stays
// as it was or says that something is missing, and lists come out of their print runs.
#include "support/list_window.h"
#include "support/picture.h"
#include "window/refusals.h"

#include <gtest/gtest.h>

namespace {

constexpr int kSize = 400;

class PrintMemory : public testing::Test {
protected:
    PrintMemory() : w("a\tb") {
        dc.CreateCompatibleDC(nullptr);
        bitmap.CreateBitmap(kSize, kSize, 1, 32, nullptr);
        hOld = ::SelectObject(dc, bitmap);
        header.CreatePointFont(120, "Tahoma");
        normal.CreatePointFont(90, "Tahoma");
        for (int i = 0; i < 30; ++i) {
            w.Add((std::to_string(i) + "\tx").c_str());
            rows.Add((std::to_string(i) + "\ty").c_str());
        }
        strText = CString('w', 300) + " and some more";
        nListHeight = w.list.CalculateItemHeight(&dc);
    }
    ~PrintMemory() override { ::SelectObject(dc, hOld); }

    // The pages as drawn.
    std::vector<Picture> Drawn(QVPrintEngine& engine, unsigned nPages) {
        std::vector<Picture> pages;
        for (unsigned n = 1; n <= nPages; ++n) {
            Clear();
            engine.PrintPage(&dc, rc, n);
            pages.push_back(Picture::Of(dc, rc.Size()));
        }
        return pages;
    }
    void Clear() { dc.FillSolidRect(&rc, RGB(255, 255, 255)); }
    QVPrintEngine Whole() {
        QVPrintEngine engine(&dc, &header, &normal, &header);
        engine.AddSectionHeader("section");
        engine.AddText(strText, &dc, nullptr);
        engine.AddList(&w.list, &dc);
        QVPeDataLabeledList& totals = engine.AddLabeledDataList(&dc);
        totals.AddData("label", "1", QVPeDataLabeledListItem::Right);
        return engine;
    }

    ListWindow<> w;
    CDC dc;
    CBitmap bitmap;
    HGDIOBJ hOld;
    CFont header, normal;
    CStringArray rows;
    CString strText;
    int nListHeight;
    const CRect rc = CRect(0, 0, kSize, kSize);
};

TEST_F(PrintMemory, WhatCannotBeAddedIsLeftOutAndTold) {
    const std::function<void(QVPrintEngine&)> kAdds[] = {
        [](QVPrintEngine& e) { e.AddSectionHeader("a long enough section"); },
        [](QVPrintEngine& e) { e.AddGroupHeader("a long enough group"); },
        [this](QVPrintEngine& e) { e.AddHeader(strText, &dc); },
        [this](QVPrintEngine& e) { e.AddText(rows, &dc, nullptr); },
        [](QVPrintEngine& e) { e.AddBreak(); },
        [this](QVPrintEngine& e) { e.AddList(&w.list, &dc); },
        [this](QVPrintEngine& e) { e.AddStringList(&rows, &w.list, &dc); },
        [this](QVPrintEngine& e) {
            QVPeDataLabeledList& list = e.AddLabeledDataList(&dc);
            for (int i = 0; i < 5; ++i) {
                list.AddData("label", "data", QVPeDataLabeledListItem::Right);
            }
        },
        [](QVPrintEngine& e) { const QVPrintEngine copy(e); },
    };
    for (const auto& add : kAdds) {
        const auto fresh = [this] {
            auto pEngine = std::make_unique<QVPrintEngine>(&dc, &header, &normal, &header);
            pEngine->AddGroupHeader("start");
            return pEngine;
        };
        auto pWhole = fresh();
        add(*pWhole);
        const auto whole = Drawn(*pWhole, pWhole->Paginate(rc));
        pWhole.reset();
        auto pEngine = fresh();
        const int nRefused = RefuseEach(
            "add", [&] { add(*pEngine); },
            [&] {
                const bool bComplete = pEngine->IsComplete();
                const auto drawn = Drawn(*pEngine, pEngine->Paginate(rc));
                EXPECT_TRUE(!bComplete || drawn == whole);
                EXPECT_FALSE(drawn.empty()) << "what was there stays";
                pEngine.reset();
                EXPECT_EQ(w.list.CalculateItemHeight(&dc), nListHeight);
                pEngine = fresh();
            });
        EXPECT_GT(nRefused, 0);
    }
}

TEST_F(PrintMemory, PagesAreTakenInWhenThereIsMemory) {
    QVPrintEngine reference = Whole();
    const unsigned nPages = reference.Paginate(rc);
    ASSERT_GT(nPages, 1u);
    auto pEngine = std::make_unique<QVPrintEngine>(Whole());
    unsigned nResult = 0;
    const int nRefused = RefuseEach(
        "pages", [&] { nResult = pEngine->Paginate(rc); },
        [&] {
            EXPECT_TRUE(nResult == 0 || nResult == nPages);
            EXPECT_TRUE(pEngine->IsComplete());
            EXPECT_EQ(pEngine->Paginate(rc), nPages);
            pEngine.reset();
            pEngine = std::make_unique<QVPrintEngine>(Whole());
        });
    EXPECT_GT(nRefused, 0);
    EXPECT_EQ(nResult, nPages);
}

TEST_F(PrintMemory, APageThatCannotBePrintedIsTold) {
    auto pEngine = std::make_unique<QVPrintEngine>(Whole());
    const unsigned nPages = pEngine->Paginate(rc);
    const Picture whole = Drawn(*pEngine, 1)[0];
    const HGDIOBJ hFont = ::GetCurrentObject(dc, OBJ_FONT);
    Clear();
    const int nRefused = RefuseEach(
        "page", [&] { pEngine->PrintPage(&dc, rc, 1); },
        [&] {
            EXPECT_TRUE(!pEngine->IsComplete() || Picture::Of(dc, rc.Size()) == whole);
            EXPECT_EQ(::GetCurrentObject(dc, OBJ_FONT), hFont);
            pEngine.reset();
            pEngine = std::make_unique<QVPrintEngine>(Whole());
            EXPECT_EQ(pEngine->Paginate(rc), nPages);
            Clear();
        });
    EXPECT_GT(nRefused, 0);
}

}  // namespace
