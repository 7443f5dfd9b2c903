#include "text/date_time_edit.h"

#include "common/locale_info.h"
#include "common/process_text.h"
#include "frame/out_of_memory.h"
#include "frame/text_out.h"
#include "text/core/date_picture.h"

#include <afxdisp.h>

#include <ctime>
#include <string>

namespace {

// DTS_LONGDATEFORMAT has neither bit; the century's short date has one of them.
constexpr DWORD kTimeBits = DTS_TIMEFORMAT;
constexpr char kShowsNothing[] = " ";

// Applies a change of core to the framework's string.
template <class Change>
void ChangePicture(CString& strFormat, Change change) {
    std::string str(qv::View(strFormat));
    change(str);
    strFormat = str.c_str();
}

}  // namespace

BEGIN_MESSAGE_MAP(QVDateTimeEdit, CDateTimeCtrl)
    ON_MESSAGE(WM_SETTEXT, &QVDateTimeEdit::OnSetText)
    ON_NOTIFY_REFLECT_EX(DTN_DATETIMECHANGE, &QVDateTimeEdit::OnDateTimeChange)
END_MESSAGE_MAP()

LRESULT QVDateTimeEdit::WindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
    return qv::HandleQuietly(m_hWnd, message,
                             [&] { return CDateTimeCtrl::WindowProc(message, wParam, lParam); });
}

void QVDateTimeEdit::SetShowSeconds(int bShow) {
    m_bShowSeconds = bShow;
}

// --- Values

void QVDateTimeEdit::Show(const COleDateTime& time) {
    LocalizeFormat();
    EndBlank();
    CDateTimeCtrl::SetTime(time);
}

void QVDateTimeEdit::SetTime(int nHour, int nMinute, int nSecond) {
    Show(COleDateTime(2001, 1, 1, nHour, nMinute, nSecond));
}

void QVDateTimeEdit::SetTime(const CTime& time) {
    struct tm local;
    if (time.GetLocalTm(&local) != nullptr) {
        SetTime(local.tm_hour, local.tm_min, local.tm_sec);
    }
}

void QVDateTimeEdit::SetDate(int nYear, int nMonth, int nDay) {
    Show(COleDateTime(nYear, nMonth, nDay, 0, 0, 0));
}

void QVDateTimeEdit::SetDate(const CTime& time) {
    struct tm local;
    if (time.GetLocalTm(&local) != nullptr) {
        SetDate(local.tm_year + 1900, local.tm_mon + 1, local.tm_mday);
    }
}

void QVDateTimeEdit::GetTime(CTime& time) {
    CDateTimeCtrl::GetTime(time);
}

void QVDateTimeEdit::GetTime(int& nHour, int& nMinute, int& nSecond) {
    COleDateTime time;
    CDateTimeCtrl::GetTime(time);
    nHour = time.GetHour();
    nMinute = time.GetMinute();
    nSecond = time.GetSecond();
}

void QVDateTimeEdit::GetTime(int& nHour, int& nMinute) {
    int nSecond;
    GetTime(nHour, nMinute, nSecond);
}

void QVDateTimeEdit::GetDate(int& nYear, int& nMonth, int& nDay) {
    COleDateTime time;
    CDateTimeCtrl::GetTime(time);
    nYear = time.GetYear();
    nMonth = time.GetMonth();
    nDay = time.GetDay();
}

// --- Format

void QVDateTimeEdit::LocalizeFormat() {
    if (m_bLocalized || m_hWnd == nullptr) {
        return;
    }
    CString strFormat;
    const bool bDone = qv::MemorySuffices([&] {
        QVLocaleInfo locale;
        if ((GetStyle() & kTimeBits) != 0) {
            strFormat = locale.TimeFormat();
            if (!m_bShowSeconds) {
                RemoveFormatString(strFormat, "ss");
                RemoveFormatString(strFormat, "s");
            }
        } else if ((GetStyle() & DTS_LONGDATEFORMAT) != 0) {
            strFormat = locale.LongDateFormat();
            DoubleFormatCharacter(strFormat, 'y');
            DoubleFormatString(strFormat, "yy");
            RemoveFormatString(strFormat, "gg");
        }
    });
    m_strFormat = bDone ? strFormat : CString();  // without memory the platform's stands
    if (!m_strFormat.IsEmpty()) {
        SetFormat(m_strFormat);
    }
    m_bLocalized = 1;
    const CTime first(1980, 1, 1, 0, 0, 0);
    const CTime last(2038, 1, 1, 0, 0, 0);
    SetRange(&first, &last);
}

// An empty format would show nothing ever after; null is the platform's own.
void QVDateTimeEdit::EndBlank() {
    if (m_bBlank) {
        SetFormat(m_strFormat.IsEmpty() ? nullptr : static_cast<LPCTSTR>(m_strFormat));
        m_bBlank = 0;
    }
}

void QVDateTimeEdit::DoubleFormatCharacter(CString& strFormat, char ch) {
    ChangePicture(strFormat,
                  [&](std::string& str) { qv::DoubleFormatCharacter(str, ch, qv::ProcessText()); });
}

void QVDateTimeEdit::DoubleFormatString(CString& strFormat, const CString& strPart) {
    ChangePicture(strFormat, [&](std::string& str) {
        qv::DoubleFormatString(str, qv::View(strPart), qv::ProcessText());
    });
}

void QVDateTimeEdit::RemoveFormatString(CString& strFormat, const CString& strPart) {
    ChangePicture(strFormat, [&](std::string& str) {
        qv::RemoveFormatString(str, qv::View(strPart), qv::ProcessText());
    });
}

// --- Messages

LRESULT QVDateTimeEdit::OnSetText(WPARAM, LPARAM lParam) {
    const auto* pszText = reinterpret_cast<const char*>(lParam);
    if (pszText == nullptr) {
        return 0;
    }
    if (*pszText != 0) {
        EndBlank();
        Default();
    } else if (!m_bBlank) {
        SetFormat(kShowsNothing);
        m_bBlank = 1;
    }
    return 1;
}

BOOL QVDateTimeEdit::OnDateTimeChange(NMHDR*, LRESULT* pResult) {
    EndBlank();
    *pResult = 0;
    return FALSE;
}
