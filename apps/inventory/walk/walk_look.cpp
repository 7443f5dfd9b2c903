// What the application shows around its data: toolbar, headings, tooltips, the order of rows, the
// list of all files, and all of it in other colours.

#include "walk/walk.h"

#include "resource.h"
#include "sources/settings_file.h"

#include <array>
#include <uxtheme.h>

namespace {

constexpr int kPageFiles = 5;
constexpr int kWider = 40;     // pixels
constexpr int kWideTree = 70;  // per cent
constexpr int kNarrow = 60;    // pixels, of a column

// A heading's right edge on the screen.
CPoint EdgeOf(CHeaderCtrl& header, int nCol) {
    CRect rc;
    header.GetItemRect(nCol, &rc);
    header.ClientToScreen(&rc);
    return CPoint(rc.right, rc.CenterPoint().y);
}

bool HasArrow(CListCtrl& list, int nCol, int nArrow) {
    HDITEM item{};
    item.mask = HDI_FORMAT;
    return list.GetHeaderCtrl()->GetItem(nCol, &item) && (item.fmt & nArrow) != 0;
}

// A desktop of the kind that people with weak eyes have: dark, and without the pictures of a theme.
// It goes with the object.
class DarkDesktop {
public:
    explicit DarkDesktop(CWnd& top) : m_top(top) {
        UseTheme(L"");
        for (size_t i = 0; i < kIndices.size(); ++i) {
            m_old[i] = ::GetSysColor(kIndices[i]);
        }
        std::array<COLORREF, kIndices.size()> dark;
        dark.fill(RGB(0, 0, 0));
        for (const size_t n : {1u, 3u, 5u}) {
            dark[n] = RGB(255, 255, 0);
        }
        dark[6] = RGB(26, 235, 255);  // what is selected, which takes the window's colour as text
        dark[7] = RGB(0, 0, 0);
        dark[8] = RGB(0, 192, 0);   // what cannot be used
        dark[9] = RGB(96, 96, 96);  // edges
        dark[10] = RGB(160, 160, 160);
        ::SetSysColors(static_cast<int>(kIndices.size()), kIndices.data(), dark.data());
    }
    ~DarkDesktop() {
        ::SetSysColors(static_cast<int>(kIndices.size()), kIndices.data(), m_old.data());
        UseTheme(nullptr);
    }
    DarkDesktop(const DarkDesktop&) = delete;
    DarkDesktop& operator=(const DarkDesktop&) = delete;

private:
    static constexpr std::array<INT, 12> kIndices = {
        COLOR_WINDOW,   COLOR_WINDOWTEXT, COLOR_BTNFACE,      COLOR_BTNTEXT,
        COLOR_MENU,     COLOR_MENUTEXT,   COLOR_HIGHLIGHT,    COLOR_HIGHLIGHTTEXT,
        COLOR_GRAYTEXT, COLOR_BTNSHADOW,  COLOR_BTNHIGHLIGHT, COLOR_MENUBAR};
    static BOOL CALLBACK SetTheme(HWND hWnd, LPARAM lParam) {
        const auto* pszTheme = reinterpret_cast<LPCWSTR>(lParam);
        ::SetWindowTheme(hWnd, pszTheme, pszTheme);
        return TRUE;
    }
    // Null: the desktop's.
    void UseTheme(LPCWSTR pszTheme) {
        ::EnumChildWindows(m_top.m_hWnd, SetTheme, reinterpret_cast<LPARAM>(pszTheme));
        m_top.RedrawWindow(nullptr, nullptr,
                           RDW_INVALIDATE | RDW_ERASE | RDW_FRAME | RDW_ALLCHILDREN);
    }

    CWnd& m_top;
    std::array<COLORREF, kIndices.size()> m_old;
};

}  // namespace

bool Walk::Look() {
    return Toolbar() && TreeHeadings() && CutText() && SortArrow() && FilesOfAll() && Colors();
}

