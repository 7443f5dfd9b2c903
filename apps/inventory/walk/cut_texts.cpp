#include "walk/cut_texts.h"

#include "pages/cut_tips.h"

#include <cstdlib>

namespace {

constexpr int kMarkAndGap = 17;    // of a check box, at 96 dpi
constexpr int kButtonEdges = 4;    // of a push button, pixels at either side
constexpr int kLeastOverhang = 2;  // pixels that nobody misses

CSize RoomFor(CDC& dc, const CString& strText, int nWidth, UINT nFormat) {
    CRect rc(0, 0, nWidth, 0);
    dc.DrawText(strText, &rc, nFormat | DT_CALCRECT);
    return rc.Size();
}

bool IsCutLabel(CWnd& label, CDC& dc, const CString& strText, const CSize& room) {
    const DWORD dwStyle = label.GetStyle();
    const DWORD dwType = dwStyle & SS_TYPEMASK;
    if ((dwStyle & SS_ELLIPSISMASK) != 0) {
        return false;
    }
    const UINT nPrefix = (dwStyle & SS_NOPREFIX) != 0 ? DT_NOPREFIX : 0;
    switch (dwType) {
        case SS_LEFT:
        case SS_CENTER:
        case SS_RIGHT: {
            const bool bOneLine = (dwStyle & SS_CENTERIMAGE) != 0;
            const CSize size =
                RoomFor(dc, strText, room.cx,
                        nPrefix | (bOneLine ? DT_SINGLELINE : DT_WORDBREAK | DT_EXPANDTABS));
            return size.cx > room.cx + kLeastOverhang || size.cy > room.cy + kLeastOverhang;
        }
        case SS_SIMPLE:
        case SS_LEFTNOWORDWRAP:
            return RoomFor(dc, strText, room.cx, nPrefix).cx > room.cx + kLeastOverhang;
        default:
            return false;
    }
}

bool IsCutButton(CWnd& button, CDC& dc, const CString& strText, const CSize& room) {
    const DWORD dwStyle = button.GetStyle();
    const DWORD dwType = dwStyle & BS_TYPEMASK;
    if (dwType == BS_OWNERDRAW || (dwStyle & (BS_BITMAP | BS_ICON)) != 0) {
        return false;
    }
    const bool bPush =
        dwType == BS_PUSHBUTTON || dwType == BS_DEFPUSHBUTTON || (dwStyle & BS_PUSHLIKE) != 0;
    const int nBeside = bPush || dwType == BS_GROUPBOX
                            ? 2 * kButtonEdges
                            : ::MulDiv(kMarkAndGap, dc.GetDeviceCaps(LOGPIXELSX), 96);
    const UINT nLines = (dwStyle & BS_MULTILINE) != 0 ? DT_WORDBREAK : DT_SINGLELINE;
    const CSize size = RoomFor(dc, strText, room.cx - nBeside, nLines);
    return size.cx + nBeside > room.cx + kLeastOverhang ||
           (dwType != BS_GROUPBOX && size.cy > room.cy + kLeastOverhang);
}

BOOL CALLBACK Look(HWND hWnd, LPARAM lParam) {
    CString strText;
    CWnd& wnd = *CWnd::FromHandle(hWnd);
    wnd.GetWindowText(strText);
    if (!wnd.IsWindowVisible() || strText.IsEmpty()) {
        return TRUE;
    }
    char szClass[16] = "";
    ::GetClassName(hWnd, szClass, sizeof(szClass));
    CRect rc;
    wnd.GetClientRect(&rc);
    CClientDC dc(&wnd);
    const qv::SelectGuard<CFont> font(dc, NearestFontOf(wnd));
    const bool bCut =
        ::lstrcmpi(szClass, "Static") == 0
            ? IsCutLabel(wnd, dc, strText, rc.Size())
            : ::lstrcmpi(szClass, "Button") == 0 && IsCutButton(wnd, dc, strText, rc.Size());
    if (bCut) {
        reinterpret_cast<std::vector<std::string>*>(lParam)->emplace_back(strText);
    }
    return TRUE;
}

}  // namespace

std::vector<std::string> CutTexts(CWnd& wnd) {
    std::vector<std::string> cut;
    ::EnumChildWindows(wnd.m_hWnd, Look, reinterpret_cast<LPARAM>(&cut));
    return cut;
}
