#include "afx/documents/doc_template.h"

#include "afx/values/wide_text.h"

#include <afxpriv.h>
#include <afxwin.h>

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
    rString.Empty();
    int nStart = 0;
    for (int nPart = 0; nPart < index; ++nPart) {
        nStart = m_strDocStrings.Find('\n', nStart) + 1;
        if (nStart == 0) {
            return FALSE;
        }
    }
    const int nEnd = m_strDocStrings.Find('\n', nStart);
    rString = nEnd < 0 ? m_strDocStrings.Mid(nStart) : m_strDocStrings.Mid(nStart, nEnd - nStart);
    return !m_strDocStrings.IsEmpty();
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

static CString WholePath(LPCTSTR lpszPath) {
    char szPath[MAX_PATH] = "";
    const DWORD nLength = ::GetFullPathName(lpszPath, _countof(szPath), szPath, nullptr);
    return nLength > 0 && nLength < _countof(szPath) ? szPath : lpszPath;
}

CDocTemplate::Confidence CDocTemplate::MatchDocType(LPCTSTR lpszPathName, CDocument*& rpDocMatch) {
    rpDocMatch = nullptr;
    const CString strPath(WholePath(lpszPathName));
    for (CDocument* pDoc : DocumentsOf(*this)) {
        if (::lstrcmpi(pDoc->GetPathName(), strPath) == 0) {
            rpDocMatch = pDoc;
            return yesAlreadyOpen;
        }
    }
    CString strExt;
    const int nDot = strPath.ReverseFind('.');
    if (GetDocString(strExt, filterExt) && !strExt.IsEmpty() && nDot >= 0 &&
        ::lstrcmpi(strPath.Mid(nDot), strExt) == 0) {
        return yesAttemptNative;
    }
    return yesAttemptForeign;
}

CDocument* CDocTemplate::CreateNewDocument() {
    CObject* pObject = m_pDocClass != nullptr ? m_pDocClass->CreateObject() : nullptr;
    auto* pDocument = DYNAMIC_DOWNCAST(CDocument, pObject);
    if (pDocument == nullptr) {
        delete pObject;
        return nullptr;
    }
    AddDocument(pDocument);
    return pDocument;
}

CFrameWnd* CDocTemplate::CreateNewFrame(CDocument* pDoc, CFrameWnd* pOther) {
    CCreateContext context;
    context.m_pCurrentFrame = pOther;
    context.m_pCurrentDoc = pDoc;
    context.m_pNewViewClass = m_pViewClass;
    context.m_pNewDocTemplate = this;

    CObject* pObject = m_pFrameClass != nullptr ? m_pFrameClass->CreateObject() : nullptr;
    auto* pFrame = DYNAMIC_DOWNCAST(CFrameWnd, pObject);
    if (pFrame == nullptr) {
        delete pObject;
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
