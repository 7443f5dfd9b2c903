// Command targets: objects that have a message map and take part in the routing of commands.
#pragma once

#include <afx.h>

struct AFX_EVENT;
struct AFX_EVENTSINKMAP;
class CCmdTarget;
class CCmdUI;
class CMenu;
class CWnd;

// Codes that a command carries while it is routed. The upper word of a routed code names the
// message that it came with (WM_NOTIFY, a reflected message); zero stands for WM_COMMAND.
#define CN_COMMAND 0
#define CN_UPDATE_COMMAND_UI ((UINT)(-1))
#define CN_EVENT ((UINT)(-2))  // of a control: afx/ole/event_sink.h

/// What a map entry's call gets and gives. A message entry reads the parameters; a command entry
/// reads the identifier and the extra pointers. Clearing bHandled lets the search or routing go on.
struct AFX_MSGCALL {
    WPARAM wParam = 0;
    LPARAM lParam = 0;
    UINT nID = 0;
    CCmdUI* pCmdUI = nullptr;
    NMHDR* pNMHDR = nullptr;
    LRESULT* pResult = nullptr;
    BOOL bHandled = TRUE;
};

typedef LRESULT (*AFX_PFNMSGCALL)(CCmdTarget* pTarget, AFX_MSGCALL& call);

/// One line of a message map. The last line of a map has no call.
struct AFX_MSGMAP_ENTRY {
    UINT nMessage;
    UINT nCode;  ///< control or notification code, as a word
    UINT nID;    ///< control or command identifiers, inclusive
    UINT nLastID;
    const UINT* pnRegistered;  ///< where a registered message's number is kept, else null
    AFX_PFNMSGCALL pfnCall;
};

/// A class's map. The base is reached through a function, because its map may lie in another
/// module.
struct AFX_MSGMAP {
    const AFX_MSGMAP* (*pfnGetBaseMap)();
    const AFX_MSGMAP_ENTRY* lpEntries;
};

#ifndef QVAFX_STRICT
/// A module with message maps is about to go; found entries are looked up anew.
QVAFX_API void AfxForgetMessageMaps();
#endif

/// Filled by OnCmdMsg instead of calling the handler, when a caller only asks whether there is one.
struct AFX_CMDHANDLERINFO {
    CCmdTarget* pTarget = nullptr;
    AFX_PFNMSGCALL pfnCall = nullptr;
};

/// The extra pointer of a routed WM_NOTIFY.
struct AFX_NOTIFY {
    LRESULT* pResult;
    NMHDR* pNMHDR;
};

class QVAFX_API CCmdTarget : public CObject {
    DECLARE_DYNAMIC(CCmdTarget)

public:
    CCmdTarget();
    virtual ~CCmdTarget();

    /// Wait cursor calls nest; the arrow comes back with the last End.
    void BeginWaitCursor();
    void EndWaitCursor();
    void RestoreWaitCursor();

    /// Routes a command, control notification or command update. Gives TRUE if it was handled, or,
    /// with pHandlerInfo, if there is a handler.
    virtual BOOL OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo);

    /// The last outside reference went away. Deletes the object.
    virtual void OnFinalRelease();

protected:
    static const AFX_MSGMAP* GetThisMessageMap();
    virtual const AFX_MSGMAP* GetMessageMap() const;
    static const AFX_EVENTSINKMAP* GetThisEventSinkMap();
    virtual const AFX_EVENTSINKMAP* GetEventSinkMap() const;

    /// Calls the handler of a control's event, if the event sink map has one. Gives TRUE if the
    /// event was handled or refused, or, with pHandlerInfo, if there is a handler. Nothing is
    /// thrown.
    BOOL OnEvent(UINT idCtrl, AFX_EVENT* pEvent, AFX_CMDHANDLERINFO* pHandlerInfo);
};

/// The state of one user interface element that stands for a command, while it is brought up to
/// date.
class QVAFX_API CCmdUI {
public:
    CCmdUI();
    virtual ~CCmdUI() = default;

    UINT m_nID = 0;
    UINT m_nIndex = 0;  ///< of the item in its menu or bar
    CMenu* m_pMenu = nullptr;
    CMenu* m_pSubMenu = nullptr;  ///< set when the item opens a menu
    CWnd* m_pOther = nullptr;     ///< a control or bar, when it is no menu item
    BOOL m_bEnableChanged = FALSE;
    BOOL m_bContinueRouting = FALSE;
    UINT m_nIndexMax = 0;
    CMenu* m_pParentMenu = nullptr;

    virtual void Enable(BOOL bOn = TRUE);
    virtual void SetCheck(int nCheck = 1);  ///< 0 off, 1 on, 2 indeterminate
    virtual void SetRadio(BOOL bOn = TRUE);
    virtual void SetText(LPCTSTR lpszText);

    /// Asks pTarget's chain for the state. An element whose command nobody handles is disabled if
    /// bDisableIfNoHndler. Gives TRUE if an update handler ran.
    BOOL DoUpdate(CCmdTarget* pTarget, BOOL bDisableIfNoHndler);
    void ContinueRouting() { m_bContinueRouting = TRUE; }
};

/// Shows the wait cursor while it lives.
class QVAFX_API CWaitCursor {
public:
    CWaitCursor();
    ~CWaitCursor();
    CWaitCursor(const CWaitCursor&) = delete;
    CWaitCursor& operator=(const CWaitCursor&) = delete;

    /// After something else (a message box, say) changed the cursor.
    void Restore();
};

#define DECLARE_MESSAGE_MAP()                     \
protected:                                        \
    static const AFX_MSGMAP* GetThisMessageMap(); \
    const AFX_MSGMAP* GetMessageMap() const override;

#define AFX_MESSAGE_MAP_BODY_(theClass, baseClass)   \
    {                                                \
        using ThisClass [[maybe_unused]] = theClass; \
        using TheBaseClass = baseClass;              \
        static const AFX_MSGMAP_ENTRY _messageEntries[] = {
#define BEGIN_MESSAGE_MAP(theClass, baseClass)          \
    const AFX_MSGMAP* theClass::GetMessageMap() const { \
        return GetThisMessageMap();                     \
    }                                                   \
    const AFX_MSGMAP* theClass::GetThisMessageMap() AFX_MESSAGE_MAP_BODY_(theClass, baseClass)

#define BEGIN_TEMPLATE_MESSAGE_MAP(theClass, type_name, baseClass) \
    template <typename type_name>                                  \
    const AFX_MSGMAP* theClass<type_name>::GetMessageMap() const { \
        return theClass<type_name>::GetThisMessageMap();           \
    }                                                              \
    template <typename type_name>                                  \
    const AFX_MSGMAP* theClass<type_name>::GetThisMessageMap()     \
        AFX_MESSAGE_MAP_BODY_(theClass<type_name>, baseClass)

#define END_MESSAGE_MAP()                                                                     \
    { 0, 0, 0, 0, nullptr, nullptr }                                                          \
    }                                                                                         \
    ;                                                                                         \
    static const AFX_MSGMAP messageMap = {&TheBaseClass::GetThisMessageMap, _messageEntries}; \
    return &messageMap;                                                                       \
    }
