// Statuses and the text dialog mean what the process's code page says.
#include "QVControls.h"
#include "page_text.h"

#include <gtest/gtest.h>

namespace {

TEST(StatusText, IsOfTheProcessesCodePage) {
    for (const auto& [strWide, str] : PageWords()) {
        QVStatus status(1001, str.c_str());
        CString strShort;
        QVStatusOutputGenerator(nullptr).AsCompactString(&status, strShort);
        QVTextDlg dialog;
        dialog.SetTitle(strShort);
        dialog.SetMessage(strShort);
        ASSERT_TRUE(dialog.Create(30005u));
        EXPECT_EQ(strWide, WideTextOf(dialog));
        EXPECT_EQ(strWide, WideTextOf(dialog.GetDlgItem(30118)->m_hWnd));
    }
}

}  // namespace
