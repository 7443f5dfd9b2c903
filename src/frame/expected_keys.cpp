#include "frame/expected_keys.h"

#include "common/process_text.h"
#include "frame/core/typed_search.h"

namespace {

UINT KeyboardCodePage() {
    const auto wLanguage = LOWORD(reinterpret_cast<DWORD_PTR>(::GetKeyboardLayout(0)));
    DWORD dwPage = 0;
    ::GetLocaleInfo(MAKELCID(wLanguage, SORT_DEFAULT),
                    LOCALE_IDEFAULTANSICODEPAGE | LOCALE_RETURN_NUMBER,
                    reinterpret_cast<LPTSTR>(&dwPage), sizeof(dwPage));
    return dwPage != 0 ? dwPage : ::GetACP();  // languages without one type as the process has it
}

// Windows that are not wide get characters in the code page of the keyboard's language.
std::string FromKeyboard(std::string_view bytes) {
    const UINT nPage = KeyboardCodePage();
    if (nPage == ::GetACP()) {
        return std::string(bytes);
    }
    if (bytes.size() == 1 && ::IsDBCSLeadByteEx(nPage, static_cast<BYTE>(bytes[0]))) {
        return {};
    }
    wchar_t szWide[2];
    const int nWide =
        ::MultiByteToWideChar(nPage, 0, bytes.data(), static_cast<int>(bytes.size()), szWide, 2);
    constexpr int kRoom = 8;
    char szOwn[kRoom];
    const int nOwn =
        ::WideCharToMultiByte(CP_ACP, 0, szWide, nWide, szOwn, kRoom, nullptr, nullptr);
    return nOwn > 0 ? std::string(szOwn, static_cast<size_t>(nOwn)) : std::string(bytes);
}

}  // namespace

QVExpectedKeys::QVExpectedKeys() = default;

QVExpectedKeys::~QVExpectedKeys() = default;

void QVExpectedKeys::EnableExpectedKeys(BOOL bEnable) {
    m_bExpectedKeys = bEnable;
    if (m_pTyped != nullptr) {
        m_pTyped->Forget();  // it may be searching
    }
}

qv::TypedSearch& QVExpectedKeys::Typed() {
    if (m_pTyped == nullptr) {
        m_pTyped = std::make_unique<qv::TypedSearch>(qv::ProcessText(), FromKeyboard);
    }
    return *m_pTyped;
}
