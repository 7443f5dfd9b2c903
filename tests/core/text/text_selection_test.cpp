#include "support/double_byte.h"
#include "support/fake_window.h"
#include "text/core/shown_text.h"

#include <gtest/gtest.h>

namespace {

constexpr int kChar = FixedMeasure::kCharWidth;
constexpr int kTab = 8;

class PageMeasure : public FixedMeasure {
public:
    std::size_t CharBytes(std::string_view text) const override { return page.CharBytes(text); }
    qv::MultiByte page = DoubleByte();
};

// Rows of ten bytes, and the letters that keys are written with.
class Selecting : public testing::Test, public qv::TextViewState {
public:
    Selecting() {
        m_nCharWidth = kChar;
        m_nCharHeight = 13;
        styles.Add(0, 0);
        for (const char* psz : {"one two-3  four five", "", "\x83\x5C\x83\x5C_x", "a\tb", "end"}) {
            lines.Add(psz, 0);
        }
        view.Format(10 * kChar);
    }
    qv::ShownText Text() { return {*this, view, lines, styles, measure, 10 * kChar, kTab}; }
    std::string Selected() { return selection.Selected(Text()); }
    // Lower-case letters without the control key, upper-case ones with it.
    std::string Keys(const char* psz) {
        qv::ShownText text = Text();
        for (; *psz != 0; ++psz) {
            const unsigned key = *psz & 0x20 ? *psz - 0x20u : static_cast<unsigned>(*psz);
            const unsigned nKey = key == 'L'   ? VK_LEFT
                                  : key == 'R' ? VK_RIGHT
                                  : key == 'U' ? VK_UP
                                  : key == 'D' ? VK_DOWN
                                  : key == 'H' ? VK_HOME
                                  : key == 'E' ? VK_END
                                  : key == 'P' ? VK_PRIOR
                                               : VK_NEXT;
            EXPECT_TRUE(selection.Key(text, nKey, (*psz & 0x20) == 0, 0, 3));
        }
        return Selected();
    }

    FakeWindow window{10 * kChar, 100};
    qv::TextLines lines;
    qv::StyleTable styles;
    PageMeasure measure;
    qv::TextView view{*this, window, lines, styles, measure};
    qv::TextSelection selection;
};

}  // namespace

TEST_F(Selecting, KeysMoveTheCaretByCharactersWordsRowsAndPages) {
    const struct {
        qv::TextPlace from;
        const char* pszKeys;
        const char* pszSelected;
    } cases[] = {
        {{0, 0}, "rr", "on"},
        {{0, 3}, "lr", ""},
        {{0, 0}, "RRR", "one two-"},  // three words
        {{0, 9}, "LL", "-3"},
        {{0, 2}, "d", "e two-3  fo"},    // the next row, as far right
        {{0, 2}, "ddu", "e two-3  fo"},  // through an empty line
        {{0, 19}, "rr", "e\r\n"},
        {{1, 0}, "l", "\r\n"},
        {{2, 0}, "rr", "\x83\x5C\x83\x5C"},  // whole characters
        {{2, 4}, "l", "\x83\x5C"},
        {{0, 5}, "h", "one t"},
        {{3, 0}, "E", "a\tb\r\nend"},
        {{4, 1}, "u", "\tb\r\ne"},  // left of the narrow TAB
        {{0, 1}, "u", "o"},         // beyond the first row
        {{4, 1}, "n", "nd"},
        {{4, 0}, "pH", "one two-3  four five\r\n\r\n\x83\x5C\x83\x5C_x\r\na\tb\r\n"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(testing::Message() << c.from.nLine << ',' << c.from.nByte << c.pszKeys);
        selection.Press(c.from, false);
        EXPECT_EQ(Keys(c.pszKeys), c.pszSelected);
    }
    qv::ShownText text = Text();
    EXPECT_FALSE(selection.Key(text, VK_ESCAPE, false, 0, 3));
    selection.Clear();
    EXPECT_EQ(Keys("r"), "o") << "from the top row";
}

TEST_F(Selecting, TheMouseSelectsFromPressToReleaseAndWords) {
    qv::ShownText text = Text();
    selection.Press(qv::PlaceAt(text, 0, kChar), false);
    selection.Drag(qv::PlaceAt(text, 1, 2 * kChar + kChar / 2));
    EXPECT_EQ(Selected(), "ne two-3  fo");
    selection.Release();
    selection.Drag({});
    EXPECT_EQ(Selected(), "ne two-3  fo");
    selection.Press({0, 0}, true);
    EXPECT_EQ(Selected(), "o") << "from the anchor";
    selection.PressWord(text, {2, 1});
    EXPECT_EQ(Selected(), "\x83\x5C\x83\x5C_x");
    selection.PressWord(text, {1, 7});
    EXPECT_TRUE(selection.IsEmpty());
    selection.SelectAll(text);
    const auto part = selection.PartOf(text, {1, 0, 0});
    EXPECT_TRUE(part.nFrom == 0 && part.nTo == 0 && part.bBreak);
    EXPECT_FALSE(selection.PartOf(text, {4, 0, 3}).bBreak) << "the text ends there";
    EXPECT_EQ(qv::PixelOf(text, {3, 0, 3}, 3), kTab + kChar);
    selection.FollowLines(lines.Generation() + 1);
    EXPECT_TRUE(selection.IsEmpty());
    lines.Clear();
    selection.SelectAll(Text());
    EXPECT_EQ(Keys("rdE"), "");
}
