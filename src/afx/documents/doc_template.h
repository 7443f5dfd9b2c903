// Document templates: which classes of document, frame and view belong together, and the texts of
// that kind of document.
#pragma once

#include "afx/documents/document.h"

/// A template belongs to the application that it is added to.
class QVAFX_API CDocTemplate : public CCmdTarget {
    DECLARE_DYNAMIC(CDocTemplate)

public:
    /// The parts of the template's string, which stand one behind the other, divided by '\n'.
    enum DocStringIndex {
        windowTitle,
        docName,
        fileNewName,
        filterName,
        filterExt,
        regFileTypeId,
        regFileTypeName
    };
    enum Confidence {
        noAttempt,
        maybeAttemptForeign,
        maybeAttemptNative,
        yesAttemptForeign,
        yesAttemptNative,
        yesAlreadyOpen
    };

    ~CDocTemplate() override;

    BOOL m_bAutoDelete = TRUE;  ///< deleted with the application

    virtual void LoadTemplate();
    virtual POSITION GetFirstDocPosition() const = 0;
    virtual CDocument* GetNextDoc(POSITION& rPos) const = 0;
    virtual void AddDocument(CDocument* pDoc);
    virtual void RemoveDocument(CDocument* pDoc);

    UINT GetResourceID() const { return m_nIDResource; }
    /// FALSE if the string has no such part.
    virtual BOOL GetDocString(CString& rString, DocStringIndex index) const;
    /// How well the template suits a file; by the open documents and the extension.
    virtual Confidence MatchDocType(LPCTSTR lpszPathName, CDocument*& rpDocMatch);
    /// Null if the class makes none.
    virtual CDocument* CreateNewDocument();
    /// The frame with its view, hidden. Null on failure; nothing is left behind then.
    virtual CFrameWnd* CreateNewFrame(CDocument* pDoc, CFrameWnd* pOther);
    virtual void InitialUpdateFrame(CFrameWnd* pFrame, CDocument* pDoc, BOOL bMakeVisible = TRUE);
    /// FALSE as soon as one of the documents wants to stay.
    virtual BOOL SaveAllModified();
    virtual void CloseAllDocuments(BOOL bEndSession);
    /// Opens the file, or with a null name makes a new document. Null on failure, of which the user
    /// has been told.
    virtual CDocument* OpenDocumentFile(LPCTSTR lpszPathName, BOOL bMakeVisible = TRUE) = 0;
    /// bAddToMRU: whether the file comes into the list of recent ones.
    virtual CDocument* OpenDocumentFile(LPCTSTR lpszPathName, BOOL bAddToMRU,
                                        BOOL bMakeVisible) = 0;
    virtual void SetDefaultTitle(CDocument* pDocument) = 0;
    virtual void OnIdle();

protected:
    CDocTemplate(UINT nIDResource, CRuntimeClass* pDocClass, CRuntimeClass* pFrameClass,
                 CRuntimeClass* pViewClass);

    /// A new document with its frame, both null if they cannot be made. Nothing is left behind by
    /// what fails or throws.
    CFrameWnd* MakeDocument(CDocument*& rpDocument);
    /// Makes the frame the main window if there is none, and shows it.
    void ShowNewFrame(CFrameWnd* pFrame, CDocument* pDocument, BOOL bMakeVisible);
    /// The document's name of this kind, "Untitled" where the texts have none.
    CString DefaultName() const;

    UINT m_nIDResource;  ///< of menu, accelerators, icon and string of the frame
    CRuntimeClass* m_pDocClass;
    CRuntimeClass* m_pFrameClass;
    CRuntimeClass* m_pViewClass;
    CString m_strDocStrings;
};

/// A template that has one document open at a time. Opening another one asks for changes to be
/// saved, and shows it in the frame that is there.
class QVAFX_API CSingleDocTemplate : public CDocTemplate {
    DECLARE_DYNAMIC(CSingleDocTemplate)

public:
    CSingleDocTemplate(UINT nIDResource, CRuntimeClass* pDocClass, CRuntimeClass* pFrameClass,
                       CRuntimeClass* pViewClass);
    ~CSingleDocTemplate() override;

    void AddDocument(CDocument* pDoc) override;
    void RemoveDocument(CDocument* pDoc) override;
    POSITION GetFirstDocPosition() const override;
    CDocument* GetNextDoc(POSITION& rPos) const override;
    CDocument* OpenDocumentFile(LPCTSTR lpszPathName, BOOL bMakeVisible = TRUE) override;
    CDocument* OpenDocumentFile(LPCTSTR lpszPathName, BOOL bAddToMRU, BOOL bMakeVisible) override;
    void SetDefaultTitle(CDocument* pDocument) override;

protected:
    CDocument* m_pOnlyDoc = nullptr;

private:
    BOOL Fill(LPCTSTR lpszPathName, BOOL bAddToMRU, BOOL bMakeVisible, bool bCreated);
    void GiveBack(BOOL bWasModified);
};
