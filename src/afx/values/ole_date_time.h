// Dates as automation keeps them: days since 30 December 1899 as a floating-point number.
#pragma once

#include <afx.h>

#include <oleauto.h>

/// A span of time in days, signed. Questions about it count whole seconds.
class QVAFX_API COleDateTimeSpan {
public:
    enum DateTimeSpanStatus { valid = 0, invalid = 1, null = 2 };

    COleDateTimeSpan() = default;
    COleDateTimeSpan(double dblSpanSrc);
    COleDateTimeSpan(LONG lDays, int nHours, int nMins, int nSecs);

    double m_span = 0;
    DateTimeSpanStatus m_status = valid;

    DateTimeSpanStatus GetStatus() const { return m_status; }
    void SetStatus(DateTimeSpanStatus status) { m_status = status; }
    void SetDateTimeSpan(LONG lDays, int nHours, int nMins, int nSecs);

    // The parts have the sign of the span.
    LONG GetDays() const;
    LONG GetHours() const;    ///< -23 to 23
    LONG GetMinutes() const;  ///< -59 to 59
    LONG GetSeconds() const;  ///< -59 to 59
    // The whole span in full units.
    double GetTotalDays() const;
    double GetTotalHours() const;
    double GetTotalMinutes() const;
    double GetTotalSeconds() const;
    operator double() const { return m_span; }

    // Comparisons look at the values; spans without one (null) are equal to each other only.
    bool operator==(const COleDateTimeSpan& dateSpan) const;
    bool operator!=(const COleDateTimeSpan& dateSpan) const { return !(*this == dateSpan); }
    bool operator<(const COleDateTimeSpan& dateSpan) const { return m_span < dateSpan.m_span; }
    bool operator>(const COleDateTimeSpan& dateSpan) const { return m_span > dateSpan.m_span; }
    bool operator<=(const COleDateTimeSpan& dateSpan) const { return m_span <= dateSpan.m_span; }
    bool operator>=(const COleDateTimeSpan& dateSpan) const { return m_span >= dateSpan.m_span; }

    // Null with a null operand, else invalid with an invalid operand or beyond the range.
    COleDateTimeSpan operator+(const COleDateTimeSpan& dateSpan) const;
    COleDateTimeSpan operator-(const COleDateTimeSpan& dateSpan) const;
    COleDateTimeSpan operator-() const;
    COleDateTimeSpan& operator+=(COleDateTimeSpan dateSpan) { return *this = *this + dateSpan; }
    COleDateTimeSpan& operator-=(COleDateTimeSpan dateSpan) { return *this = *this - dateSpan; }

private:
    void CheckRange();
};

/// A date with time of day, 1 January 100 to 31 December 9999. The time of day counts forward from
/// midnight on both sides of day 0: -1.25 is 6 o'clock of 29 December 1899.
class QVAFX_API COleDateTime {
public:
    enum DateTimeStatus { error = -1, valid = 0, invalid = 1, null = 2 };

    // What cannot be converted or lies beyond the range gives status invalid. Assignment from these
    // types goes through the constructors.
    COleDateTime() = default;
    COleDateTime(DATE dtSrc);
    COleDateTime(__time64_t timeSrc);  ///< kept as local time
#ifdef _USE_32BIT_TIME_T
    COleDateTime(__time32_t timeSrc) : COleDateTime(static_cast<__time64_t>(timeSrc)) {}
#endif
    COleDateTime(const SYSTEMTIME& systimeSrc);  ///< as it is
    COleDateTime(const FILETIME& filetimeSrc);   ///< kept as local time
    COleDateTime(int nYear, int nMonth, int nDay, int nHour, int nMin, int nSec);
    static COleDateTime GetCurrentTime();

    DATE m_dt = 0;
    DateTimeStatus m_status = valid;

    DateTimeStatus GetStatus() const {
        return m_status;
    }
    void SetStatus(DateTimeStatus status) {
        m_status = status;
    }

    // Each gives error unless the status is valid.
    int GetYear() const;
    int GetMonth() const;  ///< 1 to 12
    int GetDay() const;    ///< 1 to 31
    int GetHour() const;
    int GetMinute() const;
    int GetSecond() const;
    int GetDayOfWeek() const;  ///< 1 is Sunday
    int GetDayOfYear() const;  ///< 1 is 1 January
    /// False, with nothing written, unless the status is valid.
    bool GetAsSystemTime(SYSTEMTIME& sysTime) const;
    operator DATE() const {
        return m_dt;
    }

    // Each gives the new status, 0 or 1; the value stays when it is 1. Day 0 is the last one of the
    // month before, and a day behind the end of a month (up to 31) reaches into the next.
    int SetDateTime(int nYear, int nMonth, int nDay, int nHour, int nMin, int nSec);
    int SetDate(int nYear, int nMonth, int nDay);  ///< at midnight
    int SetTime(int nHour, int nMin, int nSec);    ///< on day 0
    /// Reads a date, a time or both as the locale writes them. False for anything else: the status
    /// is invalid then and the value 0. dwFlags: LOCALE_NOUSEROVERRIDE, VAR_TIMEVALUEONLY,
    /// VAR_DATEVALUEONLY. Throws CMemoryException.
    bool ParseDateTime(LPCTSTR lpszDate, DWORD dwFlags = 0, LCID lcid = LANG_USER_DEFAULT);

    // Empty for null, a remark for an invalid date.
    CString Format(DWORD dwFlags = 0, LCID lcid = LANG_USER_DEFAULT) const;
    CString Format(LPCTSTR lpszFormat) const;  ///< by the codes of strftime
    CString Format(UINT nFormatID) const;

    // Comparisons look at the values; dates without one (null) are equal to each other only.
    bool operator==(const COleDateTime& date) const;
    bool operator!=(const COleDateTime& date) const {
        return !(*this == date);
    }
    bool operator<(const COleDateTime& date) const {
        return Days() < date.Days();
    }
    bool operator>(const COleDateTime& date) const {
        return Days() > date.Days();
    }
    bool operator<=(const COleDateTime& date) const {
        return Days() <= date.Days();
    }
    bool operator>=(const COleDateTime& date) const {
        return Days() >= date.Days();
    }

    // Null with a null operand, else invalid with an invalid operand or beyond the range.
    COleDateTime operator+(COleDateTimeSpan dateSpan) const;
    COleDateTime operator-(COleDateTimeSpan dateSpan) const;
    COleDateTimeSpan operator-(const COleDateTime& date) const;
    COleDateTime& operator+=(COleDateTimeSpan dateSpan) {
        return *this = *this + dateSpan;
    }
    COleDateTime& operator-=(COleDateTimeSpan dateSpan) {
        return *this = *this - dateSpan;
    }

private:
    bool Split(UDATE& udate) const;
    double Days() const;  ///< the value on an even scale, which arithmetic needs
};

QVAFX_API CArchive& operator<<(CArchive& ar, const COleDateTime& dateSrc);
QVAFX_API CArchive& operator>>(CArchive& ar, COleDateTime& dateSrc);
QVAFX_API CArchive& operator<<(CArchive& ar, const COleDateTimeSpan& dateSpanSrc);
QVAFX_API CArchive& operator>>(CArchive& ar, COleDateTimeSpan& dateSpanSrc);
