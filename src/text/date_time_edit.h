// QVDateTimeEdit: the platform's date and time picker as the user's locale writes times and long
// dates: years in four digits, seconds only if wanted, dates from 1980 to 2038. It can stand blank.
//
// Make it as any picker, by Create or SubclassDlgItem, and choose its style and SetShowSeconds
// before the first value: the format is worked out then, once. A picker with DTS_UPDOWN shows a
// time, also one made for dates; so does DTS_SHORTDATECENTURYFORMAT. A short date keeps the
// platform's format.
//
// SetWindowText with an empty text blanks the control, a value set or picked ends that, and so does
// any other text. Blank is a matter of what shows: the picker keeps its value, and GetTime and
// GetDate give it. IsBlank tells the two apart.
//
// A value that is none (month 13) or outside of the range leaves the picker's value as it is; a day
// behind the end of its month, up to 31, reaches into the next. GetTime and GetDate give -1 in each
// place for a picker that the user has unchecked (DTS_SHOWNONE).

#pragma once

#include "frame/qv_api.h"

#include <afxdtctl.h>

class QV_CONTROLS_API QVDateTimeEdit : public CDateTimeCtrl {
public:
    void SetShowSeconds(int bShow);

    // Local times. The date of a time is 1 January 2001.
    void SetTime(int nHour, int nMinute, int nSecond);
    void SetTime(const CTime& time);
    // Midnight of a date.
    void SetDate(int nYear, int nMonth, int nDay);
    void SetDate(const CTime& time);
    // Leaves time as it is for an unchecked picker.
    void GetTime(CTime& time);
    void GetTime(int& nHour, int& nMinute, int& nSecond);
    void GetTime(int& nHour, int& nMinute);
    void GetDate(int& nYear, int& nMonth, int& nDay);

    BOOL IsBlank() const { return m_bBlank; }

protected:
    // Ends quietly where there is no memory.
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;

    // Works the format out and sets it and the range, the first time.
    void LocalizeFormat();
    // On a picture in the syntax of DTM_SETFORMAT, by whole characters. The first ch becomes two,
    // unless two stand together anywhere.
    static void DoubleFormatCharacter(CString& strFormat, char ch);
    // The first strPart becomes two, unless two stand together anywhere. Where strFormat ends in
    // strPart, all behind the first one goes.
    static void DoubleFormatString(CString& strFormat, const CString& strPart);
    // Takes the first strPart out, with the character before it, or behind it at the start.
    static void RemoveFormatString(CString& strFormat, const CString& strPart);

    // Gives 0 for null, else 1.
    afx_msg LRESULT OnSetText(WPARAM wParam, LPARAM lParam);
    // The parent is told as well.
    afx_msg BOOL OnDateTimeChange(NMHDR* pHeader, LRESULT* pResult);
    DECLARE_MESSAGE_MAP()

    int m_bLocalized = 0;
    int m_bShowSeconds = 0;
    int m_bBlank = 0;
    CString m_strFormat;  // empty: the platform's

private:
    void Show(const COleDateTime& time);
    void EndBlank();
};
