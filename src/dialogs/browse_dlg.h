// QVBrowseDlg: the platform's folder browser. It is no window: DoModal opens one and ends it.
//
//     QVBrowseDlg dlg(this);
//     dlg.SetFolderLocation(CSIDL_DRIVES);
//     dlg.SetItemPath(m_strFolder);
//     if (dlg.DoModal() == IDOK) {
//         m_strFolder = dlg.GetItemPath();
//
// It starts with folders of the file system alone, from the network's neighbourhood down. A path to
// start with is opened and selected if it names a drive; the platform would search the network for
// a UNC path, so that is left. A chosen shortcut gives the path of what it points to. What is no
// file gives an empty path, a computer its name. Paths that the process's code page cannot spell
// come as the platform's short ones.
//
// COM is initialised as long as the browser needs it, in a thread that has not done so.
//
// CSIDL_... and BIF_... are in the platform's <shlobj.h>, which this header does not bring: its
// names (Folder, for one) are such as applications have themselves.

#pragma once

#include "frame/qv_api.h"

#include <afxwin.h>

#include <shtypes.h>

class QV_CONTROLS_API QVBrowseDlg : public CObject {
public:
    /// The parent's window of this moment owns the browser; null: none does.
    explicit QVBrowseDlg(CWnd* pParent = nullptr);

    /// IDOK or IDCANCEL; the latter also if there is no browser to be had.
    virtual int DoModal();

    /// BIF_... of the platform. Exactly BIF_BROWSEFORCOMPUTER gives a computer's name as the path.
    void SetBrowseFlags(UINT nFlags) { m_nBrowseFlags = nFlags; }
    void SetBrowseComputers();
    void SetBrowsePrinters();
    /// The root of what is shown: CSIDL_... of the platform. One that does not exist: the desktop.
    void SetFolderLocation(int nCSIDL) { m_nFolderLocation = nCSIDL; }
    /// Above the folders. An id without string: none.
    void SetPromptString(LPCSTR pszPrompt);
    void SetPromptString(UINT nStringID);
    void SetItemPath(LPCSTR pszPath);
    const CString& GetItemPath() const { return m_strItemPath; }

protected:
    /// What the browser calls; lpData is the text of the path to start with.
    static int CALLBACK BrowseNotify(HWND hWnd, UINT nMsg, LPARAM lParam, LPARAM lpData);
    /// Puts the path of an item of the shell's in m_strItemPath, through a shortcut if it is one.
    void SetPathFromIDList(LPCITEMIDLIST pidl);

    HWND m_hWndParent;
    UINT m_nBrowseFlags;
    CString m_strPrompt;
    CString m_strItemPath;
    int m_nFolderLocation;
};
