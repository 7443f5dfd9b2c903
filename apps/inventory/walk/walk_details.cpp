#include "walk/walk.h"

#include "resource.h"
#include "sources/settings_file.h"

namespace {

constexpr int kFiles = 1;
constexpr int kDependencies = 2;
constexpr int kScripts = 3;
// A package of each Debian machine that has something for each tab.
constexpr char kPackage[] = "dpkg";

}  // namespace

bool Walk::DragBar(PaneSplit& split, CSize size, const char* pszStation) {
    const int nPercent = split.Percent();
    const CPoint pt = split.BarOnScreen();
    CRect rcPane;
    split.GetPane(0)->GetWindowRect(&rcPane);
    SendMouse(pt, {MOUSEEVENTF_MOVE});
    SendMouse(pt, {MOUSEEVENTF_LEFTDOWN});
    HandleMessages();
    for (int i = 1; i <= 4; ++i) {
        SendMouse(CPoint(pt.x + size.cx * i / 4, pt.y + size.cy * i / 4), {MOUSEEVENTF_MOVE});
        HandleMessages();
    }
    SendMouse(pt + size, {MOUSEEVENTF_LEFTUP});
    return Expect("a bar that is dragged takes the panes along",
                  [&] {
                      CRect rc;
                      split.GetPane(0)->GetWindowRect(&rc);
                      return split.Percent() != nPercent && rc.Size() - rcPane.Size() == SIZE(size);
                  }) &&
           Station(pszStation);
}

bool Walk::DragBars() {
    return DragBar(Browser().Outer(), CSize(60, 0), "panes-1-outer-bar") &&
           DragBar(Browser().Inner(), CSize(0, -40), "panes-2-inner-bar");
}

bool Walk::DetailsTabs() {
    if (!List().GoTo(kPackage)) {
        Press(VK_HOME);  // an inventory of another kind
    }
    const auto shown = [this](int nPage) {
        const Package* pPackage = List().PackageOf(List().GetSelectedItem());
        return pPackage != nullptr && Details().Shows() == pPackage->strName &&
               Details().GetActivePage() == nPage && Details().Page(nPage).IsWindowVisible();
    };
    CRect rc;
    Details().GetTabCtrl().GetItemRect(kFiles, &rc);
    Details().GetTabCtrl().ClientToScreen(&rc);
    Click(rc.CenterPoint());
    if (!Expect("a click on a tab shows its page", [&] { return shown(kFiles); })) {
        return false;
    }
    for (int i = 1; i <= Details().NumPages(); ++i) {
        const int nPage = (kFiles + i) % Details().NumPages();
        CString strStation;
        strStation.Format("details-%d-%s", nPage + 1, kDetailsNames[nPage]);
        Press(VK_TAB, VK_CONTROL);
        if (!Expect("Ctrl and Tab show the next page", [&] { return shown(nPage); }) ||
            !Station(strStation)) {
            return false;
        }
    }
    return true;
}

bool Walk::GoToDependency() {
    Details().SetActivePage(kDependencies);
    DetailsPage& page = Details().Page(kDependencies);
    if (!page.Problem().IsEmpty()) {
        return true;  // an inventory without dependencies leads nowhere
    }
    page.Control().SetFocus();
    Press(VK_HOME);
    if (!Expect("a row of the dependencies names a package",
                [&] { return !page.Target().IsEmpty(); })) {
        return false;
    }
    const CString strTarget = page.Target();
    Press(VK_RETURN);
    return Expect("Enter leads there",
                  [&] { return Details().Shows() == static_cast<LPCSTR>(strTarget); }) &&
           Station("details-6-dependency");
}

// Down the list to a package without scripts.
bool Walk::NothingToShow() {
    Details().SetActivePage(kScripts);
    List().SetFocus();
    const int nItems = List().GetItemCount();
    for (int i = 0; i < nItems && Details().Page(kScripts).Problem().IsEmpty(); ++i) {
        Press(VK_DOWN);
        const auto shown = [this] {
            const Package* pPackage = List().PackageOf(List().GetSelectedItem());
            return pPackage != nullptr && Details().Shows() == pPackage->strName;
        };
        if (!Expect("the details follow the list", shown)) {
            return false;
        }
    }
    return Station("details-7-nothing");
}

// By the Tab key alone through tree, list and details, and back.
bool Walk::KeysAround() {
    Details().SetActivePage(kDependencies);
    Tree().SetFocus();
    const auto inDetails = [this] {
        const HWND hFocus = ::GetFocus();
        return hFocus != nullptr && ::IsChild(Details().m_hWnd, hFocus);
    };
    Press(VK_TAB);
    if (!Expect("Tab leads from the tree to the list",
                [this] { return List().GetFocus() == &List(); })) {
        return false;
    }
    Press(VK_TAB);
    if (!Expect("and on to the details", inDetails)) {
        return false;
    }
    Press(VK_TAB, VK_SHIFT);
    if (!Expect("Shift and Tab lead back", [this] { return List().GetFocus() == &List(); })) {
        return false;
    }
    for (int i = 0; i < 4 && !(i > 0 && !inDetails()); ++i) {
        Press(VK_TAB);
        HandleMessages();
    }
    if (!Expect("the details let Tab go on to the tabs",
                [this] { return CWnd::GetFocus() == &m_frame.Pages().Tabs(); })) {
        return false;
    }
    Press(VK_TAB);
    return Expect("and these to the bar", [this] {
        const HWND hFocus = ::GetFocus();
        return hFocus != nullptr && ::IsChild(m_frame.Packages().Bar().m_hWnd, hFocus);
    });
}

bool Walk::DetailsOnPaper() {
    const CString strFile = m_strFolder + "\\details.ps";
    if (!List().GoTo(kPackage)) {
        return true;
    }
    if (const Failure pFailure = Details().PrintToFile(strFile, false)) {
        std::printf("walk: not printed: %s\n", pFailure->Text());
        return true;
    }
    CFileStatus status;
    std::printf("walk: details.ps, %s\n", static_cast<LPCTSTR>(m_frame.Packages().Message()));
    return Happened("the details come out of the printer",
                    CFile::GetStatus(strFile, status) != FALSE);
}

bool Walk::LayoutKept() {
    const auto same = [](const BrowserLayout& layout1, const BrowserLayout& layout2) {
        return LayoutValues(layout1).Format() == LayoutValues(layout2).Format();
    };
    const BrowserLayout layout = Browser().Layout();
    m_frame.Packages().KeepLayout();
    Browser().SetLayout(BrowserLayout());
    m_frame.Packages().UseFolder(m_strFolder + "\\");
    return Happened("the bars and the tab come back from their file",
                    !same(layout, BrowserLayout()) && same(layout, Browser().Layout())) &&
           Station("panes-3-kept");
}
