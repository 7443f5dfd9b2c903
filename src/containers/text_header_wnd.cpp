#include "containers/text_header_wnd.h"

IMPLEMENT_DYNCREATE(QVTextHeaderWnd, QVHeaderWnd)

BEGIN_MESSAGE_MAP(QVTextHeaderWnd, QVHeaderWnd)
    ON_WM_CREATE()
    ON_WM_SIZE()
END_MESSAGE_MAP()

QVTextHeaderWnd::QVTextHeaderWnd() = default;

// Before the text's object goes.
QVTextHeaderWnd::~QVTextHeaderWnd() {
    DestroyWindow();
}

int QVTextHeaderWnd::Initialize(UINT nID, CWnd* pParent) {
    return InitializeWith(nID, pParent, static_cast<MakeInner>(&QVTextHeaderWnd::MakeText));
}

BOOL QVTextHeaderWnd::MakeText() {
    if (m_wndText.m_hWnd == nullptr) {
        CRect rcBody;
        CalcBackgroundRect(rcBody);
        if (!m_wndText.Create(rcBody, this, static_cast<UINT>(-1), 0)) {
            return FALSE;
        }
        ShareTabStop(m_wndText);
    }
    return TRUE;
}

void QVTextHeaderWnd::ClearTextData() {
    m_wndText.ClearTextData();
}

BOOL QVTextHeaderWnd::LoadFile(LPCSTR pszPath) {
    return m_wndText.LoadFile(pszPath, -1);
}

BOOL QVTextHeaderWnd::LoadFile(CStdioFile& file) {
    return m_wndText.LoadFile(file, -1);
}

int QVTextHeaderWnd::OnCreate(LPCREATESTRUCT lpCreateStruct) {
    return QVHeaderWnd::OnCreate(lpCreateStruct) ? -1 : 0;
}

void QVTextHeaderWnd::OnSize(UINT nType, int cx, int cy) {
    QVHeaderWnd::OnSize(nType, cx, cy);
    SizeInnerWnd(nType, m_wndText);
}
