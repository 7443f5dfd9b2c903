// CWnd: a C++ object bound to a window handle.
#pragma once

#include "afx/drawing/gdi.h"
#include "afx/window/cmdtarget.h"

#include <afxdll_.h>
#include <atltypes.h>

#include <oaidl.h>

class CDataExchange;
class CFile;
class CFont;
class CFrameWnd;
class CListBox;
class COleControlContainer;
class COleControlSite;
class CScrollBar;
class CWnd;
struct CCreateContext;
struct _AFX_OCC_DIALOG_INFO;

/// What a new window gets when no class name is given, by kind.
#define AFX_WNDCLASS_CHILD "QvAfxWnd"
#define AFX_WNDCLASS_FRAME "QvAfxFrame"
#define AFX_WNDCLASS_CONTROLBAR "QvAfxControlBar"

// CWnd::m_nFlags
#define WF_TOOLTIPS 0x0001
#define WF_TEMPHIDE 0x0002
#define WF_STAYDISABLED 0x0004
#define WF_MODALLOOP 0x0008  // a modal loop of this window is running
#define WF_CONTINUEMODAL 0x0010

// OnToolHitTest, in TOOLINFO::uFlags
#define TTF_NOTBUTTON 0x80000000L  // it is shown while a mouse button is down, too
#define TTF_ALWAYSTIP 0x40000000L  // as well as in a window that is not active

// RunModalLoop
#define MLF_NOIDLEMSG 0x0001   // no WM_ENTERIDLE to the owner
#define MLF_NOKICKIDLE 0x0002  // no WM_KICKIDLE to the window
#define MLF_SHOWONIDLE 0x0004  // show the window when the queue runs empty

// RepositionBars
enum AFX_REPOSITION { reposDefault = 0, reposQuery = 1, reposExtra = 2 };

/// The procedure of every window that has an object.
QVAFX_API LRESULT CALLBACK AfxWndProc(HWND hWnd, UINT nMsg, WPARAM wParam, LPARAM lParam);

/// Calls pWnd's WindowProc. No exception leaves it: the thread's ProcessWndProcException gets them.
QVAFX_API LRESULT AfxCallWndProc(CWnd* pWnd, HWND hWnd, UINT nMsg, WPARAM wParam = 0,
                                 LPARAM lParam = 0);

/// Registers a class once; a second time with the same name does nothing. Gives FALSE on failure.
QVAFX_API BOOL AfxRegisterClass(WNDCLASS* lpWndClass);

/// A class for these attributes, registered on first use. The name lives as long as the process.
QVAFX_API LPCTSTR AfxRegisterWndClass(UINT nClassStyle, HCURSOR hCursor = 0,
                                      HBRUSH hbrBackground = 0, HICON hIcon = 0);

/// Between these calls, the next window that this thread creates is bound to pWnd before it gets
/// its first message. Unhook gives FALSE if no window took pWnd.
QVAFX_API void AfxHookWindowCreate(CWnd* pWnd);
QVAFX_API BOOL AfxUnhookWindowCreate();

class QVAFX_API CWnd : public CCmdTarget {
    DECLARE_DYNCREATE(CWnd)

public:
    HWND m_hWnd = nullptr;
    operator HWND() const { return m_hWnd; }
    BOOL operator==(const CWnd& wnd) const { return wnd.m_hWnd == m_hWnd; }
    BOOL operator!=(const CWnd& wnd) const { return wnd.m_hWnd != m_hWnd; }

    CWnd();
    explicit CWnd(HWND hWnd) : m_hWnd(hWnd) {}
    /// Destroys a window that is still there. Overrides of the derived class are gone by then, so a
    /// window that must say goodbye properly is destroyed before its object.
    virtual ~CWnd();

    /// Stand-ins for the first argument of SetWindowPos.
    static const CWnd wndTop;
    static const CWnd wndBottom;
    static const CWnd wndTopMost;
    static const CWnd wndNoTopMost;

    // Handles and objects
    HWND GetSafeHwnd() const;
    DWORD GetStyle() const;
    DWORD GetExStyle() const;
    BOOL ModifyStyle(DWORD dwRemove, DWORD dwAdd, UINT nFlags = 0);
    BOOL ModifyStyleEx(DWORD dwRemove, DWORD dwAdd, UINT nFlags = 0);
    static BOOL ModifyStyle(HWND hWnd, DWORD dwRemove, DWORD dwAdd, UINT nFlags);
    static BOOL ModifyStyleEx(HWND hWnd, DWORD dwRemove, DWORD dwAdd, UINT nFlags);
    CWnd* GetOwner() const;
    void SetOwner(CWnd* pOwnerWnd);

