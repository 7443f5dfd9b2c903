#include "afx/documents/doc_template.h"

#include "afx/objects/create_object.h"
#include "afx/objects/file_path.h"

#include <afxwin.h>

#include <memory>
#include <vector>

IMPLEMENT_DYNAMIC(CDocTemplate, CCmdTarget)

CDocTemplate::CDocTemplate(UINT nIDResource, CRuntimeClass* pDocClass, CRuntimeClass* pFrameClass,
                           CRuntimeClass* pViewClass)
    : m_nIDResource(nIDResource),
      m_pDocClass(pDocClass),
      m_pFrameClass(pFrameClass),
      m_pViewClass(pViewClass) {}

CDocTemplate::~CDocTemplate() = default;

void CDocTemplate::LoadTemplate() {
    if (m_strDocStrings.IsEmpty()) {
        m_strDocStrings.LoadString(m_nIDResource);
    }
}

void CDocTemplate::AddDocument(CDocument* pDoc) {
    pDoc->m_pDocTemplate = this;
}

void CDocTemplate::RemoveDocument(CDocument* pDoc) {
    pDoc->m_pDocTemplate = nullptr;
}

BOOL CDocTemplate::GetDocString(CString& rString, DocStringIndex index) const {
    return AfxExtractSubString(rString, m_strDocStrings, index) && !m_strDocStrings.IsEmpty();
}

static std::vector<CDocument*> DocumentsOf(const CDocTemplate& docTemplate) {
    return AfxNeedMemory([&] {
        std::vector<CDocument*> documents;
        for (POSITION pos = docTemplate.GetFirstDocPosition(); pos != nullptr;) {
            documents.push_back(docTemplate.GetNextDoc(pos));
        }
        return documents;
    });
}

CDocTemplate::Confidence CDocTemplate::MatchDocType(LPCTSTR lpszPathName, CDocument*& rpDocMatch) {
    rpDocMatch = nullptr;
    const CString strPath(AfxWholePath(lpszPathName));
    for (CDocument* pDoc : DocumentsOf(*this)) {
        if (AfxSamePath(pDoc->GetPathName(), strPath)) {
            rpDocMatch = pDoc;
            return yesAlreadyOpen;
        }
    }
    CString strExt;
    const int nDot = strPath.ReverseFind('.');
    if (GetDocString(strExt, filterExt) && !strExt.IsEmpty() && nDot >= 0 &&
        AfxSamePath(strPath.Mid(nDot), strExt)) {
        return yesAttemptNative;
    }
    return yesAttemptForeign;
}

CDocument* CDocTemplate::CreateNewDocument() {
    std::unique_ptr<CDocument> pDocument(AfxCreateOf<CDocument>(m_pDocClass));
    if (pDocument != nullptr) {
        AddDocument(pDocument.get());
    }
    return pDocument.release();
}

CFrameWnd* CDocTemplate::CreateNewFrame(CDocument* pDoc, CFrameWnd* pOther) {
    CCreateContext context;
    context.m_pCurrentFrame = pOther;
    context.m_pCurrentDoc = pDoc;
    context.m_pNewViewClass = m_pViewClass;
    context.m_pNewDocTemplate = this;

    auto* pFrame = AfxCreateOf<CFrameWnd>(m_pFrameClass);
    if (pFrame == nullptr) {
        return nullptr;
    }
    // A frame that fails deletes itself, unless its window was never tried for want of memory.
    try {
        return pFrame->LoadFrame(m_nIDResource, WS_OVERLAPPEDWINDOW | FWS_ADDTOTITLE, nullptr,
                                 &context)
                   ? pFrame
                   : nullptr;
    } catch (...) {
        delete pFrame;
        throw;
    }
}

CFrameWnd* CDocTemplate::MakeDocument(CDocument*& rpDocument) {
    rpDocument = CreateNewDocument();
    if (rpDocument == nullptr) {
        return nullptr;
    }
    // A frame that fails takes its view along, and must not take the document.
    const BOOL bAutoDelete = rpDocument->m_bAutoDelete;
    const AfxLifeWatch watch(rpDocument->m_life);
    const auto dropDocument = [&] {
        if (watch) {
            delete rpDocument;
        }
        rpDocument = nullptr;
    };
    rpDocument->m_bAutoDelete = FALSE;
    CFrameWnd* pFrame = nullptr;
    try {
        pFrame = CreateNewFrame(rpDocument, nullptr);
    } catch (...) {
        dropDocument();
        throw;
    }
    if (pFrame == nullptr) {
        dropDocument();
    } else if (watch) {
        rpDocument->m_bAutoDelete = bAutoDelete;
    }
    return pFrame;
}

void CDocTemplate::ShowNewFrame(CFrameWnd* pFrame, CDocument* pDocument, BOOL bMakeVisible) {
    CWinThread* pThread = AfxGetThread();
    if (pThread != nullptr && pThread->m_pMainWnd == nullptr) {
        pThread->m_pMainWnd = pFrame;
    }
    InitialUpdateFrame(pFrame, pDocument, bMakeVisible);
}

CString CDocTemplate::DefaultName() const {
    CString strName;
    if (!GetDocString(strName, docName) || strName.IsEmpty()) {
        strName.LoadString(AFX_IDS_UNTITLED);
    }
    return strName;
}

void CDocTemplate::InitialUpdateFrame(CFrameWnd* pFrame, CDocument* pDoc, BOOL bMakeVisible) {
    pFrame->InitialUpdateFrame(pDoc, bMakeVisible);
}

BOOL CDocTemplate::SaveAllModified() {
    for (CDocument* pDoc : DocumentsOf(*this)) {
        if (!pDoc->SaveModified()) {
            return FALSE;
        }
    }
    return TRUE;
}

void CDocTemplate::CloseAllDocuments(BOOL bEndSession) {
    if (bEndSession) {
        return;  // the process ends
    }
    for (CDocument* pDoc : DocumentsOf(*this)) {
        pDoc->OnCloseDocument();
    }
}

void CDocTemplate::OnIdle() {
    for (CDocument* pDoc : DocumentsOf(*this)) {
        pDoc->OnIdle();
    }
}
