// How a document is read from a file, and written to one.
#include "afx/documents/document.h"

#include <afxpriv.h>
#include <afxwin.h>

CFile* CDocument::GetFile(LPCTSTR lpszFileName, UINT nOpenFlags, CFileException* pError) {
    auto* pFile = AfxNeedMemory([] { return new CMirrorFile; });
    if (!pFile->Open(lpszFileName, nOpenFlags, pError)) {
        delete pFile;
        return nullptr;
    }
    return pFile;
}

void CDocument::ReleaseFile(CFile* pFile, BOOL bAbort) {
    if (bAbort) {
        pFile->Abort();
    } else {
        pFile->Close();
    }
    delete pFile;
}

/// Through the archive. A file that was not released by then goes back unused.
BOOL CDocument::SerializeFile(LPCTSTR lpszPathName, BOOL bSaving) {
    const UINT nIDFailure = bSaving ? AFX_IDP_FAILED_TO_SAVE_DOC : AFX_IDP_FAILED_TO_OPEN_DOC;
    const AfxLifeWatch watch(m_life);
    CFileException error;
    struct OpenFile {
        CDocument& document;
        const AfxLifeWatch& watch;
        CFile* p;
        void Release(BOOL bAbort) {
            if (p != nullptr && watch) {
                document.ReleaseFile(p, bAbort);
                p = nullptr;
            }
        }
        ~OpenFile() {
            Release(TRUE);
            delete p;  // of a document that went meanwhile
        }
    } file{*this, watch,
           GetFile(lpszPathName,
                   bSaving ? CFile::modeCreate | CFile::modeReadWrite | CFile::shareExclusive
                           : CFile::modeRead | CFile::shareDenyWrite,
                   &error)};
    if (file.p == nullptr) {
        ReportSaveLoadException(lpszPathName, &error, bSaving, nIDFailure);
        return FALSE;
    }
    if (!bSaving) {
        m_bEmptied = true;
        DeleteContents();
        SetModifiedFlag();  // until it is whole
    }
    try {
        const CWaitCursor wait;
        {
            CArchive archive(file.p, static_cast<UINT>(bSaving ? CArchive::store : CArchive::load) |
                                         CArchive::bNoFlushOnDelete);
            archive.m_pDocument = this;
            archive.m_bForceFlat = FALSE;
            if (bSaving || file.p->GetLength() > 0) {
                Serialize(archive);
            }
            archive.Close();
        }
        file.Release(FALSE);
    } catch (CException* e) {
        file.Release(TRUE);
        if (watch && !bSaving) {
            DeleteContents();
        }
        if (watch) {
            ReportSaveLoadException(lpszPathName, e, bSaving, nIDFailure);
        }
        e->Delete();
        return FALSE;
    }
    if (!watch) {
        return FALSE;
    }
    SetModifiedFlag(FALSE);
    return TRUE;
}

BOOL CDocument::OnOpenDocument(LPCTSTR lpszPathName) {
    return SerializeFile(lpszPathName, FALSE);
}

BOOL CDocument::OnSaveDocument(LPCTSTR lpszPathName) {
    return SerializeFile(lpszPathName, TRUE);
}

void CDocument::ReportSaveLoadException(LPCTSTR, CException* e, BOOL, UINT nIDPDefault) {
    // A user exception means that the user was told already.
    if (e != nullptr && e->IsKindOf(RUNTIME_CLASS(CUserException))) {
        return;
    }
    CString strPrompt;
    strPrompt.LoadString(nIDPDefault);
    char szCause[3 * MAX_PATH + 100] = "";  // with a path in UTF-8
    if (e != nullptr && e->GetErrorMessage(szCause, _countof(szCause)) && szCause[0] != '\0') {
        strPrompt += strPrompt.IsEmpty() ? "" : "\n\n";
        strPrompt += szCause;
    }
    AfxMessageBox(strPrompt, MB_ICONEXCLAMATION, nIDPDefault);
}
