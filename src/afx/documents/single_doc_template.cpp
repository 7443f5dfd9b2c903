#include "afx/documents/doc_template.h"

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
    pDocument->SetTitle(DefaultName());
}

/// New or read from the file.
BOOL CSingleDocTemplate::Fill(LPCTSTR lpszPathName, BOOL bAddToMRU, BOOL bMakeVisible,
                              bool bCreated) {
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
    m_pOnlyDoc->m_bEmptied = false;
    const auto giveBack = [&] {
        if (m_pOnlyDoc != nullptr && !bCreated) {
            GiveBack(bWasModified);
        }
    };
    BOOL bOpened = FALSE;
    try {
        bOpened = m_pOnlyDoc->OnOpenDocument(lpszPathName);
    } catch (...) {
        giveBack();
        throw;
    }
    if (m_pOnlyDoc != nullptr && bOpened) {
        m_pOnlyDoc->SetPathName(lpszPathName, bAddToMRU);
        return TRUE;
    }
    giveBack();
    return FALSE;
}

/// What the document was stays where the file cannot be opened; one that the attempt touched is new
/// and empty. It says so by being changed now, or has emptied itself.
void CSingleDocTemplate::GiveBack(BOOL bWasModified) {
    if (m_pOnlyDoc->IsModified() || m_pOnlyDoc->m_bEmptied) {
        SetDefaultTitle(m_pOnlyDoc);
        m_pOnlyDoc->OnNewDocument();
    } else {
        m_pOnlyDoc->SetModifiedFlag(bWasModified);
    }
}

CDocument* CSingleDocTemplate::OpenDocumentFile(LPCTSTR lpszPathName, BOOL bMakeVisible) {
    return OpenDocumentFile(lpszPathName, TRUE, bMakeVisible);
}

CDocument* CSingleDocTemplate::OpenDocumentFile(LPCTSTR lpszPathName, BOOL bAddToMRU,
                                                BOOL bMakeVisible) {
    const bool bCreated = m_pOnlyDoc == nullptr;
    CFrameWnd* pFrame = nullptr;
    if (bCreated) {
        CDocument* pDocument = nullptr;
        pFrame = MakeDocument(pDocument);
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
        bFilled = m_pOnlyDoc != nullptr && Fill(lpszPathName, bAddToMRU, bMakeVisible, bCreated);
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
    if (bFrameStands()) {
        bCreated ? ShowNewFrame(pFrame, m_pOnlyDoc, bMakeVisible)
                 : InitialUpdateFrame(pFrame, m_pOnlyDoc, bMakeVisible);
    }
    return m_pOnlyDoc;
}
