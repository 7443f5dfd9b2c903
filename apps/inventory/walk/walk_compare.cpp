#include "walk/walk.h"

#include "compare/changed_page.h"
#include "compare/comparison_frame.h"
#include "compare/comparison_view.h"
#include "compare/list_pages.h"
#include "inventory_app.h"
#include "model/package_database.h"
#include "resource.h"

#include <afxpriv.h>

#include <dlgs.h>
#include <fstream>

namespace {

constexpr char kSnapshotTitle[] = "Save a snapshot of the packages";
constexpr char kCompareTitle[] = "Compare with an earlier package database";
constexpr int kVersionId = 30111;  // in the about box

// What the snapshot says, but for every so many packages, as an earlier day may have been.
constexpr size_t kLeftOut = 40;
constexpr size_t kRenamed = 55;
constexpr size_t kOlder = 9;
constexpr size_t kNewer = 70;
constexpr size_t kSmaller = 16;

std::vector<Package> Read(const CString& strFile) {
    std::vector<Package> packages;
    Problem problem;
    ReadPackages(static_cast<LPCSTR>(strFile), packages, problem);
    return packages;
}

void Replace(std::string& strEntry, const std::string& strField, const std::string& strValue) {
    const size_t nStart = strEntry.find("\n" + strField + ": ");
    if (nStart != std::string::npos) {
        const size_t nValue = nStart + strField.size() + 3;
        strEntry.replace(nValue, strEntry.find('\n', nValue) - nValue, strValue);
    }
}

void WriteEarlier(const CString& strFile, const std::vector<Package>& packages) {
    std::ofstream file(strFile, std::ios::binary);
    for (size_t i = 1; i <= packages.size(); ++i) {
        const Package& package = packages[i - 1];
        std::string strEntry = "\n" + *package.pStanza;
        if (i % kLeftOut == 0) {
            continue;
        }
        if (i % kRenamed == 0) {
            Replace(strEntry, "Package", package.strName + "-of-old");
        }
        if (i % kOlder == 0) {
            Replace(strEntry, "Version", package.strVersion + "~");
        }
        if (i % kNewer == 0) {
            Replace(strEntry, "Version", "99:" + package.strVersion);
        }
        if (i % kSmaller == 0) {
            Replace(strEntry, "Installed-Size", std::to_string(package.nSizeKiB / 2));
        }
        file << strEntry;
    }
}

ComparisonView* View() {
    const auto& comparisons = static_cast<InventoryApp*>(AfxGetApp())->Comparisons();
    POSITION pos = comparisons.GetFirstDocPosition();
    CDocument* const pDocument = pos != nullptr ? comparisons.GetNextDoc(pos) : nullptr;
    POSITION posView = pDocument != nullptr ? pDocument->GetFirstViewPosition() : nullptr;
    return posView != nullptr ? dynamic_cast<ComparisonView*>(pDocument->GetNextView(posView))
                              : nullptr;
}

ComparisonFrame& Frame() {
    return static_cast<ComparisonFrame&>(*View()->GetParentFrame());
}

bool IsActive(int nPage) {
    return View()->GetActivePage() == nPage && View()->Page(nPage)->IsWindowVisible();
}

bool InPreview() {
    return dynamic_cast<CPreviewView*>(Frame().GetActiveView()) != nullptr;
}

CWnd& PreviewButton(UINT nID) {
    return *Frame().GetDlgItem(AFX_IDW_PREVIEW_BAR)->GetDlgItem(static_cast<int>(nID));
}

int PixelsOf(long nTwips) {
    constexpr int kTwipsPerInch = 1440;
    return ::MulDiv(nTwips, CClientDC(nullptr).GetDeviceCaps(LOGPIXELSX), kTwipsPerInch);
}

// Where the strip itself says that a tab is.
CPoint PointOfTab(short nTab) {
    CTab& tabs = View()->GetTabCtrl();
    CRect rc;
    tabs.GetWindowRect(&rc);
    const int nRight = rc.left + PixelsOf(tabs.GetClientLeft());
    CPoint pt((rc.left + nRight) / 2, rc.top);
    if (nRight - rc.left < 8) {  // at the other side
        pt.x = rc.right - 8;
    }
    for (; pt.y < rc.bottom; pt.y += 4) {
        SendMouse(pt, {MOUSEEVENTF_MOVE});
        HandleMessages();
        if (tabs.GetMouseOverTab() == nTab) {
            break;
        }
    }
    return pt + CSize(0, 6);
}

constexpr int kInCell = 8;  // pixels

CPoint PointOfCell(ChangedGrid& grid, int nRow, int nCol) {
    CPoint pt(PixelsOf(grid.GetColPos(nCol)) + kInCell, PixelsOf(grid.GetRowPos(nRow)) + kInCell);
    grid.ClientToScreen(&pt);
    return pt;
}

// A menu runs a loop of its own, so it is looked at and closed from a timer.
CPoint s_ptMenu(-1, -1);
void CALLBACK CloseMenu(HWND hWnd, UINT, UINT_PTR nTimer, DWORD) {
    const HWND hMenu = ::FindWindow("#32768", nullptr);
    if (hMenu != nullptr && ::IsWindowVisible(hMenu)) {
        ::KillTimer(hWnd, nTimer);
        CRect rc;
        ::GetWindowRect(hMenu, &rc);
        s_ptMenu = rc.TopLeft();
        Press(VK_ESCAPE);
    }
}

CString ClipboardText() {
    CString strText;
    if (::OpenClipboard(nullptr)) {
        if (const HANDLE hText = ::GetClipboardData(CF_TEXT)) {
            strText = static_cast<LPCSTR>(::GlobalLock(hText));
            ::GlobalUnlock(hText);
        }
        ::CloseClipboard();
    }
    return strText;
}

}  // namespace

