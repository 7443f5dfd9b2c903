#include "common/status.h"

#include <cstring>
#include <iterator>
#include <memory>
#include <new>

namespace {

constexpr size_t kUsualText = 512;
// Holds a message about the longest path that the platform has, in any code page.
constexpr size_t kLongestText = 128 * 1024;

// Of the codes from generalError on.
constexpr LPCSTR kOwnTexts[] = {"An error has occurred.",          "There is not enough memory.",
                                "A file could not be used.",       "A resource is not available.",
                                "The operation is not supported.", "An argument is not valid.",
                                "An unknown error has occurred.",  "The operation was cancelled."};

LPCSTR OwnText(DWORD dwCode) {
    const DWORD nText = dwCode - QVStatus::generalError;
    return nText < std::size(kOwnTexts) ? kOwnTexts[nText] : "";
}

DWORD CodeOf(const CException* pException) {
    struct Row {
        const CRuntimeClass* pClass;
        DWORD dwCode;
    };
    const Row rows[] = {{RUNTIME_CLASS(CFileException), QVStatus::fileError},
                        {RUNTIME_CLASS(CMemoryException), QVStatus::outOfMemory},
                        {RUNTIME_CLASS(CResourceException), QVStatus::resourceError},
                        {RUNTIME_CLASS(CNotSupportedException), QVStatus::notSupported},
                        {RUNTIME_CLASS(CInvalidArgException), QVStatus::badArgument},
                        {RUNTIME_CLASS(CUserException), QVStatus::cancelled}};
    for (const Row& row : rows) {
        if (pException != nullptr && pException->IsKindOf(row.pClass)) {
            return row.dwCode;
        }
    }
    return QVStatus::unknownError;
}

// Whatever action throws ends here.
template <class Action>
void Quietly(Action action) {
    try {
        action();
    } catch (CException* pException) {
        pException->Delete();
    } catch (...) {
    }
}

// Messages of the platform end in a line end, which no line of ours wants.
void Keep(CString& str, LPCSTR psz) {
    size_t nBytes = psz != nullptr ? strlen(psz) : 0;
    while (nBytes > 0 && strchr(" \r\n", psz[nBytes - 1]) != nullptr) {
        --nBytes;
    }
    Quietly([&] { str = CString(psz, static_cast<int>(nBytes)); });
}

}  // namespace

QVStatus::QVStatus(DWORD dwCode)
    : m_dwCode(dwCode), m_severity(dwCode == cancelled ? info : error) {}

QVStatus::QVStatus(DWORD dwCode, LPCSTR pszText, Severity severity)
    : m_dwCode(dwCode), m_severity(severity) {
    Keep(m_strText, pszText);
}

QVStatus::QVStatus(CException* pException) : QVStatus(CodeOf(pException)) {
    if (pException == nullptr) {
        return;
    }
    Quietly([&] { TakeText(*pException); });
    if (m_dwCode == fileError) {
        const LONG lError = static_cast<CFileException*>(pException)->m_lOsError;
        SetCause(lError > 0 ? FromSystem(static_cast<DWORD>(lError)) : nullptr);
    }
}

// Exceptions cut their message where it does not fit.
void QVStatus::TakeText(CException& exception) {
    char szUsual[kUsualText] = {};
    if (!exception.GetErrorMessage(szUsual, sizeof szUsual)) {
        return;
    }
    if (strlen(szUsual) + 1 < sizeof szUsual) {
        Keep(m_strText, szUsual);
        return;
    }
    const auto pLong = std::make_unique<char[]>(kLongestText);
    exception.GetErrorMessage(pLong.get(), kLongestText);
    Keep(m_strText, pLong.get());
}

QVStatus* QVStatus::FromSystem(DWORD dwError) {
    wchar_t szWide[kUsualText];
    char szText[3 * kUsualText];  // the same in any code page
    const DWORD nUnits =
        ::FormatMessageW(FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS, nullptr,
                         dwError, 0, szWide, kUsualText, nullptr);
    const int nBytes = ::WideCharToMultiByte(CP_ACP, 0, szWide, static_cast<int>(nUnits), szText,
                                             sizeof szText - 1, nullptr, nullptr);
    szText[nBytes] = 0;
    auto* pStatus = new (std::nothrow) QVStatus(dwError, szText);
    if (pStatus != nullptr) {
        pStatus->m_bSystem = TRUE;
    }
    return pStatus;
}

QVStatus::~QVStatus() {
    SetCause(nullptr);
}

LPCSTR QVStatus::Text() const {
    return m_bSystem || !m_strText.IsEmpty() ? m_strText.GetString() : OwnText(m_dwCode);
}

void QVStatus::SetWhere(LPCSTR pszWhere) {
    Keep(m_strWhere, pszWhere);
}

// One by one: each lets go of its cause before it is deleted. A cause's cause that moves up keeps
// what is behind it.
void QVStatus::SetCause(QVStatus* pCause) {
    for (const QVStatus* p = pCause; p != nullptr; p = p->m_pCause) {
        if (p == this) {
            return;
        }
    }
    QVStatus* pOld = m_pCause != pCause ? m_pCause : nullptr;
    m_pCause = pCause;
    while (pOld != nullptr && pOld != pCause) {
        QVStatus* const pNext = pOld->m_pCause;
        pOld->m_pCause = nullptr;
        delete pOld;
        pOld = pNext;
    }
}