    /// The object of a handle; a temporary one, good until the next idle time, if there is none.
    static CWnd* FromHandle(HWND hWnd);
    static CWnd* FromHandlePermanent(HWND hWnd);
    static void DeleteTempMap();
    /// Binds the object to a window that has no other object, without touching its procedure.
    BOOL Attach(HWND hWndNew);
    HWND Detach();

    virtual void PreSubclassWindow();
    /// Binds the object to an existing window and puts the object's procedure in front of its own.
    BOOL SubclassWindow(HWND hWnd);
    BOOL SubclassDlgItem(UINT nID, CWnd* pParent);
    HWND UnsubclassWindow();

    // Creation and destruction
    virtual BOOL Create(LPCTSTR lpszClassName, LPCTSTR lpszWindowName, DWORD dwStyle,
                        const RECT& rect, CWnd* pParentWnd, UINT nID,
                        CCreateContext* pContext = nullptr);
    virtual BOOL CreateEx(DWORD dwExStyle, LPCTSTR lpszClassName, LPCTSTR lpszWindowName,
                          DWORD dwStyle, int x, int y, int nWidth, int nHeight, HWND hWndParent,
                          HMENU nIDorHMenu, LPVOID lpParam = nullptr);
    virtual BOOL CreateEx(DWORD dwExStyle, LPCTSTR lpszClassName, LPCTSTR lpszWindowName,
                          DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID,
                          LPVOID lpParam = nullptr);
    virtual BOOL PreCreateWindow(CREATESTRUCT& cs);
    virtual BOOL DestroyWindow();

    // Dialog items
    CWnd* GetDlgItem(int nID) const;
    void GetDlgItem(int nID, HWND* phWnd) const;
    int GetDlgCtrlID() const;
    int SetDlgCtrlID(int nID);
    /// Looks through all descendants; objects only if bOnlyPerm.
    CWnd* GetDescendantWindow(int nID, BOOL bOnlyPerm = FALSE) const;
    void SendMessageToDescendants(UINT message, WPARAM wParam = 0, LPARAM lParam = 0,
                                  BOOL bDeep = TRUE, BOOL bOnlyPerm = FALSE);
    void CheckDlgButton(int nIDButton, UINT nCheck);
    void CheckRadioButton(int nIDFirstButton, int nIDLastButton, int nIDCheckButton);
    int GetCheckedRadioButton(int nIDFirstButton, int nIDLastButton) const;
    UINT IsDlgButtonChecked(int nIDButton) const;
    UINT GetDlgItemInt(int nID, BOOL* lpTrans = nullptr, BOOL bSigned = TRUE) const;
    void SetDlgItemInt(int nID, UINT nValue, BOOL bSigned = TRUE);
    int GetDlgItemText(int nID, LPTSTR lpStr, int nMaxCount) const;
    int GetDlgItemText(int nID, CString& rString) const;
    void SetDlgItemText(int nID, LPCTSTR lpszString);
    LRESULT SendDlgItemMessage(int nID, UINT message, WPARAM wParam = 0, LPARAM lParam = 0);
    CWnd* GetNextDlgGroupItem(CWnd* pWndCtl, BOOL bPrevious = FALSE) const;
    CWnd* GetNextDlgTabItem(CWnd* pWndCtl, BOOL bPrevious = FALSE) const;
    int DlgDirList(LPTSTR lpPathSpec, int nIDListBox, int nIDStaticPath, UINT nFileType);

    // Messages
    LRESULT SendMessage(UINT message, WPARAM wParam = 0, LPARAM lParam = 0);
    BOOL PostMessage(UINT message, WPARAM wParam = 0, LPARAM lParam = 0);
    BOOL SendNotifyMessage(UINT message, WPARAM wParam, LPARAM lParam);
    /// The message that this thread's framework windows are handling now.
    static const MSG* GetCurrentMessage();

    // Text and font
    void SetWindowText(LPCTSTR lpszString);
    int GetWindowText(LPTSTR lpszStringBuf, int nMaxCount) const;
    void GetWindowText(CString& rString) const;
    int GetWindowTextLength() const;
    void SetFont(CFont* pFont, BOOL bRedraw = TRUE);
    CFont* GetFont() const;
    CMenu* GetMenu() const;
    BOOL SetMenu(CMenu* pMenu);
    void DrawMenuBar();
    CMenu* GetSystemMenu(BOOL bRevert) const;
    BOOL HiliteMenuItem(CMenu* pMenu, UINT nIDHiliteItem, UINT nHilite);
    HICON GetIcon(BOOL bBigIcon) const;
    HICON SetIcon(HICON hIcon, BOOL bBigIcon);

