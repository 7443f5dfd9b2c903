#include "afx/values/time.h"

#include <afx.h>

#include <ctime>

CTime::CTime(int nYear, int nMonth, int nDay, int nHour, int nMin, int nSec, int nDST) {
    struct tm local {};
    local.tm_sec = nSec;
    local.tm_min = nMin;
    local.tm_hour = nHour;
    local.tm_mday = nDay;
    local.tm_mon = nMonth - 1;
    local.tm_year = nYear - 1900;
    local.tm_isdst = nDST;
    m_time = _mktime64(&local);
}

CTime::CTime(const SYSTEMTIME& st, int nDST)
    : CTime(st.wYear, st.wMonth, st.wDay, st.wHour, st.wMinute, st.wSecond, nDST) {}

CTime::CTime(const FILETIME& ft, int) {
    // File times count from 1601 in units of 100 nanoseconds.
    constexpr LONGLONG kSecondsTo1970 = 11644473600LL;
    const auto nUnits = static_cast<LONGLONG>(ft.dwHighDateTime) << 32 | ft.dwLowDateTime;
    m_time = nUnits / 10000000 - kSecondsTo1970;
}

CTime CTime::GetCurrentTime() {
    return CTime(_time64(nullptr));
}

struct tm* CTime::GetLocalTm(struct tm* ptm) const {
    const struct tm* pLocal = _localtime64(&m_time);
    if (pLocal == nullptr) {
        return nullptr;
    }
    *ptm = *pLocal;
    return ptm;
}

bool CTime::GetAsSystemTime(SYSTEMTIME& st) const {
    struct tm local;
    if (GetLocalTm(&local) == nullptr) {
        return false;
    }
    st = {};
    st.wYear = static_cast<WORD>(local.tm_year + 1900);
    st.wMonth = static_cast<WORD>(local.tm_mon + 1);
    st.wDayOfWeek = static_cast<WORD>(local.tm_wday);
    st.wDay = static_cast<WORD>(local.tm_mday);
    st.wHour = static_cast<WORD>(local.tm_hour);
    st.wMinute = static_cast<WORD>(local.tm_min);
    st.wSecond = static_cast<WORD>(local.tm_sec);
    return true;
}

namespace {

struct tm LocalOrNothing(const CTime& time) {
    struct tm local {};
    time.GetLocalTm(&local);
    return local;
}

}  // namespace

int CTime::GetYear() const {
    return LocalOrNothing(*this).tm_year + 1900;
}
int CTime::GetMonth() const {
    return LocalOrNothing(*this).tm_mon + 1;
}
int CTime::GetDay() const {
    return LocalOrNothing(*this).tm_mday;
}
int CTime::GetHour() const {
    return LocalOrNothing(*this).tm_hour;
}
int CTime::GetMinute() const {
    return LocalOrNothing(*this).tm_min;
}
int CTime::GetSecond() const {
    return LocalOrNothing(*this).tm_sec;
}
int CTime::GetDayOfWeek() const {
    return LocalOrNothing(*this).tm_wday + 1;
}

namespace {

CString FormatTm(const struct tm* pTm, LPCTSTR pszFormat) {
    char szText[256];
    const bool bDone = pTm != nullptr && std::strftime(szText, sizeof(szText), pszFormat, pTm) != 0;
    return bDone ? szText : "";
}

}  // namespace

CString CTime::Format(LPCTSTR pszFormat) const {
    struct tm local;
    return FormatTm(GetLocalTm(&local), pszFormat);
}

struct tm* CTime::GetGmtTm(struct tm* ptm) const {
    const struct tm* pGmt = _gmtime64(&m_time);
    if (pGmt == nullptr) {
        return nullptr;
    }
    *ptm = *pGmt;
    return ptm;
}

CString CTime::FormatGmt(LPCTSTR pszFormat) const {
    struct tm gmt;
    return FormatTm(GetGmtTm(&gmt), pszFormat);
}

CString CTimeSpan::Format(LPCTSTR pszFormat) const {
    CString strText;
    for (LPCTSTR p = pszFormat; p != nullptr && *p != 0; ++p) {
        if (*p != '%') {
            strText += *p;
            continue;
        }
        switch (*++p) {
            case 'D':
                strText.AppendFormat("%lld", GetDays());
                break;
            case 'H':
                strText.AppendFormat("%02ld", GetHours());
                break;
            case 'M':
                strText.AppendFormat("%02ld", GetMinutes());
                break;
            case 'S':
                strText.AppendFormat("%02ld", GetSeconds());
                break;
            case '%':
                strText += '%';
                break;
            default:
                return CString();  // no such code
        }
    }
    return strText;
}
