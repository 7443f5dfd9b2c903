#include "walk/walk.h"

#include "clipboard_text.h"
#include "resource.h"

#include <set>

namespace {

constexpr UINT_PTR kTimer = 4;
constexpr UINT kLookAgain = 50;  // milliseconds
constexpr int kPageLog = 3;
constexpr int kMostTabs = 80;

// A menu runs a loop of its own, so what is seen of it comes from a timer.
struct SeenMenu {
    std::function<bool()> look;
    CString strPicture;
    bool bSeen = false;
    bool bGood = false;
    CRect rc;
};
SeenMenu s_menu;

void CALLBACK LookAtMenu(HWND hWnd, UINT, UINT_PTR nTimer, DWORD) {
    const HWND hMenu = ::FindWindow("#32768", nullptr);
    if (hMenu != nullptr && ::IsWindowVisible(hMenu)) {
        ::KillTimer(hWnd, nTimer);
        ::GetWindowRect(hMenu, &s_menu.rc);
        s_menu.bSeen = true;
        s_menu.bGood =
            (s_menu.strPicture.IsEmpty() || SavePicture(*AfxGetMainWnd(), s_menu.strPicture)) &&
            s_menu.look();
        ::EndMenu();
    }
}

// Windows that the Tab key goes through are none themselves.
BOOL CALLBACK TakeTabStop(HWND hChild, LPARAM lParam) {
    if (::IsWindowVisible(hChild) && ::IsWindowEnabled(hChild) &&
        (::GetWindowLong(hChild, GWL_STYLE) & WS_TABSTOP) != 0 &&
        (::GetWindowLong(hChild, GWL_EXSTYLE) & WS_EX_CONTROLPARENT) == 0) {
        reinterpret_cast<std::set<HWND>*>(lParam)->insert(hChild);
    }
    return TRUE;
}

std::set<HWND> TabStopsIn(HWND hWnd) {
    std::set<HWND> stops;
    ::EnumChildWindows(hWnd, TakeTabStop, reinterpret_cast<LPARAM>(&stops));
    return stops;
}

// A grid opens an edit of its own in the place of the focus.
HWND TabStopAtFocus() {
    HWND hFocus = ::GetFocus();
    while (hFocus != nullptr && (::GetWindowLong(hFocus, GWL_STYLE) & WS_TABSTOP) == 0) {
        hFocus = ::GetParent(hFocus);
    }
    return hFocus;
}

CString TextOf(HWND hWnd) {
    CString strText;
    CWnd::FromHandle(hWnd)->GetWindowText(strText);
    return strText;
}

}  // namespace

bool Walk::AllKeys() {
    return EditByKeys() && CopyRows() && PanesByKeys() && TabsEverywhere() && ContextMenus() &&
           LogByKeys();
}

// cause brings a menu up; look sees it, and it is closed. No message is handled meanwhile.
bool Walk::InMenu(const char* pszWhat, const char* pszStation, const std::function<void()>& cause,
                  const std::function<bool()>& look) {
    s_menu = SeenMenu();
    s_menu.look = look;
    if (pszStation != nullptr) {
        s_menu.strPicture = m_strFolder + "\\" + pszStation + ".bmp";
    }
    m_frame.SetTimer(kTimer, kLookAgain, LookAtMenu);
    cause();
    return Expect(pszWhat, [] { return s_menu.bSeen; }) && s_menu.bGood;
}

// In an edit beside the list: cut, taken back, made again, pasted.
bool Walk::EditByKeys() {
    const HWND hJump = m_frame.Packages().Bar().GetDlgItem(IDC_JUMP)->m_hWnd;
    ClickTab(0);
    Click(PointOfTool(IDC_JUMP));
    if (!Expect("a click gives an edit the focus", [&] { return ::GetFocus() == hJump; })) {
        return false;
    }
    Press('A', VK_CONTROL);
    for (const char ch : {'D', 'P', 'K', 'G'}) {
        Press(static_cast<WORD>(ch));
    }
    if (!Expect("a name is typed", [&] { return TextOf(hJump).Left(4) == "dpkg"; })) {
        return false;
    }
    const CString strTyped = TextOf(hJump);
    Press('A', VK_CONTROL);
    Press('X', VK_CONTROL);
    if (!Expect("it is cut",
                [&] { return TextOf(hJump).IsEmpty() && ClipboardText(m_frame) == strTyped; })) {
        return false;
    }
    Press('Z', VK_CONTROL);
    if (!Expect("that is taken back", [&] { return TextOf(hJump) == strTyped; })) {
        return false;
    }
    const auto state = [this](UINT nID) {
        return m_frame.GetMenu()->GetMenuState(nID, MF_BYCOMMAND);
    };
    const auto isGrey = [&](UINT nID) { return (state(nID) & (MF_GRAYED | MF_DISABLED)) != 0; };
    if (!InMenu(
            "the menu Edit comes up", "keys-1-edit-menu", [] { Press('E', VK_MENU); },
            [&] {
                return Happened(
                    "what was taken back can be made again, and only that",
                    isGrey(ID_EDIT_UNDO) && !isGrey(ID_EDIT_REDO) && !isGrey(ID_EDIT_PASTE));
            })) {
        return false;
    }
    Press('Y', VK_CONTROL);
    if (!Expect("and made again", [&] { return TextOf(hJump).IsEmpty(); })) {
        return false;
    }
    Press('V', VK_CONTROL);
    return Expect("and pasted", [&] { return TextOf(hJump) == strTyped; });
}

