#include "afx/values/ole_date_time.h"
#include <afxres.h>

#include <cmath>
#include <ctime>
#include <string>

namespace {

constexpr double kFirstDay = -657434;  // 1 January 100
constexpr double kLastDay = 2958465;   // 31 December 9999
constexpr LONGLONG kSecondsADay = 86400;

LONGLONG WholeSeconds(double days) {
    return std::llround(days * kSecondsADay);
}

CString Remark(UINT nID) {
    CString str;
    str.LoadString(nID);
    return str;
}

/// A text in the platform's own characters, freed with this.
class SysString {
public:
    explicit SysString(BSTR bstr = nullptr) : m_bstr(bstr) {}
    ~SysString() { ::SysFreeString(m_bstr); }
    SysString(const SysString&) = delete;
    SysString& operator=(const SysString&) = delete;
    BSTR* Receive() { return &m_bstr; }
    BSTR Get() const { return m_bstr; }

private:
    BSTR m_bstr;
};

}  // namespace

COleDateTimeSpan::COleDateTimeSpan(double dblSpanSrc) : m_span(dblSpanSrc) {
    CheckRange();
}

COleDateTimeSpan::COleDateTimeSpan(LONG lDays, int nHours, int nMins, int nSecs) {
    SetDateTimeSpan(lDays, nHours, nMins, nSecs);
}

void COleDateTimeSpan::SetDateTimeSpan(LONG lDays, int nHours, int nMins, int nSecs) {
    m_span = lDays + nHours / 24.0 + nMins / (24.0 * 60) + nSecs / (24.0 * 60 * 60);
    m_status = valid;
    CheckRange();
}

void COleDateTimeSpan::CheckRange() {
    // Written so that a value that is no number fails.
    if (!(std::fabs(m_span) <= kLastDay - kFirstDay + 1)) {
        m_status = invalid;
    }
}

LONG COleDateTimeSpan::GetDays() const {
    return static_cast<LONG>(GetTotalDays());
}
LONG COleDateTimeSpan::GetHours() const {
    return static_cast<LONG>(WholeSeconds(m_span) / 3600 % 24);
}
LONG COleDateTimeSpan::GetMinutes() const {
    return static_cast<LONG>(WholeSeconds(m_span) / 60 % 60);
}
LONG COleDateTimeSpan::GetSeconds() const {
    return static_cast<LONG>(WholeSeconds(m_span) % 60);
}
double COleDateTimeSpan::GetTotalDays() const {
    return static_cast<double>(WholeSeconds(m_span) / kSecondsADay);
}
double COleDateTimeSpan::GetTotalHours() const {
    return static_cast<double>(WholeSeconds(m_span) / 3600);
}
double COleDateTimeSpan::GetTotalMinutes() const {
    return static_cast<double>(WholeSeconds(m_span) / 60);
}
double COleDateTimeSpan::GetTotalSeconds() const {
    return static_cast<double>(WholeSeconds(m_span));
}

bool COleDateTimeSpan::operator==(const COleDateTimeSpan& dateSpan) const {
    return m_status == dateSpan.m_status && (m_status == null || m_span == dateSpan.m_span);
}

COleDateTimeSpan COleDateTimeSpan::operator+(const COleDateTimeSpan& dateSpan) const {
    COleDateTimeSpan sum;
    if (m_status == null || dateSpan.m_status == null) {
        sum.m_status = null;
    } else if (m_status != valid || dateSpan.m_status != valid) {
        sum.m_status = invalid;
    } else {
        sum = COleDateTimeSpan(m_span + dateSpan.m_span);
    }
    return sum;
}

COleDateTimeSpan COleDateTimeSpan::operator-(const COleDateTimeSpan& dateSpan) const {
    return *this + -dateSpan;
}

COleDateTimeSpan COleDateTimeSpan::operator-() const {
    COleDateTimeSpan span(*this);
    span.m_span = -m_span;
    return span;
}

COleDateTime::COleDateTime(DATE dtSrc) : m_dt(dtSrc) {
    // The first day's own times of day lie below it.
    if (!(m_dt > kFirstDay - 1 && m_dt < kLastDay + 1)) {
        m_status = invalid;
    }
}

COleDateTime::COleDateTime(__time64_t timeSrc) : m_status(invalid) {
    if (const struct tm* pLocal = _localtime64(&timeSrc)) {
        SetDateTime(pLocal->tm_year + 1900, pLocal->tm_mon + 1, pLocal->tm_mday, pLocal->tm_hour,
                    pLocal->tm_min, pLocal->tm_sec);
    }
}

