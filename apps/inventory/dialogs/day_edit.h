// A day in a picker that may stand blank.

#pragma once

#include "QVControls.h"

#include <ctime>

// 0: blank.
inline void ShowDay(QVDateTimeEdit& edit, std::time_t tDay) {
    if (tDay != 0) {
        edit.SetDate(CTime(tDay));
    } else {
        // A blank picker still holds a day: that which it opens with.
        edit.SetDate(CTime::GetCurrentTime());
        edit.SetWindowText("");
    }
}

// Its first moment; 0 for a blank picker.
inline std::time_t DayIn(QVDateTimeEdit& edit) {
    if (edit.IsBlank()) {
        return 0;
    }
    int nYear = 0;
    int nMonth = 0;
    int nDay = 0;
    edit.GetDate(nYear, nMonth, nDay);
    return static_cast<std::time_t>(CTime(nYear, nMonth, nDay, 0, 0, 0).GetTime());
}
