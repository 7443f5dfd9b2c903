#include "QVControls.h"
#include "support/picture.h"
#include "support/recording_parent.h"

#include <gtest/gtest.h>

namespace {

TEST(CheckWnd, ASquareAsHighAsTheWindowIsWideWithACrossWhenSet) {
    RecordingParent parent(CSize(100, 60));
    const COLORREF crLine = ::GetSysColor(COLOR_WINDOWTEXT);
    for (const int nHeight : {12, 20, 8}) {
        QVCheckWnd check;
        ASSERT_TRUE(check.Create(nullptr, "", WS_CHILD | WS_VISIBLE, CRect(5, 5, 17, 5 + nHeight),
                                 &parent, 1));
        const Picture up = Picture::OfClient(check.m_hWnd);
        EXPECT_EQ(up.At(5, 4), RGB(192, 192, 192));
        EXPECT_EQ(up.Count(crLine), nHeight == 8 ? 12 + 2 * 7 : 44) << "cut off, or none below";
        for (const int nTimes : {1, 2}) {
            check.SetIsChecked(nTimes);
            EXPECT_EQ(check.Checked(), nTimes);
            EXPECT_TRUE(::GetUpdateRect(check.m_hWnd, nullptr, FALSE)) << "also the second time";
            const Picture set = Picture::OfClient(check.m_hWnd);
            EXPECT_EQ(set.Count(crLine), nHeight == 8 ? 12 + 2 * 7 + 2 * 7 : 44 + 20);
            EXPECT_EQ(set.At(4, 4), crLine);
            EXPECT_EQ(set.At(7, 4), crLine);
        }
        check.SetIsChecked(FALSE);
        EXPECT_TRUE(Picture::OfClient(check.m_hWnd) == up) << "nothing is left";
    }
}

}  // namespace
