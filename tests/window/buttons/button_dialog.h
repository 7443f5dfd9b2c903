// A button in a dialog of a main window, and input that is sent without waiting for it: keys that
// stay down, and what goes into the loop of a menu.
#pragma once

#include "QVControls.h"
#include "support/pump.h"
#include "support/real_input.h"
#include "support/test_app.h"
#include "window/buttons/button_test_ids.h"

#include <afxext.h>

inline void SendKey(WORD vk, bool bUp) {
    INPUT input{};
    input.type = INPUT_KEYBOARD;
    input.ki.wVk = vk;
    input.ki.dwFlags = bUp ? KEYEVENTF_KEYUP : 0;
    ::SendInput(1, &input, sizeof input);
}
inline void SendKeys(const std::vector<WORD>& keys) {
    for (const WORD vk : keys) {
        SendKey(vk, false), SendKey(vk, true);
    }
}

constexpr DWORD kButtonStyle = WS_CHILD | WS_VISIBLE | WS_TABSTOP | BS_OWNERDRAW;
constexpr UINT kFirst = 900;

/// The application's.
class MainWindow : public CFrameWnd {
public:
    MainWindow() {
        Create(nullptr, "Main", WS_OVERLAPPEDWINDOW, CRect(0, 0, 300, 200));
        TheTestApp().m_pMainWnd = this;
    }
    ~MainWindow() override {
        TheTestApp().m_pMainWnd = nullptr;  // or it would end the program
        DestroyWindow();
    }
    void PostNcDestroy() override {}
    std::vector<UINT> m_commands;
    std::function<void()> m_act = [] {};

protected:
    BOOL OnCmdMsg(UINT nID, int nCode, void* p, AFX_CMDHANDLERINFO* pInfo) override {
        if (nCode != CN_COMMAND || nID < kFirst) {
            return CFrameWnd::OnCmdMsg(nID, nCode, p, pInfo);
        }
        m_commands.push_back(nID);
        m_act();
        return TRUE;
    }
};

class ToldDialog : public CDialog {
public:
    std::function<void(UINT nCode)> m_told = [](UINT) {};

protected:
    BOOL OnCommand(WPARAM wParam, LPARAM lParam) override {
        m_told(HIWORD(wParam));
        return CDialog::OnCommand(wParam, lParam);
    }
    BOOL OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* pResult) override {
        m_told(reinterpret_cast<NMHDR*>(lParam)->code);
        return CDialog::OnNotify(wParam, lParam, pResult);
    }
};

template <class Button>
struct ButtonDialog {
    ButtonDialog() {
        dlg.Create(IDD_BUTTONS, &frame);
        button->SubclassDlgItem(IDC_BUTTON, &dlg);
        button->SetWindowPos(nullptr, 0, 0, 30, 24, SWP_NOMOVE | SWP_NOZORDER);
        dlg.ShowWindow(SW_SHOW);
        BringToFront(dlg.m_hWnd);
        Edit().SetFocus();
    }
    ~ButtonDialog() {
        dlg.m_told = [](UINT) {};
    }
    CWnd& Edit() { return *dlg.GetDlgItem(IDC_EDIT); }
    std::string Text(int nID = IDC_EDIT) {
        CString str;
        dlg.GetDlgItemText(nID, str);
        return std::string(str);
    }

    MainWindow frame;
    ToldDialog dlg;
    std::unique_ptr<Button> button = std::make_unique<Button>();
};
