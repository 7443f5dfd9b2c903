// A modal dialog that does in its loop what a test wants, and ends with that.
#pragma once

#include <afxwin.h>

#include <functional>

/// Base: a dialog or sheet.
template <class Base>
class ActingDialog : public Base {
public:
    using Base::Base;

    static constexpr int kStillThere = 4711;  ///< the result of a dialog that did not end itself
    std::function<void()> m_action = [] {};

    BOOL OnInitDialog() override {
        this->PostMessage(kAct);
        return Base::OnInitDialog();
    }

protected:
    virtual bool IsModal() { return true; }
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
        if (message != kAct || !IsModal()) {
            return Base::WindowProc(message, wParam, lParam);
        }
        m_action();
        if (this->m_hWnd != nullptr && this->ContinueModal()) {
            this->EndDialog(kStillThere);
        }
        return 0;
    }

private:
    static constexpr UINT kAct = WM_APP + 21;
};
