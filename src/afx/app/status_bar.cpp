#include "afx/drawing/select_guard.h"
#include "afx/values/wide_text.h"
#include "afx/window/wnd_state.h"

#include <afxcmn.h>
#include <afxext.h>

#include <algorithm>

IMPLEMENT_DYNAMIC(CStatusBar, CControlBar)

BEGIN_MESSAGE_MAP(CStatusBar, CControlBar)
    ON_WM_SIZE()
    ON_MESSAGE(WM_SETTEXT, &CStatusBar::OnSetText)
END_MESSAGE_MAP()

// Pixels around a pane's text: its border and the gap to the next pane.
static constexpr int kPaneMargin = 6;

CStatusBar::CStatusBar() {
    m_dwStyle = CBRS_BOTTOM;
}

CStatusBar::~CStatusBar() {
    if (m_hWnd != nullptr) {
        DestroyWindow();
    }
    delete[] m_pPanes;
}

BOOL CStatusBar::Create(CWnd* pParentWnd, DWORD dwStyle, UINT nID) {
    return CreateEx(pParentWnd, 0, dwStyle, nID);
}

BOOL CStatusBar::CreateEx(CWnd* pParentWnd, DWORD dwCtrlStyle, DWORD dwStyle, UINT nID) {
    m_dwStyle = dwStyle & CBRS_ALL;
    // The bar is placed by its frame, not by itself; only at the lower edge it has a size grip.
    DWORD dwWindowStyle = (dwStyle & ~CBRS_ALL) | dwCtrlStyle | CCS_NOPARENTALIGN | CCS_NOMOVEY |
                          CCS_NODIVIDER | CCS_NORESIZE;
    if (pParentWnd->GetStyle() & WS_THICKFRAME) {
        dwWindowStyle |= SBARS_SIZEGRIP;
    }
    if (!CWnd::CreateEx(0, STATUSCLASSNAME, nullptr, dwWindowStyle, CRect(0, 0, 0, 0), pParentWnd,
                        nID)) {
        return FALSE;
    }
    JoinFrame(pParentWnd->IsFrameWnd() ? static_cast<CFrameWnd*>(pParentWnd) : nullptr);
    return TRUE;
}

CStatusBarCtrl& CStatusBar::GetStatusBarCtrl() const {
    // The control's class adds no data: it is this window under another name.
    return *static_cast<CStatusBarCtrl*>(static_cast<CWnd*>(const_cast<CStatusBar*>(this)));
}

/// Calls measure with a context that has the bar's font.
template <class Measure>
static void MeasureIn(HWND hWnd, Measure measure) {
    const HDC hDC = ::GetDC(hWnd);
    {
        const AfxSelectGuard select(hDC, AfxSend<HFONT>(hWnd, WM_GETFONT));
        measure(hDC);
    }
    ::ReleaseDC(hWnd, hDC);
}

int CStatusBar::TextWidth(LPCTSTR lpszText) {
    SIZE size = {};
    MeasureIn(m_hWnd, [&](HDC hDC) { size = AfxTextExtent(hDC, lpszText, lstrlen(lpszText)); });
    return size.cx;
}

BOOL CStatusBar::SetIndicators(const UINT* lpIDArray, int nIDCount) {
    if (nIDCount < 1) {
        return FALSE;
    }
    auto* pPanes = new Pane[nIDCount];
    delete[] m_pPanes;
    m_pPanes = pPanes;
    m_nCount = nIDCount;
    BOOL bFound = TRUE;
    for (int nPane = 0; nPane < nIDCount && lpIDArray != nullptr; ++nPane) {
        Pane& pane = m_pPanes[nPane];
        pane.nID = lpIDArray[nPane];
        if (pane.nID == ID_SEPARATOR) {
            if (nPane == 0) {
                pane.nStyle = SBPS_STRETCH | SBPS_NOBORDERS;
                pane.cxText = ::GetSystemMetrics(SM_CXSCREEN) / 4;
            }
            continue;
        }
        if (!pane.strText.LoadString(pane.nID)) {
            bFound = FALSE;
            break;
        }
        pane.cxText = TextWidth(pane.strText);
    }
    LayOutPanes();
    for (int nPane = 0; nPane < m_nCount; ++nPane) {
        ShowPaneText(nPane);
    }
    return bFound;
}

