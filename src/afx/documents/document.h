// CDocument: what a program works on, apart from the windows that show it.
#pragma once

#include "afx/objects/life.h"
#include "afx/window/cmdtarget.h"

#include <afxcoll.h>

class CDocTemplate;
class CFile;
class CFileException;
class CFrameWnd;
class CView;

/// A document lives as long as its last view, unless m_bAutoDelete is FALSE. A derived class reads
/// and writes in Serialize; or, without an archive, in OnOpenDocument and OnSaveDocument.
class QVAFX_API CDocument : public CCmdTarget {
    DECLARE_DYNAMIC(CDocument)

public:
    CDocument();
    ~CDocument() override;

    BOOL m_bAutoDelete = TRUE;  ///< deleted when there are no more views
    BOOL m_bEmbedded = FALSE;   ///< made without showing its frame

    const CString& GetTitle() const { return m_strTitle; }
    /// Also the titles of the frames that show it.
    virtual void SetTitle(LPCTSTR lpszTitle);
    const CString& GetPathName() const { return m_strPathName; }
    /// The whole path; the title is its file name.
    virtual void SetPathName(LPCTSTR lpszPathName, BOOL bAddToMRU = TRUE);
    CDocTemplate* GetDocTemplate() const { return m_pDocTemplate; }
    virtual BOOL IsModified() { return m_bModified; }
    virtual void SetModifiedFlag(BOOL bModified = TRUE) { m_bModified = bModified; }

    // Views
    void AddView(CView* pView);
    void RemoveView(CView* pView);
    virtual POSITION GetFirstViewPosition() const;
    virtual CView* GetNextView(POSITION& rPosition) const;
    /// OnUpdate of all views but pSender, the one that changed the document. A view that goes away
    /// meanwhile is left out.
    void UpdateAllViews(CView* pSender, LPARAM lHint = 0, CObject* pHint = nullptr);
    void DisconnectViews();
    void SendInitialUpdate();
    /// Numbers the frames that show the document, where there are several.
    virtual void UpdateFrameCounts();

    // Overridables
    /// After a view came or went. Closes the document when there is none left.
    virtual void OnChangedViewList();
    virtual void DeleteContents();
    virtual BOOL OnNewDocument();
    /// Empties the document and reads it by Serialize, unless the file is empty. FALSE if that
    /// fails, of which the user is told; the document is empty then. A file that cannot be opened
    /// leaves it as it is.
    virtual BOOL OnOpenDocument(LPCTSTR lpszPathName);
    /// Writes by Serialize. FALSE if that fails, of which the user is told; the file is then what
    /// it was before.
    virtual BOOL OnSaveDocument(LPCTSTR lpszPathName);
    /// Destroys all frames that show the document, and then, with m_bAutoDelete, the document.
    virtual void OnCloseDocument();
    virtual void ReportSaveLoadException(LPCTSTR lpszPathName, CException* e, BOOL bSaving,
                                         UINT nIDPDefault);
    /// Null if it cannot be opened; the cause is in pError then. A file to write comes into place
    /// when it is released.
    virtual CFile* GetFile(LPCTSTR lpszFileName, UINT nOpenFlags, CFileException* pError);
    /// Closes and deletes what GetFile gave.
    virtual void ReleaseFile(CFile* pFile, BOOL bAbort);
    /// Asks for changes to be saved if pFrame is the last one.
    virtual BOOL CanCloseFrame(CFrameWnd* pFrame);
    /// FALSE if the user wants to go on working: what the document is asked before it closes.
    virtual BOOL SaveModified();
    virtual void PreCloseFrame(CFrameWnd* pFrame);
    virtual HMENU GetDefaultMenu() { return nullptr; }
    virtual HACCEL GetDefaultAccelerator() { return nullptr; }
    virtual void OnIdle() {}

    /// Saves under lpszPathName, or under a name that the user is asked for. With bReplace the
    /// document has that name from then on.
    virtual BOOL DoSave(LPCTSTR lpszPathName, BOOL bReplace = TRUE);
    /// Under its own name; a file that is read-only or missing is asked for.
    virtual BOOL DoFileSave();

    /// Commands that the document has no handler for go to its template.
    BOOL OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo) override;
    void OnFinalRelease() override;

protected:
    afx_msg void OnFileClose();
    afx_msg void OnFileSave();
    afx_msg void OnFileSaveAs();
    DECLARE_MESSAGE_MAP()

    CString m_strTitle;
    CString m_strPathName;
    CDocTemplate* m_pDocTemplate = nullptr;
    CPtrList m_viewList;
    BOOL m_bModified = FALSE;

private:
    friend class CDocTemplate;
    friend class CFrameWnd;
    friend class CMultiDocTemplate;
    friend class CSingleDocTemplate;

    template <class Action>
    void ForEachFrame(Action action);
    bool IsOnlyFrame(const CFrameWnd* pFrame);
    BOOL SerializeFile(LPCTSTR lpszPathName, BOOL bSaving);
    BOOL AskForPath(CString& strPath, BOOL bReplace);

    AfxLife m_life;
    bool m_bClosing = false;
    bool m_bEmptied = false;  ///< by OnOpenDocument
};