    // Size and position
    BOOL IsIconic() const;
    BOOL IsZoomed() const;
    void MoveWindow(int x, int y, int nWidth, int nHeight, BOOL bRepaint = TRUE);
    void MoveWindow(LPCRECT lpRect, BOOL bRepaint = TRUE);
    int SetWindowRgn(HRGN hRgn, BOOL bRedraw);
    int GetWindowRgn(HRGN hRgn) const;
    BOOL SetWindowPos(const CWnd* pWndInsertAfter, int x, int y, int cx, int cy, UINT nFlags);
    UINT ArrangeIconicWindows();
    void BringWindowToTop();
    void GetWindowRect(LPRECT lpRect) const;
    void GetClientRect(LPRECT lpRect) const;
    BOOL GetWindowPlacement(WINDOWPLACEMENT* lpwndpl) const;
    BOOL SetWindowPlacement(const WINDOWPLACEMENT* lpwndpl);
    void ClientToScreen(LPPOINT lpPoint) const;
    void ClientToScreen(LPRECT lpRect) const;
    void ScreenToClient(LPPOINT lpPoint) const;
    void ScreenToClient(LPRECT lpRect) const;
    void MapWindowPoints(CWnd* pwndTo, LPPOINT lpPoint, UINT nCount) const;
    void MapWindowPoints(CWnd* pwndTo, LPRECT lpRect) const;
    virtual void CalcWindowRect(LPRECT lpClientRect, UINT nAdjustType = adjustBorder);
    enum AdjustType { adjustBorder = 0, adjustOutside = 1 };
    /// Lays bars out along the edges of the client area and gives nIDLeftOver what is left.
    void RepositionBars(UINT nIDFirst, UINT nIDLast, UINT nIDLeftOver, UINT nFlag = reposDefault,
                        LPRECT lpRectParam = nullptr, LPCRECT lpRectClient = nullptr,
                        BOOL bStretch = TRUE);
    void CenterWindow(CWnd* pAlternateOwner = nullptr);

    // Painting
    CDC* BeginPaint(LPPAINTSTRUCT lpPaint);
    void EndPaint(LPPAINTSTRUCT lpPaint);
    CDC* GetDC();
    CDC* GetWindowDC();
    int ReleaseDC(CDC* pDC);
    CDC* GetDCEx(CRgn* prgnClip, DWORD flags);
    void Print(CDC* pDC, DWORD dwFlags) const;
    void PrintClient(CDC* pDC, DWORD dwFlags) const;
    void UpdateWindow();
    void SetRedraw(BOOL bRedraw = TRUE);
    BOOL GetUpdateRect(LPRECT lpRect, BOOL bErase = FALSE);
    int GetUpdateRgn(CRgn* pRgn, BOOL bErase = FALSE);
    void Invalidate(BOOL bErase = TRUE);
    void InvalidateRect(LPCRECT lpRect, BOOL bErase = TRUE);
    void InvalidateRgn(CRgn* pRgn, BOOL bErase = TRUE);
    void ValidateRect(LPCRECT lpRect);
    void ValidateRgn(CRgn* pRgn);
    BOOL ShowWindow(int nCmdShow);
    BOOL IsWindowVisible() const;
    void ShowOwnedPopups(BOOL bShow = TRUE);
    BOOL LockWindowUpdate();
    void UnlockWindowUpdate();
    BOOL RedrawWindow(LPCRECT lpRectUpdate = nullptr, CRgn* prgnUpdate = nullptr,
                      UINT flags = RDW_INVALIDATE | RDW_UPDATENOW | RDW_ERASE);
    BOOL EnableScrollBar(int nSBFlags, UINT nArrowFlags = ESB_ENABLE_BOTH);

    // Timers, state, focus and capture
    UINT_PTR SetTimer(UINT_PTR nIDEvent, UINT nElapse,
                      void(CALLBACK* lpfnTimer)(HWND, UINT, UINT_PTR, DWORD) = nullptr);
    BOOL KillTimer(UINT_PTR nIDEvent);
    BOOL IsWindowEnabled() const;
    BOOL EnableWindow(BOOL bEnable = TRUE);
    static CWnd* GetActiveWindow();
    CWnd* SetActiveWindow();
    BOOL SetForegroundWindow();
    static CWnd* GetForegroundWindow();
    static CWnd* GetCapture();
    CWnd* SetCapture();
    static CWnd* GetFocus();
    CWnd* SetFocus();
    static CWnd* GetDesktopWindow();

