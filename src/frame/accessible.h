// What a control that draws itself tells a screen reader.
//
// A control derives from QVAccessible beside its window class and answers WM_GETOBJECT by it. Its
// parts - rows, cells, steps - are numbers; 0 is the control itself (CHILDID_SELF). Numbers above 0
// are the control's own choice: one that an event named still means that part when it is asked
// about, as long as the part is there. Part numbers come from outside: the base class asks
// IsAccessiblePart before anything else is asked about one.
//
// Every step is virtual, so that an application may replace what is said. Texts are heard, not
// read: no style codes and no TABs. They are in the process's code page.
//
//     CString PackageTree::GetAccessibleName(long nPart) {
//         const CString strName = QVTreeCtrlEx::GetAccessibleName(nPart);
//         return IsBroken(nPart) ? strName + ", broken" : strName;
//     }
//
// Rectangles and points are in client pixels. Roles, states and directions are the constants of
// <oleacc.h>. A step may throw for want of memory: the question then fails, and nothing else.
//
// What asks holds an object that outlives the window and the control: each call then answers
// CO_E_OBJNOTCONNECTED. The first question makes COM ready in the control's thread, for good.

#pragma once

#include "frame/qv_api.h"

#include <afxwin.h>

namespace qv {
class AccessibleObject;
}

class QV_CONTROLS_API QVAccessible {
public:
    // --- What is said of a part

    // Of the control: its window text, or the text before it in its dialog, without the '&'.
    virtual CString GetAccessibleName(long nPart);
    virtual CString GetAccessibleValue(long nPart);
    virtual CString GetAccessibleDescription(long nPart);
    // "Alt+P", of the control by the '&' of its label.
    virtual CString GetAccessibleShortcut(long nPart);
    // What DoAccessibleAction would do, in a word: "Expand". Empty: nothing.
    virtual CString GetAccessibleAction(long nPart);
    // ROLE_SYSTEM_. The base gives the control as a client area, and its parts as list items.
    virtual long GetAccessibleRole(long nPart);
    // STATE_SYSTEM_ bits. The base gives those of the window: focus, unavailable, invisible. A part
    // adds its own to those of AccessibleWindowState.
    virtual long GetAccessibleState(long nPart);
    // False for a part that has no place; one that is scrolled out of view has one if it costs
    // nothing to know. Of the control: its client area.
    virtual BOOL GetAccessibleRect(long nPart, CRect& rect);

    // --- Which parts there are

    virtual BOOL IsAccessiblePart(long nPart);
    // Parts in the order of reading, by position from 0. Neither may cost more with more parts.
    virtual long GetAccessibleCount();
    virtual long GetAccessiblePart(long nIndex);
    // The position of a part; -1 for one that is there but not among the counted ones.
    virtual long GetAccessibleIndex(long nPart);
    // A part that is a window of its own, as an editor in a cell, answers for itself.
    virtual HWND GetAccessibleWindow(long nPart);
    // The part at a point of the client area; 0 for none.
    virtual long AccessibleHitTest(CPoint pt);
    // The part that lies NAVDIR_ of one, 0 for none. The base goes by the order of reading: up is
    // the one before, down the next.
    virtual long NavigateAccessible(long nPart, long nDirection);

    // --- Focus and selection

    // The part that has the focus when the control has it; 0 for the control itself.
    virtual long GetAccessibleFocus();
    // The next selected part behind one, the first for 0; 0 at the end.
    virtual long GetNextAccessibleSelected(long nPart);
    // SELFLAG_ bits that are possible together. False if it cannot be done. The base gives the
    // control itself the focus. It tells the parent as a user's deed would, so the control may be
    // gone afterwards.
    virtual BOOL SelectAccessible(long nPart, long nFlags);
    // Does what GetAccessibleAction says, as a user's deed: the control may be gone afterwards.
    virtual BOOL DoAccessibleAction(long nPart);
    // A new value, where users may type one.
    virtual BOOL SetAccessibleValue(long nPart, const CString& strValue);

protected:
    // wnd is the control that derives from this.
    explicit QVAccessible(CWnd& wnd) : m_wnd(wnd) {}
    virtual ~QVAccessible();
    QVAccessible(const QVAccessible&) = delete;
    QVAccessible& operator=(const QVAccessible&) = delete;

    // For a control whose window text is its value or nothing to be heard: the text before it in
    // its dialog alone is its name, and has its shortcut.
    void NameByLabelAlone() { m_bNameByLabelAlone = true; }
    // The text that is before the control now stays its label, wherever the control goes among its
    // siblings.
    void KeepAccessibleLabel();
    // A text without the '&' of its mnemonics; "&&" is one.
    static CString WithoutMarks(const CString& strText);

    // For the control's handler of WM_GETOBJECT: true if the question is for AnswerAccessible, else
    // it is for the default handling.
    static bool AsksAccessible(LPARAM lParam);
    LRESULT AnswerAccessible(WPARAM wParam, LPARAM lParam);

    // --- Events. Each is a call, and no more while nobody listens.

    // EVENT_OBJECT_ of a part.
    void TellAccessible(DWORD nEvent, long nPart) const;
    // A part is selected now: the focus goes with it if the control has it.
    void TellAccessibleSelected(long nPart) const;
    // Parts came, went or moved. However often it is called, one event goes out as soon as the
    // message queue is looked at.
    void TellAccessibleReorder();

    // For a deed that the parent may answer by a dialog: who asks goes on at once, and
    // DoPostedAccessible comes with the messages that are posted. False if nothing can be posted.
    BOOL PostAccessible(long nPart);
    // The part is there. The control may be gone afterwards.
    virtual void DoPostedAccessible(long nPart);

    // STATE_SYSTEM_ bits that the window gives to all its parts: unavailable, invisible.
    long AccessibleWindowState() const;
    // Nearly all that a selectable part says of its state.
    long AccessiblePartState(bool bSelected, bool bFocused, bool bOnScreen) const;

private:
    CString LabelText() const;

    CWnd& m_wnd;
    qv::AccessibleObject* m_pObject = nullptr;  // one of its references
    HWND m_hReorderDue = nullptr;               // the window that an event is due of
    HWND m_hLabel = nullptr;                    // that was kept
    long m_nPosted = 0;                         // the part that a deed is due of
    bool m_bNameByLabelAlone = false;
};
