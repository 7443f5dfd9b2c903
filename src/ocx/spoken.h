// What a control of the module tells a screen reader. The control answers the steps of SpokenParts
// and has a SpokenControl, which answers WM_GETOBJECT by them and tells events.
//
// Parts are numbers: 0 is the control itself, its own parts - tabs, cells - are 1 to PartCount().
// Behind them come the windows that a container has put into the control's. Texts are as a person
// hears them. Steps may throw as members may.

#pragma once

#include "ocx/control.h"

#include <oleacc.h>
#include <string>
#include <string_view>

namespace ocx {

/// All that is said of a part; nothing for an empty text.
struct Spoken {
    LONG nRole = ROLE_SYSTEM_CLIENT;
    LONG nState = 0;  ///< what the window adds (unavailable, invisible) is not in it
    std::wstring name;
    std::wstring value;
    std::wstring description;
    std::wstring action;    ///< what DoPart does, in a word
    std::wstring shortcut;  ///< the character of "Alt+P"
};

class SpokenParts {
public:
    /// The base names the control itself by the text before it in its window.
    virtual Spoken Say(LONG nPart) = 0;
    virtual LONG PartCount() { return 0; }
    /// Client pixels; false for a part that has no place.
    virtual bool PartRect(LONG, RECT&) { return false; }
    virtual LONG PartAt(POINT) { return 0; }
    virtual LONG FocusedPart() { return 0; }
    /// The next selected part behind one, the first for 0; 0 at the end.
    virtual LONG NextSelected(LONG) { return 0; }
    /// The part beside one, by an NAVDIR_; 0 for none. The base goes through them in order.
    virtual LONG PartBeside(LONG nPart, LONG nDirection);
    /// As a user does; the container is asked and told. False if it is not so then.
    virtual bool SelectPart(LONG) { return false; }
    virtual bool DoPart(LONG) { return false; }
    virtual bool PutPart(LONG, std::wstring_view) { return false; }
    /// False where child windows are the control's own affair.
    virtual bool HasWindows() { return true; }

protected:
    ~SpokenParts() = default;
};

class SpokenObject;

/// The control's side of the object that a screen reader holds, which outlives the control.
class SpokenControl {
public:
    SpokenControl(Control& control, SpokenParts& parts) : m_control(control), m_parts(parts) {}
    ~SpokenControl();
    SpokenControl(const SpokenControl&) = delete;
    SpokenControl& operator=(const SpokenControl&) = delete;

    /// False if WM_GETOBJECT asks for something else, or there is no memory.
    bool Answer(WPARAM wParam, LPARAM lParam, LRESULT& lResult);
    /// EVENT_OBJECT_ of a part.
    void Tell(DWORD dwEvent, LONG nPart);

private:
    HWND Window();

    Control& m_control;
    SpokenParts& m_parts;
    Ref<IAccessible> m_object;
    SpokenObject* m_pObject = nullptr;  ///< the same
};

}  // namespace ocx
