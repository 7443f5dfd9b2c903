#include "ocx/member_table.h"

#include <algorithm>
#include <cwchar>

namespace ocx {

MemberTable::MemberTable(std::span<const Member> members, std::span<const NumberRule> rules)
    : m_members(members) {
    if (members.empty()) {
        return;
    }
    const auto [first, last] = std::ranges::minmax_element(
        members, [](const auto& a, const auto& b) { return a.id < b.id; });
    m_idFirst = first->id;
    m_places.assign(last->id - first->id + 1, -1);
    for (size_t n = 0; n < members.size(); ++n) {
        m_places[members[n].id - m_idFirst] = static_cast<short>(n);
        m_rules.push_back({members[n].id, 0});
    }
    for (const NumberRule& rule : rules) {
        if (const Member* pMember = Find(rule.id)) {
            m_rules[PlaceOf(*pMember)] = rule;
        }
    }
}

const Member* MemberTable::Find(const wchar_t* pszName) const {
    const auto found = std::ranges::find_if(m_members, [pszName](const Member& member) {
        return ::_wcsicmp(member.pszName, pszName) == 0;
    });
    return found != m_members.end() ? &*found : nullptr;
}

}  // namespace ocx
