#include "text/core/type_ahead.h"

#include "base/multi_byte.h"
#include "text/core/text_list.h"

#include <gtest/gtest.h>

namespace qv {

TEST(TypeAhead, KeysShowEntriesOrWhatWasTyped) {
    using Action = TypedAnswer::Action;
    const struct {
        const char* pszText;
        int nCaret;
        char ch;
        bool bOnly;
        Action action;
        const char* pszShown = "";
        int nSelect = 0;
        std::vector<std::string> names = {"alpha", "Beta", "betamax"};
    } cases[] = {
        {"", 0, 'b', true, Action::Show, "Beta", 1},
        {"Beta", 4, 'M', false, Action::Show, "betamax", 5},
        {"betamax", 2, 'x', false, Action::Show, "bex", 3},  // the rest goes
        {"betamax", 2, 'x', true, Action::Beep},
        {"", 0, 'a', true, Action::Beep, "", 0, {}},
        {"betamax", 5, kBackspace, true, Action::Show, "Beta", 4},
        {"Beta", 1, kBackspace, true, Action::Show, "alpha", 0},
        {"zulu", 3, kBackspace, true, Action::Nothing},
        {"a", 1, kBackspace, true, Action::Nothing, "", 0, {}},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(std::string(c.pszText) + " + " + c.ch);
        const int nCount = static_cast<int>(c.names.size());
        const auto name = [&](int n) { return c.names[static_cast<size_t>(n)]; };
        const auto find = [&](const std::string& str) {
            return FindTyped(nCount, [&](int n) {
                return MultiByte().CompareNoCase(name(n).c_str(), str.c_str(), str.size());
            });
        };
        const TypedAnswer answer = c.ch == kBackspace
                                       ? TypeBackspace(c.pszText, c.nCaret - 1, nCount, find)
                                       : TypeChar(c.pszText, c.nCaret, c.ch, c.bOnly, find);
        ASSERT_EQ(answer.action, c.action);
        if (c.action == Action::Show) {
            EXPECT_EQ(answer.nEntry < 0 ? answer.strText : name(answer.nEntry), c.pszShown);
            EXPECT_EQ(answer.nSelect, c.nSelect);
        }
    }
}

TEST(TextList, FieldsAreTrimmedAndATabEndsOne) {
    const std::pair<const char*, std::vector<std::string_view>> cases[] = {
        {" one \ttwo words ", {"one", "two words"}},
        {"one\t\ttwo\t  ", {"one", "", "two", ""}},
        {"one\t", {"one"}},
        {"", {}}};
    for (const auto& [pszList, entries] : cases) {
        EXPECT_EQ(SplitTextList(pszList), entries) << pszList;
    }
}

}  // namespace qv
