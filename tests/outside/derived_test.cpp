// Each class derived from, outside the library: what a derived class reaches of it. The build sees
// to it that every inline function of the headers links.
#include <QVControls.h>
#include <gtest/gtest.h>
#include <memory>

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

// --- Tree

class Tree : public QVTreeCtrlEx {
public:
    Tree() { KeepSteps(typeid(Tree)); }

    CString GetAccessibleName(long nPart) override {
        return QVTreeCtrlEx::GetAccessibleName(nPart) + "!";
    }
    void LooksAtItself(CWnd& parent) {
        ASSERT_TRUE(Create(WS_CHILD | TVS_HASLINES, kRect, &parent, 1));
        const HTREEITEM hRoot = InsertItem("root", 0, 0, TVI_ROOT, TVI_LAST);
        EXPECT_TRUE(GetTopItem() == hRoot && GetBottomItem() == hRoot);
        EXPECT_TRUE(GetIndentTabs() && GetRedraw() && !GetShowStatesAtRoot());
        EXPECT_EQ(GetTabCount() + GetHScrollPos() + GetVScrollPos() + GetHPage() + GetVPage(), 0);
        EXPECT_TRUE(GetIndentStep() == 19 && GetMaxWidth() > 0 && ItemHeight() > 0);
        EXPECT_EQ(GetImageSize() + GetStateImageSize(), CSize(0, 0));
        EXPECT_TRUE(m_pImageList == m_pStateImageList && m_bAllowTags == m_bAutoTagChildren);
        EXPECT_EQ(m_brBackground.m_hObject, nullptr) << "lives for one paint";
        EXPECT_EQ(GetAccessibleName(GetItemPart(hRoot)), "root!");
        EXPECT_EQ(NumStyles(), 1);
        EXPECT_EQ(StyleColors(0).crText, ::GetSysColor(COLOR_WINDOWTEXT));
        EXPECT_EQ(StyleColors(1).crBk, 0u);
    }
};

// --- Grid

class Grid : public QVGridCtrl {
public:
    CString GetAccessibleValue(long nPart) override {
        return QVGridCtrl::GetAccessibleValue(nPart) + " %";
    }
    void LooksAtItself(CWnd& parent) {
        AddColumn(gctStatic, 50);
        AddColumn(gctEdit, 50);
        AddRow("one\ttwo", 0);
        ASSERT_TRUE(Create(1, kRect, &parent));
        GotoCell(0, 1, FALSE);
        EXPECT_EQ(m_nTopRow + m_nCurRow + m_nCurCol, 1);
        EXPECT_EQ(RowAt(0).dwState & GRS_CURRENT, GRS_CURRENT);
        EXPECT_FALSE(m_bReadOnly || m_bEditing || m_bIgnoreFocus || m_bBtnDown || m_bBtnOver);
        EXPECT_TRUE(m_bRedraw && PressedButtonRect().IsRectEmpty());
        EXPECT_FALSE(InPlaceEdit().m_hWnd || ChoiceList().m_hWnd || m_penGrid.m_hObject);
        CRect rc;
        CalcCellRect(0, 1, rc);
        EXPECT_EQ(rc.Height(), m_nCellHeight);
        EXPECT_EQ(GetAccessibleValue(GetCellPart(0, 1)), "two %");
    }
};

// --- Text

