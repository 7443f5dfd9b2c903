#include "afx/documents/multi_doc_template.h"

#include <afxwin.h>

IMPLEMENT_DYNAMIC(CMultiDocTemplate, CDocTemplate)

CMultiDocTemplate::CMultiDocTemplate(UINT nIDResource, CRuntimeClass* pDocClass,
                                     CRuntimeClass* pFrameClass, CRuntimeClass* pViewClass)
    : CDocTemplate(nIDResource, pDocClass, pFrameClass, pViewClass) {}

CMultiDocTemplate::~CMultiDocTemplate() {
    while (!m_docList.IsEmpty()) {
        RemoveDocument(static_cast<CDocument*>(m_docList.GetHead()));
    }
    ::DestroyMenu(m_hMenuShared);
}

void CMultiDocTemplate::LoadTemplate() {
    CDocTemplate::LoadTemplate();
    const LPCTSTR lpszResource = MAKEINTRESOURCE(m_nIDResource);
    if (m_hMenuShared == nullptr) {
        m_hMenuShared = ::LoadMenu(AfxFindResourceHandle(lpszResource, RT_MENU), lpszResource);
    }
    if (m_hAccelTable == nullptr) {
        m_hAccelTable =
            ::LoadAccelerators(AfxFindResourceHandle(lpszResource, RT_ACCELERATOR), lpszResource);
    }
}

// Documents

void CMultiDocTemplate::AddDocument(CDocument* pDoc) {
    AfxNeedMemory([&] { m_docList.AddTail(pDoc); });
    CDocTemplate::AddDocument(pDoc);
}

void CMultiDocTemplate::RemoveDocument(CDocument* pDoc) {
    CDocTemplate::RemoveDocument(pDoc);
    if (const POSITION pos = m_docList.Find(pDoc)) {
        m_docList.RemoveAt(pos);
    }
}

POSITION CMultiDocTemplate::GetFirstDocPosition() const {
    return m_docList.GetHeadPosition();
}

CDocument* CMultiDocTemplate::GetNextDoc(POSITION& rPos) const {
    return rPos != nullptr ? static_cast<CDocument*>(m_docList.GetNext(rPos)) : nullptr;
}

void CMultiDocTemplate::SetDefaultTitle(CDocument* pDocument) {
    CString strTitle(DefaultName());
    strTitle.AppendFormat("%u", m_nUntitledCount + 1);
    pDocument->SetTitle(strTitle);
}

// Opening

BOOL CMultiDocTemplate::Fill(CDocument* pDocument, LPCTSTR lpszPathName, BOOL bAddToMRU,
                             BOOL bMakeVisible) {
    const AfxLifeWatch watch(pDocument->m_life);
    if (lpszPathName == nullptr) {
        SetDefaultTitle(pDocument);
        if (!bMakeVisible) {
            pDocument->m_bEmbedded = TRUE;
        }
        if (!pDocument->OnNewDocument() || !watch) {
            return FALSE;
        }
        ++m_nUntitledCount;
        return TRUE;
    }
    const CWaitCursor wait;
    if (!pDocument->OnOpenDocument(lpszPathName) || !watch) {
        return FALSE;
    }
    pDocument->SetPathName(lpszPathName, bAddToMRU);
    return watch ? TRUE : FALSE;
}

CDocument* CMultiDocTemplate::OpenDocumentFile(LPCTSTR lpszPathName, BOOL bMakeVisible) {
    return OpenDocumentFile(lpszPathName, TRUE, bMakeVisible);
}

CDocument* CMultiDocTemplate::OpenDocumentFile(LPCTSTR lpszPathName, BOOL bAddToMRU,
                                               BOOL bMakeVisible) {
    CDocument* pDocument = nullptr;
    CFrameWnd* pFrame = MakeDocument(pDocument);
    if (pFrame == nullptr) {
        AfxMessageBox(AFX_IDP_FAILED_TO_CREATE_DOC);
        return nullptr;
    }
    const HWND hFrame = pFrame->m_hWnd;
    const AfxLifeWatch watch(pDocument->m_life);
    const auto bFrameStands = [&] { return CWnd::FromHandlePermanent(hFrame) == pFrame; };
    BOOL bFilled = FALSE;
    try {
        bFilled = Fill(pDocument, lpszPathName, bAddToMRU, bMakeVisible);
    } catch (...) {
        if (bFrameStands()) {
            pFrame->DestroyWindow();
        }
        throw;
    }
    if (!bFilled) {
        if (bFrameStands()) {
            pFrame->DestroyWindow();  // and the document with it
        }
        return nullptr;
    }
    if (bFrameStands()) {
        ShowNewFrame(pFrame, pDocument, bMakeVisible);
    }
    return watch ? pDocument : nullptr;
}
