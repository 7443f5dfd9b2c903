#include "ocx/property_store.h"

namespace ocx {

void PropertyStore::Clear() {
    for (Variant& value : m_values) {
        value.Clear();
    }
}

void PropertyStore::Put(const Member& member, const VARIANT& value, int nArgument) {
    const bool bObject = member.vt == VT_DISPATCH || member.vt == VT_UNKNOWN;
    Variant kept;
    if (bObject && (value.vt == VT_EMPTY || value.vt == VT_NULL)) {
        kept.Get()->vt = VT_UNKNOWN;
        kept.Get()->punkVal = nullptr;
    } else {
        try {
            kept = Variant(value, bObject ? VARTYPE{VT_UNKNOWN} : member.vt);
        } catch (const Refusal& refusal) {
            throw Refusal{refusal.hr, nullptr, nArgument};
        }
    }
    const NumberRule& rule = m_members.RuleOf(member);
    if (rule.nMin <= rule.nMax && (member.vt == VT_I4 || member.vt == VT_I2)) {
        const LONG n = member.vt == VT_I4 ? kept.Value().lVal : kept.Value().iVal;
        if (n < rule.nMin || n > rule.nMax) {
            throw Refusal{kInvalidValue, L"Invalid property value", nArgument};
        }
    }
    m_values[m_members.PlaceOf(member)] = std::move(kept);
}

void PropertyStore::Get(const Member& member, LONG nDefault, VARIANT* pResult) const {
    if (pResult == nullptr) {
        return;
    }
    switch (member.vt) {
        case VT_BSTR:
            GiveText(pResult, Text(member));
            break;
        case VT_DISPATCH:
        case VT_UNKNOWN:
            GiveObject(pResult, Object(member));
            break;
        default:
            if (IsSet(member)) {
                Check(::VariantCopy(pResult, const_cast<VARIANT*>(&At(member).Value())));
            } else {
                Give(pResult, member.vt, nDefault);
            }
            break;
    }
}

LONG PropertyStore::Number(const Member& member, LONG nDefault) const {
    const VARIANT& value = At(member).Value();
    switch (value.vt) {
        case VT_I4:
            return value.lVal;
        case VT_I2:
            return value.iVal;
        case VT_BOOL:
            return value.boolVal != VARIANT_FALSE;
        default:
            return nDefault;
    }
}

double PropertyStore::Real(const Member& member, double fDefault) const {
    const VARIANT& value = At(member).Value();
    return value.vt == VT_R4 ? value.fltVal : value.vt == VT_R8 ? value.dblVal : fDefault;
}

std::wstring_view PropertyStore::Text(const Member& member) const {
    const VARIANT& value = At(member).Value();
    if (value.vt != VT_BSTR || value.bstrVal == nullptr) {
        return {};
    }
    return {value.bstrVal, ::SysStringLen(value.bstrVal)};
}

IUnknown* PropertyStore::Object(const Member& member) const {
    const VARIANT& value = At(member).Value();
    return value.vt == VT_UNKNOWN ? value.punkVal : nullptr;
}

void PropertyStore::ForEach(const std::function<void(const Member&, const Variant&)>& f) const {
    for (size_t n = 0; n < m_values.size(); ++n) {
        if (m_values[n].Type() != VT_EMPTY) {
            f(m_members[n], m_values[n]);
        }
    }
}

}  // namespace ocx