class Text : public QVTextWnd {
public:
    void LooksAtItself(CWnd& parent) {
        CRect rect(kRect);
        ASSERT_TRUE(Create(rect, &parent, 1, 1));
        EnableExpectedKeys();
        EXPECT_TRUE(AreExpectedKeysEnabled() && !HasSelection());
        AddText("one", 0);
        AddText("two\nthree, and wide enough to be wrapped in a window of this size", 0);
        CalcLayout();
        QVTEXTLINE row{-9, -9};
        EXPECT_TRUE(GetDisplayLine(2, row));
        EXPECT_EQ(row.nLine + row.nSubLine, 2);
        EXPECT_FALSE(GetDisplayLine(NumDisplayLines(), row));
        m_bUseProportionalFont = 0;
        AddText(GetLineText(1), 0);
        CalcLayout();
        EXPECT_GT(m_nMaxLineLength * m_nCharWidth, kRect.Width());
        EXPECT_TRUE(m_bBorder && m_bHScrollBar && !m_bVScrollBar && m_nNumRows == NumRows());
        EXPECT_EQ(m_nHScrollPos + m_nVScrollPos, 0);
        EXPECT_TRUE(m_nTabStop > 0 && m_crBk == ::GetSysColor(COLOR_WINDOW));
        SetUseProportionalFont(1);
        EXPECT_FALSE(m_bUseProportionalFont) << "does nothing";
        KeepsPages();
        FollowsAsLongAsThereIsOne();
    }

private:
    void KeepsPages() {
        SetPrintAreaSize(CSize(30, 40));
        SetLinesPerPage(1);
        AddPrintLine(0, 0);
        AddPrintLine(1, -1);
        SetNumPages(2);
        EXPECT_EQ(PrintAreaSize(), CSize(30, 40));
        EXPECT_EQ(LinesPerPage() + NumPages() + NumPrintRows() + CurPrintLine(), 5);
        QVTEXTLINE row{-9, -9};
        EXPECT_TRUE(GetPrintLine(1, row) && row.nSubLine == -1 && !GetPrintLine(2, row));
        ClearPrintData();
        EXPECT_EQ(NumPages() + NumPrintRows(), 0);
    }
    void FollowsAsLongAsThereIsOne() {
        {
            QVTextWnd other;
            SyncWith(&other, 1);
            EXPECT_EQ(SyncWnd(), &other);
        }
        EXPECT_EQ(SyncWnd(), nullptr);
    }
};

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
    void LooksAtItself(CWnd&) {
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

// --- Lists

class List : public QVSortingListCtrl {
public:
    void LooksAtItself(CWnd& parent) {
        m_dwDefStyle = WS_CHILD | LVS_REPORT;
        ASSERT_TRUE(Create(1, kRect, &parent));
        AddHeader("one\ttwo", lcdtNumber);
        InsertBitmapString(-1, -1, "1\ta");
        EXPECT_TRUE(IsPrintComplete() && InReportMode());
        EXPECT_TRUE(m_bImageCenterVert && m_bAllowSel && !m_bAlwaysHighlightSel);
        EXPECT_EQ(GetDataWidth(), m_nDataWidth);
        EXPECT_STREQ(CellText(0, 1), "a");
        EXPECT_EQ(ToldWindow(), parent.m_hWnd);
        EXPECT_EQ(m_aColTypes[1], lcdtNumber);
        m_bAscending = FALSE;
        SortOnHeader(0);
        EXPECT_TRUE(m_bAscending);
        EXPECT_EQ(m_nImageWidth + m_nImageHeight, 0);
        SetNumColumns(1);
        EXPECT_EQ(NumColumns(), 1);
    }
};

class VirtualList : public QVVirtualListCtrl {
public:
    void LooksAtItself(CWnd& parent) {
        ASSERT_TRUE(Create(1, kRect, &parent));
        AddHeader("one", lcdtNumber);
        SetRowCount(9);
        SortOnHeader(0);
        EXPECT_STREQ(CellText(0, 0), "8") << "the first click gives the descending order";
    }

protected:
    void GetRow(int nRow, QVLISTROW& row) override { row.strText.Format("%d", nRow); }
    void GetSortText(int nRow, int nCol, CString& strText) override {
        QVVirtualListCtrl::GetSortText(nRow, nCol, strText);
    }
    void PrepareRows(const int* pRows, int nRows) override {
        QVVirtualListCtrl::PrepareRows(pRows, nRows);
    }
};

// --- Boxes

class ListBox : public QVBitmapListBox {
public:
    void LooksAtItself(CWnd& parent) {
        ASSERT_TRUE(Create(WS_CHILD, kRect, &parent, 1));
        SetHeader(2);
        SortByImageIndex(0);
        ASSERT_TRUE(Initialize(1, 0, 0, 0, &parent));
        EXPECT_EQ(m_nHeaderID, 2u);
        EXPECT_EQ(m_anTabs[0], 60) << "by CalcTabs";
        AddHeader("title");
        EXPECT_TRUE(m_header.GetItemCount() == 1 && m_wndFrame.m_hWnd == nullptr);
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
    CString GetAccessibleRow(int nRow) override {
        return QVColorComboBox::GetAccessibleRow(nRow) + "!";
    }
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
        InsertColorString(0, 0, "row");
        SetCurSel(0);
        EXPECT_EQ(GetAccessibleValue(CHILDID_SELF), "row!");
        ExtractInfo("a\tb\t7", nColor, strText);
        EXPECT_STREQ(strText, "a\tb");
        CClientDC dc(&parent);
        DrawColorBox(&dc, 1, CPoint(0, 0));
    }
};

// --- Captions

template <class Base>
class Captioned : public Base {
public:
    void LooksAtItself(CWnd& parent) {
        this->SetHeaderText("caption");
        CRect rect(kRect);
        ASSERT_TRUE(this->Create(WS_CHILD, rect, &parent, 1));
        CRect rcBar;
        CRect rcBody;
        this->CalcHeaderRect(rcBar);
        this->CalcBackgroundRect(rcBody);
        EXPECT_GE(rcBody.top, rcBar.bottom);
        EXPECT_TRUE(this->m_nHeaderHeight > 0 && this->m_strHeaderText == "caption");
        EXPECT_TRUE(this->m_bFillBody && this->IsInnerId(5, 5));
    }
};

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

class TabbedView : public QVTabView {
public:
    TabbedView() : QVTabView(7) {}
    void LooksAtItself(CWnd& parent) {
        class Page : public QVTabViewPage {
        public:
            Page() : QVTabViewPage(5) { m_bNeedsUpdate = TRUE; }
            bool IsAlone() { return m_nIDTemplate == 5 && m_bNeedsUpdate && !GetTabView(); }
        };
        CWindowDC dc(&parent);
        EXPECT_TRUE(Page().IsAlone() && FindStringTwips(dc, "two\nlines") > 0);
        EXPECT_EQ(m_Pages.GetSize() + m_astrTitles.GetSize() + OnHandleCommand(1), 0);
        EXPECT_TRUE(m_nTabCtrlID == 7 && !m_TabCtrl.m_hWnd && GetActivePage() == -1);
        InitializeTabCtrl(), AddTabPages(), UpdateAllPages(1, nullptr);
    }
};

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

// --- Property sheets

template <class BaseSheet, class BasePage>
class PropSheet : public BaseSheet {
public:
    PropSheet() : BaseSheet("Sheet") {}
    void LooksAtItself(CWnd&) {
        BasePage page(30999u);
        this->AddPage(&page);
        this->BuildPropPageArray();
        EXPECT_TRUE(this->m_psh.nPages == 1 && this->m_fontTab.m_hObject != nullptr);
    }
};

// --- Wizards

class Panel : public QVWizardStepWnd {
public:
    void LooksAtItself(CWnd&) {
        EXPECT_TRUE(m_nStepIndex == -1 && m_dwStepID == 0);
        EXPECT_TRUE((m_dwDefStyle & WS_CHILD) && !m_fontNormal.m_hObject && !m_fontBold.m_hObject);
    }
};

class WizardPage : public QVWizardPage {
public:
    void LooksAtItself(CWnd&) {
        EXPECT_TRUE(m_dwWizButtons == PSWIZB_BACK && !m_StepWnd.m_hWnd);
        EXPECT_EQ(QVWizard().RegisterWizPage(this, "title"), 0);
    }
};

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
    void LooksAtItself(CWnd& parent) {
        ASSERT_TRUE(Create(nullptr, "", WS_CHILD, kRect, &parent, 1));
        SetIsChecked(1);
        EXPECT_TRUE(m_bChecked);
        CClientDC dc(this);
        DrawWindow(dc);
    }
};

