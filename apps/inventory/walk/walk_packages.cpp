#include "walk/walk.h"

#include "resource.h"

#include <algorithm>

namespace {

constexpr UINT_PTR kTimer = 2;
constexpr UINT kLookAgain = 50;  // milliseconds
constexpr int kSizeColumn = 2;

CString s_strExportFile;

// Dialogs run a loop of their own, so what they are told comes from a timer.
void CALLBACK AnswerExport(HWND hWnd, UINT, UINT_PTR nTimer, DWORD) {
    const HWND hDialog = ::FindWindow(nullptr, "Export the list");
    const HWND hPath = hDialog != nullptr ? ::GetDlgItem(hDialog, IDC_EXPORT_PATH) : nullptr;
    if (hPath == nullptr || ::GetFocus() != hPath) {
        return;
    }
    ::KillTimer(hWnd, nTimer);
    ::SetWindowText(hPath, s_strExportFile);
    Press(VK_TAB);
    Press(VK_TAB);
    Press(VK_DOWN);  // the comma
    Press(VK_RETURN);
}

int CountLines(const CString& strFile) {
    CStdioFile file;
    int nLines = 0;
    if (file.Open(strFile, CFile::modeRead | CFile::typeText)) {
        for (CString strLine; file.ReadString(strLine);) {
            ++nLines;
        }
    }
    return nLines;
}

}  // namespace

CPoint Walk::PointOfHeading(int nCol) {
    CRect rc;
    CHeaderCtrl* pHeader = List().GetHeaderCtrl();
    pHeader->GetItemRect(nCol, &rc);
    pHeader->ClientToScreen(&rc);
    return rc.CenterPoint();
}

CPoint Walk::PointOfRow(int nItem) {
    CRect rc;
    List().GetItemRect(nItem, &rc, LVIR_BOUNDS);
    CPoint pt(rc.left + 60, rc.CenterPoint().y);
    List().ClientToScreen(&pt);
    return pt;
}

bool Walk::Packages() {
    Press(VK_TAB);
    if (!Expect("Tab leads from the tree to the list",
                [this] { return CWnd::GetFocus() == &List(); })) {
        return false;
    }
    const auto sizes = [this](bool bFalling) {
        const int nLast = List().GetItemCount() - 1;
        const Package* pFirst = List().PackageOf(0);
        const Package* pLast = List().PackageOf(nLast);
        return pFirst == nullptr || (bFalling ? pFirst->nSizeKiB >= pLast->nSizeKiB
                                              : pFirst->nSizeKiB <= pLast->nSizeKiB);
    };
    Click(PointOfHeading(kSizeColumn));
    if (!Expect("a click on a heading sorts", [&] { return sizes(false); })) {
        return false;
    }
    LetClickPass();
    Click(PointOfHeading(kSizeColumn));
    if (!Expect("a second click turns the order", [&] { return sizes(true); })) {
        return false;
    }
    List().EnsureVisible(0, FALSE);
    Click(PointOfRow(1));
    Press(VK_DOWN, VK_SHIFT);
    Press(VK_DOWN, VK_SHIFT);
    return Expect("shift and the arrow select several rows",
                  [this] { return List().GetSelectedCount() == 3; }) &&
           Station("packages-1-by-size");
}

bool Walk::FindPackage() {
    AskFor("ZLIB");
    return Expect("a package is found and shown",
                  [this] {
                      const Package* pPackage = List().PackageOf(List().GetSelectedItem());
                      return pPackage != nullptr &&
                             pPackage->strName.find("zlib") != std::string::npos;
                  }) &&
           Station("packages-2-find");
}

bool Walk::ImageColumn() {
    m_frame.PostMessage(WM_COMMAND, ID_LIST_IMAGE_COLUMN);
    if (!Expect("images get a column of their own",
                [this] { return List().HasImageColumn() && List().GetSelectedCount() == 1; })) {
        return false;
    }
    List().EnsureVisible(List().GetSelectedItem(), FALSE);
    if (!Station("packages-3-image-column")) {
        return false;
    }
    m_frame.PostMessage(WM_COMMAND, ID_LIST_IMAGE_COLUMN);
    return Expect("and lose it", [this] { return !List().HasImageColumn(); });
}

bool Walk::Export() {
    s_strExportFile = m_strFolder + "\\packages.csv";
    m_frame.SetTimer(kTimer, kLookAgain, AnswerExport);
    Press('E', VK_CONTROL);
    return Expect("the list is exported, a line for each row", [this] {
        return m_frame.StatusText(0).Find("rows written") >= 0 &&
               CountLines(s_strExportFile) == List().GetItemCount();
    });
}

bool Walk::Refresh() {
    const Package* pSelected = List().PackageOf(List().GetSelectedItem());
    const std::string strName = pSelected != nullptr ? pSelected->strName : "";
    Press(VK_F5);
    return Expect("what was selected is selected again after a refresh", [&] {
        const Package* pPackage = List().PackageOf(List().GetSelectedItem());
        return pPackage != nullptr && pPackage->strName == strName && Details().Shows() == strName;
    });
}
