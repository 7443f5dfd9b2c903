#include "common/locale_info.h"

#include <windows.h>

QVLocaleInfo::QVLocaleInfo() : m_szTime(), m_szLongDate() {}

QVLocaleInfo::~QVLocaleInfo() = default;

// By the wide call: the 8-bit one answers in the code page of the locale.
const char* QVLocaleInfo::Read(unsigned long nType, const char* pszElse,
                               char (&szPicture)[kMostBytes]) {
    if (szPicture[0] != 0) {
        return szPicture;
    }
    wchar_t szWide[kMostUnits];
    if (::GetLocaleInfoW(LOCALE_USER_DEFAULT, nType, szWide, kMostUnits) == 0 ||
        ::WideCharToMultiByte(CP_ACP, 0, szWide, -1, szPicture, kMostBytes, nullptr, nullptr) ==
            0) {
        szPicture[0] = 0;
    }
    return szPicture[0] != 0 ? szPicture : pszElse;
}

const char* QVLocaleInfo::TimeFormat() {
    return Read(LOCALE_STIMEFORMAT, "HH:mm:ss", m_szTime);
}

const char* QVLocaleInfo::LongDateFormat() {
    return Read(LOCALE_SLONGDATE, "d MMMM yyyy", m_szLongDate);
}