    // Message box, scrolling
    int MessageBox(LPCTSTR lpszText, LPCTSTR lpszCaption = nullptr, UINT nType = MB_OK);
    int GetScrollPos(int nBar) const;
    void GetScrollRange(int nBar, LPINT lpMinPos, LPINT lpMaxPos) const;
    void ScrollWindow(int xAmount, int yAmount, LPCRECT lpRect = nullptr,
                      LPCRECT lpClipRect = nullptr);
    int ScrollWindowEx(int dx, int dy, LPCRECT lpRectScroll, LPCRECT lpRectClip, CRgn* prgnUpdate,
                       LPRECT lpRectUpdate, UINT flags);
    int SetScrollPos(int nBar, int nPos, BOOL bRedraw = TRUE);
    void SetScrollRange(int nBar, int nMinPos, int nMaxPos, BOOL bRedraw = TRUE);
    void ShowScrollBar(UINT nBar, BOOL bShow = TRUE);
    void EnableScrollBarCtrl(int nBar, BOOL bEnable = TRUE);
    /// The scroll bar that is a sibling standing for a window's own; null here, for panes to
    /// override.
    virtual CScrollBar* GetScrollBarCtrl(int nBar) const;
    BOOL SetScrollInfo(int nBar, LPSCROLLINFO lpScrollInfo, BOOL bRedraw = TRUE);
    BOOL GetScrollInfo(int nBar, LPSCROLLINFO lpScrollInfo, UINT nMask = SIF_ALL);
    int GetScrollLimit(int nBar);

    // The window tree
    CWnd* ChildWindowFromPoint(POINT point) const;
    CWnd* ChildWindowFromPoint(POINT point, UINT nFlags) const;
    static CWnd* FindWindow(LPCTSTR lpszClassName, LPCTSTR lpszWindowName);
    static CWnd* FindWindowEx(HWND hwndParent, HWND hwndChildAfter, LPCTSTR lpszClass,
                              LPCTSTR lpszWindow);
    CWnd* GetNextWindow(UINT nFlag = GW_HWNDNEXT) const;
    CWnd* GetTopWindow() const;
    CWnd* GetWindow(UINT nCmd) const;
    CWnd* GetLastActivePopup() const;
    BOOL IsChild(const CWnd* pWnd) const;
    CWnd* GetParent() const;
    CWnd* SetParent(CWnd* pWndNewParent);
    static CWnd* WindowFromPoint(POINT point);
    CFrameWnd* GetParentFrame() const;
    CFrameWnd* GetTopLevelFrame() const;
    CWnd* GetTopLevelParent() const;
    CWnd* GetTopLevelOwner() const;
    CWnd* GetParentOwner() const;
    BOOL IsTopParentActive() const;
    static CWnd* GetSafeOwner(CWnd* pParent = nullptr, HWND* pWndTop = nullptr);
    virtual BOOL IsFrameWnd() const;

    // Drop of files, clipboard, caret
    void DragAcceptFiles(BOOL bAccept = TRUE);
    BOOL OpenClipboard();
    void CreateSolidCaret(int nWidth, int nHeight);
    void CreateCaret(CBitmap* pBitmap);
    static CPoint GetCaretPos();
    static void SetCaretPos(POINT point);
    void HideCaret();
    void ShowCaret();

    // Data exchange and commands
    /// FALSE fills the controls from the object, TRUE the other way. FALSE if a value was rejected.
    BOOL UpdateData(BOOL bSaveAndValidate = TRUE);
    /// Fills lists and combo boxes from the DLGINIT data of a dialog, by name or in memory. TRUE if
    /// there is none; FALSE if a text cannot be added.
    BOOL ExecuteDlgInit(LPCTSTR lpszResourceName);
    BOOL ExecuteDlgInit(LPVOID lpResource);
    void UpdateDialogControls(CCmdTarget* pTarget, BOOL bDisableIfNoHndler);
    /// Moves the focus among the items of a dialog-like parent.
    virtual BOOL PreTranslateMessage(MSG* pMsg);
    /// Asks from the message's window up to hWndStop whether somebody takes the message.
    static BOOL WalkPreTranslateTree(HWND hWndStop, MSG* pMsg);
    BOOL PreTranslateInput(LPMSG lpMsg);

    // Modal state
    int RunModalLoop(DWORD dwFlags = 0);
    virtual BOOL ContinueModal();
    virtual void EndModalLoop(int nResult);

    /// Sends the message being handled to the child hWndChild; TRUE if the child took it.
    static BOOL ReflectLastMsg(HWND hWndChild, LRESULT* pResult = nullptr);
    BOOL SendChildNotifyLastMsg(LRESULT* pResult = nullptr);

