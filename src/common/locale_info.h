// QVLocaleInfo: how the user writes times and dates, as pictures of the platform: "h:mm:ss tt",
// "dddd, d MMMM yyyy". What users have changed in their settings is obeyed.
//
// Each object reads a picture at its first question and keeps it: make a new object to see later
// changes. The texts belong to the object and are in the process's code page, with "?" for what
// that has no character for. Needs no memory; where the system has no answer a picture is
// "HH:mm:ss" or "d MMMM yyyy".

#pragma once

#include "common/common_api.h"

class QV_COMMON_API QVLocaleInfo {
public:
    QVLocaleInfo();
    ~QVLocaleInfo();

    const char* TimeFormat();
    const char* LongDateFormat();

private:
    static constexpr int kMostUnits = 80;              // that the system has for a picture
    static constexpr int kMostBytes = 3 * kMostUnits;  // the same in any code page

    static const char* Read(unsigned long nType, const char* pszElse,
                            char (&szPicture)[kMostBytes]);

    char m_szTime[kMostBytes];
    char m_szLongDate[kMostBytes];
};
