#include "ocx/arguments.h"

#include <algorithm>
#include <limits>

namespace ocx {

static int DeclaredCount(const Member& member) {
    return static_cast<int>(std::ranges::find(member.vtArgs, VT_EMPTY) - member.vtArgs);
}

static int RequiredCount(const Member& member) {
    int nCount = DeclaredCount(member);
    // Variants at the end of a method's arguments may be left out.
    while ((member.wFlags & DISPATCH_METHOD) != 0 && nCount > 0 &&
           member.vtArgs[nCount - 1] == VT_VARIANT) {
        --nCount;
    }
    return nCount;
}

Arguments::Arguments(const Member& member, WORD wFlags, const DISPPARAMS& params)
    : m_params(params) {
    constexpr WORD kPut = DISPATCH_PROPERTYPUT | DISPATCH_PROPERTYPUTREF;
    const WORD wAllowed = wFlags & member.wFlags;
    if (wAllowed == 0) {
        throw Refusal{DISP_E_MEMBERNOTFOUND};
    }
    // Callers that cannot tell a property from a method ask for both.
    m_wVerb = static_cast<WORD>(wAllowed & (~wAllowed + 1));
    if (params.cArgs > 0 && params.rgvarg == nullptr) {
        throw Refusal{E_INVALIDARG};
    }
    if ((m_wVerb & kPut) != 0) {
        if (params.cNamedArgs != 1 || params.rgdispidNamedArgs == nullptr ||
            params.rgdispidNamedArgs[0] != DISPID_PROPERTYPUT) {
            throw Refusal{params.cNamedArgs > 1 ? DISP_E_NONAMEDARGS : DISP_E_PARAMNOTOPTIONAL};
        }
        if (Count() != DeclaredCount(member) + 1) {
            throw Refusal{DISP_E_BADPARAMCOUNT};
        }
    } else {
        if (params.cNamedArgs != 0) {
            throw Refusal{DISP_E_NONAMEDARGS};
        }
        if (Count() > DeclaredCount(member) || Count() < RequiredCount(member)) {
            throw Refusal{DISP_E_BADPARAMCOUNT};
        }
    }
}

void Arguments::Refuse(HRESULT hr, int nArgument) const {
    throw Refusal{hr, nullptr, nArgument};
}

const VARIANT& Arguments::Raw(int nArgument) const {
    if (nArgument < 0 || nArgument >= Count()) {
        throw Refusal{DISP_E_BADPARAMCOUNT};
    }
    const VARIANT* p = &m_params.rgvarg[Count() - 1 - nArgument];
    for (int nDepth = 0; p->vt == (VT_BYREF | VT_VARIANT); ++nDepth) {
        if (p->pvarVal == nullptr || nDepth > 1) {
            Refuse(DISP_E_TYPEMISMATCH, nArgument);
        }
        p = p->pvarVal;
    }
    return *p;
}

bool Arguments::IsMissing(int nArgument) const {
    if (nArgument >= Count()) {
        return true;
    }
    const VARIANT& value = Raw(nArgument);
    return value.vt == VT_ERROR && value.scode == DISP_E_PARAMNOTFOUND;
}

const VARIANT& Arguments::Converted(int nArgument, VARTYPE vt) const {
    const VARIANT& value = Raw(nArgument);
    if (IsMissing(nArgument)) {
        Refuse(DISP_E_PARAMNOTOPTIONAL, nArgument);
    }
    try {
        Variant& place = m_converted[nArgument];
        place = Variant(value, vt);
        return place.Value();
    } catch (const Refusal& refusal) {
        Refuse(refusal.hr, nArgument);
    }
}

LONG Arguments::Long(int nArgument) const {
    const VARIANT& value = Raw(nArgument);
    switch (value.vt) {
        case VT_I4:
        case VT_INT:
            return value.lVal;
        case VT_I2:
            return value.iVal;
        default:
            return Converted(nArgument, VT_I4).lVal;
    }
}

short Arguments::Short(int nArgument) const {
    const LONG n = Long(nArgument);
    if (n < std::numeric_limits<short>::min() || n > std::numeric_limits<short>::max()) {
        Refuse(DISP_E_OVERFLOW, nArgument);
    }
    return static_cast<short>(n);
}

bool Arguments::Bool(int nArgument) const {
    const VARIANT& value = Raw(nArgument);
    return (value.vt == VT_BOOL ? value : Converted(nArgument, VT_BOOL)).boolVal != VARIANT_FALSE;
}

double Arguments::Real(int nArgument) const {
    const VARIANT& value = Raw(nArgument);
    return value.vt == VT_R4 ? value.fltVal : Converted(nArgument, VT_R8).dblVal;
}

std::wstring_view Arguments::Text(int nArgument) const {
    const VARIANT& value = Raw(nArgument);
    const BSTR bstr = (value.vt == VT_BSTR ? value : Converted(nArgument, VT_BSTR)).bstrVal;
    return bstr != nullptr ? std::wstring_view(bstr, ::SysStringLen(bstr)) : std::wstring_view();
}

IUnknown* Arguments::Object(int nArgument) const {
    const VARIANT& value = Raw(nArgument);
    switch (value.vt) {
        case VT_EMPTY:
        case VT_NULL:
            return nullptr;
        case VT_DISPATCH:
        case VT_UNKNOWN:
            return value.punkVal;
        default:
            return Converted(nArgument, VT_UNKNOWN).punkVal;
    }
}

void Arguments::Out(int nArgument, LONG nValue) const {
    const VARIANT& place = m_params.rgvarg[Count() - 1 - nArgument];
    if ((place.vt & VT_BYREF) == 0 || place.byref == nullptr) {
        Refuse(DISP_E_TYPEMISMATCH, nArgument);
    }
    switch (place.vt & ~VT_BYREF) {
        case VT_I2:
            *place.piVal = static_cast<short>(nValue);
            break;
        case VT_I4:
        case VT_INT:
            *place.plVal = nValue;
            break;
        case VT_BOOL:
            *place.pboolVal = nValue != 0 ? VARIANT_TRUE : VARIANT_FALSE;
            break;
        case VT_VARIANT:
            ::VariantClear(place.pvarVal);
            Give(place.pvarVal, VT_I4, nValue);
            break;
        default:
            Refuse(DISP_E_TYPEMISMATCH, nArgument);
    }
}

void Give(VARIANT* pResult, VARTYPE vt, LONG nValue) {
    if (pResult == nullptr) {
        return;
    }
    pResult->vt = vt;
    switch (vt) {
        case VT_BOOL:
            pResult->boolVal = nValue != 0 ? VARIANT_TRUE : VARIANT_FALSE;
            break;
        case VT_I2:
            pResult->iVal = static_cast<short>(nValue);
            break;
        case VT_R4:
        case VT_R8:
            GiveReal(pResult, vt, nValue);
            break;
        default:
            pResult->vt = VT_I4;
            pResult->lVal = nValue;
            break;
    }
}

void GiveReal(VARIANT* pResult, VARTYPE vt, double fValue) {
    if (pResult == nullptr) {
        return;
    }
    pResult->vt = vt == VT_R4 ? VT_R4 : VT_R8;
    if (vt == VT_R4) {
        pResult->fltVal = static_cast<float>(fValue);
    } else {
        pResult->dblVal = fValue;
    }
}

void GiveText(VARIANT* pResult, std::wstring_view text) {
    if (pResult == nullptr) {
        return;
    }
    pResult->bstrVal = ::SysAllocStringLen(text.data(), static_cast<UINT>(text.size()));
    if (pResult->bstrVal == nullptr) {
        throw std::bad_alloc();
    }
    pResult->vt = VT_BSTR;
}

void GiveObject(VARIANT* pResult, IUnknown* pObject) {
    if (pResult == nullptr) {
        return;
    }
    pResult->pdispVal = Ref<IDispatch>::Of(pObject).Detach();
    pResult->vt = VT_DISPATCH;
    if (pResult->pdispVal == nullptr && pObject != nullptr) {
        pObject->AddRef();
        pResult->punkVal = pObject;
        pResult->vt = VT_UNKNOWN;
    }
}

}  // namespace ocx