    /// What tooltips and the message line tell about a point of the client area: a command or
    /// control number, with its rectangle in pTI unless that is null, or -1. Knows the children.
    virtual INT_PTR OnToolHitTest(CPoint point, TOOLINFO* pTI) const;
    /// What OnToolHitTest tells has a tooltip from now on. Its text is asked for by TTN_NEEDTEXT,
    /// which frames answer with the string of the number. Gives bEnable.
    BOOL EnableToolTips(BOOL bEnable = TRUE);
    /// Hides it until the mouse comes to something else. bKeys: and the message line is idle again.
    static void PASCAL CancelToolTips(BOOL bKeys = FALSE);
    /// Part of PreTranslateMessage; to be called for messages that do not pass there.
    void FilterToolTipMessage(MSG* pMsg);

    void OnFinalRelease() override;

    /// Windows tell the system what it asks about them for people who cannot see or point; there is
    /// nothing to be turned on.
    void EnableActiveAccessibility() {}

    // ActiveX controls, once AfxEnableControlContainer was called
    COleControlContainer* m_pCtrlCont = nullptr;  ///< of the controls in this window
    COleControlSite* m_pCtrlSite = nullptr;       ///< of the control that this object wraps

    /// Makes a control, whose window this object subclasses; it becomes a child of pParentWnd under
    /// nID. Class: a ProgID, or a class id in braces. lpszWindowName: its Caption or Text, null for
    /// as it is. Of the styles, WS_VISIBLE, WS_DISABLED, WS_BORDER, WS_GROUP and WS_TABSTOP count.
    /// pPersist: its saved state, at the file's position, as a stream or with bStorage as a
    /// compound file. A null psize, or -1 in it, takes the control's own size. FALSE, and nothing
    /// left behind, if the control fails at any step. Controls without a window have m_hWnd null.
    virtual BOOL CreateControl(LPCTSTR lpszClass, LPCTSTR lpszWindowName, DWORD dwStyle,
                               const RECT& rect, CWnd* pParentWnd, UINT nID,
                               CFile* pPersist = nullptr, BOOL bStorage = FALSE,
                               BSTR bstrLicKey = nullptr);
    virtual BOOL CreateControl(REFCLSID clsid, LPCTSTR lpszWindowName, DWORD dwStyle,
                               const RECT& rect, CWnd* pParentWnd, UINT nID,
                               CFile* pPersist = nullptr, BOOL bStorage = FALSE,
                               BSTR bstrLicKey = nullptr);
    BOOL CreateControl(LPCTSTR lpszClass, LPCTSTR lpszWindowName, DWORD dwStyle, const POINT* ppt,
                       const SIZE* psize, CWnd* pParentWnd, UINT nID, CFile* pPersist = nullptr,
                       BOOL bStorage = FALSE, BSTR bstrLicKey = nullptr);
    BOOL CreateControl(REFCLSID clsid, LPCTSTR lpszWindowName, DWORD dwStyle, const POINT* ppt,
                       const SIZE* psize, CWnd* pParentWnd, UINT nID, CFile* pPersist = nullptr,
                       BOOL bStorage = FALSE, BSTR bstrLicKey = nullptr);
    /// The control's own, without a reference for the caller; null without a control.
    LPUNKNOWN GetControlUnknown();

    // The control's members, as those of a COleDispatchDriver; without a control nothing happens,
    // and results stay as they were.
    void InvokeHelper(DISPID dwDispID, WORD wFlags, VARTYPE vtRet, void* pvRet,
                      const BYTE* pbParamInfo, ...);
    void InvokeHelperV(DISPID dwDispID, WORD wFlags, VARTYPE vtRet, void* pvRet,
                       const BYTE* pbParamInfo, va_list argList);
    void GetProperty(DISPID dwDispID, VARTYPE vtProp, void* pvProp) const;
    void SetProperty(DISPID dwDispID, VARTYPE vtProp, ...);
    void SetPropertyV(DISPID dwDispID, VARTYPE vtProp, va_list argList);

    /// What a control in this window asks about it: DISPID_AMBIENT_BACKCOLOR and the like. FALSE:
    /// no such property. The base answers from the window's font and colours.
    virtual BOOL OnAmbientProperty(COleControlSite* pSite, DISPID dispid, VARIANT* pvar);
    /// For containers and sites of derived classes, made with new. Null and TRUE: of the
    /// framework's; FALSE: no control here.
    virtual BOOL CreateControlContainer(COleControlContainer** ppContainer);
    virtual BOOL CreateControlSite(COleControlContainer* pContainer, COleControlSite** ppSite,
                                   UINT nID, REFCLSID clsid);
    /// FALSE if this window cannot have controls.
    BOOL InitControlContainer();
    /// A dialog's ActiveX controls, which were taken out of its template; it owns them from then
    /// on. FALSE from windows that are no dialogs.
    virtual BOOL SetOccDialogInfo(_AFX_OCC_DIALOG_INFO* pOccDialogInfo);

