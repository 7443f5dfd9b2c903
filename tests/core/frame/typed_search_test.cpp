#include "frame/core/typed_search.h"

#include "support/double_byte.h"

#include <gtest/gtest.h>
#include <vector>

namespace qv {

TEST(TypedSearch, RowsAreFoundByWhatIsTypedInTime) {
    const struct {
        const char* pszTyped;  // '|' is a pause
        int nCurrent;
        std::vector<int> found;  // after each whole character; -1: none
        MultiByte text = MultiByte();
        std::vector<const char*> rows = {"Apple", "Banana", "berry", "Cherry pie", "cherry tree"};
    } cases[] = {
        {"b", 0, {1}},
        {"BER", 0, {1, 2, 2}},    // from where it is, as long as that fits
        {"b|b", -1, {1, 2}},      // a search begins behind the current row
        {"bbb", -1, {1, 2, 1}},   // and goes around
        {"ch|e", 3, {4, 4, -1}},  // "e" alone begins nothing
        {"cherry t", 2, {3, 3, 3, 3, 3, 3, 3, 4}},
        {" a", 1, {0}},  // a blank begins no search
        {"xb", 1, {-1, -1}},
        {"a", 0, {0}, MultiByte(), {"A"}},
        {"a", -1, {-1}, MultiByte(), {}},
        {"\x83\x5C\x83\x41", -1, {0, 1}, DoubleByte(), {"\x83\x5Cx", "\x83\x5C\x83\x41", "\\"}},
        {"\\", 0, {2}, DoubleByte(), {"\x83\x5Cx", "\x83\x5C\x83\x41", "\\"}},
        {"\xC3\x84\xE2\x82\xAC",
         -1,
         {1, 2},
         MultiByte::Utf8(),
         {"A", "\xC3\xA4", "\xC3\xA4\xE2\x82\xAC"}},
        {"\xC3x", 0, {-1}, MultiByte::Utf8(), {"A"}},  // no character: finds nothing
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.pszTyped);
        TypedSearch search(c.text);
        unsigned nTime = 0u - 500;  // the clock wraps around meanwhile
        int nCurrent = c.nCurrent;
        std::vector<int> found;
        for (const char* p = c.pszTyped; *p != 0; ++p) {
            if (*p == '|') {
                nTime += TypedSearch::kPause + 1;
            } else if (search.Type(static_cast<unsigned char>(*p), nTime += 100) ==
                       TypedSearch::Answer::Searches) {
                const int nRow = search.Find(static_cast<int>(c.rows.size()), nCurrent, [&](int n) {
                    return c.rows[static_cast<std::size_t>(n)];
                });
                found.push_back(nRow);
                nCurrent = nRow >= 0 ? nRow : nCurrent;
            }
        }
        EXPECT_EQ(found, c.found);
    }
}

// A keyboard with characters of two bytes, the first of which is X: they double the second.
std::string FromDoubleKeyboard(std::string_view bytes) {
    if (bytes[0] != 'X') {
        return std::string(bytes);
    }
    return bytes.size() < 2 ? std::string() : std::string(2, bytes[1]);
}

TEST(TypedSearch, KeyboardsTypeInACodePageOfTheirOwn) {
    const MultiByte text;
    TypedSearch search(text, FromDoubleKeyboard);
    const char* const rows[] = {"Xoo", "aooc"};
    const auto type = [&](char ch) {
        return search.Type(static_cast<unsigned char>(ch), 0) == TypedSearch::Answer::Searches
                   ? search.Find(2, -1, [&](int n) { return rows[n]; })
                   : -2;
    };
    const std::pair<char, int> typed[] = {{'a', 1}, {'X', -2}, {'o', 1}, {'C', 1}, {'X', -2}};
    for (const auto& [ch, nFound] : typed) {
        EXPECT_EQ(type(ch), nFound) << ch;
    }
    search.Forget();
    EXPECT_EQ(type('a'), 1) << "half a character is forgotten";
}

}  // namespace qv
