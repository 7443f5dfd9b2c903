// CWinAppEx and CFrameWndEx: application and frame with settings of their own.
#pragma once

#include "afx/app/app.h"
#include "afx/app/frame.h"
#include "afx/app/mdi_child.h"
#include "afx/app/mdi_frame.h"

/// An application that keeps its settings under one section of its profile.
class QVAFX_API CWinAppEx : public CWinApp {
    DECLARE_DYNAMIC(CWinAppEx)

public:
    explicit CWinAppEx(BOOL bResourceSmartUpdate = FALSE);

    /// The section's name, "Workspace" at first.
    LPCTSTR SetRegistryBase(LPCTSTR lpszSectionName = nullptr);
    LPCTSTR GetRegistryBase() const { return m_strRegSection; }
    CString GetRegSectionPath(LPCTSTR szSectionAdd = "") const;

    // Settings in that section; with Section, below it.
    int GetInt(LPCTSTR lpszEntry, int nDefault = 0);
    CString GetString(LPCTSTR lpszEntry, LPCTSTR lpszDefault = "");
    BOOL GetBinary(LPCTSTR lpszEntry, LPBYTE* ppData, UINT* pBytes);
    BOOL WriteInt(LPCTSTR lpszEntry, int nValue);
    BOOL WriteString(LPCTSTR lpszEntry, LPCTSTR lpszValue);
    BOOL WriteBinary(LPCTSTR lpszEntry, LPBYTE pData, UINT nBytes);
    int GetSectionInt(LPCTSTR lpszSubSection, LPCTSTR lpszEntry, int nDefault = 0);
    CString GetSectionString(LPCTSTR lpszSubSection, LPCTSTR lpszEntry, LPCTSTR lpszDefault = "");
    BOOL WriteSectionInt(LPCTSTR lpszSubSection, LPCTSTR lpszEntry, int nValue);
    BOOL WriteSectionString(LPCTSTR lpszSubSection, LPCTSTR lpszEntry, LPCTSTR lpszValue);

    /// Calls the steps below in their order.
    virtual BOOL LoadState(CFrameWnd* pFrame = nullptr);
    virtual BOOL SaveState(CFrameWnd* pFrame = nullptr);
    virtual void PreLoadState() {}
    virtual void LoadCustomState() {}
    virtual void PreSaveState() {}
    virtual void SaveCustomState() {}

    BOOL m_bHiColorIcons = TRUE;

protected:
    CString m_strRegSection;
};

/// A frame without anything beyond CFrameWnd: what a program derived from it does by the plain
/// class's members works.
class QVAFX_API CFrameWndEx : public CFrameWnd {
    DECLARE_DYNCREATE(CFrameWndEx)
};

/// The same over the frames of several documents.
class QVAFX_API CMDIFrameWndEx : public CMDIFrameWnd {
    DECLARE_DYNCREATE(CMDIFrameWndEx)
};
class QVAFX_API CMDIChildWndEx : public CMDIChildWnd {
    DECLARE_DYNCREATE(CMDIChildWndEx)
};
