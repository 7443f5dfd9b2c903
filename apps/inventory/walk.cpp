#include "walk.h"

#include <algorithm>
#include <vector>

#include "resource.h"

namespace {

constexpr DWORD kPatience = 10000;  // milliseconds until a condition counts as missed
constexpr int kOnText = 4;          // pixels into the text
constexpr int kOnButton = -10;      // left of the row
constexpr int kOnCheck = 6;         // into the row, where the state image is

// Handles messages until the condition holds, with idle time between as in the application's loop.
template <class Condition>
bool WaitFor(Condition condition) {
    const ULONGLONG nEnd = ::GetTickCount64() + kPatience;
    CWinThread* pThread = AfxGetThread();
    for (;;) {
        MSG msg;
        while (::PeekMessage(&msg, nullptr, 0, 0, PM_NOREMOVE)) {
            pThread->PumpMessage();
        }
        for (LONG nIdle = 0; pThread->OnIdle(nIdle); ++nIdle) {
        }
        if (condition()) {
            return true;
        }
        if (::GetTickCount64() > nEnd) {
            return false;
        }
        ::MsgWaitForMultipleObjects(0, nullptr, FALSE, 20, QS_ALLINPUT);
    }
}

void SendMouse(CPoint ptScreen, std::initializer_list<DWORD> flags, DWORD dwData = 0) {
    ::SetCursorPos(ptScreen.x, ptScreen.y);
    std::vector<INPUT> inputs;
    for (const DWORD dwFlags : flags) {
        INPUT input{};
        input.type = INPUT_MOUSE;
        input.mi.dwFlags = dwFlags;
        input.mi.mouseData = dwData;
        inputs.push_back(input);
    }
    ::SendInput(static_cast<UINT>(inputs.size()), inputs.data(), sizeof(INPUT));
}

void Click(CPoint ptScreen) {
    SendMouse(ptScreen, {MOUSEEVENTF_LEFTDOWN, MOUSEEVENTF_LEFTUP});
}

void Press(WORD nKey, WORD nHeld = 0) {
    std::vector<INPUT> inputs;
    const auto add = [&](WORD nVirtual, DWORD dwFlags) {
        INPUT input{};
        input.type = INPUT_KEYBOARD;
        input.ki.wVk = nVirtual;
        input.ki.wScan = static_cast<WORD>(::MapVirtualKey(nVirtual, MAPVK_VK_TO_VSC));
        input.ki.dwFlags = dwFlags;
        inputs.push_back(input);
    };
    if (nHeld != 0) {
        add(nHeld, 0);
    }
    add(nKey, 0);
    add(nKey, KEYEVENTF_KEYUP);
    if (nHeld != 0) {
        add(nHeld, KEYEVENTF_KEYUP);
    }
    ::SendInput(static_cast<UINT>(inputs.size()), inputs.data(), sizeof(INPUT));
}

// The window as it stands on the screen, as a bitmap file of 24 bits a pixel.
bool SavePicture(CWnd& wnd, const CString& strFile) {
    CRect rect;
    wnd.GetWindowRect(&rect);
    CClientDC dcScreen(nullptr);
    CDC dc;
    CBitmap bitmap;
    dc.CreateCompatibleDC(&dcScreen);
    bitmap.CreateCompatibleBitmap(&dcScreen, rect.Width(), rect.Height());
    CBitmap* pOld = dc.SelectObject(&bitmap);
    dc.BitBlt(0, 0, rect.Width(), rect.Height(), &dcScreen, rect.left, rect.top, SRCCOPY);
    dc.SelectObject(pOld);

    BITMAPINFOHEADER info{};
    info.biSize = sizeof(info);
    info.biWidth = rect.Width();
    info.biHeight = rect.Height();
    info.biPlanes = 1;
    info.biBitCount = 24;
    const size_t nStride = (static_cast<size_t>(rect.Width()) * 3 + 3) / 4 * 4;
    std::vector<BYTE> bits(nStride * static_cast<size_t>(rect.Height()));
    if (::GetDIBits(dc, bitmap, 0, static_cast<UINT>(rect.Height()), bits.data(),
                    reinterpret_cast<BITMAPINFO*>(&info), DIB_RGB_COLORS) == 0) {
        return false;
    }
    BITMAPFILEHEADER header{};
    header.bfType = 0x4D42;  // "BM"
    header.bfOffBits = sizeof(header) + sizeof(info);
    header.bfSize = header.bfOffBits + static_cast<DWORD>(bits.size());
    CFile file;
    if (!file.Open(strFile, CFile::modeCreate | CFile::modeWrite)) {
        return false;
    }
    file.Write(&header, sizeof(header));
    file.Write(&info, sizeof(info));
    file.Write(bits.data(), static_cast<UINT>(bits.size()));
    return true;
}

}  // namespace

bool Walk::Run() {
    m_frame.SetForegroundWindow();
    Tree().SetFocus();
    return Sections() && OpenBranch() && Marks() && AbsoluteColumns() && Find() && Vetoes();
}

template <class Condition>
bool Walk::Expect(const char* pszWhat, Condition condition) {
    if (WaitFor(condition)) {
        return true;
    }
    std::printf("walk: this did not happen: %s\n", pszWhat);
    std::fflush(stdout);
    return false;
}

