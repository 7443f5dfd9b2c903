// The arguments of a call through IDispatch, checked against the member and read by type.

#pragma once

#include "ocx/com.h"
#include "ocx/member.h"

#include <array>
#include <string_view>

namespace ocx {

/// Positions count from 0 in the order of the member's arguments; the value of a put is behind its
/// index arguments. What cannot be read as asked throws a Refusal that names the argument.
class Arguments {
public:
    /// Throws where flags, count or named arguments do not fit the member.
    Arguments(const Member& member, WORD wFlags, const DISPPARAMS& params);

    /// Exactly one of DISPATCH_METHOD, _PROPERTYGET, _PROPERTYPUT and _PROPERTYPUTREF.
    WORD Verb() const { return m_wVerb; }
    bool IsPut() const { return (m_wVerb & (DISPATCH_PROPERTYPUT | DISPATCH_PROPERTYPUTREF)) != 0; }
    int Count() const { return static_cast<int>(m_params.cArgs); }
    /// Position of the value of a put.
    int Value() const { return Count() - 1; }

    /// Left out at the end, or given as missing.
    bool IsMissing(int nArgument) const;
    LONG Long(int nArgument) const;
    short Short(int nArgument) const;
    bool Bool(int nArgument) const;
    double Real(int nArgument) const;
    /// Lives as long as the arguments.
    std::wstring_view Text(int nArgument) const;
    /// Null for none. Not a new reference.
    IUnknown* Object(int nArgument) const;
    /// As it came, with references to variants resolved.
    const VARIANT& Raw(int nArgument) const;

    /// Writes where an argument by reference points to, in its type.
    void Out(int nArgument, LONG nValue) const;

private:
    [[noreturn]] void Refuse(HRESULT hr, int nArgument) const;
    const VARIANT& Converted(int nArgument, VARTYPE vt) const;

    const DISPPARAMS& m_params;
    WORD m_wVerb = 0;
    mutable std::array<Variant, 6> m_converted;
};

/// Results in the type asked for; with a null pResult nothing is made.
void Give(VARIANT* pResult, VARTYPE vt, LONG nValue);
void GiveReal(VARIANT* pResult, VARTYPE vt, double fValue);
void GiveText(VARIANT* pResult, std::wstring_view text);
/// As VT_DISPATCH where the object has it; a new reference.
void GiveObject(VARIANT* pResult, IUnknown* pObject);

}  // namespace ocx
