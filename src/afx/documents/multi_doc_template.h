// CMultiDocTemplate: a kind of document of which several are open at a time.
#pragma once

#include "afx/documents/doc_template.h"

/// Each document opens in a frame of its own, as a rule a CMDIChildWnd in the main window. Menu and
/// accelerators are loaded once, and shared by the frames.
class QVAFX_API CMultiDocTemplate : public CDocTemplate {
    DECLARE_DYNAMIC(CMultiDocTemplate)

public:
    CMultiDocTemplate(UINT nIDResource, CRuntimeClass* pDocClass, CRuntimeClass* pFrameClass,
                      CRuntimeClass* pViewClass);
    ~CMultiDocTemplate() override;

    HMENU m_hMenuShared = nullptr;  ///< owned
    HACCEL m_hAccelTable = nullptr;

    void LoadTemplate() override;
    void AddDocument(CDocument* pDoc) override;
    void RemoveDocument(CDocument* pDoc) override;
    POSITION GetFirstDocPosition() const override;
    CDocument* GetNextDoc(POSITION& rPos) const override;
    CDocument* OpenDocumentFile(LPCTSTR lpszPathName, BOOL bMakeVisible = TRUE) override;
    CDocument* OpenDocumentFile(LPCTSTR lpszPathName, BOOL bAddToMRU, BOOL bMakeVisible) override;
    /// The name with the number of the new documents so far.
    void SetDefaultTitle(CDocument* pDocument) override;

protected:
    CPtrList m_docList;
    UINT m_nUntitledCount = 0;

private:
    BOOL Fill(CDocument* pDocument, LPCTSTR lpszPathName, BOOL bAddToMRU, BOOL bMakeVisible);
};
