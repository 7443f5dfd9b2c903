// The application's documents: what it hands on to its templates.
#include "afx/app/app.h"

#include <afxwin.h>

void CWinApp::AddDocTemplate(CDocTemplate* pTemplate) {
    if (m_pDocManager == nullptr) {
        m_pDocManager = AfxNeedMemory([] { return new CDocManager; });
    }
    m_pDocManager->AddDocTemplate(pTemplate);
}

POSITION CWinApp::GetFirstDocTemplatePosition() const {
    return m_pDocManager != nullptr ? m_pDocManager->GetFirstDocTemplatePosition() : nullptr;
}

CDocTemplate* CWinApp::GetNextDocTemplate(POSITION& pos) const {
    return m_pDocManager != nullptr ? m_pDocManager->GetNextDocTemplate(pos) : nullptr;
}

CDocument* CWinApp::OpenDocumentFile(LPCTSTR lpszFileName) {
    return m_pDocManager != nullptr ? m_pDocManager->OpenDocumentFile(lpszFileName) : nullptr;
}

CDocument* CWinApp::OpenDocumentFile(LPCTSTR lpszFileName, BOOL bAddToMRU) {
    return m_pDocManager != nullptr ? m_pDocManager->OpenDocumentFile(lpszFileName, bAddToMRU)
                                    : nullptr;
}

void CWinApp::RegisterShellFileTypes(BOOL bCompat) {
    if (m_pDocManager != nullptr) {
        m_pDocManager->RegisterShellFileTypes(bCompat);
    }
}

void CWinApp::UnregisterShellFileTypes() {
    if (m_pDocManager != nullptr) {
        m_pDocManager->UnregisterShellFileTypes();
    }
}

BOOL CWinApp::SaveAllModified() {
    return m_pDocManager == nullptr || m_pDocManager->SaveAllModified();
}

void CWinApp::CloseAllDocuments(BOOL bEndSession) {
    if (m_pDocManager != nullptr) {
        m_pDocManager->CloseAllDocuments(bEndSession);
    }
}

int CWinApp::GetOpenDocumentCount() {
    return m_pDocManager != nullptr ? m_pDocManager->GetOpenDocumentCount() : 0;
}

BOOL CWinApp::DoPromptFileName(CString& fileName, UINT nIDSTitle, DWORD lFlags,
                               BOOL bOpenFileDialog, CDocTemplate* pTemplate) {
    return m_pDocManager != nullptr &&
           m_pDocManager->DoPromptFileName(fileName, nIDSTitle, lFlags, bOpenFileDialog, pTemplate);
}

void CWinApp::OnFileNew() {
    if (m_pDocManager != nullptr) {
        m_pDocManager->OnFileNew();
    }
}

void CWinApp::OnFileOpen() {
    if (m_pDocManager != nullptr) {
        m_pDocManager->OnFileOpen();
    }
}