COleDateTime::COleDateTime(const SYSTEMTIME& systimeSrc) {
    SetDateTime(systimeSrc.wYear, systimeSrc.wMonth, systimeSrc.wDay, systimeSrc.wHour,
                systimeSrc.wMinute, systimeSrc.wSecond);
}

COleDateTime::COleDateTime(const FILETIME& filetimeSrc) : m_status(invalid) {
    FILETIME local;
    SYSTEMTIME st;
    if (::FileTimeToLocalFileTime(&filetimeSrc, &local) && ::FileTimeToSystemTime(&local, &st)) {
        *this = COleDateTime(st);
    }
}

COleDateTime::COleDateTime(int nYear, int nMonth, int nDay, int nHour, int nMin, int nSec) {
    SetDateTime(nYear, nMonth, nDay, nHour, nMin, nSec);
}

COleDateTime COleDateTime::GetCurrentTime() {
    return COleDateTime(_time64(nullptr));
}

bool COleDateTime::Split(UDATE& udate) const {
    return m_status == valid && SUCCEEDED(::VarUdateFromDate(m_dt, 0, &udate));
}

int COleDateTime::GetYear() const {
    UDATE udate;
    return Split(udate) ? udate.st.wYear : static_cast<int>(error);
}
int COleDateTime::GetMonth() const {
    UDATE udate;
    return Split(udate) ? udate.st.wMonth : static_cast<int>(error);
}
int COleDateTime::GetDay() const {
    UDATE udate;
    return Split(udate) ? udate.st.wDay : static_cast<int>(error);
}
int COleDateTime::GetHour() const {
    UDATE udate;
    return Split(udate) ? udate.st.wHour : static_cast<int>(error);
}
int COleDateTime::GetMinute() const {
    UDATE udate;
    return Split(udate) ? udate.st.wMinute : static_cast<int>(error);
}
int COleDateTime::GetSecond() const {
    UDATE udate;
    return Split(udate) ? udate.st.wSecond : static_cast<int>(error);
}
int COleDateTime::GetDayOfWeek() const {
    UDATE udate;
    return Split(udate) ? udate.st.wDayOfWeek + 1 : static_cast<int>(error);
}
int COleDateTime::GetDayOfYear() const {
    UDATE udate;
    return Split(udate) ? udate.wDayOfYear : static_cast<int>(error);
}

bool COleDateTime::GetAsSystemTime(SYSTEMTIME& sysTime) const {
    UDATE udate;
    if (!Split(udate)) {
        return false;
    }
    sysTime = udate.st;
    sysTime.wMilliseconds = 0;
    return true;
}

int COleDateTime::SetDateTime(int nYear, int nMonth, int nDay, int nHour, int nMin, int nSec) {
    const auto within = [](int n, int nFirst, int nLast) { return n >= nFirst && n <= nLast; };
    m_status = invalid;
    // The system would take two-digit years for those of our time, and let times overflow.
    if (within(nYear, 100, 9999) && within(nMonth, 1, 12) && within(nDay, 0, 31) &&
        within(nHour, 0, 23) && within(nMin, 0, 59) && within(nSec, 0, 59)) {
        SYSTEMTIME st{};
        st.wYear = static_cast<WORD>(nYear);
        st.wMonth = static_cast<WORD>(nMonth);
        st.wDay = static_cast<WORD>(nDay);
        st.wHour = static_cast<WORD>(nHour);
        st.wMinute = static_cast<WORD>(nMin);
        st.wSecond = static_cast<WORD>(nSec);
        DATE dt;
        if (::SystemTimeToVariantTime(&st, &dt)) {
            m_dt = dt;
            m_status = valid;
        }
    }
    return m_status;
}

int COleDateTime::SetDate(int nYear, int nMonth, int nDay) {
    return SetDateTime(nYear, nMonth, nDay, 0, 0, 0);
}

int COleDateTime::SetTime(int nHour, int nMin, int nSec) {
    return SetDateTime(1899, 12, 30, nHour, nMin, nSec);
}

bool COleDateTime::ParseDateTime(LPCTSTR lpszDate, DWORD dwFlags, LCID lcid) {
    const SysString text(CString(lpszDate).AllocSysString());
    m_dt = 0;
    m_status = invalid;
    const HRESULT hr =
        text.Get() != nullptr ? ::VarDateFromStr(text.Get(), lcid, dwFlags, &m_dt) : E_OUTOFMEMORY;
    if (hr == E_OUTOFMEMORY) {
        AfxThrowMemoryException();
    }
    if (FAILED(hr)) {
        m_dt = 0;
        return false;
    }
    m_status = valid;
    return true;
}

