#include "afx/documents/doc_manager.h"

#include "afx/documents/new_type_dialog.h"

#include <afxdlgs.h>
#include <afxwin.h>

IMPLEMENT_DYNAMIC(CDocManager, CObject)

CDocManager::CDocManager() = default;

CDocManager::~CDocManager() {
    while (!m_templateList.IsEmpty()) {
        auto* pTemplate = static_cast<CDocTemplate*>(m_templateList.RemoveHead());
        if (pTemplate->m_bAutoDelete) {
            delete pTemplate;
        }
    }
}

void CDocManager::AddDocTemplate(CDocTemplate* pTemplate) {
    pTemplate->LoadTemplate();
    if (m_templateList.Find(pTemplate) == nullptr) {
        m_templateList.AddTail(pTemplate);
    }
}

POSITION CDocManager::GetFirstDocTemplatePosition() const {
    return m_templateList.GetHeadPosition();
}

CDocTemplate* CDocManager::GetNextDocTemplate(POSITION& pos) const {
    return pos != nullptr ? static_cast<CDocTemplate*>(m_templateList.GetNext(pos)) : nullptr;
}

BOOL CDocManager::SaveAllModified() {
    for (POSITION pos = GetFirstDocTemplatePosition(); pos != nullptr;) {
        if (!GetNextDocTemplate(pos)->SaveAllModified()) {
            return FALSE;
        }
    }
    return TRUE;
}

void CDocManager::CloseAllDocuments(BOOL bEndSession) {
    for (POSITION pos = GetFirstDocTemplatePosition(); pos != nullptr;) {
        GetNextDocTemplate(pos)->CloseAllDocuments(bEndSession);
    }
}

int CDocManager::GetOpenDocumentCount() {
    int nCount = 0;
    for (POSITION pos = GetFirstDocTemplatePosition(); pos != nullptr;) {
        const CDocTemplate* pTemplate = GetNextDocTemplate(pos);
        for (POSITION posDoc = pTemplate->GetFirstDocPosition(); posDoc != nullptr; ++nCount) {
            pTemplate->GetNextDoc(posDoc);
        }
    }
    return nCount;
}

void CDocManager::OnIdle() {
    for (POSITION pos = GetFirstDocTemplatePosition(); pos != nullptr;) {
        GetNextDocTemplate(pos)->OnIdle();
    }
}

/// The document that is open already comes to the front.
static void BringToFront(CDocument* pDoc) {
    POSITION pos = pDoc->GetFirstViewPosition();
    CView* pView = pDoc->GetNextView(pos);
    CFrameWnd* pFrame = pView != nullptr ? pView->GetParentFrame() : nullptr;
    if (pFrame == nullptr) {
        return;
    }
    const HWND hFrame = pFrame->m_hWnd;
    const HWND hView = pView->m_hWnd;
    // A frame in the main window brings that to the front as well.
    CFrameWnd* pTop = pFrame->GetTopLevelFrame();
    if (pTop != pFrame) {
        pTop->ActivateFrame();
    }
    if (CWnd::FromHandlePermanent(hFrame) == pFrame) {
        pFrame->ActivateFrame();
    }
    if (CWnd::FromHandlePermanent(hFrame) == pFrame && CWnd::FromHandlePermanent(hView) == pView) {
        pFrame->SetActiveView(pView);
    }
}

CDocument* CDocManager::OpenDocumentFile(LPCTSTR lpszFileName) {
    return OpenDocumentFile(lpszFileName, TRUE);
}

