// Property sheets: dialogs of several pages, as tabs or as a wizard, over the platform's own sheet.
// Pages are added first, then comes DoModal or Create. Sheet and pages are the program's; a page is
// there as long as its sheet shows, or takes itself out of it when it goes.
//
// A page that is asked something may end or destroy its sheet and take pages out of it. Deleting
// the sheet, or destroying its owner, has to wait for the answer: the platform's sheet does not
// live through it.
//
// The platform gets a record of each page (m_psp, copied by BuildPropPageArray) that points at the
// page's template in memory. Page ids that a wizard page returns are looked up among the pages.
#pragma once

#include <afxcoll.h>
#include <afxwin.h>

class CPropertySheet;
class CPropertySheetEx;
class CTabCtrl;

class QVAFX_API CPropertyPage : public CDialog {
    DECLARE_DYNAMIC(CPropertyPage)

public:
    /// Construct has to follow.
    CPropertyPage();
    /// nIDCaption: a string for the tab, 0 for the template's caption.
    explicit CPropertyPage(UINT nIDTemplate, UINT nIDCaption = 0);
    explicit CPropertyPage(LPCTSTR lpszTemplateName, UINT nIDCaption = 0);
    ~CPropertyPage() override;
    void Construct(UINT nIDTemplate, UINT nIDCaption = 0);
    void Construct(LPCTSTR lpszTemplateName, UINT nIDCaption = 0);

    PROPSHEETPAGE m_psp;  ///< may be changed until the sheet comes up; dwSize is the older record's

    /// After a change that cannot be taken back: OK becomes Close, Cancel is disabled.
    void CancelToClose();
    /// Enables Apply, or leaves it to the other pages.
    void SetModified(BOOL bChanged = TRUE);
    /// Asks the pages that have windows, until one answers something else than 0.
    LRESULT QuerySiblings(WPARAM wParam, LPARAM lParam);
    /// Ends the sheet.
    void EndDialog(int nEndID);

    /// OK or Apply, after OnKillActive of the page that shows: FALSE keeps the sheet open. Calls
    /// OnOK.
    virtual BOOL OnApply();
    /// The sheet was cancelled. Calls OnCancel.
    virtual void OnReset();
    void OnOK() override;
    void OnCancel() override;
    /// The page comes to the front. FALSE: another one is taken. Fills the controls, but for the
    /// first time, when OnInitDialog has done so.
    virtual BOOL OnSetActive();
    /// Another page is chosen, or the values are to be taken. FALSE stays. Calls UpdateData.
    virtual BOOL OnKillActive();
    virtual BOOL OnQueryCancel();    ///< FALSE: the sheet stays
    virtual LRESULT OnWizardBack();  ///< 0: the page before; -1: stay; else the id of a page
    virtual LRESULT OnWizardNext();  ///< 0: the page behind; -1: stay; else the id of a page
    virtual BOOL OnWizardFinish();   ///< FALSE: the wizard stays
    virtual LRESULT OnQuerySiblings(WPARAM wParam, LPARAM lParam);

    BOOL PreTranslateMessage(MSG* pMsg) override;

    /// Makes psp, a copy of m_psp, point at a template in memory. Here with the font of the
    /// platform's sheet; the copy is m_hDialogTemplate.
    virtual void PreProcessPageTemplate(PROPSHEETPAGE& psp, BOOL bWizard);

protected:
    /// What a template's controls from outside need before it is used; gives the template to use.
    LPCDLGTEMPLATE InitDialogInfo(LPCDLGTEMPLATE pTemplate);
    /// For the platform: what OnWizardBack or OnWizardNext gave.
    LRESULT MapWizardResult(LRESULT lToMap);

    BOOL OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* pResult) override;
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;

    /// Copies m_psp to a record of nBytes bytes.
    virtual void FillRecord(PROPSHEETPAGE& psp, DWORD nBytes);

    CString m_strCaption;  ///< the tab's text, if m_psp names it
    BOOL m_bFirstSetActive = TRUE;

    DECLARE_MESSAGE_MAP()

