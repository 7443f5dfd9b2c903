// Text boxes and edits that complete, by whole characters.
#include "page_text.h"
#include "support/recording_parent.h"
#include "text/edit_positions.h"

#include <QVControls.h>
#include <gtest/gtest.h>

namespace {

const CRect kPlace(0, 0, 200, 24);

std::string TextOf(const CWnd& wnd) {
    CString str;
    wnd.GetWindowText(str);
    return std::string(str);
}

TEST(TextEdits, ATextBoxGivesWholeCharacters) {
    RecordingParent parent;
    QVTextBox box;
    ASSERT_TRUE(box.Create(1, kPlace, &parent));
    for (const PageWord& word : PageWords()) {
        box.SetTextList((" " + word.str + " \tx").c_str());
        EXPECT_EQ(TextOf(box), word.str);
        box.SetWindowText("x");
        ::SetWindowTextW(box.m_hWnd, word.strWide.c_str());
        EXPECT_EQ(TextOf(box), word.str);
        for (size_t nRoom = 0; nRoom < word.str.size(); ++nRoom) {
            std::string strPart(nRoom, '#');
            const LRESULT nBytes =
                box.SendMessage(WM_GETTEXT, nRoom, reinterpret_cast<LPARAM>(strPart.data()));
            EXPECT_LE(nRoom - static_cast<size_t>(nBytes), 3u);
            strPart.resize(static_cast<size_t>(nBytes));
            EXPECT_EQ(word.str.find(strPart), 0u);
            EXPECT_EQ(word.strWide.find(FromPage(strPart)), 0u) << word.str << ' ' << nRoom;
        }
    }
}

TEST(TextEdits, PositionsAreThoseOfTheEdit) {
    RecordingParent parent;
    CEdit edit;
    CEdit lines;
    ASSERT_TRUE(edit.Create(WS_CHILD | ES_AUTOHSCROLL, kPlace, &parent, 1));
    ASSERT_TRUE(lines.Create(WS_CHILD | ES_MULTILINE | ES_AUTOHSCROLL, kPlace, &parent, 2));
    for (const PageWord& word : PageWords()) {
        const int nBytes = static_cast<int>(word.str.size());
        ::SetWindowTextW(edit.m_hWnd, word.strWide.c_str());
        const qv::EditPositions positions(edit.m_hWnd, word.str);
        for (int nByte = 0; nByte <= nBytes; ++nByte) {
            const int nPosition = positions.FromByte(nByte);
            const int nBack = positions.ToByte(nPosition);
            ASSERT_TRUE(nBack >= nByte && nBack - nByte < 4) << word.str << ' ' << nByte;
            ::SetWindowTextW(edit.m_hWnd, word.strWide.c_str());
            edit.SetSel(0, nPosition);
            edit.ReplaceSel("");
            ASSERT_EQ(TextOf(edit), word.str.substr(static_cast<size_t>(nBack))) << nByte;
        }
        EXPECT_EQ(positions.ToByte(999), nBytes);
        EXPECT_EQ(positions.ToByte(-1), 0);
        EXPECT_EQ(positions.FromByte(999), positions.FromByte(nBytes));
        ::SetWindowTextW(lines.m_hWnd, (word.strWide + L"\r\n" + word.strWide).c_str());
        const std::string strLines = word.str + "\r\n" + word.str;
        const qv::EditPositions inLines(lines.m_hWnd, strLines);
        EXPECT_EQ(inLines.FromByte(nBytes + 2), lines.LineIndex(1)) << word.str;
        EXPECT_EQ(inLines.ToByte(lines.LineIndex(1)), nBytes + 2);
    }
}

class TextSpeedEdit : public testing::Test {
protected:
    TextSpeedEdit() {
        m_edit.SetSpeedData(&m_names);
        m_edit.Create(WS_CHILD | WS_VISIBLE | ES_AUTOHSCROLL, kPlace, &m_parent, 1);
    }
    void Type(const std::wstring& strWide) {
        for (const wchar_t c : strWide) {
            ::SendMessageW(m_edit.m_hWnd, WM_CHAR, c, 1);
        }
    }
    // The text before the selection, and what is selected.
    std::string Before() {
        CEdit& edit = m_edit;
        const std::string str = TextOf(edit);
        int nStart;
        int nEnd;
        edit.GetSel(nStart, nEnd);
        const qv::EditPositions positions(edit.m_hWnd, str);
        EXPECT_EQ(positions.ToByte(nEnd), static_cast<int>(str.size()));
        return str.substr(0, static_cast<size_t>(positions.ToByte(nStart)));
    }

    RecordingParent m_parent;
    CStringArray m_names;
    QVSpeedEdit m_edit;
};

TEST_F(TextSpeedEdit, PartsOfCharactersAreNotCompleted) {
    m_names.Add("\\completed");  // its first byte is the second one of some characters
    for (const PageWord& word : PageWords()) {
        m_edit.SetWindowText("");
        Type(word.strWide);
        EXPECT_EQ(TextOf(m_edit), word.str);
        EXPECT_EQ(Before(), word.str);
    }
    m_edit.SetWindowText("");
    Type(L"\\");
    EXPECT_EQ(TextOf(m_edit), "\\completed");
}

TEST_F(TextSpeedEdit, CompletionGoesOnBehindAnyCharacter) {
    for (const PageWord& word : PageWords()) {
        m_names.RemoveAll();
        m_names.Add((word.str + "beta").c_str());
        m_edit.SetSpeedOnly(0);
        m_edit.SetWindowText("");
        Type(word.strWide);
        Type(L"B");
        EXPECT_EQ(TextOf(m_edit), word.str + "beta");
        EXPECT_EQ(Before(), word.str + "b");
        m_edit.SetSpeedOnly(1);
        Type(L"\b");
        EXPECT_EQ(Before(), word.str);
        std::wstring strLess = word.strWide;
        strLess.pop_back();
        if (!strLess.empty() && IS_HIGH_SURROGATE(strLess.back())) {
            strLess.pop_back();
        }
        std::string strBefore;
        ToPage(strLess, strBefore);
        Type(L"\b");
        EXPECT_EQ(Before(), strBefore);
        EXPECT_EQ(TextOf(m_edit), word.str + "beta");
    }
}

}  // namespace
