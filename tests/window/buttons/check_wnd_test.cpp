#include "window/buttons/button_dialog.h"

#include <gtest/gtest.h>

namespace {

TEST(CheckWnd, ASquareAsHighAsTheWindowIsWideWithACrossWhenSet) {
    ButtonDialog<QVCheckWnd> w(IDC_MARK);
    const COLORREF crLine = ::GetSysColor(COLOR_WINDOWTEXT);
    for (const auto& [nHeight, nBox, nCross] :
         {std::array{12, 44, 20}, {20, 44, 20}, {8, 26, 14}}) {
        w.button->SetWindowPos(nullptr, 0, 0, 12, nHeight, SWP_NOMOVE | SWP_NOZORDER);
        for (const int bChecked : {0, 1, 1, 0}) {
            w.button->UpdateWindow();
            w.button->SetIsChecked(bChecked);
            EXPECT_EQ(w.button->Checked(), bChecked);
            EXPECT_TRUE(::GetUpdateRect(w.button->m_hWnd, nullptr, FALSE)) << "also if it was so";
            const Picture shown = Picture::OfClient(w.button->m_hWnd);
            EXPECT_EQ(shown.Count(crLine), nBox + bChecked * nCross) << "cut off, or none below";
            EXPECT_EQ(shown.At(4, 4) == crLine && shown.At(7, 4) == crLine, bChecked != 0);
            EXPECT_EQ(shown.At(6, 3), RGB(192, 192, 192));
        }
    }
}

}  // namespace