bool Walk::CopyRows() {
    Tree().SetFocus();
    Press(VK_HOME);
    Press('C', VK_CONTROL);
    if (!Expect("the tree's row is copied",
                [this] { return ClipboardText(m_frame) == "All packages\r\n"; })) {
        return false;
    }
    List().SetFocus();
    Press(VK_HOME);
    Press('C', VK_CONTROL);
    return Expect("the list's row is copied",
                  [this] {
                      const Package* pPackage = List().PackageOf(0);
                      return pPackage != nullptr &&
                             ClipboardText(m_frame).Find((pPackage->strName + "\t").c_str()) == 0;
                  }) &&
           InMenu(
               "the menu Edit comes up", nullptr, [] { Press('E', VK_MENU); },
               [this] {
                   CMenu& menu = *m_frame.GetMenu();
                   return Happened(
                       "a list is copied, not pasted into",
                       (menu.GetMenuState(ID_EDIT_PASTE, MF_BYCOMMAND) & MF_GRAYED) != 0 &&
                           (menu.GetMenuState(ID_EDIT_COPY, MF_BYCOMMAND) & MF_GRAYED) == 0);
               });
}

bool Walk::PanesByKeys() {
    const auto isIn = [](CWnd& wnd) {
        const HWND hFocus = ::GetFocus();
        return hFocus != nullptr && (hFocus == wnd.m_hWnd || ::IsChild(wnd.m_hWnd, hFocus));
    };
    CWnd* const apPanes[] = {&Tree(), &List(), &Details(), &m_frame.Pages().Tabs(),
                             &m_frame.Packages().Bar()};
    Tree().SetFocus();
    constexpr size_t kPanes = std::size(apPanes);
    for (size_t i = 1; i <= kPanes; ++i) {
        Press(VK_F6);
        if (!Expect("F6 leads to the next pane", [&] { return isIn(*apPanes[i % kPanes]); })) {
            return false;
        }
    }
    for (size_t i = kPanes; i-- > 0;) {
        Press(VK_F6, VK_SHIFT);
        if (!Expect("and back with Shift", [&] { return isIn(*apPanes[i]); })) {
            return false;
        }
    }
    m_frame.Packages().Bar().GetDlgItem(IDC_JUMP)->SetFocus();
    Press(VK_ESCAPE);
    return Expect("Escape leads to the list", [&] { return isIn(List()); });
}

// On each page Tab comes by every control and the tabs, and back to where it began, both ways.
bool Walk::TabsEverywhere() {
    const auto nPages = static_cast<int>(m_frame.Pages().Titles().size());
    for (int nPage = 0; nPage < nPages; ++nPage) {
        Press(static_cast<WORD>('1' + nPage), VK_CONTROL);
        if (!Expect("Ctrl and a digit show the page",
                    [&] { return m_frame.Pages().Tabs().GetCurSel() == nPage; })) {
            return false;
        }
        m_frame.Pages().Active().Control().SetFocus();
        for (const WORD nHeld : {WORD{0}, WORD{VK_SHIFT}}) {
            const HWND hFirst = TabStopAtFocus();
            std::set<HWND> visited;
            for (int i = 0; i < kMostTabs && (i == 0 || TabStopAtFocus() != hFirst); ++i) {
                Press(VK_TAB, nHeld);
                HandleMessages();
                visited.insert(TabStopAtFocus());
            }
            for (const HWND hStop : TabStopsIn(m_frame.Pages().m_hWnd)) {
                char szClass[64] = "";
                ::GetClassName(hStop, szClass, sizeof(szClass));
                // One of a group of choices stands for all of it.
                const bool bRadio =
                    (::SendMessage(hStop, WM_GETDLGCODE, 0, 0) & DLGC_RADIOBUTTON) != 0;
                if (!bRadio && !visited.contains(hStop)) {
                    std::printf("walk: page %d: Tab does not come to %s, \"%s\" (%d)\n", nPage,
                                szClass, static_cast<LPCSTR>(TextOf(hStop)), ::GetDlgCtrlID(hStop));
                    return Happened("Tab comes to each control", false);
                }
            }
            if (TabStopAtFocus() != hFirst) {
                std::printf("walk: page %d, %s: ", nPage, nHeld != 0 ? "backwards" : "forwards");
                return Happened("Tab comes back to where it began", false);
            }
        }
    }
    return true;
}

