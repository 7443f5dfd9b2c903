// Type-ahead in a list of texts that is sorted without regard to case: which entry begins with what
// was typed, and what an edit shows after a key.

#pragma once

#include <string>
#include <string_view>

namespace qv {

// The first of nCount entries that begin with a text, or -1. match(n) is 0 for an entry n that
// does, below or above 0 as the entry sorts before or behind those. In a list that is not sorted
// the answer is any entry that begins with the text, or -1.
template <class Match>
int FindTyped(int nCount, Match match) {
    int nLow = 0;
    for (int nHigh = nCount; nLow < nHigh;) {
        const int nMid = nLow + (nHigh - nLow) / 2;
        if (match(nMid) < 0) {
            nLow = nMid + 1;
        } else {
            nHigh = nMid;
        }
    }
    return nLow < nCount && match(nLow) == 0 ? nLow : -1;
}

inline constexpr char kBackspace = 8;

// True for keys that type-ahead takes; all others are the edit's own.
inline bool IsTyped(unsigned nChar) {
    return nChar >= 32 && nChar <= 126;
}

// What an edit does about a key. Positions are bytes of strText.
struct TypedAnswer {
    enum class Action { Nothing, Beep, Show };
    Action action = Action::Nothing;
    int nEntry = -1;      // shown, or -1 for strText
    std::string strText;  // shown where there is no entry
    int nSelect = 0;      // the selection runs from here to the end; for strText the caret's place
};

// A character typed with nCaret bytes of the text before the caret. find(psz) gives the entry that
// begins with a text, or -1.
template <class Find>
TypedAnswer TypeChar(std::string_view text, int nCaret, char ch, bool bOnly, Find find) {
    TypedAnswer answer;
    answer.strText.assign(text.substr(0, static_cast<std::size_t>(nCaret))).push_back(ch);
    answer.nSelect = static_cast<int>(answer.strText.size());
    answer.nEntry = find(answer.strText.c_str());
    // Without an entry all behind the caret goes.
    answer.action =
        answer.nEntry < 0 && bOnly ? TypedAnswer::Action::Beep : TypedAnswer::Action::Show;
    return answer;
}

// Backspace where nothing but entries can be typed: back through their beginnings. nBefore: where
// the character before the caret begins; at the start of a text, and behind its first character,
// the first entry shows, wholly selected.
template <class Find>
TypedAnswer TypeBackspace(std::string_view text, int nBefore, int nEntries, Find find) {
    TypedAnswer answer;
    if (nBefore == 0) {
        answer.nEntry = nEntries > 0 ? 0 : -1;
    } else {
        answer.strText.assign(text.substr(0, static_cast<std::size_t>(nBefore)));
        answer.nSelect = nBefore;
        answer.nEntry = find(answer.strText.c_str());
    }
    if (answer.nEntry >= 0) {
        answer.action = TypedAnswer::Action::Show;
    }
    return answer;
}

}  // namespace qv
