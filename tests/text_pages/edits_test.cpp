// Text boxes and edits that complete, by whole characters.
#include "page_text.h"
#include "support/recording_parent.h"
#include "text/edit_positions.h"

#include <QVControls.h>
#include <gtest/gtest.h>

namespace {

class TextEdits : public testing::Test {
protected:
    static std::string TextOf(const CWnd& wnd) {
        CString str;
        wnd.GetWindowText(str);
        return std::string(str);
    }

    const CRect rc{0, 0, 200, 24};
    RecordingParent parent;
};

TEST_F(TextEdits, ATextBoxGivesWholeCharacters) {
    QVTextBox box;
    ASSERT_TRUE(box.Create(1, rc, &parent));
    for (const PageWord& word : PageWords()) {
        box.SetTextList((" " + word.str + " \tx").c_str());
        for (size_t nRoom = 0; nRoom <= word.str.size(); ++nRoom) {
            std::string strPart(nRoom, '#');
            const LRESULT nBytes =
                box.SendMessage(WM_GETTEXT, nRoom, reinterpret_cast<LPARAM>(strPart.data()));
            EXPECT_LT(nRoom - static_cast<size_t>(nBytes), 4u);
            strPart.resize(static_cast<size_t>(nBytes));
            EXPECT_EQ(word.str.find(strPart), 0u);
            EXPECT_EQ(word.strWide.find(FromPage(strPart)), 0u) << word.str << ' ' << nRoom;
        }
        EXPECT_EQ(TextOf(box), word.str);
    }
}

TEST_F(TextEdits, PositionsAreThoseOfTheEdit) {
    CEdit edit;
    CEdit lines;
    ASSERT_TRUE(edit.Create(WS_CHILD | ES_AUTOHSCROLL, rc, &parent, 1));
    ASSERT_TRUE(lines.Create(WS_CHILD | ES_MULTILINE | ES_AUTOHSCROLL, rc, &parent, 2));
    for (const PageWord& word : PageWords()) {
        const int nBytes = static_cast<int>(word.str.size());
        for (int nByte = -1; nByte <= nBytes + 1; ++nByte) {
            ::SetWindowTextW(edit.m_hWnd, word.strWide.c_str());
            const qv::EditPositions positions(edit.m_hWnd, word.str);
            const int nPosition = positions.FromByte(nByte);
            const int nBack = positions.ToByte(nPosition);
            ASSERT_TRUE(nBack >= std::min(nByte, nBytes) && nBack - nByte < 4) << word.str;
            edit.SetSel(0, nPosition);
            edit.ReplaceSel("");
            ASSERT_EQ(TextOf(edit), word.str.substr(static_cast<size_t>(nBack))) << nByte;
        }
        ::SetWindowTextW(lines.m_hWnd, (word.strWide + L"\r\n" + word.strWide).c_str());
        const std::string strLines = word.str + "\r\n" + word.str;
        const qv::EditPositions inLines(lines.m_hWnd, strLines);
        EXPECT_EQ(inLines.FromByte(nBytes + 2), lines.LineIndex(1)) << word.str;
    }
}

TEST_F(TextEdits, CompletionGoesOnBehindAnyCharacterAndNeverInsideOne) {
    QVSpeedEdit edit;
    CEdit& base = edit;
    CStringArray names;
    edit.SetSpeedData(&names);
    ASSERT_TRUE(edit.Create(WS_CHILD | ES_AUTOHSCROLL, rc, &parent, 1));
    const auto type = [&](const std::wstring& strWide) {
        for (const wchar_t c : strWide) {
            ::SendMessageW(edit.m_hWnd, WM_CHAR, c, 1);
        }
        int nStart, nEnd;
        base.GetSel(nStart, nEnd);
        const std::string str = TextOf(edit);
        const int nByte = qv::EditPositions(edit.m_hWnd, str).ToByte(nStart);
        return std::string(str).insert(static_cast<size_t>(nByte), "[");
    };
    for (const PageWord& word : PageWords()) {
        edit.SetSpeedOnly(0);
        edit.SetWindowText("");
        names.RemoveAll();
        names.Add("\\completed");  // its first byte is the second one of some characters
        EXPECT_EQ(type(word.strWide), word.str + "[");
        names.SetAt(0, (word.str + "beta").c_str());
        EXPECT_EQ(type(L"B"), word.str + "b[eta");
        edit.SetSpeedOnly(1);
        EXPECT_EQ(type(L"\b"), word.str + "[beta");
        const bool bTwoUnits = IS_LOW_SURROGATE(word.strWide.back());
        const size_t nLast = word.strWide.size() - (bTwoUnits ? 2 : 1);
        std::string strBefore, strLast;
        ToPage(word.strWide.substr(0, nLast), strBefore);
        ToPage(word.strWide.substr(nLast), strLast);
        EXPECT_EQ(type(L"\b"), strBefore + "[" + strLast + "beta");
    }
}

}  // namespace