void CStatusBar::LayOutPanes() {
    if (m_nCount == 0) {
        return;
    }
    int nBorders[3] = {};
    AfxSend(m_hWnd, SB_GETBORDERS, 0, nBorders);
    CRect rcClient;
    GetClientRect(rcClient);
    int cxGrip = 0;
    if (GetStyle() & SBARS_SIZEGRIP) {
        cxGrip = ::GetSystemMetrics(SM_CXVSCROLL);
    }
    int cxUsed = nBorders[0] * 2 + cxGrip;
    int nStretch = -1;
    for (int nPane = 0; nPane < m_nCount; ++nPane) {
        cxUsed += nBorders[2];
        if ((m_pPanes[nPane].nStyle & SBPS_STRETCH) && nStretch < 0) {
            nStretch = nPane;
        } else {
            cxUsed += m_pPanes[nPane].cxText + kPaneMargin;
        }
    }
    // One pane takes what the others leave.
    const int cxStretch = std::max<int>(rcClient.Width() - cxUsed, 0);
    CUIntArray edges;
    int x = nBorders[0];
    for (int nPane = 0; nPane < m_nCount; ++nPane) {
        x += nPane == nStretch ? cxStretch : m_pPanes[nPane].cxText + kPaneMargin;
        edges.Add(static_cast<UINT>(x));
        x += nBorders[2];
    }
    AfxSend(m_hWnd, SB_SETPARTS, m_nCount, edges.GetData());
}

void CStatusBar::ShowPaneText(int nIndex) {
    const Pane& pane = m_pPanes[nIndex];
    const UINT nType = pane.nStyle & (SBPS_NOBORDERS | SBPS_POPOUT | SBPS_OWNERDRAW);
    const LPCTSTR lpszText = pane.nStyle & SBPS_DISABLED ? "" : static_cast<LPCTSTR>(pane.strText);
    AfxSend(m_hWnd, SB_SETTEXT, static_cast<UINT>(nIndex) | nType, lpszText);
}

void CStatusBar::OnSize(UINT nType, int cx, int cy) {
    CControlBar::OnSize(nType, cx, cy);
    LayOutPanes();
}

LRESULT CStatusBar::OnSetText(WPARAM, LPARAM lParam) {
    // The bar's own text is that of the message pane; where there is none, of the first.
    const int nPane = std::max(CommandToIndex(ID_SEPARATOR), 0);
    return SetPaneText(nPane, reinterpret_cast<LPCTSTR>(lParam));
}

CSize CStatusBar::CalcFixedLayout(BOOL bStretch, BOOL bHorz) {
    CSize size = CControlBar::CalcFixedLayout(bStretch, bHorz);
    TEXTMETRIC tm = {};
    MeasureIn(m_hWnd, [&](HDC hDC) { ::GetTextMetrics(hDC, &tm); });
    int nBorders[3] = {};
    AfxSend(m_hWnd, SB_GETBORDERS, 0, nBorders);
    size.cy = tm.tmHeight - tm.tmInternalLeading + nBorders[1] * 2 +
              ::GetSystemMetrics(SM_CYBORDER) * 2 + kPaneMargin;
    return size;
}

int CStatusBar::CommandToIndex(UINT nIDFind) const {
    for (int nPane = 0; nPane < m_nCount; ++nPane) {
        if (m_pPanes[nPane].nID == nIDFind) {
            return nPane;
        }
    }
    return -1;
}

UINT CStatusBar::GetItemID(int nIndex) const {
    return IsPane(nIndex) ? m_pPanes[nIndex].nID : 0;
}

void CStatusBar::GetItemRect(int nIndex, LPRECT lpRect) const {
    if (!IsPane(nIndex) || !AfxSend(m_hWnd, SB_GETRECT, nIndex, lpRect)) {
        ::SetRectEmpty(lpRect);
    }
}

