#include "afx/documents/doc_template.h"

#include <afxpriv.h>
#include <afxwin.h>

IMPLEMENT_DYNAMIC(CSingleDocTemplate, CDocTemplate)

CSingleDocTemplate::CSingleDocTemplate(UINT nIDResource, CRuntimeClass* pDocClass,
                                       CRuntimeClass* pFrameClass, CRuntimeClass* pViewClass)
    : CDocTemplate(nIDResource, pDocClass, pFrameClass, pViewClass) {}

CSingleDocTemplate::~CSingleDocTemplate() {
    if (m_pOnlyDoc != nullptr) {
        RemoveDocument(m_pOnlyDoc);
    }
}

void CSingleDocTemplate::AddDocument(CDocument* pDoc) {
    if (m_pOnlyDoc == nullptr) {
        CDocTemplate::AddDocument(pDoc);
        m_pOnlyDoc = pDoc;
    }
}

void CSingleDocTemplate::RemoveDocument(CDocument* pDoc) {
    if (m_pOnlyDoc == pDoc) {
        CDocTemplate::RemoveDocument(pDoc);
        m_pOnlyDoc = nullptr;
    }
}

// Only one document, so the position tells no more than that there is one.
POSITION CSingleDocTemplate::GetFirstDocPosition() const {
    return m_pOnlyDoc != nullptr ? BEFORE_START_POSITION : nullptr;
}

CDocument* CSingleDocTemplate::GetNextDoc(POSITION& rPos) const {
    CDocument* pDoc = rPos != nullptr ? m_pOnlyDoc : nullptr;
    rPos = nullptr;
    return pDoc;
}

void CSingleDocTemplate::SetDefaultTitle(CDocument* pDocument) {
    CString strName;
    if (!GetDocString(strName, docName) || strName.IsEmpty()) {
        strName.LoadString(AFX_IDS_UNTITLED);
    }
    pDocument->SetTitle(strName);
}

/// A document with its frame, or null. Nothing is left behind by what fails or throws.
CFrameWnd* CSingleDocTemplate::MakeDocument() {
    CDocument* pDocument = CreateNewDocument();
    if (pDocument == nullptr) {
        return nullptr;
    }
    // A frame that fails takes its view along, and must not take the document.
    const BOOL bAutoDelete = pDocument->m_bAutoDelete;
    pDocument->m_bAutoDelete = FALSE;
    CFrameWnd* pFrame = nullptr;
    try {
        pFrame = CreateNewFrame(pDocument, nullptr);
    } catch (...) {
        delete m_pOnlyDoc;
        throw;
    }
    if (pFrame == nullptr) {
        delete m_pOnlyDoc;
    } else if (m_pOnlyDoc != nullptr) {
        m_pOnlyDoc->m_bAutoDelete = bAutoDelete;
    }
    return pFrame;
}

/// New or read from the file. What the document was stays where the file cannot be opened.
BOOL CSingleDocTemplate::Fill(LPCTSTR lpszPathName, BOOL bMakeVisible, bool bCreated) {
    if (lpszPathName == nullptr) {
        SetDefaultTitle(m_pOnlyDoc);
        if (!bMakeVisible) {
            m_pOnlyDoc->m_bEmbedded = TRUE;
        }
        return m_pOnlyDoc->OnNewDocument() && m_pOnlyDoc != nullptr;
    }
    const CWaitCursor wait;
    const BOOL bWasModified = m_pOnlyDoc->IsModified();
    m_pOnlyDoc->SetModifiedFlag(FALSE);
    const BOOL bOpened = m_pOnlyDoc->OnOpenDocument(lpszPathName);
    if (m_pOnlyDoc == nullptr) {
        return FALSE;
    }
    if (bOpened) {
        m_pOnlyDoc->SetPathName(lpszPathName);
        return TRUE;
    }
    if (bCreated) {
        return FALSE;
    }
    // A document that says it is changed now was touched by the attempt.
    if (m_pOnlyDoc->IsModified()) {
        SetDefaultTitle(m_pOnlyDoc);
        m_pOnlyDoc->OnNewDocument();
    } else {
        m_pOnlyDoc->SetModifiedFlag(bWasModified);
    }
    return FALSE;
}

CDocument* CSingleDocTemplate::OpenDocumentFile(LPCTSTR lpszPathName, BOOL bMakeVisible) {
    const bool bCreated = m_pOnlyDoc == nullptr;
    CFrameWnd* pFrame = nullptr;
    if (bCreated) {
        pFrame = MakeDocument();
        if (pFrame == nullptr) {
            AfxMessageBox(AFX_IDP_FAILED_TO_CREATE_DOC);
            return nullptr;
        }
    } else {
        if (!m_pOnlyDoc->SaveModified() || m_pOnlyDoc == nullptr) {
            return nullptr;
        }
        POSITION pos = m_pOnlyDoc->GetFirstViewPosition();
        const CView* pView = m_pOnlyDoc->GetNextView(pos);
        pFrame = pView != nullptr ? pView->GetParentFrame() : nullptr;
    }
    const HWND hFrame = pFrame->GetSafeHwnd();
    const auto bFrameStands = [&] {
        return pFrame != nullptr && CWnd::FromHandlePermanent(hFrame) == pFrame;
    };
    BOOL bFilled = FALSE;
    try {
        bFilled = m_pOnlyDoc != nullptr && Fill(lpszPathName, bMakeVisible, bCreated);
    } catch (...) {
        if (bCreated && bFrameStands()) {
            pFrame->DestroyWindow();
        }
        throw;
    }
    if (!bFilled) {
        if (bCreated && bFrameStands()) {
            pFrame->DestroyWindow();  // and the document with it
        }
        return nullptr;
    }
    CWinThread* pThread = AfxGetThread();
    if (bFrameStands()) {
        if (bCreated && pThread != nullptr && pThread->m_pMainWnd == nullptr) {
            pThread->m_pMainWnd = pFrame;
        }
        InitialUpdateFrame(pFrame, m_pOnlyDoc, bMakeVisible);
    }
    return m_pOnlyDoc;
}