bool Walk::Toolbar() {
    ClickTab(0);
    AppToolBar& bar = m_frame.ToolBar();
    CRect rc;
    bar.GetItemRect(bar.CommandToIndex(ID_LIST_EXPORT), &rc);
    bar.ClientToScreen(&rc);
    SendMouse(rc.CenterPoint() - CSize(3, 0), {MOUSEEVENTF_MOVE});
    HandleMessages();
    SendMouse(rc.CenterPoint(), {MOUSEEVENTF_MOVE});
    if (!Expect(
            "a button of the toolbar says what it does",
            [&] { return TipShows() && m_frame.StatusText(0) == "Write the list to a file"; }) ||
        !Station("look-1-toolbar")) {
        return false;
    }
    const int nTop = PageTop();
    m_frame.SendMessage(WM_COMMAND, ID_VIEW_TOOLBAR);
    if (!Expect("the toolbar makes room, and the settings' file keeps that",
                [&] {
                    Settings settings;
                    return !bar.IsVisible() && PageTop() < nTop &&
                           LoadSettings(m_strFolder + "\\settings.txt", settings) == nullptr &&
                           settings.Choice(kSettingToolBar) == 1;
                }) ||
        !Station("look-2-no-toolbar")) {
        return false;
    }
    m_frame.SendMessage(WM_COMMAND, ID_VIEW_TOOLBAR);
    return Expect("and it comes back", [&] { return bar.IsVisible() && PageTop() == nTop; });
}

int Walk::PageTop() {
    CRect rc;
    m_frame.Pages().GetWindowRect(&rc);
    return rc.top;
}

bool Walk::TreeHeadings() {
    m_frame.SendMessage(WM_COMMAND, ID_VIEW_INDENTED);
    m_frame.SendMessage(WM_COMMAND, ID_TREE_EXPAND_ALL);
    const int nPercent = Browser().Outer().Percent();
    Browser().Outer().SetPercent(kWideTree);
    CHeaderCtrl& header = Browser().TreeFrame().Headings().Header();
    const int nStop = Tree().GetTabValue(0);
    const CPoint pt = EdgeOf(header, 0) - CSize(2, 0);
    SendMouse(pt, {MOUSEEVENTF_MOVE});
    SendMouse(pt, {MOUSEEVENTF_LEFTDOWN});
    HandleMessages();
    for (int i = 1; i <= 4; ++i) {
        SendMouse(pt - CSize(kWider * i / 4, 0), {MOUSEEVENTF_MOVE});
        HandleMessages();
    }
    SendMouse(pt - CSize(kWider, 0), {MOUSEEVENTF_LEFTUP});
    if (!Expect("a heading that is made narrower takes its column along",
                [&] { return Tree().GetTabValue(0) == nStop - kWider; }) ||
        !Station("look-3-heading")) {
        return false;
    }
    Browser().Outer().SetPercent(nPercent);
    CRect rcBefore;
    header.GetWindowRect(&rcBefore);
    Tree().SendMessage(WM_HSCROLL, SB_PAGERIGHT);
    const auto shift = [&] {
        CRect rc;
        header.GetWindowRect(&rc);
        return rcBefore.left - rc.left;
    };
    if (!Expect("the headings scroll with the columns",
                [&] { return Tree().LeftEdge() > 0 && shift() == Tree().LeftEdge(); }) ||
        !Station("look-4-scrolled")) {
        return false;
    }
    m_frame.SendMessage(WM_COMMAND, ID_TREE_FIT_COLUMNS);
    Tree().SendMessage(WM_HSCROLL, MAKEWPARAM(SB_THUMBPOSITION, 0));
    return Expect(
               "and fit what stands in the columns",
               [&] { return Tree().GetTabValue(0) != nStop - kWider && Tree().LeftEdge() == 0; }) &&
           Station("look-5-fitted");
}