private:
    friend class CPropertySheet;

    static UINT CALLBACK PageCallback(HWND hWnd, UINT message, PROPSHEETPAGE* pPage);
    BOOL AwaitWindow();
    void EndAwaiting();
    LRESULT HandleSheet(UINT nCode);

    CPropertySheet* m_pSheet = nullptr;  // while the sheet has a window
    BOOL m_bAwaited = FALSE;             // the platform is about to make the window
};

/// A page with a title and a subtitle for the header of a wizard of the newer kind.
class QVAFX_API CPropertyPageEx : public CPropertyPage {
    DECLARE_DYNAMIC(CPropertyPageEx)

public:
    CPropertyPageEx();
    explicit CPropertyPageEx(UINT nIDTemplate, UINT nIDCaption = 0, UINT nIDHeaderTitle = 0,
                             UINT nIDHeaderSubTitle = 0);
    explicit CPropertyPageEx(LPCTSTR lpszTemplateName, UINT nIDCaption = 0, UINT nIDHeaderTitle = 0,
                             UINT nIDHeaderSubTitle = 0);
    void Construct(UINT nIDTemplate, UINT nIDCaption = 0, UINT nIDHeaderTitle = 0,
                   UINT nIDHeaderSubTitle = 0);
    void Construct(LPCTSTR lpszTemplateName, UINT nIDCaption = 0, UINT nIDHeaderTitle = 0,
                   UINT nIDHeaderSubTitle = 0);

protected:
    CString m_strHeaderTitle;
    CString m_strHeaderSubTitle;

private:
    void FillRecord(PROPSHEETPAGE& psp, DWORD nBytes) override;
    void LoadTitles(UINT nIDHeaderTitle, UINT nIDHeaderSubTitle);
};

class QVAFX_API CPropertySheet : public CWnd {
    DECLARE_DYNAMIC(CPropertySheet)

public:
    /// Construct has to follow.
    CPropertySheet();
    explicit CPropertySheet(UINT nIDCaption, CWnd* pParentWnd = nullptr, UINT iSelectPage = 0);
    explicit CPropertySheet(LPCTSTR pszCaption, CWnd* pParentWnd = nullptr, UINT iSelectPage = 0);
    ~CPropertySheet() override;
    void Construct(UINT nIDCaption, CWnd* pParentWnd = nullptr, UINT iSelectPage = 0);
    void Construct(LPCTSTR pszCaption, CWnd* pParentWnd = nullptr, UINT iSelectPage = 0);

    /// May be changed until the sheet comes up. ppsp: records made by new BYTE[], the sheet's.
    PROPSHEETHEADER m_psh;

    using CWnd::Create;
    /// A sheet that lives beside its owner, without OK, Cancel and Apply unless it is a wizard.
    /// dwStyle -1: a window with caption and system menu. Destroyed when the user closes it.
    virtual BOOL Create(CWnd* pParentWnd = nullptr, DWORD dwStyle = static_cast<DWORD>(-1),
                        DWORD dwExStyle = 0);
    /// IDOK, IDCANCEL, or ID_WIZFINISH of a wizard; -1 if the sheet could not be made.
    virtual INT_PTR DoModal();
    /// Ends a modal sheet with that result, destroys a modeless one. Pages are told nothing.
    void EndDialog(int nEndID);
    /// While a page is asked something the platform still needs its window, which goes then when
    /// the sheet's messages have been handled.
    BOOL DestroyWindow() override;

    int GetPageCount() const;
    CPropertyPage* GetPage(int nPage) const;  ///< null out of range
    int GetPageIndex(CPropertyPage* pPage) const;
    int GetActiveIndex() const;
    CPropertyPage* GetActivePage() const;
    BOOL SetActivePage(int nPage);
    BOOL SetActivePage(CPropertyPage* pPage);
    void AddPage(CPropertyPage* pPage);
    void RemovePage(CPropertyPage* pPage);
    void RemovePage(int nPage);

