// An edit that its parent may take away when it is told something.
#pragma once

#include "support/monkey.h"
#include "support/mortal.h"
#include "support/real_input.h"
#include "support/text_window.h"
#include "window/refusals.h"

#include <gtest/gtest.h>

template <class Edit>
class EditWindow : public testing::Test, protected FontParent {
protected:
    EditWindow() : FontParent(CSize(300, 200)) {}
    BOOL OnCommand(WPARAM wParam, LPARAM lParam) override {
        m_told(wParam, lParam);
        return FontParent::OnCommand(wParam, lParam);
    }

    std::function<void(WPARAM, LPARAM)> m_told = [](WPARAM, LPARAM) {};
    std::unique_ptr<Edit> pEdit;
};
