#include "walk/walk.h"

#include "resource.h"
#include "work.h"

#include <algorithm>

namespace {

constexpr int kSizeColumn = 2;

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
    const auto text = [this] {
        CString strRow;
        List().GetItemString(List().GetSelectedItem(), strRow);
        return strRow.MakeLower();
    };
    if (!AskFor("ZLIB", "packages-2-find") ||
        !Happened("a row that has the text is selected", text().Find("zlib") >= 0)) {
        return false;
    }
    const int nFirst = List().GetSelectedItem();
    Press(VK_F3);
    if (!Expect("F3 goes on",
                [&] { return List().GetSelectedItem() != nFirst && text().Find("zlib") >= 0; })) {
        return false;
    }
    Press(VK_F3, VK_SHIFT);
    return Expect("and Shift+F3 back", [&] { return List().GetSelectedItem() == nFirst; }) &&
           AskFor("QQQ", "packages-2b-not-found") &&
           Happened("what is nowhere is said to be so",
                    m_frame.StatusText(0).Find("is not in the list") >= 0 &&
                        List().GetSelectedItem() == nFirst);
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

bool Walk::ExportTo(const CString& strFile, const char* pszStation) {
    return InDialog(
               "Export the list", [] { Press('E', VK_CONTROL); },
               [&](CWnd& dialog) {
                   dialog.SetDlgItemText(IDC_EXPORT_PATH, strFile);
                   const bool bGood = Station(pszStation);
                   Press(VK_RETURN);
                   return bGood;
               }) &&
           Expect("it is said how much was written",
                  [this] { return m_frame.StatusText(0).Find(" written to ") >= 0; });
}

bool Walk::Export() {
    const CString strFile = m_strFolder + "\\packages.csv";
    return ExportTo(m_strFolder + "\\packages.html", "packages-4-export-page") &&
           ExportTo(strFile, "packages-5-export-csv") &&
           Happened("a line for each row, below the headings",
                    CountLines(strFile) == List().GetItemCount() + 1) &&
           KeepOldExport(strFile);
}

// The file that there is, by its name alone: no is the answer, and the dialog goes.
bool Walk::KeepOldExport(const CString& strFile) {
    CFileStatus before;
    CFileStatus after;
    bool bAsked = false;
    return Happened("the list was written", CFile::GetStatus(strFile, before)) &&
           InDialog(
               "Export the list", [] { Press('E', VK_CONTROL); },
               [&](CWnd& dialog) {
                   dialog.SetDlgItemText(IDC_EXPORT_PATH, QVPath(strFile).GetName());
                   const bool bGood = InDialog(
                       "Inventory", [] { Press(VK_RETURN); },
                       [&](CWnd&) {
                           const bool bStation = Station("packages-7-replace");
                           Press(VK_RETURN);
                           return bAsked = bStation;
                       });
                   return bGood &&
                          Expect("the dialog is still there",
                                 [&] { return ::IsChild(dialog.m_hWnd, ::GetFocus()) != FALSE; }) &&
                          (Press(VK_ESCAPE), true);
               }) &&
           bAsked &&
           Happened("and the file is as it was", CFile::GetStatus(strFile, after) &&
                                                     after.m_size == before.m_size &&
                                                     after.m_mtime == before.m_mtime);
}

// What is open and selected, and where it is scrolled to, stays so.
bool Walk::Refresh() {
    const Package* pSelected = List().PackageOf(List().GetSelectedItem());
    const std::string strName = pSelected != nullptr ? pSelected->strName : "";
    const auto open = [this] {
        int nOpen = 0;
        for (HTREEITEM h = Tree().GetRootItem(); h != nullptr; h = Tree().WalkNext(h)) {
            nOpen += Tree().ItemExpanded(h) ? 1 : 0;
        }
        return nOpen;
    };
    const int nOpen = open();
    const int nTreeTop = Tree().GetScrollPos(SB_VERT);
    const int nMarked = Tree().CountMarked().nPackages;
    const CString strTreeRow = Tree().GetItemText(Tree().GetSelectedItem());
    const int nListTop = List().GetTopIndex();
    Press(VK_F5);
    return Expect("the packages are read again",
                  [&] { return Tree().GetRootItem() != nullptr && !Work::IsRunning(); }) &&
           Expect("what was selected is selected again after a refresh",
                  [&] {
                      const Package* pPackage = List().PackageOf(List().GetSelectedItem());
                      return pPackage != nullptr && pPackage != pSelected &&
                             pPackage->strName == strName && Details().Shows() == strName;
                  }) &&
           Happened("the list is where it was", List().GetTopIndex() == nListTop) &&
           Happened("the tree has the same branches open", open() == nOpen) &&
           Happened("the tree is where it was",
                    Tree().GetScrollPos(SB_VERT) == nTreeTop &&
                        Tree().GetItemText(Tree().GetSelectedItem()) == strTreeRow &&
                        Tree().CountMarked().nPackages == nMarked) &&
           Station("packages-6-refreshed");
}
