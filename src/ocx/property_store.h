// The values of properties that a control keeps as they were set.

#pragma once

#include "ocx/arguments.h"
#include "ocx/member_table.h"

#include <functional>
#include <string_view>
#include <vector>

namespace ocx {

class PropertyStore {
public:
    explicit PropertyStore(const MemberTable& members)
        : m_members(members), m_values(members.Size()) {}

    void Clear();
    bool IsSet(const Member& member) const { return At(member).Type() != VT_EMPTY; }
    /// Converts to the member's type and checks its limits; throws a Refusal that names argument
    /// nArgument.
    void Put(const Member& member, const VARIANT& value, int nArgument = 0);
    /// What was set; else nDefault, an empty string or no object.
    void Get(const Member& member, LONG nDefault, VARIANT* pResult) const;

    /// What was set, or nDefault.
    LONG Number(const Member& member, LONG nDefault) const;
    double Real(const Member& member, double fDefault) const;
    /// Lives until the property changes.
    std::wstring_view Text(const Member& member) const;
    IUnknown* Object(const Member& member) const;

    /// All that is set, in the table's order.
    void ForEach(const std::function<void(const Member&, const Variant&)>& f) const;

private:
    const Variant& At(const Member& member) const { return m_values[m_members.PlaceOf(member)]; }

    const MemberTable& m_members;
    std::vector<Variant> m_values;
};

}  // namespace ocx
