#include "text/core/type_ahead.h"

#include "base/multi_byte.h"
#include "text/core/text_list.h"

#include <gtest/gtest.h>

namespace qv {

TEST(TypeAhead, KeysShowEntriesOrWhatWasTyped) {
    using Action = TypedAnswer::Action;
    const std::vector<std::string> names{"alpha", "Beta", "betamax"}, none;
    const struct {
        const std::vector<std::string>& names;
        const char* pszText;
        int nCaret;
        char ch;
        bool bOnly;
        Action action;
        const char* pszShown = "";
        int nSelect = 0;
    } cases[] = {
        {names, "", 0, 'b', true, Action::Show, "Beta", 1},
        {names, "Beta", 4, 'M', false, Action::Show, "betamax", 5},
        {names, "xyz", 0, 'a', false, Action::Show, "alpha", 1},
        {names, "betamax", 2, 'x', false, Action::Show, "bex", 3},  // the rest goes
        {names, "betamax", 2, 'x', true, Action::Beep},
        {none, "", 0, 'a', true, Action::Beep},
        {names, "betamax", 5, kBackspace, true, Action::Show, "Beta", 4},
        {names, "Beta", 2, kBackspace, true, Action::Show, "Beta", 1},
        {names, "Beta", 1, kBackspace, true, Action::Show, "alpha", 0},
        {names, "zulu", 3, kBackspace, true, Action::Nothing},
        {none, "a", 1, kBackspace, true, Action::Nothing},
    };
    for (const auto& c : cases) {
        const int nCount = static_cast<int>(c.names.size());
        const auto find = [&](const std::string& str) {
            return FindTyped(nCount, [&](int n) {
                return MultiByte().CompareNoCase(c.names[static_cast<size_t>(n)].c_str(),
                                                 str.c_str(), str.size());
            });
        };
        const TypedAnswer answer = c.ch == kBackspace
                                       ? TypeBackspace(c.pszText, c.nCaret - 1, nCount, find)
                                       : TypeChar(c.pszText, c.nCaret, c.ch, c.bOnly, find);
        SCOPED_TRACE(std::string(c.pszText) + " + " + c.ch);
        ASSERT_EQ(answer.action, c.action);
        if (c.action == Action::Show) {
            const size_t nEntry = static_cast<size_t>(answer.nEntry);
            EXPECT_EQ(answer.nEntry < 0 ? answer.strText : c.names[nEntry], c.pszShown);
            EXPECT_EQ(answer.nSelect, c.nSelect);
        }
    }
}

TEST(TextList, FieldsAreTrimmedAndATabEndsOne) {
    const std::pair<const char*, std::vector<std::string_view>> cases[] = {
        {" one \ttwo words ", {"one", "two words"}},
        {"one\t\ttwo\t", {"one", "", "two"}},
        {"one\t  ", {"one", ""}},
        {"", {}}};
    for (const auto& [pszList, entries] : cases) {
        EXPECT_EQ(SplitTextList(pszList), entries) << pszList;
    }
}

}  // namespace qv
