// A control's dispatch table, looked up by id and by name, with what a number may be.

#pragma once

#include "ocx/member.h"

#include <span>
#include <vector>

namespace ocx {

/// What a number that is not set is, and which may be set.
struct NumberRule {
    DISPID id;
    LONG nDefault;
    LONG nMin = 0;
    LONG nMax = -1;  ///< below nMin: anything
};

/// One for each kind of control, made on first use.
class MemberTable {
public:
    MemberTable(std::span<const Member> members, std::span<const NumberRule> rules);

    size_t Size() const { return m_members.size(); }
    const Member& operator[](size_t nMember) const { return m_members[nMember]; }
    /// Null if there is none.
    const Member* Find(DISPID id) const {
        const auto n = static_cast<size_t>(static_cast<LONGLONG>(id) - m_idFirst);
        return n < m_places.size() && m_places[n] >= 0 ? &m_members[m_places[n]] : nullptr;
    }
    /// In whatever case.
    const Member* Find(const wchar_t* pszName) const;
    size_t PlaceOf(const Member& member) const { return &member - m_members.data(); }
    const NumberRule& RuleOf(const Member& member) const { return m_rules[PlaceOf(member)]; }

private:
    std::span<const Member> m_members;
    std::vector<NumberRule> m_rules;  // by place
    LONGLONG m_idFirst = 0;
    std::vector<short> m_places;  // by id
};

}  // namespace ocx
