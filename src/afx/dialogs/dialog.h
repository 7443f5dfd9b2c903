// CDialog and what carries its values to and from its controls.
#pragma once

#include "afx/window/wnd.h"

/// One pass of data exchange over a window.
class QVAFX_API CDataExchange {
public:
    CDataExchange(CWnd* pDlgWnd, BOOL bSaveAndValidate);

    BOOL m_bSaveAndValidate;  ///< TRUE: from the controls to the object
    CWnd* m_pDlgWnd;
    HWND m_hWndLastControl = nullptr;  ///< where the focus goes when a value is rejected
    BOOL m_bEditLastControl = FALSE;
    UINT m_idLastControl = 0;

    /// Names the control that the next value belongs to. Throws CNotSupportedException if the
    /// window has no such control.
    HWND PrepareCtrl(int nIDC);
    HWND PrepareEditCtrl(int nIDC);
    /// The same for an ActiveX control.
    COleControlSite* PrepareOleCtrl(int nIDC);
    /// Ends the pass by an exception, after putting the focus where the bad value stands.
    void Fail();
};

/// A dialog, modal (DoModal) or not (Create). Templates are looked up along the resource chain.
///
/// Items of class "{class id}" are ActiveX controls, once AfxEnableControlContainer was called.
/// They are there when OnInitDialog is called, with the state that DLGINIT data has for them. A
/// dialog of which one cannot be made is not made: DoModal gives -1, Create FALSE, and what was
/// made of it is gone; OnInitDialog is not called. A page of a property sheet comes up without its
/// controls.
class QVAFX_API CDialog : public CWnd {
    DECLARE_DYNAMIC(CDialog)

public:
    CDialog();
    explicit CDialog(LPCTSTR lpszTemplateName, CWnd* pParentWnd = nullptr);
    explicit CDialog(UINT nIDTemplate, CWnd* pParentWnd = nullptr);
    ~CDialog() override;

    using CWnd::Create;
    virtual BOOL Create(LPCTSTR lpszTemplateName, CWnd* pParentWnd = nullptr);
    virtual BOOL Create(UINT nIDTemplate, CWnd* pParentWnd = nullptr);
    virtual BOOL CreateIndirect(LPCDLGTEMPLATE lpDialogTemplate, CWnd* pParentWnd = nullptr,
                                void* lpDialogInit = nullptr);
    virtual BOOL CreateIndirect(HGLOBAL hDialogTemplate, CWnd* pParentWnd = nullptr);
    /// For an object made by the constructor without arguments, before DoModal.
    BOOL InitModalIndirect(LPCDLGTEMPLATE lpDialogTemplate, CWnd* pParentWnd = nullptr,
                           void* lpDialogInit = nullptr);
    BOOL InitModalIndirect(HGLOBAL hDialogTemplate, CWnd* pParentWnd = nullptr);

    /// Gives what EndDialog was told, or -1 if the dialog could not be made.
    virtual INT_PTR DoModal();
    void EndDialog(int nResult);

    void NextDlgCtrl() const;
    void PrevDlgCtrl() const;
    void GotoDlgCtrl(CWnd* pWndCtrl);
    void MapDialogRect(LPRECT lpRect) const;
    void SetDefID(UINT nID);
    DWORD GetDefID() const;
    void SetHelpID(UINT nIDR) { m_nIDHelp = nIDR; }

    /// TRUE lets the system put the focus on the first item.
    virtual BOOL OnInitDialog();
    virtual void OnSetFont(CFont* pFont);
    BOOL PreTranslateMessage(MSG* pMsg) override;
    BOOL OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo) override;
    BOOL SetOccDialogInfo(_AFX_OCC_DIALOG_INFO* pOccDialogInfo) override;

protected:
    virtual void OnOK();
    virtual void OnCancel();
    virtual void PreInitDialog();

    HWND PreModal();
    void PostModal();
    BOOL CreateDlgIndirect(LPCDLGTEMPLATE lpDialogTemplate, CWnd* pParentWnd, HINSTANCE hInst);

    UINT m_nIDHelp = 0;
    LPCTSTR m_lpszTemplateName = nullptr;
    HGLOBAL m_hDialogTemplate = nullptr;
    LPCDLGTEMPLATE m_lpDialogTemplate = nullptr;
    void* m_lpDialogInit = nullptr;
    _AFX_OCC_DIALOG_INFO* m_pOccDialogInfo = nullptr;  ///< owned; null without ActiveX controls
    CWnd* m_pParentWnd = nullptr;
    bool m_bDisabledOwner = false;  ///< for as long as it is modal
    HWND m_hWndTop = nullptr;  ///< top-level window disabled meanwhile, if it is not the parent

    afx_msg LRESULT HandleInitDialog(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT HandleSetFont(WPARAM wParam, LPARAM lParam);
    afx_msg HBRUSH OnCtlColor(CDC* pDC, CWnd* pWnd, UINT nCtlColor);

    DECLARE_MESSAGE_MAP()

private:
    friend class CPropertyPage;
    /// The template without its ActiveX controls, which are this dialog's from then on.
    LPCDLGTEMPLATE TakeControlsOut(LPCDLGTEMPLATE pTemplate);
    bool MakeControls();

    CString m_strTemplateName;  ///< owns a name given as text
    bool m_bControlsFailed = false;
    INT_PTR RunModal(LPCDLGTEMPLATE lpDialogTemplate, HINSTANCE hInst);
    void RunModalFor(HWND hWndOwner, LPCDLGTEMPLATE lpDialogTemplate, HINSTANCE hInst);
};

#include <afxdd_.h>
