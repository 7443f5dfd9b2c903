#include "afx/app/tool_bar.h"

#include "afx/app/dock_bar.h"
#include "afx/window/wnd_state.h"

#include <afxcmn.h>
#include <afxext.h>

#include <algorithm>
#include <climits>
#include <utility>

IMPLEMENT_DYNAMIC(CToolBar, CControlBar)

BEGIN_MESSAGE_MAP(CToolBar, CControlBar)
    ON_WM_ERASEBKGND()
END_MESSAGE_MAP()

// Pixels: a button has this around its picture.
static const CSize kAroundImage(7, 7);
static constexpr int kSeparatorWidth = 8;
static constexpr int kBorderLine = 2;
static constexpr COLORREF kBehindImages = RGB(192, 192, 192);

CToolBar::CToolBar() : m_sizeButton(23, 22), m_sizeImage(16, 15) {}

CToolBar::~CToolBar() {
    if (m_hWnd != nullptr) {
        DestroyWindow();
    }
}

BOOL CToolBar::Create(CWnd* pParentWnd, DWORD dwStyle, UINT nID) {
    constexpr int kBorder = 2;
    return CreateEx(pParentWnd, 0, dwStyle, CRect(kBorder, kBorder, kBorder, kBorder), nID);
}

BOOL CToolBar::CreateEx(CWnd* pParentWnd, DWORD dwCtrlStyle, DWORD dwStyle, CRect rcBorders,
                        UINT nID) {
    SetBorders(rcBorders);
    m_dwStyle = dwStyle & CBRS_ALL;
    // The bar is placed by its frame, not by itself.
    DWORD dwWindow = (dwStyle & ~static_cast<DWORD>(CBRS_ALL)) | dwCtrlStyle | WS_CHILD |
                     CCS_NOPARENTALIGN | CCS_NOMOVEY | CCS_NODIVIDER | CCS_NORESIZE;
    if (m_dwStyle & CBRS_TOOLTIPS) {
        dwWindow |= TBSTYLE_TOOLTIPS;
    }
    if (!CWnd::CreateEx(0, TOOLBARCLASSNAME, nullptr, dwWindow, CRect(0, 0, 0, 0), pParentWnd,
                        nID)) {
        return FALSE;
    }
    GetToolBarCtrl().SetButtonStructSize(sizeof(TBBUTTON));
    SetSizes(m_sizeButton, m_sizeImage);
    JoinFrame(pParentWnd->IsFrameWnd() ? static_cast<CFrameWnd*>(pParentWnd) : nullptr);
    return TRUE;
}

CToolBarCtrl& CToolBar::GetToolBarCtrl() const {
    // The control's class adds no data: it is this window under another name.
    return *static_cast<CToolBarCtrl*>(static_cast<CWnd*>(const_cast<CToolBar*>(this)));
}

// Buttons and their pictures

void CToolBar::SetSizes(SIZE sizeButton, SIZE sizeImage) {
    // Lines of buttons without a width would have no end.
    m_sizeButton = CSize(std::max<int>(sizeButton.cx, 1), std::max<int>(sizeButton.cy, 1));
    m_sizeImage = CSize(std::max<int>(sizeImage.cx, 0), std::max<int>(sizeImage.cy, 0));
    if (m_hWnd != nullptr) {
        CToolBarCtrl& ctrl = GetToolBarCtrl();
        ctrl.SetBitmapSize(m_sizeImage);
        ShowImages();
        ctrl.SetButtonSize(m_sizeButton);
    }
}

void CToolBar::SetHeight(int cyHeight) {
    const int nAround = std::max<int>(cyHeight - m_sizeButton.cy, 0);
    m_cyTopBorder = nAround / 2;
    m_cyBottomBorder = nAround - nAround / 2;
    OnBarStyleChange(m_dwStyle, m_dwStyle);
}