    // For ID_HELP, ID_HELP_INDEX, ID_HELP_FINDER and ID_HELP_USING in a window's map: the
    // application's.
    afx_msg void OnHelp();
    afx_msg void OnHelpIndex();
    afx_msg void OnHelpFinder();
    afx_msg void OnHelpUsing();

    UINT m_nFlags = 0;

protected:
    HWND m_hWndOwner = nullptr;
    WNDPROC m_pfnSuper = nullptr;          ///< the procedure that ours was put in front of
    WNDPROC m_pfnSuperReplaced = nullptr;  ///< the same; a program may put another one above
    /// The same under its own address, for messages that the system converts nothing in: there is
    /// no need of the system then, which takes its time. Null: unknown.
    WNDPROC m_pfnSuperDirect = nullptr;
    int m_nModalResult = 0;

    virtual LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam);
    virtual BOOL OnWndMsg(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult);
    virtual LRESULT DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam);
    /// The default processing of the message being handled, with the parameters it came with.
    LRESULT Default();
    virtual WNDPROC* GetSuperWndProcAddr();

    virtual void DoDataExchange(CDataExchange* pDX);
    virtual BOOL OnCommand(WPARAM wParam, LPARAM lParam);
    virtual BOOL OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* pResult);
    /// A message that this control sent to its parent, before the parent's own handling.
    virtual BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult);
    BOOL ReflectChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult);
    /// The last call for this object after its window went away: the place for delete this.
    virtual void PostNcDestroy();

    // Handlers. Each does the default processing.
    afx_msg int OnCreate(LPCREATESTRUCT lpCreateStruct);
    afx_msg void OnDestroy();
    afx_msg void OnNcDestroy();
    afx_msg BOOL OnNcCreate(LPCREATESTRUCT lpCreateStruct);
    afx_msg void OnClose();
    afx_msg void OnMove(int x, int y);
    afx_msg void OnSize(UINT nType, int cx, int cy);
    afx_msg void OnMoving(UINT nSide, LPRECT lpRect);
    afx_msg void OnSizing(UINT nSide, LPRECT lpRect);
    afx_msg void OnActivate(UINT nState, CWnd* pWndOther, BOOL bMinimized);
    afx_msg void OnActivateApp(BOOL bActive, DWORD dwThreadID);
    afx_msg void OnChildActivate();
    afx_msg void OnMDIActivate(BOOL bActivate, CWnd* pActivateWnd, CWnd* pDeactivateWnd);
    afx_msg void OnSetFocus(CWnd* pOldWnd);
    afx_msg void OnKillFocus(CWnd* pNewWnd);
    afx_msg void OnEnable(BOOL bEnable);
    afx_msg void OnPaint();
    afx_msg BOOL OnEraseBkgnd(CDC* pDC);
    afx_msg void OnShowWindow(BOOL bShow, UINT nStatus);
    afx_msg void OnCancelMode();
    afx_msg BOOL OnQueryEndSession();
    afx_msg void OnEndSession(BOOL bEnding);
    afx_msg BOOL OnQueryOpen();
    afx_msg HCURSOR OnQueryDragIcon();
    afx_msg void OnSysColorChange();
    afx_msg void OnSettingChange(UINT uFlags, LPCTSTR lpszSection);
    afx_msg void OnFontChange();
    afx_msg void OnTimeChange();
    afx_msg void OnDevModeChange(LPTSTR lpDeviceName);
    afx_msg void OnDisplayChange(UINT nImageDepth, int cxScreen, int cyScreen);
    afx_msg LRESULT OnThemeChanged();
    afx_msg BOOL OnSetCursor(CWnd* pWnd, UINT nHitTest, UINT message);
    afx_msg int OnMouseActivate(CWnd* pDesktopWnd, UINT nHitTest, UINT message);
    afx_msg void OnGetMinMaxInfo(MINMAXINFO* lpMMI);
    afx_msg void OnWindowPosChanging(WINDOWPOS* lpwndpos);
    afx_msg void OnWindowPosChanged(WINDOWPOS* lpwndpos);
    afx_msg void OnStyleChanging(int nStyleType, LPSTYLESTRUCT lpStyleStruct);
    afx_msg void OnStyleChanged(int nStyleType, LPSTYLESTRUCT lpStyleStruct);
    afx_msg void OnContextMenu(CWnd* pWnd, CPoint pos);
    afx_msg BOOL OnHelpInfo(HELPINFO* lpHelpInfo);
    afx_msg void OnDropFiles(HDROP hDropInfo);
    afx_msg BOOL OnCopyData(CWnd* pWnd, COPYDATASTRUCT* pCopyDataStruct);
    afx_msg void OnDrawClipboard();
    afx_msg void OnChangeCbChain(HWND hWndRemove, HWND hWndAfter);
    afx_msg void OnParentNotify(UINT message, LPARAM lParam);

    // Owner drawing, colours and item messages
    afx_msg void OnDrawItem(int nIDCtl, LPDRAWITEMSTRUCT lpDrawItemStruct);
    afx_msg void OnMeasureItem(int nIDCtl, LPMEASUREITEMSTRUCT lpMeasureItemStruct);
    afx_msg int OnCompareItem(int nIDCtl, LPCOMPAREITEMSTRUCT lpCompareItemStruct);
    afx_msg void OnDeleteItem(int nIDCtl, LPDELETEITEMSTRUCT lpDeleteItemStruct);
    afx_msg int OnVKeyToItem(UINT nKey, CListBox* pListBox, UINT nIndex);
    afx_msg int OnCharToItem(UINT nChar, CListBox* pListBox, UINT nIndex);
    afx_msg HBRUSH OnCtlColor(CDC* pDC, CWnd* pWnd, UINT nCtlColor);

    /// What a list tells whose rows are dragged.
    afx_msg LRESULT OnDragList(WPARAM wParam, LPARAM lParam);

    // The frame of a window
    afx_msg void OnNcCalcSize(BOOL bCalcValidRects, NCCALCSIZE_PARAMS* lpncsp);
    afx_msg LRESULT OnNcHitTest(CPoint point);
    afx_msg void OnNcPaint();
    afx_msg BOOL OnNcActivate(BOOL bActive);
    afx_msg void OnNcMouseMove(UINT nHitTest, CPoint point);
    afx_msg void OnNcLButtonDown(UINT nHitTest, CPoint point);
    afx_msg void OnNcLButtonUp(UINT nHitTest, CPoint point);
    afx_msg void OnNcLButtonDblClk(UINT nHitTest, CPoint point);
    afx_msg void OnNcRButtonDown(UINT nHitTest, CPoint point);
    afx_msg void OnNcRButtonUp(UINT nHitTest, CPoint point);
    afx_msg void OnNcRButtonDblClk(UINT nHitTest, CPoint point);
    afx_msg void OnNcMButtonDown(UINT nHitTest, CPoint point);
    afx_msg void OnNcMButtonUp(UINT nHitTest, CPoint point);
    afx_msg void OnNcMButtonDblClk(UINT nHitTest, CPoint point);

    // Keyboard
    afx_msg UINT OnGetDlgCode();
    afx_msg void OnKeyDown(UINT nChar, UINT nRepCnt, UINT nFlags);
    afx_msg void OnKeyUp(UINT nChar, UINT nRepCnt, UINT nFlags);
    afx_msg void OnChar(UINT nChar, UINT nRepCnt, UINT nFlags);
    afx_msg void OnDeadChar(UINT nChar, UINT nRepCnt, UINT nFlags);
    afx_msg void OnSysKeyDown(UINT nChar, UINT nRepCnt, UINT nFlags);
    afx_msg void OnSysKeyUp(UINT nChar, UINT nRepCnt, UINT nFlags);
    afx_msg void OnSysChar(UINT nChar, UINT nRepCnt, UINT nFlags);
    afx_msg void OnSysDeadChar(UINT nChar, UINT nRepCnt, UINT nFlags);

    // Commands of the system, menus, timers and scroll bars
    afx_msg void OnSysCommand(UINT nID, LPARAM lParam);
    afx_msg void OnTimer(UINT_PTR nIDEvent);
    afx_msg void OnHScroll(UINT nSBCode, UINT nPos, CScrollBar* pScrollBar);
    afx_msg void OnVScroll(UINT nSBCode, UINT nPos, CScrollBar* pScrollBar);
    afx_msg void OnInitMenu(CMenu* pMenu);
    afx_msg void OnInitMenuPopup(CMenu* pPopupMenu, UINT nIndex, BOOL bSysMenu);
    afx_msg void OnMenuSelect(UINT nItemID, UINT nFlags, HMENU hSysMenu);
    afx_msg LRESULT OnMenuChar(UINT nChar, UINT nFlags, CMenu* pMenu);
    afx_msg void OnEnterIdle(UINT nWhy, CWnd* pWho);
    afx_msg void OnEnterMenuLoop(BOOL bIsTrackPopupMenu);
    afx_msg void OnExitMenuLoop(BOOL bIsTrackPopupMenu);

    // Mouse
    afx_msg void OnMouseMove(UINT nFlags, CPoint point);
    afx_msg void OnLButtonDown(UINT nFlags, CPoint point);
    afx_msg void OnLButtonUp(UINT nFlags, CPoint point);
    afx_msg void OnLButtonDblClk(UINT nFlags, CPoint point);
    afx_msg void OnRButtonDown(UINT nFlags, CPoint point);
    afx_msg void OnRButtonUp(UINT nFlags, CPoint point);
    afx_msg void OnRButtonDblClk(UINT nFlags, CPoint point);
    afx_msg void OnMButtonDown(UINT nFlags, CPoint point);
    afx_msg void OnMButtonUp(UINT nFlags, CPoint point);
    afx_msg void OnMButtonDblClk(UINT nFlags, CPoint point);
    afx_msg void OnXButtonDown(UINT nFlags, UINT nButton, CPoint point);
    afx_msg void OnXButtonUp(UINT nFlags, UINT nButton, CPoint point);
    afx_msg void OnXButtonDblClk(UINT nFlags, UINT nButton, CPoint point);
    afx_msg BOOL OnMouseWheel(UINT nFlags, short zDelta, CPoint pt);
    afx_msg void OnMouseHWheel(UINT nFlags, short zDelta, CPoint pt);
    afx_msg void OnMouseHover(UINT nFlags, CPoint point);
    afx_msg void OnMouseLeave();
    afx_msg void OnCaptureChanged(CWnd* pWnd);

    // Clipboard, devices, the session, and what menus tell besides
    afx_msg void OnClipboardUpdate();
    afx_msg void OnDestroyClipboard();
    afx_msg void OnRenderFormat(UINT nFormat);
    afx_msg void OnRenderAllFormats();
    afx_msg void OnPaintClipboard(CWnd* pClipAppWnd, HGLOBAL hPaintStruct);
    afx_msg void OnSizeClipboard(CWnd* pClipAppWnd, HGLOBAL hRect);
    afx_msg void OnAskCbFormatName(UINT nMaxCount, LPTSTR lpszString);
    afx_msg void OnHScrollClipboard(CWnd* pClipAppWnd, UINT nSBCode, UINT nPos);
    afx_msg void OnVScrollClipboard(CWnd* pClipAppWnd, UINT nSBCode, UINT nPos);
    afx_msg void OnCompacting(UINT nCpuTime);
    afx_msg void OnSpoolerStatus(UINT nStatus, UINT nJobs);
    afx_msg void OnIconEraseBkgnd(CDC* pDC);
    afx_msg BOOL OnDeviceChange(UINT nEventType, DWORD_PTR dwData);
    afx_msg UINT OnPowerBroadcast(UINT nPowerEvent, LPARAM nEventData);
    afx_msg void OnSessionChange(UINT nSessionState, UINT nId);
    afx_msg void OnUserChanged();
    afx_msg void OnWinIniChange(LPCTSTR lpszSection);
    afx_msg void OnInputLangChange(UINT nCharSet, UINT nLocaleId);
    afx_msg void OnInputLangChangeRequest(UINT nFlags, UINT nLocaleId);
    afx_msg void OnHotKey(UINT nHotKeyId, UINT nKey1, UINT nKey2);
    afx_msg void OnRawInput(UINT nInputCode, HRAWINPUT hRawInput);
    afx_msg void OnNcMouseHover(UINT nHitTest, CPoint point);
    afx_msg void OnNcMouseLeave();
    afx_msg void OnNextMenu(UINT nKey, LPMDINEXTMENU lpMDINextMenu);
    afx_msg void OnUnInitMenuPopup(CMenu* pPopupMenu, UINT nFlags);
    afx_msg void OnMenuRButtonUp(UINT nPos, CMenu* pMenu);
    afx_msg UINT OnMenuDrag(UINT nPos, CMenu* pMenu);
    afx_msg UINT OnMenuGetObject(MENUGETOBJECTINFO* pMenuGetObjectInfo);
    afx_msg void OnMenuCommand(UINT nPos, CMenu* pMenu);
    afx_msg UINT OnQueryUIState();
    afx_msg void OnChangeUIState(UINT nAction, UINT nUIElement);
    afx_msg void OnUpdateUIState(UINT nAction, UINT nUIElement);

    // Palettes
    afx_msg BOOL OnQueryNewPalette();
    afx_msg void OnPaletteChanged(CWnd* pFocusWnd);
    afx_msg void OnPaletteIsChanging(CWnd* pRealizeWnd);

protected:
    friend struct AfxWndAccess;
    template <class, class>
    friend class CHandleMap;

    BOOL DispatchMapMessage(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult);
    BOOL DispatchCtlColor(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult);

    CHandleMapLink<CWnd> m_mapLink;

    DECLARE_MESSAGE_MAP()
};
