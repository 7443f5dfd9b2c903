// The application's document templates, and what it does with all of them.
#pragma once

#include "afx/documents/doc_template.h"

class QVAFX_API CDocManager : public CObject {
    DECLARE_DYNAMIC(CDocManager)

public:
    CDocManager();
    ~CDocManager() override;

    virtual void AddDocTemplate(CDocTemplate* pTemplate);
    virtual POSITION GetFirstDocTemplatePosition() const;
    virtual CDocTemplate* GetNextDocTemplate(POSITION& pos) const;

    virtual BOOL SaveAllModified();
    virtual void CloseAllDocuments(BOOL bEndSession);
    virtual int GetOpenDocumentCount();
    /// The template that suits the file best opens it; a document that is open already comes to the
    /// front. Null on failure, of which the user has been told.
    virtual CDocument* OpenDocumentFile(LPCTSTR lpszFileName);
    virtual CDocument* OpenDocumentFile(LPCTSTR lpszFileName, BOOL bAddToMRU);
    /// Asks for a file. pTemplate: whose kind of files to list, null for all. FALSE if the user
    /// gave it up.
    virtual BOOL DoPromptFileName(CString& fileName, UINT nIDSTitle, DWORD lFlags,
                                  BOOL bOpenFileDialog, CDocTemplate* pTemplate);
    /// What opens, and with bCompat prints, files of the templates' extensions, in the current
    /// user's classes. What another program has registered stays.
    virtual void RegisterShellFileTypes(BOOL bCompat);
    virtual void UnregisterShellFileTypes();
    /// A new document. Where there are several templates, the user is asked for the kind.
    virtual void OnFileNew();
    virtual void OnFileOpen();
    virtual void OnIdle();

protected:
    CPtrList m_templateList;
};