bool Walk::Comparisons() {
    const std::vector<Package> packages = Read(m_strFolder + "\\snapshot-status");
    if (packages.size() < 2 * kNewer) {
        std::printf("walk: too few packages to compare\n");
        return true;
    }
    WriteEarlier(m_strFolder + "\\earlier-status", packages);
    return CompareWithEarlier() && ComparisonPages() && CompareWithGone() && ComparisonPreview() &&
           ShowInInventory() && CompareWithSame() && CloseComparison();
}

bool Walk::SaveSnapshot() {
    const CString strFile = m_strFolder + "\\snapshot-status";
    return InDialog(
               kSnapshotTitle,
               [] {
                   Press('I', VK_MENU);
                   Press('S');
               },
               [&](CWnd&) {
                   ::SetWindowText(::GetFocus(), strFile);
                   const bool bGood = Station("compare-1-save-snapshot");
                   Press(VK_RETURN);
                   return bGood;
               }) &&
           Expect("all packages are in the snapshot", [&] {
               return !Work::IsRunning() &&
                      Read(strFile).size() == m_frame.Shown()->CountPackages();
           });
}

bool Walk::CompareWithEarlier() {
    const CString strFile = m_strFolder + "\\earlier-status";
    return InDialog(
               kCompareTitle,
               [] {
                   Press('I', VK_MENU);
                   Press('C');
               },
               [&](CWnd&) {
                   ::SetWindowText(::GetFocus(), strFile);
                   const bool bGood = Station("compare-2-file-dialog");
                   Press(VK_RETURN);
                   return bGood;
               }) &&
           Expect("a frame of its own shows the comparison",
                  [&] { return View() != nullptr && Frame().IsWindowVisible(); }) &&
           Expect("with its first page", [] { return IsActive(ComparisonView::kSummary); }) &&
           Happened("and the main window stays", m_frame.IsWindowVisible() != FALSE) &&
           Station("compare-3-summary", &Frame());
}

bool Walk::ComparisonPages() {
    Click(PointOfTab(ComparisonView::kNew));
    if (!Expect("a click on a tab shows its page", [] { return IsActive(ComparisonView::kNew); }) ||
        !Station("compare-4-new", &Frame())) {
        return false;
    }
    auto& list = static_cast<QVListCtrlEx&>(View()->Active()->Control());
    Frame().SendMessage(WM_COMMAND, ID_COMPARE_SORT_FIRST);
    const CString strFirst = list.GetItemText(0, 0);
    Frame().SendMessage(WM_COMMAND, ID_COMPARE_SORT_FIRST);
    if (!Happened("a command sorts the list, and turns its order the second time",
                  list.GetItemCount() < 2 || list.GetItemText(0, 0) != strFirst)) {
        return false;
    }
    Press(VK_DOWN);
    if (!Expect("a key in the strip shows the next page",
                [] { return IsActive(ComparisonView::kGone); }) ||
        !Station("compare-5-gone", &Frame())) {
        return false;
    }
    Press('4', VK_CONTROL);
    if (!Expect("an accelerator shows what has changed", [] {
            return IsActive(ComparisonView::kChanged) &&
                   ::GetFocus() == View()->Active()->Control().m_hWnd;
        })) {
        return false;
    }
    auto& grid = static_cast<ChangedGrid&>(View()->Active()->Control());
    Press(VK_F8);
    if (!Expect("the next difference is the second row", [&] { return grid.Row() == 1; })) {
        return false;
    }
    Frame().SendMessage(WM_COMMAND, ID_COMPARE_AGAIN);
    CRect rcGrid;
    CRect rcView;
    CRect rcBoth;
    grid.GetWindowRect(&rcGrid);
    View()->GetWindowRect(&rcView);
    return Happened("which it stays as all is compared again", grid.Row() == 1) &&
           Happened("the page ends where its window does",
                    rcBoth.IntersectRect(rcGrid, rcView) && rcBoth == rcGrid) &&
           Station("compare-6-changed", &Frame()) && FindInComparison(grid) &&
           ComparisonCells(grid) && ExportComparison();
}