BOOL CToolBar::LoadToolBar(LPCTSTR lpszResourceName) {
    const HINSTANCE hInst = AfxFindResourceHandle(lpszResourceName, RT_TOOLBAR);
    const HRSRC hRsrc = ::FindResource(hInst, lpszResourceName, RT_TOOLBAR);
    const HGLOBAL hGlobal = hRsrc != nullptr ? ::LoadResource(hInst, hRsrc) : nullptr;
    const auto* pWords =
        static_cast<const WORD*>(hGlobal != nullptr ? ::LockResource(hGlobal) : nullptr);
    // Version, width, height, number of buttons, and the buttons.
    constexpr DWORD kHead = 4;
    const DWORD nWords = pWords != nullptr ? ::SizeofResource(hInst, hRsrc) / sizeof(WORD) : 0;
    if (nWords < kHead || pWords[0] != 1 || nWords - kHead < pWords[3]) {
        return FALSE;
    }
    const auto commands = AfxNeedMemory(
        [&] { return std::vector<UINT>(pWords + kHead, pWords + kHead + pWords[3]); });
    const CSize sizeImage(pWords[1], pWords[2]);
    if (!SetButtons(commands.data(), static_cast<int>(commands.size()))) {
        return FALSE;
    }
    SetSizes(sizeImage + kAroundImage, sizeImage);
    return LoadBitmap(lpszResourceName);
}

BOOL CToolBar::LoadBitmap(LPCTSTR lpszResourceName) {
    // As a section it keeps its own depth and colours.
    const HINSTANCE hInst = AfxFindResourceHandle(lpszResourceName, RT_BITMAP);
    return SetBitmap(static_cast<HBITMAP>(
        ::LoadImage(hInst, lpszResourceName, IMAGE_BITMAP, 0, 0, LR_CREATEDIBSECTION)));
}

BOOL CToolBar::SetBitmap(HBITMAP hbmImageWell) {
    if (!m_bitmap.Attach(hbmImageWell)) {
        return FALSE;
    }
    ShowImages();
    return TRUE;
}

void CToolBar::ShowImages() {
    if (m_bitmap.m_hObject == nullptr || m_sizeImage.cx <= 0 || m_sizeImage.cy <= 0) {
        return;
    }
    BITMAP bm{};
    m_bitmap.GetBitmap(&bm);
    CImageList images;
    if (!images.Create(m_sizeImage.cx, m_sizeImage.cy, ILC_COLOR24 | ILC_MASK,
                       bm.bmWidth / m_sizeImage.cx, 1)) {
        return;
    }
    // Masking paints the picture's background black: that of a copy, or the next call would see it.
    CBitmap copy;
    copy.Attach(
        static_cast<HBITMAP>(::CopyImage(m_bitmap, IMAGE_BITMAP, 0, 0, LR_CREATEDIBSECTION)));
    images.Add(&copy, kBehindImages);
    GetToolBarCtrl().SetImageList(&images);
    m_images.Attach(images.Detach());
}

BOOL CToolBar::SetButtons(const UINT* lpIDArray, int nIDCount) {
    if (nIDCount < 1) {
        return FALSE;
    }
    CToolBarCtrl& ctrl = GetToolBarCtrl();
    auto buttons =
        AfxNeedMemory([&] { return std::vector<TBBUTTON>(static_cast<size_t>(nIDCount)); });
    while (ctrl.GetButtonCount() > 0 && ctrl.DeleteButton(0)) {
    }
    int nImage = 0;
    for (TBBUTTON& button : buttons) {
        button = {};
        button.iString = -1;
        button.fsState = TBSTATE_ENABLED;
        if (lpIDArray == nullptr) {
            button.fsStyle = TBSTYLE_BUTTON;
        } else if (*lpIDArray == ID_SEPARATOR) {
            button.fsStyle = TBSTYLE_SEP;
            button.iBitmap = kSeparatorWidth;
        } else {
            button.fsStyle = TBSTYLE_BUTTON;
            button.idCommand = static_cast<int>(*lpIDArray);
            button.iBitmap = nImage++;
        }
        lpIDArray += lpIDArray != nullptr ? 1 : 0;
    }
    if (!ctrl.AddButtons(nIDCount, buttons.data())) {
        return FALSE;
    }
    m_nCount = nIDCount;
    ShapeForDock();
    return TRUE;
}

