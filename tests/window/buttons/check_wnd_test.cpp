#include "QVControls.h"
#include "support/picture.h"
#include "support/recording_parent.h"
#include "window/buttons/button_test_ids.h"
#include "window/refusals.h"

#include <gtest/gtest.h>

namespace {

constexpr COLORREF kFace = RGB(192, 192, 192);

// Counts the pixels of the box and of its cross, both of which are lines in the text's colour.
int Lines(const Picture& shown) {
    return shown.Count(::GetSysColor(COLOR_WINDOWTEXT));
}

TEST(CheckWnd, ASquareAsHighAsTheWindowIsWideWithACrossWhenSet) {
    RecordingParent parent(CSize(100, 60));
    for (const CSize size : {CSize(12, 12), CSize(12, 20), CSize(20, 12)}) {
        QVCheckWnd check;
        ASSERT_TRUE(check.Create(nullptr, "", WS_CHILD | WS_VISIBLE, CRect(CPoint(5, 5), size),
                                 &parent, 1));
        const int nSide = size.cx;
        const Picture up = Picture::OfClient(check.m_hWnd);
        EXPECT_EQ(up.At(nSide - 1, 0), ::GetSysColor(COLOR_WINDOWTEXT));
        EXPECT_EQ(up.At(5, 5), kFace);
        if (nSide < size.cy) {
            EXPECT_EQ(up.At(0, nSide - 1), ::GetSysColor(COLOR_WINDOWTEXT));
            EXPECT_EQ(Lines(up), 4 * (nSide - 1)) << "none below";
        } else if (nSide > size.cy) {
            EXPECT_EQ(up.At(5, size.cy - 1), kFace) << "cut off";
        }
        for (const int nTimes : {1, 2}) {
            check.SetIsChecked(nTimes);
            EXPECT_EQ(check.Checked(), nTimes);
            EXPECT_TRUE(::GetUpdateRect(check.m_hWnd, nullptr, FALSE)) << "also the second time";
            const Picture set = Picture::OfClient(check.m_hWnd);
            for (int i = 0; i < std::min<int>(nSide, size.cy); ++i) {
                EXPECT_EQ(set.At(i, i), ::GetSysColor(COLOR_WINDOWTEXT));
                EXPECT_EQ(set.At(nSide - 1 - i, i), ::GetSysColor(COLOR_WINDOWTEXT));
            }
            EXPECT_EQ(Lines(set), Lines(up) + (size.cy >= nSide ? 2 * (nSide - 2) : 2 * 11));
        }
        check.SetIsChecked(FALSE);
        EXPECT_TRUE(Picture::OfClient(check.m_hWnd) == up) << "nothing is left";
    }
}

class Filled : public QVCheckWnd {
protected:
    void DrawWindow(CDC& dc) override {
        if (m_bChecked) {
            AfxThrowMemoryException();
        }
        dc.FillSolidRect(0, 0, 99, 99, RGB(1, 2, 3));
    }
};

TEST(CheckWnd, AnItemOfADialogMayDrawOtherwiseAndIsNotPaintedForEverWithoutMemory) {
    const LONG nOwned = AfxGetOwnedHandleCount();
    for (int i = 0; i < 1000; ++i) {
        Filled check;
        check.SetIsChecked(FALSE);
        if (i % 100 == 0) {
            CDialog dlg;
            ASSERT_TRUE(dlg.Create(IDD_BUTTONS));
            ASSERT_TRUE(check.SubclassDlgItem(IDC_MARK, &dlg));
            dlg.ShowWindow(SW_SHOW);
            EXPECT_EQ(Picture::OfClient(check.m_hWnd).At(3, 3), RGB(1, 2, 3));
            check.SetIsChecked(TRUE);
            check.UpdateWindow();
            EXPECT_FALSE(::GetUpdateRect(check.m_hWnd, nullptr, FALSE));
        }
    }
    EXPECT_EQ(AfxGetOwnedHandleCount(), nOwned);
}

}  // namespace