// The last row of all, by its name; and the way to the tabs and back.
bool Walk::FindInComparison(ChangedGrid& grid) {
    const int nLast = static_cast<int>(View()->Active()->Rows()) - 1;
    const CString strName = grid.GetTextMatrix(nLast + 1, ChangedGrid::kName);
    HWND hDialog = nullptr;
    Press('F', VK_CONTROL);
    if (!Expect("the platform's dialog for finding comes up", [&] {
            hDialog = ::FindWindow("#32770", "Find");
            return hDialog != nullptr && ::GetFocus() == ::GetDlgItem(hDialog, edt1);
        })) {
        return false;
    }
    ::SetDlgItemText(hDialog, edt1, strName);
    Press('A', VK_CONTROL);
    Press('C', VK_CONTROL);
    if (!Expect("its edit keeps its keys", [&] { return ClipboardText() == strName; })) {
        return false;
    }
    Press(VK_RETURN);
    const bool bFound = Expect("the row is found", [&] {
        return grid.GetTextMatrix(grid.Row() + 1, ChangedGrid::kName).Find(strName) >= 0;
    });
    const bool bGood =
        bFound &&
        Happened("and marked from its name to its end",
                 grid.GetCol() == ChangedGrid::kName && grid.GetColSel() == ChangedGrid::kChange) &&
        Station("compare-13-found", &Frame());
    ::SetFocus(::GetDlgItem(hDialog, edt1));
    Press(VK_ESCAPE);
    if (!bGood || !Expect("Escape closes the dialog", [&] { return !::IsWindow(hDialog); })) {
        return false;
    }
    CWnd& tabs = View()->GetTabCtrl();
    grid.GoTo(0);
    Press(VK_F3);
    if (!Expect("F3 finds it again", [&] { return grid.Row() > 0; })) {
        return false;
    }
    grid.GoTo(1);
    grid.SetTopRow(1);
    const auto there = [&](WORD nKey, const char* pszWhat) {
        grid.SetFocus();
        Press(nKey);
        return Expect(pszWhat, [&] { return ::GetFocus() == tabs.m_hWnd; });
    };
    const auto back = [&](WORD nKey, const char* pszWhat) {
        Press(nKey);
        return Expect(pszWhat, [&] { return ::GetFocus() == grid.m_hWnd; });
    };
    return there(VK_TAB, "Tab leads to the tabs") && back(VK_TAB, "and back to the page") &&
           there(VK_F6, "so does F6") && back(VK_F6, "and back");
}

bool Walk::ExportComparison() {
    const CString strFile = m_strFolder + "\\comparison.html";
    CFileStatus status;
    return InDialog(
               "Export the list", [] { Press('E', VK_CONTROL); },
               [&](CWnd& dialog) {
                   dialog.SetDlgItemText(IDC_EXPORT_PATH, strFile);
                   Press(VK_RETURN);
                   return true;
               }) &&
           Expect("the page of the comparison is a web page",
                  [&] { return CFile::GetStatus(strFile, status) && status.m_size > 0; });
}

bool Walk::ComparisonCells(ChangedGrid& grid) {
    const auto nRows = static_cast<int>(View()->Active()->Rows());
    int nRow = 1;
    while (nRow < nRows && grid.GetTextMatrix(nRow, ChangedGrid::kChange).Find("newer") < 0) {
        ++nRow;
    }
    const CPoint pt = PointOfCell(grid, nRow, ChangedGrid::kNow);
    const CClientDC dcScreen(nullptr);
    if (!Expect("a newer version is green",
                [&] { return dcScreen.GetPixel(pt - CSize(5, 5)) == RGB(224, 246, 224); })) {
        return false;
    }
    SendMouse(pt - CSize(3, 0), {MOUSEEVENTF_MOVE});
    HandleMessages();
    SendMouse(pt, {MOUSEEVENTF_MOVE});
    if (!Expect("a cell says what has changed", TipShows) ||
        !Station("compare-7-tool-tip", &Frame())) {
        return false;
    }
    Click(pt);
    if (!Expect("a click picks the cell", [&] { return grid.GetRow() == nRow; })) {
        return false;
    }
    const CPoint ptBelow(pt.x - kInCell, pt.y - kInCell + PixelsOf(grid.GetRowHeight(nRow)));
    Frame().SetTimer(1, 50, CloseMenu);
    Press(VK_F10, VK_SHIFT);
    // Further to the left where the screen ends before it does.
    if (!Expect("a key opens its menu below it", [&] {
            return s_ptMenu.y == ptBelow.y && s_ptMenu.x != -1 && s_ptMenu.x <= ptBelow.x;
        })) {
        return false;
    }
    Press('C', VK_CONTROL);
    return Expect("a key copies it", [&] {
        return ClipboardText() == grid.GetTextMatrix(nRow, ChangedGrid::kNow) + "\r\n";
    });
}