void CStatusBar::GetPaneText(int nIndex, CString& rString) const {
    rString = GetPaneText(nIndex);
}

CString CStatusBar::GetPaneText(int nIndex) const {
    return IsPane(nIndex) ? m_pPanes[nIndex].strText : CString();
}

BOOL CStatusBar::SetPaneText(int nIndex, LPCTSTR lpszNewText, BOOL bUpdate) {
    if (!IsPane(nIndex)) {
        return FALSE;
    }
    Pane& pane = m_pPanes[nIndex];
    if (pane.strText != lpszNewText) {
        pane.strText = lpszNewText;
        if (bUpdate) {
            ShowPaneText(nIndex);
        }
    }
    return TRUE;
}

void CStatusBar::GetPaneInfo(int nIndex, UINT& nID, UINT& nStyle, int& cxWidth) const {
    const Pane pane = IsPane(nIndex) ? m_pPanes[nIndex] : Pane();
    nID = pane.nID;
    nStyle = pane.nStyle;
    cxWidth = pane.cxText;
}

void CStatusBar::SetPaneInfo(int nIndex, UINT nID, UINT nStyle, int cxWidth) {
    if (!IsPane(nIndex)) {
        return;
    }
    m_pPanes[nIndex].nID = nID;
    m_pPanes[nIndex].cxText = cxWidth;
    m_pPanes[nIndex].nStyle = nStyle;
    LayOutPanes();
    ShowPaneText(nIndex);
}

UINT CStatusBar::GetPaneStyle(int nIndex) const {
    return IsPane(nIndex) ? m_pPanes[nIndex].nStyle : 0;
}

void CStatusBar::SetPaneStyle(int nIndex, UINT nStyle) {
    if (IsPane(nIndex) && m_pPanes[nIndex].nStyle != nStyle) {
        m_pPanes[nIndex].nStyle = nStyle;
        ShowPaneText(nIndex);
    }
}

BOOL CStatusBar::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult) {
    if (message == WM_DRAWITEM) {
        DrawItem(reinterpret_cast<LPDRAWITEMSTRUCT>(lParam));
        return TRUE;
    }
    return CControlBar::OnChildNotify(message, wParam, lParam, pResult);
}

void CStatusBar::DrawItem(LPDRAWITEMSTRUCT) {}

namespace {

/// A pane as a command: enabled shows its text, disabled hides it.
class PaneCmdUI : public CCmdUI {
public:
    void Enable(BOOL bOn) override {
        m_bEnableChanged = TRUE;
        Restyle(SBPS_DISABLED, bOn ? 0 : SBPS_DISABLED);
    }
    void SetCheck(int nCheck) override { Restyle(SBPS_POPOUT, nCheck != 0 ? SBPS_POPOUT : 0); }
    void SetText(LPCTSTR lpszText) override {
        Bar()->SetPaneText(static_cast<int>(m_nIndex), lpszText);
    }

private:
    CStatusBar* Bar() { return static_cast<CStatusBar*>(m_pOther); }
    void Restyle(UINT nClear, UINT nSet) {
        const int nPane = static_cast<int>(m_nIndex);
        Bar()->SetPaneStyle(nPane, (Bar()->GetPaneStyle(nPane) & ~nClear) | nSet);
    }
};

}  // namespace

void CStatusBar::OnUpdateCmdUI(CFrameWnd* pTarget, BOOL bDisableIfNoHndler) {
    PaneCmdUI state;
    state.m_pOther = this;
    state.m_nIndexMax = static_cast<UINT>(m_nCount);
    for (state.m_nIndex = 0; state.m_nIndex < state.m_nIndexMax; ++state.m_nIndex) {
        state.m_nID = GetItemID(static_cast<int>(state.m_nIndex));
        // The bar's own map first, for bars derived from this one.
        if (state.m_nID == 0 ||
            OnCmdMsg(state.m_nID, static_cast<int>(CN_UPDATE_COMMAND_UI), &state, nullptr)) {
            continue;
        }
        state.DoUpdate(pTarget, FALSE);
    }
    UpdateDialogControls(pTarget, bDisableIfNoHndler);
}