bool Walk::CutText() {
    const int nWidth = List().GetColWidth(0, nullptr);
    List().EnsureVisible(0, FALSE);
    List().SetColWidth(0, kNarrow, nullptr);
    CRect rc;
    List().GetItemRect(0, &rc, LVIR_BOUNDS);
    List().ClientToScreen(&rc);
    const CPoint pt(rc.left + kNarrow / 2, rc.CenterPoint().y);
    SendMouse(pt - CSize(3, 0), {MOUSEEVENTF_MOVE});
    HandleMessages();
    SendMouse(pt, {MOUSEEVENTF_MOVE});
    const bool bSaid =
        Expect("a text that is cut says itself", TipShows) && Station("look-6-cut-text");
    List().SetColWidth(0, nWidth, nullptr);
    return bSaid;
}

bool Walk::SortArrow() {
    LetClickPass();
    Click(PointOfHeading(1));
    if (!Expect("an arrow shows how the list is sorted",
                [this] { return HasArrow(List(), 1, HDF_SORTUP); })) {
        return false;
    }
    LetClickPass();
    Click(PointOfHeading(1));
    return Expect("and turns with the order",
                  [this] {
                      return HasArrow(List(), 1, HDF_SORTDOWN) && !HasArrow(List(), 0, HDF_SORTUP);
                  }) &&
           Station("look-7-sort-arrow");
}

bool Walk::FilesOfAll() {
    ClickTab(kPageFiles);
    AllFilesPage& page = m_frame.Files();
    FileList& list = page.List();
    if (!Expect("the page of all files comes up",
                [&] { return page.IsWindowVisible() && page.Files().PackagesRead() > 0; })) {
        return false;
    }
    // On a machine that has much to do it takes longer than other things.
    for (size_t nRead = 0; !page.IsWhole() && nRead != page.Files().PackagesRead();) {
        nRead = page.Files().PackagesRead();
        WaitFor([&] { return page.IsWhole(); });
    }
    if (!Happened("all files are read while their page is there", page.IsWhole()) ||
        !Station("files-1-read")) {
        return false;
    }
    if (list.GetItemCount() == 0) {
        return true;  // an inventory that tells of no files
    }
    CRect rc;
    list.GetHeaderCtrl()->GetItemRect(0, &rc);
    list.GetHeaderCtrl()->ClientToScreen(&rc);
    Click(rc.CenterPoint());  // counts as sorted by the first column: the other direction
    if (!Expect("a click on a heading sorts them",
                [&] { return HasArrow(list, 0, HDF_SORTDOWN); }) ||
        !Station("files-2-by-name") || !AskFor("DPKG", "files-3-found")) {
        return false;
    }
    const CString strFile = m_strFolder + "\\files.ps";
    if (const Failure pFailure = page.PrintToFile(strFile, 2)) {
        std::printf("walk: not printed: %s\n", pFailure->Text());
    } else if (!Happened("two pages of them come out of the printer",
                         ::GetFileAttributes(strFile) != INVALID_FILE_ATTRIBUTES)) {
        return false;
    }
    list.SetFocus();
    const int nRow = list.DataRow(list.GetNextItem(-1, LVNI_FOCUSED));
    const std::string strPackage = page.Files().PackageOf(static_cast<size_t>(nRow)).strName;
    Press(VK_RETURN);
    return Expect("Enter leads to the package of a file", [&] {
        const Package* pPackage = List().PackageOf(List().GetNextItem(-1, LVNI_FOCUSED));
        return m_frame.Packages().IsWindowVisible() && pPackage != nullptr &&
               pPackage->strName == strPackage;
    });
}

bool Walk::Colors() {
    const DarkDesktop dark(m_frame);
    const int nPages = static_cast<int>(m_frame.Pages().Titles().size());
    for (int nPage = nPages - 1; nPage >= 0; --nPage) {
        ClickTab(nPage);
        CString strStation;
        strStation.Format("dark-%d", nPage + 1);
        if (!Expect("a page comes up in the dark",
                    [&] { return m_frame.Pages().Tabs().GetCurSel() == nPage; }) ||
            !Station(strStation)) {
            return false;
        }
    }
    return Happened("rows that mean something can be read",
                    List().StyleColors(0).crText == ::GetSysColor(COLOR_WINDOWTEXT));
}
