#include "afx/ole/ole_variant.h"

#include "afx/ole/ole_exceptions.h"

#include <cstring>

namespace {

void Check(SCODE sc) {
    if (sc == E_OUTOFMEMORY) {
        AfxThrowMemoryException();
    }
    if (FAILED(sc)) {
        AfxThrowOleException(sc);
    }
}

// Of this or a type of the same size and meaning.
VARTYPE Among(VARTYPE vt, std::initializer_list<VARTYPE> types) {
    for (VARTYPE vtOne : types) {
        if (vt == vtOne) {
            return vt;
        }
    }
    AfxThrowInvalidArgException();
}

}  // namespace

COleVariant::COleVariant() {
    ::VariantInit(this);
}

COleVariant::COleVariant(const COleVariant& varSrc) : COleVariant() {
    Check(::VariantCopy(this, const_cast<COleVariant*>(&varSrc)));
}

COleVariant::COleVariant(const VARIANT& varSrc) : COleVariant() {
    Check(::VariantCopy(this, const_cast<VARIANT*>(&varSrc)));
}

COleVariant::COleVariant(LPCVARIANT pSrc) : COleVariant(*pSrc) {}

COleVariant::COleVariant(const CString& strSrc) : COleVariant() {
    bstrVal = strSrc.AllocSysString();
    vt = VT_BSTR;
}

COleVariant::COleVariant(LPCTSTR lpszSrc) : COleVariant(CString(lpszSrc)) {}

COleVariant::COleVariant(LPCTSTR lpszSrc, VARTYPE vtSrc) : COleVariant(lpszSrc) {
    Among(vtSrc, {VT_BSTR});
}

COleVariant::COleVariant(BYTE nSrc) : COleVariant() {
    vt = VT_UI1;
    bVal = nSrc;
}

COleVariant::COleVariant(short nSrc, VARTYPE vtSrc) : COleVariant() {
    vt = Among(vtSrc, {VT_I2, VT_BOOL});
    iVal = vt == VT_BOOL && nSrc != 0 ? VARIANT_TRUE : nSrc;
}

COleVariant::COleVariant(long lSrc, VARTYPE vtSrc) : COleVariant() {
    vt = Among(vtSrc, {VT_I4, VT_ERROR, VT_BOOL});
    if (vt == VT_BOOL) {
        boolVal = lSrc != 0 ? VARIANT_TRUE : VARIANT_FALSE;
    } else {
        lVal = lSrc;
    }
}

COleVariant::COleVariant(float fltSrc) : COleVariant() {
    vt = VT_R4;
    fltVal = fltSrc;
}

COleVariant::COleVariant(double dblSrc) : COleVariant() {
    vt = VT_R8;
    dblVal = dblSrc;
}

COleVariant::COleVariant(const COleDateTime& timeSrc) : COleVariant() {
    vt = VT_DATE;
    date = timeSrc;
}

const COleVariant& COleVariant::operator=(const COleVariant& varSrc) {
    Check(::VariantCopy(this, const_cast<COleVariant*>(&varSrc)));
    return *this;
}

BOOL COleVariant::operator==(const VARIANT& varSrc) const {
    if (vt != varSrc.vt) {
        return FALSE;
    }
    if (vt == VT_EMPTY || vt == VT_NULL) {
        return TRUE;
    }
    return ::VarCmp(const_cast<COleVariant*>(this), const_cast<VARIANT*>(&varSrc),
                    LOCALE_USER_DEFAULT, 0) == static_cast<HRESULT>(VARCMP_EQ);
}

void COleVariant::ChangeType(VARTYPE vartype, LPVARIANT pSrc) {
    Check(::VariantChangeType(this, pSrc != nullptr ? pSrc : this, 0, vartype));
}

void COleVariant::Attach(VARIANT& varSrc) {
    Clear();
    std::memcpy(static_cast<tagVARIANT*>(this), &varSrc, sizeof varSrc);
    varSrc.vt = VT_EMPTY;
}

VARIANT COleVariant::Detach() {
    VARIANT given;
    std::memcpy(&given, static_cast<tagVARIANT*>(this), sizeof given);
    vt = VT_EMPTY;
    return given;
}
