// A dialog that does something when it is told of its controls.
#pragma once

#include <afxwin.h>

#include <functional>

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
