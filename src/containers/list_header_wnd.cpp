#include "containers/list_header_wnd.h"

#include "frame/out_of_memory.h"

IMPLEMENT_DYNCREATE(QVListHeaderWnd, QVHeaderWnd)

BEGIN_MESSAGE_MAP(QVListHeaderWnd, QVHeaderWnd)
    ON_WM_CREATE()
    ON_WM_SIZE()
END_MESSAGE_MAP()

namespace {

QVListCtrlEx* NewList(CRuntimeClass* pListClass) {
    if (pListClass == nullptr) {
        pListClass = RUNTIME_CLASS(QVListCtrlEx);
    }
    return pListClass->IsDerivedFrom(RUNTIME_CLASS(QVListCtrlEx))
               ? STATIC_DOWNCAST(QVListCtrlEx, pListClass->CreateObject())
               : nullptr;
}

}  // namespace

QVListHeaderWnd::QVListHeaderWnd() : QVListHeaderWnd(nullptr) {}

QVListHeaderWnd::QVListHeaderWnd(CRuntimeClass* pListClass) : m_pListCtrl(NewList(pListClass)) {}

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
    return m_pListCtrl != nullptr &&
           InitializeWith(nID, pParent, static_cast<MakeInner>(&QVListHeaderWnd::MakeList));
}

// The window of a list that could not be set up goes again.
BOOL QVListHeaderWnd::MakeList() {
    if (m_pListCtrl->m_hWnd != nullptr) {
        return TRUE;
    }
    BOOL bDone = FALSE;
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
