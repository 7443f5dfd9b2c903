// Each class derived from, outside the library: what a derived class reaches of it, and that every
// inline function of the headers links.
#include <QVControls.h>
#include <cstring>
#include <gtest/gtest.h>

namespace {

const CRect kRect(0, 0, 200, 100);

// The controls take the font of their parent.
class Parent : public CWnd {
public:
    Parent() { m_font.CreatePointFont(90, "Tahoma"); }

private:
    LRESULT WindowProc(UINT nMessage, WPARAM wParam, LPARAM lParam) override {
        return nMessage == WM_GETFONT ? reinterpret_cast<LRESULT>(m_font.m_hObject)
                                      : CWnd::WindowProc(nMessage, wParam, lParam);
    }
    CFont m_font;
};

class Outside : public testing::Test {
protected:
    Outside() {
        m_parent.CreateEx(0, AfxRegisterWndClass(0), "", WS_OVERLAPPEDWINDOW, 0, 0, 300, 200,
                          nullptr, nullptr);
    }
    ~Outside() override { m_parent.DestroyWindow(); }

    Parent m_parent;
};

// --- Tree

class Tree : public QVTreeCtrlEx {
public:
    Tree() { KeepSteps(typeid(Tree)); }

    void LooksAtItself(CWnd& parent) {
        ASSERT_TRUE(Create(WS_CHILD | TVS_HASLINES, kRect, &parent, 1));
        const int stops[] = {50, 20100};
        UseTabs(stops, 2);
        SetIndentTabs(FALSE);
        SetShowStatesAtRoot(TRUE);
        const HTREEITEM hRoot = InsertItem("root\tfield", 0, 0, TVI_ROOT, TVI_LAST);
        const HTREEITEM hChild = InsertItem("child", 0, 0, hRoot, TVI_LAST);
        EXPECT_EQ(GetRootItem(), hRoot);
        EXPECT_EQ(GetChildItem(hRoot), hChild);
        EXPECT_EQ(GetParentItem(hChild), hRoot);
        EXPECT_EQ(GetNextSiblingItem(hRoot), nullptr);
        EXPECT_EQ(GetPrevSiblingItem(hRoot), nullptr);
        EXPECT_EQ(GetTopItem(), hRoot);
        EXPECT_EQ(GetBottomItem(), hRoot);
        EXPECT_EQ(GetTabCount(), 2);
        EXPECT_FALSE(GetIndentTabs());
        EXPECT_TRUE(GetShowStatesAtRoot());
        EXPECT_TRUE(GetRedraw());
        EXPECT_EQ(GetIndentStep(), 19);
        EXPECT_GT(GetMaxWidth(), 0);
        EXPECT_GT(ItemHeight(), 0);
        EXPECT_EQ(GetHScrollPos() + GetVScrollPos() + GetHPage() + GetVPage(), 0);
        EXPECT_EQ(GetImageSize(), CSize(0, 0));
        EXPECT_EQ(GetStateImageSize(), CSize(0, 0));
        m_bAllowTags = FALSE;
        m_bAutoTagChildren = FALSE;
        m_pImageList = m_pStateImageList = nullptr;
        EXPECT_EQ(m_brBackground.m_hObject, nullptr) << "lives for one paint";
        EXPECT_EQ(NumStyles(), 1);
        EXPECT_EQ(StyleColors(0).crText, ::GetSysColor(COLOR_WINDOWTEXT));
        EXPECT_EQ(StyleColors(1).crBk, 0u);
    }
};

TEST_F(Outside, ATree) {
    Tree().LooksAtItself(m_parent);
}

// --- Grid

class Grid : public QVGridCtrl {
public:
    void LooksAtItself(CWnd& parent) {
        AddColumn(gctStatic, 50);
        AddColumn(gctEdit, 50);
        AddRow("one\ttwo", 0);
        SetShowAddedRows(TRUE);
        SetLockReadOnlyLists(TRUE);
        SetMaxListLines(8);
        SetReadOnly(TRUE);
        EXPECT_TRUE(m_bReadOnly);
        ASSERT_TRUE(Create(1, kRect, &parent));
        GotoCell(0, 1, FALSE);
        EXPECT_EQ(CurrentRow(), m_nCurRow);
        EXPECT_EQ(CurrentColumn(), m_nCurCol);
        EXPECT_EQ(m_nCurCol, 1);
        EXPECT_EQ(RowAt(0).dwState & GRS_CURRENT, GRS_CURRENT);
        EXPECT_FALSE(m_bEditing || m_bIgnoreFocus || m_bBtnDown || m_bBtnOver);
        EXPECT_TRUE(PressedButtonRect().IsRectEmpty());
        EXPECT_EQ(InPlaceEdit().m_hWnd, nullptr);
        EXPECT_EQ(ChoiceList().m_hWnd, nullptr);
        EXPECT_TRUE(m_bRedraw);
        EXPECT_EQ(m_nTopRow, 0);
        CRect rc;
        CalcCellRect(0, 1, rc);
        EXPECT_EQ(rc.left, 50);
        EXPECT_EQ(rc.Height(), m_nCellHeight);
        EXPECT_EQ(m_penGrid.m_hObject, nullptr);
    }
};

TEST_F(Outside, AGrid) {
    Grid().LooksAtItself(m_parent);
}

// --- Text

class Text : public QVTextWnd {
public:
    void LooksAtItself(CWnd& parent) {
        CRect rect(kRect);
        ASSERT_TRUE(Create(rect, &parent, 1, 1));
        EXPECT_EQ(m_bBorder, 1);
        EXPECT_EQ(AddText("one", 0), 1);
        EXPECT_EQ(AddText("two\nthree, and wide enough to be wrapped in a window of this size", 0),
                  2);
        CalcLayout();
        EXPECT_EQ(NumDisplayLines(), NumRows());
        EXPECT_GE(NumRows(), 3);
        QVTEXTLINE row{-9, -9};
        EXPECT_TRUE(GetDisplayLine(2, row));
        EXPECT_EQ(row.nLine, 1);
        EXPECT_EQ(row.nSubLine, 1);
        EXPECT_FALSE(GetDisplayLine(NumRows(), row));
        EXPECT_EQ(NumLines(), 2);
        m_bUseProportionalFont = 0;
        m_nTabStop = 16;
        m_crBk = RGB(255, 255, 0);
        AddText(GetLineText(1), 0);
        CalcLayout();
        EXPECT_GT(m_nMaxLineLength * m_nCharWidth, kRect.Width());
        EXPECT_TRUE(m_bHScrollBar);
        EXPECT_FALSE(m_bVScrollBar);
        EXPECT_EQ(m_nHScrollPos, 0);
        EXPECT_EQ(m_nNumRows, NumRows());
        EXPECT_EQ(VScrollPos(), m_nVScrollPos);
        EXPECT_EQ(SyncWnd(), nullptr);
        SetUseProportionalFont(1);
        EXPECT_FALSE(m_bUseProportionalFont) << "does nothing";
    }
    void KeepsPages() {
        SetPrintAreaSize(CSize(30, 40));
        SetLinesPerPage(1);
        AddPrintLine(0, 0);
        AddPrintLine(1, -1);
        SetNumPages(2);
        EXPECT_EQ(PrintAreaSize(), CSize(30, 40));
        EXPECT_EQ(LinesPerPage() + NumPages() + NumPrintRows(), 5);
        QVTEXTLINE row{-9, -9};
        EXPECT_TRUE(GetPrintLine(1, row));
        EXPECT_EQ(row.nSubLine, -1);
        EXPECT_FALSE(GetPrintLine(2, row));
        EXPECT_EQ(CurPrintLine(), 0);
        ClearPrintData();
        EXPECT_EQ(NumPages() + NumPrintRows(), 0);
    }
    bool FollowsAsLongAsThereIsOne() {
        QVTextWnd other;
        SyncWith(&other, 1);
        return SyncWnd() == &other;
    }
    bool FollowsNone() const { return SyncWnd() == nullptr; }
};

TEST_F(Outside, AText) {
    Text text;
    text.LooksAtItself(m_parent);
    text.KeepsPages();
    EXPECT_TRUE(text.FollowsAsLongAsThereIsOne());
    EXPECT_TRUE(text.FollowsNone()) << "the partner is gone";
}

// --- Edits

class Box : public QVTextBox {
public:
    void LooksAtItself(CWnd& parent) {
        SetTextList("one\ttwo");
        ASSERT_TRUE(Create(1, kRect, &parent));
        EnableSpin();
        EXPECT_NE(m_spin.m_hWnd, nullptr);
        EXPECT_EQ(m_strText, m_aTexts[0]);
        EXPECT_TRUE(m_bTextList && m_bShowBorder && m_nCurText == 0 && m_nImage == -1);
        EXPECT_TRUE(m_crTextBk != m_crText && m_pImageList == nullptr);
    }
};

class SpeedEdit : public QVSpeedEdit {
public:
    void LooksAtItself() {
        CStringArray names;
        SetSpeedData(&names);
        SetSpeedOnly(1);
        EXPECT_EQ(FindSpeedText("o") + SpeedMatch("o", 0), 0);
        EXPECT_TRUE(m_pSpeedData == &names && m_bSpeedOnly);
    }
};

class DateEdit : public QVDateTimeEdit {
public:
    void LooksAtItself(CWnd& parent) {
        ASSERT_TRUE(Create(WS_CHILD | DTS_TIMEFORMAT, kRect, &parent, 1));
        SetShowSeconds(1);
        LocalizeFormat();
        EXPECT_EQ(m_strFormat, QVLocaleInfo().TimeFormat());
        EXPECT_TRUE(m_bLocalized && m_bShowSeconds && !m_bBlank && !IsBlank());
        CString strFormat("y-ss");
        RemoveFormatString(strFormat, "ss");
        DoubleFormatCharacter(strFormat, 'y');
        DoubleFormatString(strFormat, "yy");
        EXPECT_EQ(strFormat, "yyyy");
    }
};

TEST_F(Outside, Edits) {
    Box().LooksAtItself(m_parent);
    SpeedEdit().LooksAtItself();
    DateEdit().LooksAtItself(m_parent);
}

// --- Lists

class List : public QVSortingListCtrl {
public:
    void LooksAtItself(CWnd& parent) {
        SetDefStyle(WS_CHILD | LVS_REPORT);
        EXPECT_EQ(m_dwDefStyle, static_cast<DWORD>(WS_CHILD | LVS_REPORT));
        ASSERT_TRUE(Create(1, kRect, &parent));
        AddHeader("one\ttwo", lcdtNumber);
        InsertBitmapString(-1, -1, "2\tb");
        InsertBitmapString(-1, -1, "1\ta");
        SetImageCenterVertically(FALSE);
        SetAlwaysHighlightSel(TRUE);
        SetAllowSel(FALSE);
        EXPECT_TRUE(!m_bImageCenterVert && m_bAlwaysHighlightSel && !m_bAllowSel);
        EXPECT_TRUE(IsPrintComplete());
        EXPECT_TRUE(InReportMode());
        EXPECT_EQ(GetDataWidth(), 120);
        EXPECT_EQ(m_nDataWidth, 120);
        InvalidateDataWidth();
        EXPECT_EQ(m_nDataWidth, -1);
        EXPECT_STREQ(CellText(1, 1), "a");
        EXPECT_EQ(ToldWindow(), parent.m_hWnd);
        EXPECT_EQ(m_aColTypes[1], lcdtNumber);
        m_bAscending = FALSE;
        SortOnHeader(0);
        EXPECT_TRUE(m_bAscending);
        EXPECT_STREQ(CellText(0, 1), "a");
        EXPECT_EQ(m_nImageWidth + m_nImageHeight, 0);
        SetNumColumns(1);
        EXPECT_EQ(NumColumns(), 1);
    }
};

TEST_F(Outside, AList) {
    List().LooksAtItself(m_parent);
}

// --- Boxes

class ListBox : public QVBitmapListBox {
public:
    void LooksAtItself(CWnd& parent) {
        ASSERT_TRUE(Create(WS_CHILD, kRect, &parent, 1));
        SetHeader(2);
        SortByImageIndex(0);
        ASSERT_TRUE(Initialize(1, 0, 0, 0, &parent));
        EXPECT_EQ(HeaderID(), m_nHeaderID);
        EXPECT_EQ(m_anTabs[0], 60) << "by CalcTabs";
        AddHeader("title");
        EXPECT_EQ(m_header.GetItemCount(), 1);
        EXPECT_EQ(m_wndFrame.m_hWnd, nullptr);
        int nImage;
        CString strText;
        ExtractInfo("text\t5", nImage, strText);
        EXPECT_EQ(nImage, 5);
        int nPos = 0;
        EXPECT_TRUE(NextField("\033aa\tb", nPos, strText));
        EXPECT_STREQ(strText, "\033aa");
        SaveSelections();
        EXPECT_EQ(m_aSavedSelections.GetSize(), 0);
        CalcItemHeight();
        EXPECT_EQ(m_nItemHeight, std::max(m_nFontHeight, m_nBitmapHeight) + 2);
        EXPECT_TRUE(m_bRedraw);
    }

protected:
    int CalcTabs(CDC*, int* pTabs) override {
        pTabs[0] = 60;
        return 1;
    }
};

TEST_F(Outside, AListBox) {
    ListBox().LooksAtItself(m_parent);
}

// --- Combo boxes

class BitmapCombo : public QVBitmapComboBox {
public:
    void LooksAtItself(CWnd& parent) {
        ASSERT_TRUE(Create(WS_CHILD | CBS_DROPDOWNLIST, kRect, &parent, 1));
        EXPECT_EQ(GetStyle() & 0xFF0, DWORD{CBS_OWNERDRAWVARIABLE | CBS_HASSTRINGS});
        EXPECT_EQ(Initialize(1, 30008, RGB(0, 128, 128), 12, &parent), 1);
        EXPECT_EQ(m_nBitmapWidth + m_nBitmapHeight + m_nFontHeight, 36);
        EXPECT_EQ(m_nItemHeight, 14);
        EXPECT_EQ(m_imageList.GetImageCount(), 4);
        EXPECT_FALSE(m_bSortByImageIndex);
        EXPECT_EQ(NumStyles(), 1);
        AddBitmapString(2, MakeStyleText("text", 0));
        CString strText;
        GetDisplayText(0, 0, FALSE, strText);
        EXPECT_STREQ(strText, "\033atext");
        int nImage = 0;
        ExtractInfo("a\t7", nImage, strText);
        EXPECT_EQ(nImage, 7);
        EXPECT_EQ(GetItemIndent(0, 0), 0);
    }
};

class ColorCombo : public QVColorComboBox {
public:
    void LooksAtItself(CWnd& parent) {
        ASSERT_TRUE(Create(WS_CHILD | CBS_DROPDOWNLIST, kRect, &parent, 1));
        EXPECT_EQ(GetStyle() & 0xFF0, DWORD{CBS_OWNERDRAWVARIABLE | CBS_HASSTRINGS});
        COLORREF aColors[] = {RGB(1, 2, 3), RGB(4, 5, 6)};
        EXPECT_EQ(Initialize(1, aColors, 2, &parent), 1);
        EXPECT_EQ(m_aColors[1], aColors[1]);
        EXPECT_EQ(m_nItemHeight, 14);
        CalcItemHeight();
        EXPECT_EQ(m_nItemHeight, 16);
        CString strText;
        int nColor = 0;
        ExtractInfo("a\tb\t7", nColor, strText);
        EXPECT_STREQ(strText, "a\tb");
        CClientDC dc(&parent);
        DrawColorBox(&dc, 1, CPoint(0, 0));
    }
};

TEST_F(Outside, ComboBoxes) {
    BitmapCombo().LooksAtItself(m_parent);
    ColorCombo().LooksAtItself(m_parent);
}

// --- Captions

template <class Base>
class Captioned : public Base {
public:
    void LooksAtItself(CWnd& parent) {
        this->SetHeaderHeight(30);
        EXPECT_EQ(this->HeaderHeight(), this->m_nHeaderHeight);
        this->SetHeaderText("caption");
        EXPECT_EQ(this->m_strHeaderText, "caption");
        CRect rect(kRect);
        ASSERT_TRUE(this->Create(WS_CHILD, rect, &parent, 1));
        CRect rcBar;
        CRect rcBody;
        this->CalcHeaderRect(rcBar);
        this->CalcBackgroundRect(rcBody);
        EXPECT_GE(rcBody.top, rcBar.bottom);
        EXPECT_TRUE(this->m_bFillBody);
        EXPECT_TRUE(this->IsInnerId(5, 5));
    }
};

TEST_F(Outside, Captions) {
    Captioned<QVHeaderWnd>().LooksAtItself(m_parent);
    Captioned<QVListHeaderWnd> list;
    list.SetListStyle(list.GetListStyle());
    list.SetListID(7);
    list.LooksAtItself(m_parent);
    EXPECT_EQ(list.GetListBox()->GetDlgCtrlID(), 7);
    Captioned<QVTreeHeaderWnd> tree;
    tree.SetTreeStyle(tree.GetTreeStyle());
    tree.SetTreeID(8);
    tree.LooksAtItself(m_parent);
    EXPECT_EQ(tree.GetTreeCtrl().GetDlgCtrlID(), 8);
    Captioned<QVTextHeaderWnd> text;
    text.LooksAtItself(m_parent);
    EXPECT_NE(text.GetTextWnd().m_hWnd, nullptr);
}

// --- Tabs

class TabbedPages : public QVTabWnd {
public:
    void LooksAtItself(CWnd& parent) {
        class Page : public QVTabWndPage {
        public:
            Page() : QVTabWndPage(5) { SetModified(TRUE); }
            bool IsAlone() { return m_nIDTemplate == 5 && m_bModified && !GetTabWnd(); }
        } page;
        ASSERT_TRUE(Create(1, kRect, &parent));
        EXPECT_EQ(AddPage("no such template", &page), nullptr);
        EXPECT_TRUE(page.IsAlone() && m_bInitialized && m_Pages.GetSize() == NumPages());
        SwitchTabs(GetActivePage());
        EXPECT_EQ(m_nActivePage + m_TabCtrl.GetItemCount() + m_astrTitles.GetSize(), -1);
    }
};

TEST_F(Outside, Tabs) {
    TabbedPages().LooksAtItself(m_parent);
}

// --- Split windows

class Splitter : public QVSplitWnd {
public:
    void LooksAtItself(CWnd& parent) {
        CRect rect(kRect);
        ASSERT_TRUE(Create(rect, &parent, 1, FALSE) && AddPane(RUNTIME_CLASS(CWnd), 2));
        SetSplitRatio(20);
        EXPECT_EQ(m_nSplitPos + m_nTrackStart + m_nSplitRatio, 50 + 20);
        EXPECT_TRUE(m_hSplitCursor != m_hArrowCursor && m_bAutoDeletePanes && m_pPane0);
        EXPECT_FALSE(m_bVertical || m_bTracking || m_bOverBar || m_bClientPanes);
        CalcSplitRect(rect, -1);
        EXPECT_EQ(rect.Height(), SplitterWidth() / 2 * 2);
        DrawSplitTracker(10);
        m_pPane1 = new CWnd;
        RepositionPanes();
        EXPECT_EQ(GetPane(1), m_pPane1);
    }
};

TEST_F(Outside, ASplitWindow) {
    Splitter().LooksAtItself(m_parent);
}

// --- Property sheets

template <class BaseSheet, class BasePage>
class PropSheet : public BaseSheet {
public:
    PropSheet() : BaseSheet("Sheet") {}
    void LooksAtItself() {
        BasePage page(30999u);
        this->AddPage(&page);
        this->BuildPropPageArray();
        EXPECT_TRUE(this->m_psh.nPages == 1 && this->m_fontTab.m_hObject != nullptr);
    }
};

TEST_F(Outside, PropertySheets) {
    PropSheet<QVPropertySheet, QVPropertyPage>().LooksAtItself();
    PropSheet<QVPropertySheetEx, QVPropertyPageEx>().LooksAtItself();
}

// --- Wizards

class Panel : public QVWizardStepWnd {
public:
    int Sum() { return m_nStepIndex + static_cast<int>(m_dwStepID) + !m_fontNormal.m_hObject; }
    void Draw(CDC& dc, const CRect&) override { qv::SelectGuard font(dc, &m_fontBold); }
};

class WizardPage : public QVWizardPage {
public:
    int ValidateData() override { return m_dwWizButtons == PSWIZB_BACK && !m_StepWnd.m_hWnd; }
};

TEST_F(Outside, AWizard) {
    EXPECT_EQ(Panel().Sum(), 0);
    WizardPage page;
    page.SetNextPageID(8);
    EXPECT_EQ(page.OnWizardNext(), 8);
    EXPECT_EQ(QVWizard().RegisterWizPage(&page, "title"), 0);
}

// --- What paints itself, and guards

class Painted : public QVCustCtrl {
public:
    void Draw(CDC& dc, const CRect& rect) override {
        const qv::ColorGuard colors(dc);
        CBrush brush(RGB(255, 0, 0));
        const qv::SelectGuard select(dc, &brush);
        dc.PatBlt(0, 0, rect.Width(), rect.Height(), PATCOPY);
    }
    DWORD Style() const { return m_dwDefStyle; }
};

TEST_F(Outside, ACustomControl) {
    Painted painted;
    painted.ModifyDefStyle(WS_TABSTOP, WS_BORDER);
    EXPECT_EQ(painted.Style(), static_cast<DWORD>(WS_CHILD | WS_VISIBLE | WS_BORDER));
    ASSERT_TRUE(painted.Create(1, kRect, &m_parent));
    m_parent.ShowWindow(SW_SHOWNA);
    painted.RedrawWindow();
    CClientDC dc(&painted);
    EXPECT_EQ(dc.GetPixel(5, 5), RGB(255, 0, 0));
}

// --- Buttons

class Tool : public QVToolButton {
public:
    void LooksAtItself(CWnd& parent) {
        EXPECT_FALSE(m_bCheckable || m_bIgnoreUp || m_pFocusWnd || m_pToolTip || m_pImageList);
        m_bCheckable = TRUE;
        ASSERT_TRUE(Create("", WS_CHILD | BS_OWNERDRAW, kRect, &parent, 1));
        SetCheck(2);
        EXPECT_EQ(m_nCheck + m_nImage, 2);
        CClientDC dc(this);
        CRect rect(kRect);
        EXPECT_TRUE(ShadeRect(dc, rect));
    }
};

class Macros : public QVMacroButton {
public:
    unsigned m_nChosen = 9;
    void LooksAtItself(CWnd& parent) {
        ASSERT_TRUE(Create("", WS_CHILD | BS_OWNERDRAW, kRect, &parent, 1));
        AddMacro("title", "snippet");
        EXPECT_EQ(m_astrItems[0], "title");
        EXPECT_EQ(m_astrMacros[0], "snippet");
        EXPECT_EQ(m_nEditCtrlID, 0u);
        CClientDC dc(this);
        DrawArrow(dc, kRect, RGB(0, 0, 0));
        SendMessage(WM_COMMAND, m_nStartCmdID);
        EXPECT_EQ(m_nChosen, 0u);
    }
    void OnMenuSelected(unsigned nIndex) override { m_nChosen = nIndex; }
};

class Mark : public QVCheckWnd {
public:
    void LooksAtItself(CDC& dc) {
        SetIsChecked(1);
        EXPECT_TRUE(m_bChecked);
        DrawWindow(dc);
    }
};

TEST_F(Outside, Buttons) {
    Tool().LooksAtItself(m_parent);
    Macros().LooksAtItself(m_parent);
    Mark mark;
    ASSERT_TRUE(mark.Create(nullptr, "", WS_CHILD, kRect, &m_parent, 1));
    CClientDC dc(&mark);
    mark.LooksAtItself(dc);
}

// --- Print

class Item : public QVPrintEngineData {
public:
    Item() : QVPrintEngineData(nullptr, 3, nullptr, 4) {
        SetMinSize(1);
        SetMaxSize(2);
    }
    void LooksAtItself() {
        EXPECT_EQ(HeaderFont(), NormalFont());
        EXPECT_EQ(HeaderFontHeight() + NormalFontHeight(), 7u);
        EXPECT_EQ(MinSize() + MaxSize(), 3u);
        EXPECT_FALSE(Optional() || DoNotWidow());
        CalcSize(100);
        EXPECT_TRUE(IsComplete());
        SetIncomplete();
        EXPECT_FALSE(IsComplete());
    }
    void Print(CDC*, CRect&, unsigned, unsigned) override {}
};

TEST_F(Outside, ThePrintEngine) {
    Item().LooksAtItself();
    QVPrintEngine engine(nullptr, nullptr, nullptr, nullptr);
    engine.SetPrintAllRows(true);
    CClientDC dc(&m_parent);
    QVPeDataLabeledList& totals = engine.AddLabeledDataList(&dc);
    totals.SetFitNumbers(true);
    totals.SetIndented(1);
    QVPrintEnginePage page;
    page.SetFirstItem(1);
    page.SetLastItem(2);
    page.SetFirstSub(3);
    page.SetLastSub(4);
    EXPECT_EQ(page.GetFirstItem() + page.GetLastItem() + page.GetFirstSub() + page.GetLastSub(),
              10u);
    QVPrintEngine copy(engine);
    copy = engine;
    EXPECT_TRUE(copy.IsComplete());
}

// --- The module

TEST_F(Outside, TheModule) {
    EXPECT_NE(InitQVControlExtensionDLL(), nullptr);
}

}  // namespace