// The earlier file is away for a while.
bool Walk::CompareWithGone() {
    const CString strFile = m_strFolder + "\\earlier-status";
    const CString strAway = strFile + "-away";
    if (!Happened("the file is moved", ::MoveFile(strFile, strAway) != FALSE)) {
        return false;
    }
    const bool bTold = InDialog(
        "Exception Message", [] { Press(VK_F5); },
        [this](CWnd& dialog) {
            const bool bGood = Station("compare-14-gone", &dialog);
            Press(VK_ESCAPE);
            return bGood;
        });
    return Happened("and moved back", ::MoveFile(strAway, strFile) != FALSE) && bTold &&
           Expect("the comparison is in front again",
                  [] { return ::GetForegroundWindow() == Frame().m_hWnd; }) &&
           Happened("as it was", View()->Active()->Rows() > 0);
}

bool Walk::ComparisonPreview() {
    Press('F', VK_MENU);
    Press('V');
    if (!Expect("the page shows as it will be printed", InPreview) ||
        !Station("compare-8-preview", &Frame())) {
        return false;
    }
    ClickOn(PreviewButton(AFX_ID_PREVIEW_NUMPAGE));
    HandleMessages();
    if (!Station("compare-9-two-pages", &Frame())) {
        return false;
    }
    ClickOn(PreviewButton(AFX_ID_PREVIEW_ZOOMIN));
    HandleMessages();
    if (!Station("compare-10-zoomed", &Frame())) {
        return false;
    }
    const CString strFile = m_strFolder + "\\comparison.ps";
    bool bNamed = false;
    if (!InDialog(
            "Print", [] { ClickOn(PreviewButton(AFX_ID_PREVIEW_PRINT)); },
            [&](CWnd& dialog) {
                dialog.CheckDlgButton(chx1, BST_CHECKED);  // to a file
                WhileUp("Print to File", [&](CWnd&) {
                    ::SetWindowText(::GetFocus(), strFile);
                    Press(VK_RETURN);
                    return bNamed = true;
                });
                Press(VK_RETURN);
                return true;
            }) ||
        !Happened("it is asked for the file", bNamed)) {
        return false;
    }
    CFileStatus status;
    return Expect("it is printed from there, and the pages are back",
                  [&] {
                      return !InPreview() && CFile::GetStatus(strFile, status) &&
                             IsActive(ComparisonView::kChanged);
                  }) &&
           Station("compare-11-printed", &Frame());
}

bool Walk::ShowInInventory() {
    const Difference& difference =
        static_cast<ComparisonDocument*>(View()->GetDocument())->Differences().Changed()[0];
    View()->Active()->GoTo(0);
    Press('I', VK_CONTROL);
    const auto shown = [&] {
        const Package* pPackage = List().PackageOf(List().GetSelectedItem());
        return pPackage != nullptr && pPackage->strName == difference.pAfter->strName;
    };
    return Expect("the package is shown in the main window", shown) &&
           Expect("which comes to the front",
                  [this] { return ::GetForegroundWindow() == m_frame.m_hWnd; });
}

// Into the frame that is there: nothing is different from the snapshot.
bool Walk::CompareWithSame() {
    ComparisonFrame* const pFrame = &Frame();
    return Happened("a snapshot is compared", m_frame.Compare(m_strFolder + "\\snapshot-status")) &&
           Happened("in the frame that is there", &Frame() == pFrame) &&
           Expect("and nothing is different",
                  [] { return View()->Page(ComparisonView::kChanged)->Rows() == 0; }) &&
           Station("compare-12-same", pFrame);
}

bool Walk::CloseComparison() {
    Frame().ActivateFrame();
    View()->Active()->SetPageFocus();
    Press('W', VK_CONTROL);
    return Expect("the comparison closes", [] { return View() == nullptr; }) &&
           Happened("and the main window does not", m_frame.IsWindowVisible() != FALSE) &&
           // One that is open closes with the main window.
           Happened("another one opens", m_frame.Compare(m_strFolder + "\\earlier-status"));
}

bool Walk::About() {
    return InDialog(
        "About Inventory",
        [this] {
            m_frame.SetForegroundWindow();
            Press('H', VK_MENU);
            Press('A');
        },
        [this](CWnd& dialog) {
            CString strVersion;
            dialog.GetDlgItemText(kVersionId, strVersion);
            const bool bGood = Happened("the about box has a version", !strVersion.IsEmpty()) &&
                               Station("about-1-box");
            Press(VK_RETURN);
            return bGood;
        });
}