CString COleDateTime::Format(DWORD dwFlags, LCID lcid) const {
    SysString text;
    if (m_status == null) {
        return CString();
    }
    if (m_status != valid || FAILED(::VarBstrFromDate(m_dt, lcid, dwFlags, text.Receive()))) {
        return Remark(ATL_IDS_DATETIME_INVALID);
    }
    return CString(text.Get());
}

CString COleDateTime::Format(LPCTSTR lpszFormat) const {
    if (m_status == null) {
        return CString();
    }
    UDATE udate;
    if (!Split(udate)) {
        return Remark(ATL_IDS_DATETIME_INVALID);
    }
    struct tm fields {};
    fields.tm_sec = udate.st.wSecond;
    fields.tm_min = udate.st.wMinute;
    fields.tm_hour = udate.st.wHour;
    fields.tm_mday = udate.st.wDay;
    fields.tm_mon = udate.st.wMonth - 1;
    fields.tm_year = udate.st.wYear - 1900;
    fields.tm_wday = udate.st.wDayOfWeek;
    fields.tm_yday = udate.wDayOfYear - 1;
    constexpr std::size_t kLongestField = 64;  // bytes for one character of the format
    std::string text(kLongestField * (std::strlen(lpszFormat) + 1), '\0');
    text.resize(std::strftime(text.data(), text.size(), lpszFormat, &fields));
    return CString(text.c_str());
}

CString COleDateTime::Format(UINT nFormatID) const {
    CString strFormat;
    return strFormat.LoadString(nFormatID) ? Format(static_cast<LPCTSTR>(strFormat)) : CString();
}

double COleDateTime::Days() const {
    const double day = std::trunc(m_dt);
    return day + std::fabs(m_dt - day);
}

bool COleDateTime::operator==(const COleDateTime& date) const {
    return m_status == date.m_status && (m_status == null || Days() == date.Days());
}

COleDateTime COleDateTime::operator+(COleDateTimeSpan dateSpan) const {
    COleDateTime sum;
    if (m_status == null || dateSpan.m_status == COleDateTimeSpan::null) {
        sum.m_status = null;
    } else if (m_status != valid || dateSpan.m_status != COleDateTimeSpan::valid) {
        sum.m_status = invalid;
    } else {
        const double days = Days() + dateSpan.m_span;
        const double day = std::floor(days);
        sum = COleDateTime(day < 0 ? day - (days - day) : days);
    }
    return sum;
}

COleDateTime COleDateTime::operator-(COleDateTimeSpan dateSpan) const {
    return *this + -dateSpan;
}

COleDateTimeSpan COleDateTime::operator-(const COleDateTime& date) const {
    COleDateTimeSpan span;
    if (m_status == null || date.m_status == null) {
        span.m_status = COleDateTimeSpan::null;
    } else if (m_status != valid || date.m_status != valid) {
        span.m_status = COleDateTimeSpan::invalid;
    } else {
        span = COleDateTimeSpan(Days() - date.Days());
    }
    return span;
}

namespace {

/// Status and value; a status that is none makes the value invalid.
template <class Status>
void Read(CArchive& ar, Status& status, double& value) {
    LONG nStatus = 0;
    ar >> nStatus >> value;
    status = nStatus == 0   ? Status(0)
             : nStatus == 2 ? Status(2)  // null
                            : Status(1);
}

}  // namespace

CArchive& operator<<(CArchive& ar, const COleDateTime& dateSrc) {
    return ar << static_cast<LONG>(dateSrc.m_status) << dateSrc.m_dt;
}

CArchive& operator>>(CArchive& ar, COleDateTime& dateSrc) {
    Read(ar, dateSrc.m_status, dateSrc.m_dt);
    return ar;
}

CArchive& operator<<(CArchive& ar, const COleDateTimeSpan& dateSpanSrc) {
    return ar << static_cast<LONG>(dateSpanSrc.m_status) << dateSpanSrc.m_span;
}

CArchive& operator>>(CArchive& ar, COleDateTimeSpan& dateSpanSrc) {
    Read(ar, dateSpanSrc.m_status, dateSpanSrc.m_span);
    return ar;
}
