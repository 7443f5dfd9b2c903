// COleCurrency: amounts of money as automation keeps them, in ten-thousandths.
#pragma once

#include <afx.h>

#include <oleauto.h>

class QVAFX_API COleCurrency {
public:
    enum CurrencyStatus { valid = 0, invalid = 1, null = 2 };

    COleCurrency() : m_cur() {}
    COleCurrency(CURRENCY cySrc) : m_cur(cySrc) {}
    COleCurrency(const VARIANT& varSrc);  ///< invalid if it is no amount
    /// nFractionalUnits: ten-thousandths.
    COleCurrency(LONG nUnits, LONG nFractionalUnits) { SetCurrency(nUnits, nFractionalUnits); }

    CURRENCY m_cur;
    CurrencyStatus m_status = valid;

    CurrencyStatus GetStatus() const { return m_status; }
    void SetStatus(CurrencyStatus status) { m_status = status; }
    void SetCurrency(LONG nUnits, LONG nFractionalUnits);
    /// As the locale writes amounts. FALSE, and invalid, for anything else.
    BOOL ParseCurrency(LPCTSTR lpszCurrency, DWORD dwFlags = 0, LCID lcid = LANG_USER_DEFAULT);
    /// Empty for null, a remark for an invalid amount.
    CString Format(DWORD dwFlags = 0, LCID lcid = LANG_USER_DEFAULT) const;
    operator CURRENCY() const { return m_cur; }

    BOOL operator==(const COleCurrency& cur) const {
        return m_status == cur.m_status && m_cur.int64 == cur.m_cur.int64;
    }
    BOOL operator!=(const COleCurrency& cur) const { return !(*this == cur); }
    BOOL operator<(const COleCurrency& cur) const { return m_cur.int64 < cur.m_cur.int64; }
    BOOL operator>(const COleCurrency& cur) const { return m_cur.int64 > cur.m_cur.int64; }
    BOOL operator<=(const COleCurrency& cur) const { return m_cur.int64 <= cur.m_cur.int64; }
    BOOL operator>=(const COleCurrency& cur) const { return m_cur.int64 >= cur.m_cur.int64; }

    // Null with a null operand, else invalid with an invalid operand or beyond the range.
    COleCurrency operator+(const COleCurrency& cur) const;
    COleCurrency operator-(const COleCurrency& cur) const { return *this + -cur; }
    COleCurrency operator-() const;
    COleCurrency operator*(LONG nOperand) const;
    COleCurrency operator/(LONG nOperand) const;
    COleCurrency& operator+=(const COleCurrency& cur) { return *this = *this + cur; }
    COleCurrency& operator-=(const COleCurrency& cur) { return *this = *this - cur; }
    COleCurrency& operator*=(LONG nOperand) { return *this = *this * nOperand; }
    COleCurrency& operator/=(LONG nOperand) { return *this = *this / nOperand; }

private:
    static COleCurrency Of(HRESULT hr, CURRENCY cur, CurrencyStatus status = valid);
};

QVAFX_API CArchive& operator<<(CArchive& ar, const COleCurrency& curSrc);
QVAFX_API CArchive& operator>>(CArchive& ar, COleCurrency& curSrc);