bool CToolBar::GetButton(int nIndex, TBBUTTON& button) const {
    button = {};
    return nIndex >= 0 && GetToolBarCtrl().GetButton(nIndex, &button);
}

/// Taken out and put in again, which the platform lays out anew.
void CToolBar::PutButton(int nIndex, const TBBUTTON& button) {
    TBBUTTON old;
    if (!GetButton(nIndex, old) || memcmp(&old, &button, sizeof old) == 0) {
        return;
    }
    // The text is the button's own, which goes with it.
    const CString strText = GetButtonText(nIndex);
    TBBUTTON changed = button;
    changed.iString = -1;
    CToolBarCtrl& ctrl = GetToolBarCtrl();
    ctrl.DeleteButton(nIndex);
    ctrl.InsertButton(nIndex, &changed);
    if (!strText.IsEmpty()) {
        SetButtonText(nIndex, strText);
    }
}

int CToolBar::CommandToIndex(UINT nIDFind) const {
    return static_cast<int>(GetToolBarCtrl().CommandToIndex(nIDFind));
}

UINT CToolBar::GetItemID(int nIndex) const {
    TBBUTTON button;
    return GetButton(nIndex, button) ? static_cast<UINT>(button.idCommand) : 0;
}

void CToolBar::GetItemRect(int nIndex, LPRECT lpRect) const {
    if (!GetToolBarCtrl().GetItemRect(nIndex, lpRect)) {
        ::SetRectEmpty(lpRect);
    }
}

UINT CToolBar::GetButtonStyle(int nIndex) const {
    TBBUTTON button;
    return GetButton(nIndex, button) ? MAKELONG(button.fsStyle, button.fsState ^ TBSTATE_ENABLED)
                                     : 0;
}

void CToolBar::SetButtonStyle(int nIndex, UINT nStyle) {
    TBBUTTON button;
    if (!GetButton(nIndex, button)) {
        return;
    }
    const auto fsStyle = static_cast<BYTE>(LOWORD(nStyle));
    const auto fsState = static_cast<BYTE>(HIWORD(nStyle) ^ TBSTATE_ENABLED);
    if (button.fsStyle == fsStyle && button.idCommand != 0) {
        if (button.fsState != fsState) {
            GetToolBarCtrl().SetState(button.idCommand, fsState);
        }
        return;
    }
    button.fsStyle = fsStyle;
    button.fsState = fsState;
    PutButton(nIndex, button);
}

void CToolBar::GetButtonInfo(int nIndex, UINT& nID, UINT& nStyle, int& iImage) const {
    TBBUTTON button;
    GetButton(nIndex, button);
    nID = static_cast<UINT>(button.idCommand);
    nStyle = GetButtonStyle(nIndex);
    iImage = button.iBitmap;
}

void CToolBar::SetButtonInfo(int nIndex, UINT nID, UINT nStyle, int iImage) {
    TBBUTTON button;
    if (!GetButton(nIndex, button)) {
        return;
    }
    button.idCommand = static_cast<int>(nID);
    button.iBitmap = iImage;
    button.fsStyle = static_cast<BYTE>(LOWORD(nStyle));
    button.fsState = static_cast<BYTE>(HIWORD(nStyle) ^ TBSTATE_ENABLED);
    PutButton(nIndex, button);
    ShapeForDock();
}

BOOL CToolBar::SetButtonText(int nIndex, LPCTSTR lpszText) {
    TBBUTTONINFO info{};
    info.cbSize = sizeof info;
    info.dwMask = TBIF_TEXT | TBIF_BYINDEX;
    info.pszText = const_cast<LPTSTR>(lpszText);
    return AfxSend<BOOL>(m_hWnd, TB_SETBUTTONINFO, nIndex, &info);
}

