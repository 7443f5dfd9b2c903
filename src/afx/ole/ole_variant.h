// COleVariant: a VARIANT that owns what is in it.
#pragma once

#include "afx/values/ole_date_time.h"

#include <afx.h>

#include <oaidl.h>

typedef const VARIANT* LPCVARIANT;

class QVAFX_API COleVariant : public tagVARIANT {
public:
    COleVariant();  ///< VT_EMPTY
    COleVariant(const COleVariant& varSrc);
    COleVariant(const VARIANT& varSrc);
    COleVariant(LPCVARIANT pSrc);
    COleVariant(LPCTSTR lpszSrc);                 ///< VT_BSTR
    COleVariant(LPCTSTR lpszSrc, VARTYPE vtSrc);  ///< VT_BSTR alone
    COleVariant(const CString& strSrc);
    COleVariant(BYTE nSrc);
    COleVariant(short nSrc, VARTYPE vtSrc = VT_I2);  ///< VT_I2, VT_BOOL
    COleVariant(long lSrc, VARTYPE vtSrc = VT_I4);   ///< VT_I4, VT_ERROR, VT_BOOL
    COleVariant(float fltSrc);
    COleVariant(double dblSrc);
    COleVariant(const COleDateTime& timeSrc);
    ~COleVariant() { ::VariantClear(this); }

    /// Assignment from other types goes through the constructors.
    const COleVariant& operator=(const COleVariant& varSrc);
    BOOL operator==(const VARIANT& varSrc) const;
    operator LPVARIANT() { return this; }
    operator LPCVARIANT() const { return this; }

    void Clear() { ::VariantClear(this); }
    /// In place, or as a conversion of pSrc. Throws a COleException where there is none.
    void ChangeType(VARTYPE vartype, LPVARIANT pSrc = nullptr);
    /// Takes over the contents, and gives them away.
    void Attach(VARIANT& varSrc);
    VARIANT Detach();
};