    /// nStyle PSH_PROPTITLE puts the platform's "Properties" beside it.
    void SetTitle(LPCTSTR lpszText, UINT nStyle = 0);
    void SetFinishText(LPCTSTR lpszText);
    /// PSWIZB_ flags. Posted, as pages set them while they come to the front.
    void SetWizardButtons(DWORD dwFlags);
    void SetWizardMode();
    /// FALSE, before the sheet comes up: one row of tabs that scrolls.
    void EnableStackedTabs(BOOL bStacked);
    CTabCtrl* GetTabControl() const;
    BOOL PressButton(int nButton);  ///< PSBTN_
    BOOL IsModeless() const { return m_bModeless; }
    BOOL IsWizard() const;

    /// The sheet is there, with its first page. Overrides call this first.
    virtual BOOL OnInitDialog();
    /// Makes m_psh.ppsp of the pages.
    virtual void BuildPropPageArray();

    BOOL PreTranslateMessage(MSG* pMsg) override;
    BOOL OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo) override;
    BOOL ContinueModal() override;

protected:
    BOOL OnCommand(WPARAM wParam, LPARAM lParam) override;
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;

    afx_msg LRESULT HandleInitDialog(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnPressButton(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnKickIdle(WPARAM wParam, LPARAM lParam);
    afx_msg void OnSysCommand(UINT nID, LPARAM lParam);
    afx_msg void OnNcDestroy();

    CPtrArray m_pages;
    CString m_strCaption;
    CWnd* m_pParentWnd = nullptr;
    BOOL m_bStacked = TRUE;
    BOOL m_bModeless = FALSE;

    DECLARE_MESSAGE_MAP()

private:
    friend class CPropertyPage;
    class Counting;

    void ConstructWith(CWnd* pParentWnd, UINT iSelectPage);
    BOOL MakeWindow(HWND hWndOwner);
    void RunModalFor(HWND hWndOwner);
    DWORD RecordBytes() const;
    PROPSHEETPAGE* RecordAt(int nPage) const;
    void AddToWindow(CPropertyPage* pPage);
    void ForgetRecord(int nPage);
    void DropRecords();
    HWND CurrentPageWindow() const;
    void HideButtons();
    static int CALLBACK SheetCallback(HWND hWnd, UINT message, LPARAM lParam);

    int m_nAsked = 0;    // questions of the platform that pages are answering
    int m_nHandled = 0;  // messages of the sheet that are being handled
    BOOL m_bDestroyLater = FALSE;
    DWORD m_dwStyle = 0;  // of a modeless sheet; 0: the platform's
    DWORD m_dwExStyle = 0;
};

/// A sheet that may be a wizard of the newer kind, with a header and a watermark. The pictures stay
/// the program's.
class QVAFX_API CPropertySheetEx : public CPropertySheet {
    DECLARE_DYNAMIC(CPropertySheetEx)

public:
    CPropertySheetEx();
    explicit CPropertySheetEx(UINT nIDCaption, CWnd* pParentWnd = nullptr, UINT iSelectPage = 0,
                              HBITMAP hbmWatermark = nullptr, HPALETTE hpalWatermark = nullptr,
                              HBITMAP hbmHeader = nullptr);
    explicit CPropertySheetEx(LPCTSTR pszCaption, CWnd* pParentWnd = nullptr, UINT iSelectPage = 0,
                              HBITMAP hbmWatermark = nullptr, HPALETTE hpalWatermark = nullptr,
                              HBITMAP hbmHeader = nullptr);
    void Construct(UINT nIDCaption, CWnd* pParentWnd = nullptr, UINT iSelectPage = 0,
                   HBITMAP hbmWatermark = nullptr, HPALETTE hpalWatermark = nullptr,
                   HBITMAP hbmHeader = nullptr);
    void Construct(LPCTSTR pszCaption, CWnd* pParentWnd = nullptr, UINT iSelectPage = 0,
                   HBITMAP hbmWatermark = nullptr, HPALETTE hpalWatermark = nullptr,
                   HBITMAP hbmHeader = nullptr);

    void AddPage(CPropertyPageEx* pPage);
    using CPropertySheet::AddPage;

private:
    void SetPictures(HBITMAP hbmWatermark, HPALETTE hpalWatermark, HBITMAP hbmHeader);
};
