// ESC typed at a dialog that is busy: whoever works looks between two steps, without dispatching
// anything. The first other keys wait and are handed on at the end. Internal to the dialogs.

#pragma once

#include <afxwin.h>

namespace qv {

class TypedEscape {
public:
    // hDlg: its keys and those of its items count; before it shows, those that come to windows of
    // this thread that take no input.
    explicit TypedEscape(HWND hDlg) : m_hDlg(hDlg) {}
    // Hands the keys on, unless ESC was among them.
    ~TypedEscape();
    TypedEscape(const TypedEscape&) = delete;
    TypedEscape& operator=(const TypedEscape&) = delete;

    // True for ESC, which is off the queue then. A look may lead out: a window procedure of this
    // thread's runs if another thread has sent it something while a key was waiting.
    bool Look();

private:
    static constexpr int kMostKept = 16;

    bool Next(MSG& msg) const;
    bool CountsAsOurs(HWND hWnd) const;

    const HWND m_hDlg;
    MSG m_kept[kMostKept];
    int m_nKept = 0;
};

}  // namespace qv