CString CToolBar::GetButtonText(int nIndex) const {
    constexpr int kLongest = 256;
    TBBUTTONINFO info{};
    CString strText;
    info.cbSize = sizeof info;
    info.dwMask = TBIF_TEXT | TBIF_BYINDEX;
    info.pszText = strText.GetBuffer(kLongest);
    info.cchText = kLongest;
    info.pszText[0] = 0;
    AfxSend(m_hWnd, TB_GETBUTTONINFO, nIndex, &info);
    strText.ReleaseBuffer();
    return strText;
}

void CToolBar::GetButtonText(int nIndex, CString& rString) const {
    rString = GetButtonText(nIndex);
}

// Shapes: one line, one column, or lines of a width

/// Of one line, or with bColumn of a line for each button.
CToolBar::Wraps CToolBar::NoWraps(bool bColumn) const {
    const auto nButtons = static_cast<size_t>(GetToolBarCtrl().GetButtonCount());
    return AfxNeedMemory([&] { return Wraps(nButtons, bColumn); });
}

CToolBar::Wraps CToolBar::CurrentWraps() const {
    Wraps wraps = NoWraps();
    for (size_t nButton = 0; nButton < wraps.size(); ++nButton) {
        TBBUTTON button;
        GetButton(static_cast<int>(nButton), button);
        wraps[nButton] = (button.fsState & TBSTATE_WRAP) != 0;
    }
    return wraps;
}

/// Lines not wider than that, but for one button alone.
CToolBar::Wraps CToolBar::WrapsFor(int nWidth) const {
    Wraps wraps = NoWraps();
    int nLine = 0;
    for (size_t nButton = 0; nButton < wraps.size(); ++nButton) {
        TBBUTTON button;
        CRect rect;
        GetButton(static_cast<int>(nButton), button);
        GetItemRect(static_cast<int>(nButton), rect);
        if (button.fsState & TBSTATE_HIDDEN) {
            continue;
        }
        const bool bSeparator = (button.fsStyle & TBSTYLE_SEP) != 0;
        const int nButtonWidth = bSeparator ? button.iBitmap : rect.Width();
        if (nLine > 0 && nLine + nButtonWidth > nWidth) {
            wraps[bSeparator ? nButton : nButton - 1] = true;
            nLine = bSeparator ? 0 : nButtonWidth;
        } else {
            nLine += nButtonWidth;
        }
    }
    return wraps;
}

/// The widest lines that are not higher than that all together.
CToolBar::Wraps CToolBar::WrapsForHeight(int nHeight) {
    Wraps best = NoWraps();
    int nWidth = SizeOf(best).cx;
    while (nWidth > m_sizeButton.cx) {
        nWidth -= m_sizeButton.cx;
        Wraps wraps = WrapsFor(nWidth);
        if (SizeOf(wraps).cy > nHeight) {
            break;
        }
        best = std::move(wraps);
    }
    return best;
}

void CToolBar::SetWraps(const Wraps& wraps) {
    CToolBarCtrl& ctrl = GetToolBarCtrl();
    bool bChanged = false;
    for (size_t nButton = 0; nButton < wraps.size(); ++nButton) {
        TBBUTTON button;
        const int nIndex = static_cast<int>(nButton);
        if (!GetButton(nIndex, button) ||
            ((button.fsState & TBSTATE_WRAP) != 0) == wraps[nButton]) {
            continue;
        }
        button.fsState ^= TBSTATE_WRAP;
        PutButton(nIndex, button);
        bChanged = true;
    }
    if (bChanged) {
        ctrl.AutoSize();
    }
}