bool Walk::Station(const char* pszName) {
    WaitFor([] { return true; });
    m_frame.UpdateWindow();
    const CString strFile = m_strFolder + "\\" + pszName + ".bmp";
    const bool bSaved = SavePicture(m_frame, strFile);
    std::printf("walk: %s%s\n", pszName, bSaved ? "" : ": the picture could not be written");
    std::fflush(stdout);
    return bSaved;
}

// A point of the row on the screen: so far from the text's left edge (kOnText) or the row's.
CPoint Walk::PointOf(HTREEITEM hItem, int nOffset) {
    CRect rect;
    Tree().GetItemRect(hItem, &rect, nOffset == kOnText);
    CPoint pt(rect.left + nOffset - Tree().GetScrollPos(SB_HORZ) * 2, rect.CenterPoint().y);
    Tree().ClientToScreen(&pt);
    return pt;
}

bool Walk::Sections() {
    return Expect("the page comes up with sections",
                  [this] {
                      return Tree().GetRootItem() != nullptr && Tree().GetFocus() == &Tree();
                  }) &&
           Station("tree-1-sections");
}

bool Walk::OpenBranch() {
    const HTREEITEM hSection = Tree().GetNextSiblingItem(Tree().GetRootItem());
    Click(PointOf(hSection, kOnButton));
    if (!Expect("a click on the button opens a section",
                [&] { return Tree().ItemExpanded(hSection) != FALSE; })) {
        return false;
    }
    const HTREEITEM hPackage = Tree().GetChildItem(hSection);
    Click(PointOf(hPackage, kOnText));
    Press(VK_RIGHT);
    return Expect("the right arrow opens a package",
                  [&] { return Tree().ItemExpanded(hPackage) != FALSE; }) &&
           Station("tree-2-open");
}

bool Walk::Marks() {
    const HTREEITEM hSection = Tree().GetParentItem(Tree().GetSelectedItem());
    Click(PointOf(hSection, kOnCheck));
    if (!Expect("a click on the box ticks the section", [&] {
            return Tree().GetCheck(hSection) && Tree().CountMarked().nPackages > 0 &&
                   m_frame.StatusText(1) == m_frame.Page().MarkedText();
        })) {
        return false;
    }
    const int nMarked = Tree().CountMarked().nPackages;
    Press(VK_DOWN);
    Press(VK_SPACE);
    return Expect("the space bar unticks one package",
                  [&] { return Tree().CountMarked().nPackages == nMarked - 1; }) &&
           Station("tree-3-checked");
}

bool Walk::AbsoluteColumns() {
    m_frame.PostMessage(WM_COMMAND, ID_TREE_EXPAND_ALL);
    m_frame.PostMessage(WM_COMMAND, ID_VIEW_ABSOLUTE);
    if (!Expect("the columns become absolute", [this] { return !Tree().IndentedColumns(); })) {
        return false;
    }
    const int nTop = Tree().GetScrollPos(SB_VERT);
    SendMouse(PointOf(Tree().GetNextItem(nullptr, TVGN_FIRSTVISIBLE), kOnText), {MOUSEEVENTF_WHEEL},
              static_cast<DWORD>(-5 * WHEEL_DELTA));
    return Expect("the wheel scrolls", [&] { return Tree().GetScrollPos(SB_VERT) > nTop; }) &&
           Station("tree-4-absolute-columns");
}

// The dialog runs a loop of its own, so what is typed into it comes from a timer.
void CALLBACK TypeIntoDialog(HWND hWnd, UINT, UINT_PTR nTimer, DWORD) {
    const HWND hDialog = ::FindWindow(nullptr, "Find a package");
    if (hDialog == nullptr || ::GetFocus() != ::GetDlgItem(hDialog, IDC_FIND_TEXT)) {
        return;
    }
    ::KillTimer(hWnd, nTimer);
    for (const char ch : {'B', 'A', 'S', 'E'}) {
        Press(static_cast<WORD>(ch));
    }
    Press(VK_RETURN);
}

bool Walk::Find() {
    constexpr UINT_PTR kTimer = 1;
    constexpr UINT kLookAgain = 50;
    m_frame.SetTimer(kTimer, kLookAgain, TypeIntoDialog);
    Press('F', VK_CONTROL);
    return Expect("a package is found and shown",
                  [this] {
                      const HTREEITEM hItem = Tree().GetSelectedItem();
                      const Package* pPackage = Tree().PackageOf(hItem);
                      return pPackage != nullptr &&
                             pPackage->strName.find("base") != std::string::npos &&
                             Tree().ItemVisible(hItem);
                  }) &&
           Station("tree-5-find");
}

bool Walk::Vetoes() {
    m_frame.PostMessage(WM_COMMAND, ID_VETO_CHECK);
    HTREEITEM hRequired = Tree().GetRootItem();
    while (hRequired != nullptr &&
           (Tree().PackageOf(hRequired) == nullptr || !Tree().PackageOf(hRequired)->bRequired)) {
        hRequired = Tree().WalkNext(hRequired);
    }
    if (hRequired == nullptr) {
        return true;  // an inventory without required packages has nothing to refuse
    }
    Tree().EnsureVisible(hRequired);
    Tree().SetCheck(hRequired, TRUE, FALSE);
    Click(PointOf(hRequired, kOnCheck));
    return Expect("unticking a required package is refused",
                  [&] {
                      return Tree().GetCheck(hRequired) &&
                             m_frame.StatusText(0).Find("stays ticked") >= 0;
                  }) &&
           Station("tree-6-veto");
}
