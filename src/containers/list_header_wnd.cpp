#include "containers/list_header_wnd.h"

IMPLEMENT_DYNCREATE(QVListHeaderWnd, QVHeaderWnd)

BEGIN_MESSAGE_MAP(QVListHeaderWnd, QVHeaderWnd)
    ON_WM_CREATE()
    ON_WM_SIZE()
END_MESSAGE_MAP()

namespace {

QVListCtrlEx* MakeList(CRuntimeClass* pListClass) {
    if (pListClass == nullptr) {
        pListClass = RUNTIME_CLASS(QVListCtrlEx);
    }
    return pListClass->IsDerivedFrom(RUNTIME_CLASS(QVListCtrlEx))
               ? STATIC_DOWNCAST(QVListCtrlEx, pListClass->CreateObject())
               : nullptr;
}

}  // namespace

QVListHeaderWnd::QVListHeaderWnd() : QVListHeaderWnd(nullptr) {}

QVListHeaderWnd::QVListHeaderWnd(CRuntimeClass* pListClass) : m_pListCtrl(MakeList(pListClass)) {}

// The list's object must still be there while its window goes.
QVListHeaderWnd::~QVListHeaderWnd() {
    DestroyWindow();
    delete m_pListCtrl;
}

void QVListHeaderWnd::SetImageInfo(UINT nBitmap, COLORREF crMask, int cx) {
    m_nImageBitmap = nBitmap;
    m_crImageMask = crMask;
    m_cxListImage = cx;
}

int QVListHeaderWnd::Initialize(UINT nID, CWnd* pParent) {
    return InitializeBy([&] {
        return m_pListCtrl != nullptr && QVHeaderWnd::Initialize(nID, pParent) &&
               (m_pListCtrl->m_hWnd != nullptr || CreateList());
    });
}

// The window of a list that could not be set up goes again.
bool QVListHeaderWnd::CreateList() {
    bool bDone = false;
    qv::MemorySuffices([&] {
        CRect rcBody;
        CalcBackgroundRect(rcBody);
        m_pListCtrl->SetDefStyle(m_dwListStyle);
        bDone =
            m_pListCtrl->Create(m_nListID, rcBody, this) &&
            m_pListCtrl->Initialize(m_nListID, m_nImageBitmap, m_crImageMask, m_cxListImage, this);
    });
    if (bDone) {
        ShareTabStop(*m_pListCtrl);
    } else {
        m_pListCtrl->DestroyWindow();
    }
    return bDone;
}

int QVListHeaderWnd::OnCreate(LPCREATESTRUCT lpCreateStruct) {
    return QVHeaderWnd::OnCreate(lpCreateStruct) ? -1 : 0;
}

void QVListHeaderWnd::OnSize(UINT nType, int cx, int cy) {
    QVHeaderWnd::OnSize(nType, cx, cy);
    if (m_pListCtrl != nullptr) {
        SizeInnerWnd(nType, *m_pListCtrl);
    }
}

BOOL QVListHeaderWnd::OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* pResult) {
    if (!IsInnerId(m_nListID, wParam)) {
        return QVHeaderWnd::OnNotify(wParam, lParam, pResult);
    }
    *pResult = SendToParent(WM_NOTIFY, wParam, lParam);
    return TRUE;
}

// A command that was taken answers 1; what the parent answers stays with the parent.
BOOL QVListHeaderWnd::OnCommand(WPARAM wParam, LPARAM lParam) {
    if (!IsInnerId(m_nListID, LOWORD(wParam))) {
        return QVHeaderWnd::OnCommand(wParam, lParam);
    }
    SendToParent(WM_COMMAND, wParam, lParam);
    return TRUE;
}
