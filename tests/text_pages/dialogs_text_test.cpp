// What dialogs show and give back means what the process's code page says.
#include "QVControls.h"
#include "page_text.h"
#include "support/acting_dialog.h"

#include <gtest/gtest.h>

TEST(AskDialogsText, IsOfTheProcessesCodePage) {
    for (const auto& word : PageWords()) {
        ActingDialog<QVMsgPromptDlg> prompt;
        prompt.SetPrompt(word.str.c_str());
        prompt.m_action = [&] {
            EXPECT_EQ(WideTextOf(prompt.GetDlgItem(30102)->m_hWnd), word.strWide);
            ::SetDlgItemTextW(prompt.m_hWnd, 30103, word.strWide.c_str());
            prompt.SendMessage(WM_COMMAND, IDOK);
        };
        prompt.DoModal();
        EXPECT_EQ(std::string(prompt.GetValue()), word.str);
    }
}
