// Points in time and spans between them, in seconds.
#pragma once

#include "afx/values/string.h"

class QVAFX_API CTimeSpan {
public:
    CTimeSpan() = default;
    CTimeSpan(LONGLONG nSeconds) : m_nSeconds(nSeconds) {}
    CTimeSpan(LONG lDays, int nHours, int nMins, int nSecs)
        : m_nSeconds(nSecs + 60LL * (nMins + 60LL * (nHours + 24LL * lDays))) {}

    LONGLONG GetDays() const { return m_nSeconds / 86400; }
    LONGLONG GetTotalHours() const { return m_nSeconds / 3600; }
    LONG GetHours() const { return static_cast<LONG>(GetTotalHours() - GetDays() * 24); }
    LONGLONG GetTotalMinutes() const { return m_nSeconds / 60; }
    LONG GetMinutes() const { return static_cast<LONG>(GetTotalMinutes() - GetTotalHours() * 60); }
    LONGLONG GetTotalSeconds() const { return m_nSeconds; }
    LONG GetSeconds() const { return static_cast<LONG>(m_nSeconds - GetTotalMinutes() * 60); }
    LONGLONG GetTimeSpan() const { return m_nSeconds; }

    /// %D days, %H, %M and %S what is beyond, of two digits, %% a percent sign.
    CString Format(LPCTSTR pszFormat) const;
    CString Format(UINT nID) const { return Format(CString(MAKEINTRESOURCE(nID))); }

    CTimeSpan& operator+=(CTimeSpan span) { return *this = *this + span; }
    CTimeSpan& operator-=(CTimeSpan span) { return *this = *this - span; }
    CTimeSpan operator+(CTimeSpan span) const { return CTimeSpan(m_nSeconds + span.m_nSeconds); }
    CTimeSpan operator-(CTimeSpan span) const { return CTimeSpan(m_nSeconds - span.m_nSeconds); }
    bool operator==(CTimeSpan other) const { return m_nSeconds == other.m_nSeconds; }
    bool operator!=(CTimeSpan other) const { return m_nSeconds != other.m_nSeconds; }
    bool operator<(CTimeSpan other) const { return m_nSeconds < other.m_nSeconds; }
    bool operator<=(CTimeSpan other) const { return m_nSeconds <= other.m_nSeconds; }
    bool operator>(CTimeSpan other) const { return m_nSeconds > other.m_nSeconds; }
    bool operator>=(CTimeSpan other) const { return m_nSeconds >= other.m_nSeconds; }

private:
    LONGLONG m_nSeconds = 0;
};

class QVAFX_API CTime {
public:
    CTime() = default;
    CTime(__time64_t time) : m_time(time) {}
    /// Local time.
    CTime(int nYear, int nMonth, int nDay, int nHour, int nMin, int nSec, int nDST = -1);
    CTime(const SYSTEMTIME& st, int nDST = -1);
    CTime(const FILETIME& ft, int nDST = -1);
    static CTime GetCurrentTime();

    __time64_t GetTime() const { return m_time; }
    /// Null for a time that the calendar of the run-time library does not reach.
    struct tm* GetLocalTm(struct tm* ptm) const;
    struct tm* GetGmtTm(struct tm* ptm) const;
    bool GetAsSystemTime(SYSTEMTIME& st) const;
    int GetYear() const;
    int GetMonth() const;  ///< 1 to 12
    int GetDay() const;
    int GetHour() const;
    int GetMinute() const;
    int GetSecond() const;
    int GetDayOfWeek() const;  ///< 1 is Sunday
    /// By the codes of strftime.
    CString Format(LPCTSTR pszFormat) const;
    CString Format(UINT nID) const { return Format(CString(MAKEINTRESOURCE(nID))); }
    CString FormatGmt(LPCTSTR pszFormat) const;
    CString FormatGmt(UINT nID) const { return FormatGmt(CString(MAKEINTRESOURCE(nID))); }

    CTime& operator+=(CTimeSpan span) { return *this = *this + span; }
    CTime& operator-=(CTimeSpan span) { return *this = *this - span; }
    CTimeSpan operator-(CTime time) const { return CTimeSpan(m_time - time.m_time); }
    CTime operator+(CTimeSpan span) const { return CTime(m_time + span.GetTimeSpan()); }
    CTime operator-(CTimeSpan span) const { return CTime(m_time - span.GetTimeSpan()); }
    bool operator==(CTime other) const { return m_time == other.m_time; }
    bool operator!=(CTime other) const { return m_time != other.m_time; }
    bool operator<(CTime other) const { return m_time < other.m_time; }
    bool operator<=(CTime other) const { return m_time <= other.m_time; }
    bool operator>(CTime other) const { return m_time > other.m_time; }
    bool operator>=(CTime other) const { return m_time >= other.m_time; }

private:
    __time64_t m_time = 0;
};