// --- Dialogs

template <class Base>
class Asking : public Base {
public:
    void LooksAtItself(CWnd&) {
        EXPECT_TRUE(this->m_bCheckEnabled && !this->m_btnCheck.m_hWnd && !this->m_nCheck);
    }
};

class Waiting : public QVWaitDlg {
public:
    void LooksAtItself(CWnd& parent) {
        ASSERT_TRUE(Display(&parent, FALSE));
        m_nPos = m_nRange / 2;
        UpdateProgressBar();
        ProcessWinMessages();
        OnCancel();
        EXPECT_TRUE(m_bCancelled && m_pOwner == &parent && m_bOwnerEnabled && !m_bCapture);
        EXPECT_EQ(m_wndProgress.GetPos(), 50);
    }
};

class Browsing : public QVBrowseMachineDlg, public QVMachineFolders {
public:
    void LooksAtItself(CWnd&) {
        SetMachineName("M");
        SetMachineFolders(this);
        ASSERT_TRUE(Create(30006u, nullptr));
        const HTREEITEM hShare = m_wndTree.GetChildItem(m_hMachineItem);
        BuildNode(hShare, "\\\\M\\only");
        EXPECT_FALSE(IsNodeReset(hShare));
        ResetNode(hShare);
        m_wndTree.SelectItem(hShare);
        UpdateButtons();
        EXPECT_TRUE(IsNodeReset(hShare) && m_btnOK.IsWindowEnabled() && UpdateData());
        EXPECT_EQ(m_strItemPath, "\\\\M\\only");
    }
    void ListShares(LPCSTR, QVFolderTaker& taker) override { taker.TakeFolder("only", 0); }
    void ListSubfolders(LPCSTR psz, QVFolderTaker& taker) override { ListShares(psz, taker); }
    BOOL MachineAnswers(LPCSTR) override { return TRUE; }
    int GetImage(LPCSTR) override { return 0; }
};

