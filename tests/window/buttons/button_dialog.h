// A button in a dialog of a main window, and keys that are sent without waiting for them: they may
// stay down, or go into the loop of a menu.
#pragma once

#include "QVControls.h"
#include "support/mortal.h"
#include "support/picture.h"
#include "support/pump.h"
#include "support/real_input.h"
#include "support/recording_parent.h"
#include "support/test_app.h"
#include "support/told_dialog.h"
#include "window/buttons/button_test_ids.h"
#include "window/refusals.h"

inline void SendKey(WORD vk, bool bUp) {
    INPUT input{};
    input.type = INPUT_KEYBOARD;
    input.ki.wVk = vk;
    input.ki.dwFlags = bUp ? KEYEVENTF_KEYUP : 0;
    ::SendInput(1, &input, sizeof input);
}

const CPoint kIn(5, 8);

template <class Button>
struct ButtonDialog {
    explicit ButtonDialog(UINT nID = IDC_BUTTON) {
        TheTestApp().m_pMainWnd = &frame;
        dlg.Create(IDD_BUTTONS, &frame);
        button->SubclassDlgItem(nID, &dlg);
        button->SetWindowPos(nullptr, 0, 0, 30, 24, SWP_NOMOVE | SWP_NOZORDER);
        dlg.ShowWindow(SW_SHOW);
        BringToFront(dlg.m_hWnd);
        dlg.GetDlgItem(IDC_EDIT)->SetFocus();
    }
    ~ButtonDialog() {
        dlg.m_told = [](UINT) {};
        TheTestApp().m_pMainWnd = nullptr;  // or its window would end the program
    }

    RecordingParent frame;
    ToldDialog dlg;
    std::unique_ptr<Button> button = std::make_unique<Button>();
};
