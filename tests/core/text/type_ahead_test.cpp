#include "text/core/type_ahead.h"

#include "base/multi_byte.h"
#include "text/core/text_list.h"

#include <gtest/gtest.h>
#include <random>

namespace qv {

class Names {
public:
    explicit Names(std::vector<std::string> names) : m_names(std::move(names)) {}
    int Match(const std::string& strText, int n) const {
        return n >= Count() ? 1
                            : m_text.CompareNoCase(m_names[static_cast<size_t>(n)].c_str(),
                                                   strText.c_str(), strText.size());
    }
    int Find(const std::string& strText) const {
        return FindTyped(Count(), [&](int n) { return Match(strText, n); });
    }
    // Halving until an entry fits, then back one by one.
    int FindStepByStep(const std::string& strText) const {
        int nLow = 0;
        for (int nHigh = Count(); nHigh > 0;) {
            int nMid = (nLow + nHigh) / 2;
            const int nOrder = Match(strText, nMid);
            if (nOrder != 0 && nLow == nHigh - 1) {
                nMid = nHigh;
            }
            if (Match(strText, nMid) == 0) {
                while (nMid > 0 && Match(strText, nMid - 1) == 0) {
                    --nMid;
                }
                return nMid;
            }
            if (nLow == nHigh - 1) {
                return -1;
            }
            (nOrder > 0 ? nHigh : nLow) = nMid;
        }
        return -1;
    }
    int Count() const { return static_cast<int>(m_names.size()); }
    void Sort() {
        std::sort(m_names.begin(), m_names.end(), [this](const auto& str1, const auto& str2) {
            return m_text.CompareNoCase(str1.c_str(), str2.c_str()) < 0;
        });
    }
    const std::string& operator[](int n) const { return m_names[static_cast<size_t>(n)]; }

private:
    MultiByte m_text;
    std::vector<std::string> m_names;
};

TEST(TypeAhead, FindsWhatASearchStepByStepFinds) {
    std::mt19937 random(3);
    const auto word = [&](unsigned nMost) {
        std::string str;
        for (unsigned n = random() % (nMost + 1); n > 0; --n) {
            str += "aAbB"[random() % 4];
        }
        return str;
    };
    for (int nRun = 0; nRun < 2000; ++nRun) {
        std::vector<std::string> words;
        for (unsigned n = random() % 20; n > 0; --n) {
            words.push_back(word(4));
        }
        Names names(std::move(words));
        const std::string strText = word(3) + "b";
        const int nUnsorted = names.Find(strText);
        ASSERT_TRUE(nUnsorted == -1 || names.Match(strText, nUnsorted) == 0);
        names.Sort();
        ASSERT_EQ(names.Find(strText), names.FindStepByStep(strText)) << strText;
    }
}

TEST(TypeAhead, KeysShowEntriesOrWhatWasTyped) {
    using Action = TypedAnswer::Action;
    const Names names({"alpha", "Beta", "betamax"});
    const Names none({});
    const struct {
        const Names& names;
        const char* pszText;
        int nCaret;
        char ch;
        bool bOnly;
        Action action;
        const char* pszShown;
        int nSelect;
    } cases[] = {
        {names, "", 0, 'b', true, Action::Show, "Beta", 1},
        {names, "Beta", 3, 'A', true, Action::Show, "Beta", 4},
        {names, "Beta", 4, 'm', false, Action::Show, "betamax", 5},
        {names, "xyz", 0, 'a', false, Action::Show, "alpha", 1},
        {names, "betamax", 2, 'x', false, Action::Show, "bex", 3},  // the rest goes
        {names, "betamax", 2, 'x', true, Action::Beep, "", 0},
        {none, "", 0, 'a', true, Action::Beep, "", 0},
        {none, "", 0, 'a', false, Action::Show, "a", 1},
        {names, "betamax", 5, kBackspace, true, Action::Show, "Beta", 4},
        {names, "Beta", 2, kBackspace, true, Action::Show, "Beta", 1},
        {names, "Beta", 1, kBackspace, true, Action::Show, "alpha", 0},
        {names, "Beta", 0, kBackspace, true, Action::Show, "alpha", 0},
        {names, "zulu", 3, kBackspace, true, Action::Nothing, "", 0},
        {none, "a", 1, kBackspace, true, Action::Nothing, "", 0},
    };
    for (const auto& c : cases) {
        const auto find = [&](const char* psz) { return c.names.Find(psz); };
        const TypedAnswer answer =
            c.ch == kBackspace
                ? TypeBackspace(c.pszText, std::max(c.nCaret - 1, 0), c.names.Count(), find)
                : TypeChar(c.pszText, c.nCaret, c.ch, c.bOnly, find);
        SCOPED_TRACE(std::string(c.pszText) + " + " + c.ch);
        ASSERT_EQ(answer.action, c.action);
        if (c.action == Action::Show) {
            EXPECT_EQ(answer.nEntry < 0 ? answer.strText : c.names[answer.nEntry], c.pszShown);
            EXPECT_EQ(answer.nSelect, c.nSelect);
        }
    }
}

// --- The list of a text box

TEST(TextList, FieldsAreTrimmedAndATabEndsOne) {
    const struct {
        const char* pszList;
        std::vector<std::string_view> entries;
    } cases[] = {
        {"one", {"one"}},
        {" one \ttwo words ", {"one", "two words"}},
        {"one\t\ttwo\t", {"one", "", "two"}},
        {"\t", {""}},
        {"one\t  ", {"one", ""}},
        {"", {}},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(SplitTextList(c.pszList), c.entries) << c.pszList;
    }
}

TEST(TextList, StepsGoRound) {
    const struct {
        int nFrom, nSteps, nLast, nTo;
    } cases[] = {{0, 1, 2, 1},  {2, 1, 2, 0},  {0, -1, 2, 2},
                 {-1, 1, 2, 0}, {9, -1, 0, 0}, {3, 1, -1, 0}};
    for (const auto& c : cases) {
        EXPECT_EQ(StepInList(c.nFrom, c.nSteps, c.nLast), c.nTo) << c.nFrom;
    }
}

}  // namespace qv