// --- Print

class Item : public QVPrintEngineData {
public:
    Item() : QVPrintEngineData(nullptr, 3, nullptr, 4) {
        SetMinSize(1);
        SetMaxSize(2);
    }
    void LooksAtItself(CWnd&) {
        EXPECT_EQ(HeaderFont(), NormalFont());
        EXPECT_EQ(HeaderFontHeight() + NormalFontHeight() + MinSize() + MaxSize(), 10u);
        SetIncomplete();
        EXPECT_FALSE(Optional() || DoNotWidow() || IsComplete());
    }
    void Print(CDC*, CRect&, unsigned, unsigned) override {}
};

// --- Dialogs

class Folders : public QVBrowseDlg {
public:
    void LooksAtItself(CWnd&) {
        EXPECT_TRUE(m_hWndParent == nullptr && m_nBrowseFlags == 1 && m_nFolderLocation == 18);
    }
};

class OneFile : public QVFileDialogEx {
public:
    OneFile() : QVFileDialogEx(TRUE) {}
    void LooksAtItself(CWnd&) {
        EXPECT_STREQ(m_strFilter + m_strOkButtonText + m_strDlgTitle, "All Files (*.*)");
        EXPECT_STREQ(m_strFilter.GetString() + 16, "*.*");
    }
};

class Machine : public QVFindInstallationDlg {
public:
    void LooksAtItself(CWnd& parent) {
        SetInstallationMachine("m");
        EXPECT_TRUE(Create(30004, &parent) && m_btnOK.IsWindowEnabled());
    }
};

class TextDlg : public QVTextDlg {
public:
    void LooksAtItself(CWnd& parent) {
        ASSERT_TRUE(Create(30005u, &parent));
        EXPECT_TRUE(m_wndText.m_hWnd && m_btnClose.m_hWnd && m_wndMessage.m_hWnd);
        EXPECT_TRUE((m_strFilePath + m_strMessage + m_strTitle).IsEmpty() && !IsTextLoaded());
        QVStatus(1001, "from outside").SetCause(QVStatus::FromSystem(ERROR_ACCESS_DENIED));
    }
};