/// What the buttons take in that shape, as the platform lays them out.
CSize CToolBar::SizeOf(const Wraps& wraps) {
    const Wraps before = CurrentWraps();
    SetWraps(wraps);
    CRect rcAll;
    for (size_t nButton = 0; nButton < wraps.size(); ++nButton) {
        TBBUTTON button;
        CRect rect;
        GetButton(static_cast<int>(nButton), button);
        GetItemRect(static_cast<int>(nButton), rect);
        // A separator that ends a line is only the gap below it.
        if (!(button.fsStyle & TBSTYLE_SEP)) {
            rcAll |= rect;
        }
    }
    SetWraps(before);
    return rcAll.IsRectEmpty() ? m_sizeButton
                               : CSize(rcAll.right + rcAll.left, rcAll.bottom + rcAll.top);
}

/// Without memory the bar keeps the shape that it has.
void CToolBar::ShapeForDock() {
    if (m_hWnd == nullptr || IsFloating()) {
        return;
    }
    try {
        SetWraps(NoWraps((m_dwStyle & CBRS_ORIENT_VERT) != 0));
    } catch (CMemoryException* e) {
        e->Delete();
    }
}

void CToolBar::OnBarStyleChange(DWORD dwOldStyle, DWORD dwNewStyle) {
    ShapeForDock();
    CControlBar::OnBarStyleChange(dwOldStyle, dwNewStyle);
}

CSize CToolBar::CalcFixedLayout(BOOL bStretch, BOOL bHorz) {
    const CSize stretched = CControlBar::CalcFixedLayout(bStretch, bHorz);
    const Wraps wraps = NoWraps(!bHorz);
    CRect rcInsets = CalcInsets(bHorz);
    const CSize size =
        SizeOf(wraps) + CSize(rcInsets.left + rcInsets.right, rcInsets.top + rcInsets.bottom);
    return CSize(std::max(stretched.cx, size.cx), std::max(stretched.cy, size.cy));
}

CSize CToolBar::CalcDynamicLayout(int nLength, DWORD nMode) {
    if (nMode & (LM_HORZDOCK | LM_VERTDOCK)) {
        return CalcFixedLayout((nMode & LM_STRETCH) != 0, (nMode & LM_HORZ) != 0);
    }
    const bool bLast = nLength < 0 && (nMode & LM_MRUWIDTH) && m_nMRUWidth > 0;
    const CSize around(m_cxLeftBorder + m_cxRightBorder, m_cyTopBorder + m_cyBottomBorder);
    const Wraps wraps = nMode & LM_LENGTHY ? WrapsForHeight(nLength - around.cy)
                        : bLast            ? WrapsFor(m_nMRUWidth)
                        : nLength >= 0     ? WrapsFor(nLength - around.cx)
                                           : WrapsFor(INT_MAX);
    const CSize size = SizeOf(wraps);
    if (nMode & LM_COMMIT) {
        SetWraps(wraps);
        m_nMRUWidth = size.cx;
    }
    return size + around;
}

// Around the buttons

CRect CToolBar::CalcInsets(BOOL bHorz) const {
    CRect rcInsets = CControlBar::CalcInsets(bHorz);
    // Docked, the bar lies close to others and has no lines of its own.
    const auto line = [&](DWORD dwBorder) {
        return m_pDockBar == nullptr && (m_dwStyle & dwBorder) ? kBorderLine : 0;
    };
    return CRect(rcInsets.left + m_cxLeftBorder + line(CBRS_BORDER_LEFT),
                 rcInsets.top + m_cyTopBorder + line(CBRS_BORDER_TOP),
                 rcInsets.right + m_cxRightBorder + line(CBRS_BORDER_RIGHT),
                 rcInsets.bottom + m_cyBottomBorder + line(CBRS_BORDER_BOTTOM));
}

void CToolBar::DrawBorders(CDC* pDC, CRect& rect) {
    static constexpr struct {
        DWORD dwBorder;
        UINT nSide;
    } kSides[] = {{CBRS_BORDER_LEFT, BF_LEFT},
                  {CBRS_BORDER_TOP, BF_TOP},
                  {CBRS_BORDER_RIGHT, BF_RIGHT},
                  {CBRS_BORDER_BOTTOM, BF_BOTTOM}};
    for (const auto& side : kSides) {
        if (m_pDockBar == nullptr && (m_dwStyle & side.dwBorder)) {
            pDC->DrawEdge(rect, EDGE_ETCHED, side.nSide);
        }
    }
}