CDocument* CDocManager::OpenDocumentFile(LPCTSTR lpszFileName, BOOL bAddToMRU) {
    CDocTemplate* pBest = nullptr;
    CDocTemplate::Confidence best = CDocTemplate::noAttempt;
    for (POSITION pos = GetFirstDocTemplatePosition(); pos != nullptr;) {
        CDocTemplate* pTemplate = GetNextDocTemplate(pos);
        CDocument* pOpen = nullptr;
        const CDocTemplate::Confidence match = pTemplate->MatchDocType(lpszFileName, pOpen);
        if (pOpen != nullptr) {
            BringToFront(pOpen);
            return pOpen;
        }
        if (match > best) {
            best = match;
            pBest = pTemplate;
        }
    }
    if (pBest == nullptr) {
        AfxMessageBox(AFX_IDP_FAILED_TO_OPEN_DOC);
        return nullptr;
    }
    return pBest->OpenDocumentFile(lpszFileName, bAddToMRU, TRUE);
}

namespace {

/// One line of the dialog's list of file types.
void AppendFilter(CString& strFilter, CString& strDefaultExt, const CDocTemplate& docTemplate) {
    CString strExt;
    CString strName;
    if (!docTemplate.GetDocString(strExt, CDocTemplate::filterExt) || strExt.IsEmpty() ||
        !docTemplate.GetDocString(strName, CDocTemplate::filterName) || strName.IsEmpty()) {
        return;
    }
    if (strDefaultExt.IsEmpty()) {
        strDefaultExt = strExt.Mid(1);  // behind the dot
    }
    strFilter += strName + "|*" + strExt + "|";
}

}  // namespace

BOOL CDocManager::DoPromptFileName(CString& fileName, UINT nIDSTitle, DWORD lFlags,
                                   BOOL bOpenFileDialog, CDocTemplate* pTemplate) {
    CString strFilter;
    CString strDefaultExt;
    if (pTemplate != nullptr) {
        AppendFilter(strFilter, strDefaultExt, *pTemplate);
    } else {
        CString strFirstExt;
        for (POSITION pos = GetFirstDocTemplatePosition(); pos != nullptr;) {
            AppendFilter(strFilter, strFirstExt, *GetNextDocTemplate(pos));
        }
    }
    CString strAll;
    strAll.LoadString(AFX_IDS_ALLFILTER);
    strFilter += strAll + "|*.*||";

    CFileDialog dlg(bOpenFileDialog, strDefaultExt, fileName, lFlags | OFN_OVERWRITEPROMPT,
                    strFilter);
    CString strTitle;
    if (strTitle.LoadString(nIDSTitle)) {
        dlg.m_ofn.lpstrTitle = strTitle;
    }
    if (dlg.DoModal() != IDOK) {
        return FALSE;
    }
    fileName = dlg.GetPathName();
    return TRUE;
}

void CDocManager::OnFileNew() {
    // Kinds without a name for this are not offered.
    CPtrList offered;
    for (POSITION pos = GetFirstDocTemplatePosition(); pos != nullptr;) {
        CDocTemplate* pTemplate = GetNextDocTemplate(pos);
        CString strName;
        if (pTemplate->GetDocString(strName, CDocTemplate::fileNewName) && !strName.IsEmpty()) {
            offered.AddTail(pTemplate);
        }
    }
    POSITION posFirst = GetFirstDocTemplatePosition();
    CDocTemplate* pTemplate = !offered.IsEmpty() ? static_cast<CDocTemplate*>(offered.GetHead())
                                                 : GetNextDocTemplate(posFirst);
    if (offered.GetCount() > 1) {
        AfxNewTypeDialog dlg(offered);
        if (dlg.DoModal() != IDOK) {
            return;
        }
        pTemplate = dlg.GetTemplate();
    }
    if (pTemplate != nullptr) {
        pTemplate->OpenDocumentFile(nullptr);
    } else {
        AfxMessageBox(AFX_IDP_FAILED_TO_CREATE_DOC);
    }
}

void CDocManager::OnFileOpen() {
    CString strName;
    if (DoPromptFileName(strName, AFX_IDS_OPENFILE, OFN_HIDEREADONLY | OFN_FILEMUSTEXIST, TRUE,
                         nullptr)) {
        AfxGetApp()->OpenDocumentFile(strName);
    }
}