// By a right click, which selects the row, and by both keys, below the row.
bool Walk::ContextMenus() {
    ClickTab(0);
    HTREEITEM hSection = Tree().GetChildItem(Tree().GetRootItem());
    Tree().EnsureVisible(hSection);
    const CPoint ptSection = PointOf(hSection, 40);
    const auto rightClick = [](CPoint pt) {
        return [pt] { SendMouse(pt, {MOUSEEVENTF_RIGHTDOWN, MOUSEEVENTF_RIGHTUP}); };
    };
    if (!InMenu("a right click on the tree brings its menu up", "keys-2-tree-menu",
                rightClick(ptSection), [&] {
                    return Happened("for the row below it", Tree().GetSelectedItem() == hSection) &&
                           Happened("at the pointer", s_menu.rc.TopLeft() == ptSection);
                })) {
        return false;
    }
    List().SetFocus();
    Press(VK_HOME);
    HandleMessages();
    const CPoint ptRow = PointOfRow(2);
    if (!InMenu("a right click on the list brings its menu up", "keys-3-list-menu",
                rightClick(ptRow), [&] {
                    return Happened("for the row below it",
                                    List().GetNextItem(-1, LVNI_SELECTED) == 2);
                })) {
        return false;
    }
    struct Control {
        const char* pszStation;
        int nPage;
        CWnd& wnd;
    };
    const Control kControls[] = {{"keys-4-tree", 0, Tree()},
                                 {"keys-5-list", 0, List()},
                                 {"keys-6-details", 0, Details().Page(0).Control()},
                                 {"keys-7-preview", 1, m_frame.Report().Control()},
                                 {"keys-8-settings", 2, m_frame.Settings().Grid()},
                                 {"keys-9-log", 3, m_frame.Log().Control()},
                                 {"keys-10-largest", 4, m_frame.Largest().List()}};
    for (const Control& control : kControls) {
        ClickTab(control.nPage);
        Details().SetActivePage(0);
        HandleMessages();
        CRect rc;
        control.wnd.SetFocus();
        // The edit of a cell has the platform's own menu.
        if (&control.wnd == &m_frame.Settings().Grid()) {
            m_frame.Settings().Grid().GotoCell(0, 1, FALSE);
        }
        control.wnd.GetWindowRect(&rc);
        const auto atControl = [&] {
            return Happened("at the control",
                            rc.PtInRect(s_menu.rc.TopLeft()) ||
                                rc.PtInRect(CPoint(s_menu.rc.left, s_menu.rc.bottom)));
        };
        if (!InMenu(
                "Shift and F10 bring a menu up", control.pszStation,
                [] { Press(VK_F10, VK_SHIFT); }, atControl) ||
            !InMenu(
                "the menu key brings a menu up", nullptr, [] { Press(VK_APPS); }, atControl)) {
            std::printf("walk: %s\n", control.pszStation);
            return false;
        }
    }
    ClickTab(0);
    // Away from where the menu comes up: an item below the pointer would be the chosen one.
    CRect rcFrame;
    m_frame.GetWindowRect(&rcFrame);
    SendMouse(rcFrame.CenterPoint(), {MOUSEEVENTF_MOVE});
    HandleMessages();
    return InMenu(
        "a menu of the frame comes up", "keys-11-help", [] { Press('I', VK_MENU); },
        [this] {
            CString strHelp;
            strHelp.LoadString(ID_OPEN_DATABASE);
            const CString strSaid = m_frame.StatusText(0);
            return Happened("the status bar says what its first command does",
                            !strSaid.IsEmpty() && strHelp.Find(strSaid) == 0);
        });
}

bool Walk::LogByKeys() {
    ClickTab(kPageLog);
    QVTextWnd& text = m_frame.Log().Left().GetTextWnd();
    if (!Expect("a click on a tab gives its page the focus",
                [&] { return ::GetFocus() == m_frame.Log().LastControl().m_hWnd; })) {
        return false;
    }
    if (text.NumLines() == 0) {
        return true;  // a machine without one
    }
    text.SetFocus();
    Press('A', VK_CONTROL);
    Press('C', VK_CONTROL);
    const bool bGood = Expect("all of the log is copied", [&] {
        return ClipboardText(m_frame).Find(text.GetLineText(0)) == 0;
    });
    ClickTab(0);
    return bGood;
}