BOOL CToolBar::OnEraseBkgnd(CDC* pDC) {
    // A flat toolbar asks what is behind it, and the frame leaves that to its bars.
    CRect rcClient;
    GetClientRect(rcClient);
    pDC->FillSolidRect(rcClient, ::GetSysColor(COLOR_BTNFACE));
    return TRUE;
}

INT_PTR CToolBar::OnToolHitTest(CPoint point, TOOLINFO* pTI) const {
    const INT_PTR nChild = CWnd::OnToolHitTest(point, pTI);
    if (nChild != -1) {
        return nChild;
    }
    const int nCount = GetToolBarCtrl().GetButtonCount();
    for (int nButton = 0; nButton < nCount; ++nButton) {
        TBBUTTON button;
        CRect rect;
        GetItemRect(nButton, rect);
        if (!rect.PtInRect(point) || !GetButton(nButton, button) ||
            (button.fsStyle & TBSTYLE_SEP) || (button.fsState & TBSTATE_HIDDEN)) {
            continue;
        }
        if (pTI != nullptr && pTI->cbSize >= TTTOOLINFO_V1_SIZE) {
            pTI->hwnd = m_hWnd;
            pTI->rect = rect;
            pTI->uId = static_cast<UINT_PTR>(button.idCommand);
            pTI->lpszText = LPSTR_TEXTCALLBACK;
        }
        return button.idCommand;
    }
    return -1;
}

// Commands

namespace {

class ButtonCmdUI : public CCmdUI {
public:
    void Enable(BOOL bOn) override {
        m_bEnableChanged = TRUE;
        Restyle(TBBS_DISABLED | (bOn ? 0 : TBBS_PRESSED), bOn ? 0 : TBBS_DISABLED);
    }
    void SetCheck(int nCheck) override {
        Restyle(TBBS_CHECKED | TBBS_INDETERMINATE,
                TBBS_CHECKBOX | (nCheck == 1   ? TBBS_CHECKED
                                 : nCheck != 0 ? TBBS_INDETERMINATE
                                               : 0));
    }
    void SetText(LPCTSTR) override {}

private:
    void Restyle(UINT nClear, UINT nSet) {
        auto* pBar = static_cast<CToolBar*>(m_pOther);
        const int nButton = static_cast<int>(m_nIndex);
        const UINT nStyle = pBar->GetButtonStyle(nButton);
        const UINT nNew = (nStyle & ~nClear) | nSet;
        if (nNew != nStyle) {
            pBar->SetButtonStyle(nButton, nNew);
        }
    }
};

}  // namespace

void CToolBar::OnUpdateCmdUI(CFrameWnd* pTarget, BOOL bDisableIfNoHndler) {
    const HWND hWnd = m_hWnd;
    ButtonCmdUI state;
    state.m_pOther = this;
    state.m_nIndexMax = static_cast<UINT>(GetToolBarCtrl().GetButtonCount());
    for (state.m_nIndex = 0; state.m_nIndex < state.m_nIndexMax; ++state.m_nIndex) {
        TBBUTTON button;
        if (!GetButton(static_cast<int>(state.m_nIndex), button) ||
            (button.fsStyle & TBSTYLE_SEP)) {
            continue;
        }
        state.m_nID = static_cast<UINT>(button.idCommand);
        // The bar's own map first, for bars derived from this one.
        if (!OnCmdMsg(state.m_nID, static_cast<int>(CN_UPDATE_COMMAND_UI), &state, nullptr)) {
            state.DoUpdate(pTarget, bDisableIfNoHndler);
        }
        if (FromHandlePermanent(hWnd) != this) {
            return;  // a handler took the bar away
        }
    }
    UpdateDialogControls(pTarget, bDisableIfNoHndler);
}
