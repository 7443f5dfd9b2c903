#include "afx/values/ole_currency.h"

#include <afxres.h>

#include <algorithm>
#include <climits>

COleCurrency::COleCurrency(const VARIANT& varSrc) : m_cur() {
    VARIANT var;
    ::VariantInit(&var);
    if (SUCCEEDED(::VariantChangeType(&var, const_cast<VARIANT*>(&varSrc), 0, VT_CY))) {
        m_cur = var.cyVal;
    } else {
        m_status = invalid;
    }
}

COleCurrency COleCurrency::Of(HRESULT hr, CURRENCY cur, CurrencyStatus status) {
    COleCurrency result(cur);
    result.m_status = status != valid ? status : SUCCEEDED(hr) ? valid : invalid;
    if (result.m_status != valid) {
        result.m_cur.int64 = 0;
    }
    return result;
}

void COleCurrency::SetCurrency(LONG nUnits, LONG nFractionalUnits) {
    constexpr LONGLONG kFractions = 10000;
    m_cur.int64 = nUnits * kFractions + nFractionalUnits;
    m_status = valid;
}

BOOL COleCurrency::ParseCurrency(LPCTSTR lpszCurrency, DWORD dwFlags, LCID lcid) {
    const BSTR bstr = CString(lpszCurrency).AllocSysString();
    const HRESULT hr = ::VarCyFromStr(bstr, lcid, dwFlags, &m_cur);
    ::SysFreeString(bstr);
    if (hr == E_OUTOFMEMORY) {
        AfxThrowMemoryException();
    }
    *this = Of(hr, m_cur);
    return m_status == valid;
}

CString COleCurrency::Format(DWORD dwFlags, LCID lcid) const {
    if (m_status == null) {
        return CString();
    }
    BSTR bstr = nullptr;
    CString strText;
    if (m_status == invalid || FAILED(::VarBstrFromCy(m_cur, lcid, dwFlags, &bstr))) {
        strText = "Not an amount";
    } else {
        strText = bstr;
        ::SysFreeString(bstr);
    }
    return strText;
}

COleCurrency COleCurrency::operator+(const COleCurrency& cur) const {
    CURRENCY sum = {};
    return Of(::VarCyAdd(m_cur, cur.m_cur, &sum), sum, (std::max)(m_status, cur.m_status));
}

COleCurrency COleCurrency::operator-() const {
    CURRENCY negative = {};
    return Of(::VarCyNeg(m_cur, &negative), negative, m_status);
}

COleCurrency COleCurrency::operator*(LONG nOperand) const {
    CURRENCY product = {};
    return Of(::VarCyMulI4(m_cur, nOperand, &product), product, m_status);
}

COleCurrency COleCurrency::operator/(LONG nOperand) const {
    CURRENCY quotient = m_cur;
    if (nOperand != 0 && !(nOperand == -1 && m_cur.int64 == LLONG_MIN)) {
        quotient.int64 /= nOperand;
        return Of(S_OK, quotient, m_status);
    }
    return Of(E_INVALIDARG, quotient, m_status);
}

CArchive& operator<<(CArchive& ar, const COleCurrency& curSrc) {
    return ar << static_cast<LONG>(curSrc.m_status) << curSrc.m_cur.Hi << curSrc.m_cur.Lo;
}

CArchive& operator>>(CArchive& ar, COleCurrency& curSrc) {
    LONG nStatus = 0;
    ar >> nStatus >> curSrc.m_cur.Hi >> curSrc.m_cur.Lo;
    curSrc.m_status = nStatus >= COleCurrency::valid && nStatus <= COleCurrency::null
                          ? static_cast<COleCurrency::CurrencyStatus>(nStatus)
                          : COleCurrency::invalid;
    return ar;
}