class About : public QVAboutBox {
public:
    About() : QVAboutBox(UINT{30008}, 0, nullptr) { m_bExtended = 0; }
    void LooksAtItself(CWnd&) {
        EXPECT_FALSE(m_bShowDatabase || m_wndIcon.m_hWnd || m_wndDatabaseType.m_hWnd ||
                     m_wndDatabaseLocation.m_hWnd || m_wndDatabaseName.m_hWnd);
        EXPECT_TRUE(m_strTitle.IsEmpty() && m_strDatabaseType.IsEmpty() && m_nIconID == 0);
    }
};

// --- Automation

class FlexGrid : public QVFlexGridCtrl {
public:
    int GetCellToolTip(int nRow, int nCol, char* pszText) override {
        return QVFlexGridCtrl::GetCellToolTip(nRow, nCol, pszText) + kToolTipRoom;
    }
    void LooksAtItself(CWnd& parent) {
        EXPECT_TRUE(m_pToolTip == nullptr && GetCellToolTip(0, 0, nullptr) > 80);
        EXPECT_FALSE(Create(nullptr, WS_CHILD, kRect, &parent, 1)) << "no such control here";
        EXPECT_EQ(GetFont().GetBold() + GetPicture().GetType() + GetRows(), 0);
    }
};

template <class Wrapper>
class Wrapped : public Wrapper {
public:
    void LooksAtItself(CWnd&) {
        const std::unique_ptr<CObject> pMade(RUNTIME_CLASS(Wrapper)->CreateObject());
        EXPECT_TRUE(pMade->IsKindOf(RUNTIME_CLASS(CWnd)) &&
                    this->GetFont().m_lpDispatch == nullptr);
        EXPECT_FALSE(IsEqualGUID(this->GetClsid(), CLSID_NULL));
    }
};

// --- A control of a program's own that says what it is

class Spoken : public CWnd, public QVAccessible {
public:
    Spoken() : QVAccessible(static_cast<CWnd&>(*this)) {}
    ~Spoken() override { DestroyWindow(); }
    long GetAccessibleCount() override { return 2; }
    void LooksAtItself(CWnd& parent) {
        ASSERT_TRUE(Create(nullptr, "&Dial", WS_CHILD, kRect, &parent, 1));
        EXPECT_TRUE(IsAccessiblePart(2) && !IsAccessiblePart(3));
        EXPECT_EQ(GetAccessibleName(0) + GetAccessibleShortcut(0), "DialAlt+D");
        EXPECT_TRUE(AsksAccessible(-4) && !AsksAccessible(0));
        TellAccessibleReorder();
        EXPECT_EQ(AnswerAccessible(0, 0x51563137), 0);
    }
};

// --- All of them

template <class Control>
class Outside : public testing::Test {
protected:
    Outside() {
        m_parent.CreateEx(0, AfxRegisterWndClass(0), "", WS_OVERLAPPEDWINDOW, 0, 0, 300, 200,
                          nullptr, nullptr);
    }
    ~Outside() override { m_parent.DestroyWindow(); }

    Parent m_parent;
};
using Derived =
    testing::Types<Tree, Grid, Text, Box, SpeedEdit, DateEdit, List, VirtualList, ListBox,
                   BitmapCombo, ColorCombo, Captioned<QVHeaderWnd>, Captioned<QVListHeaderWnd>,
                   Captioned<QVTreeHeaderWnd>, Captioned<QVTextHeaderWnd>, TabbedPages, TabbedView,
                   Splitter, PropSheet<QVPropertySheet, QVPropertyPage>,
                   PropSheet<QVPropertySheetEx, QVPropertyPageEx>, Panel, WizardPage, Tool, Macros,
                   Mark, Asking<QVMsgBox>, Asking<QVMsgPromptDlg>, Waiting, TextDlg, Folders,
                   OneFile, Machine, Browsing, Item, About, FlexGrid, Wrapped<CTab>,
                   Wrapped<CfpText>, Spoken>;
TYPED_TEST_SUITE(Outside, Derived);

TYPED_TEST(Outside, ReachesWhatIsItsOwn) {
    TypeParam().LooksAtItself(this->m_parent);
}

}  // namespace
