#include "errors.h"

#include <cctype>
#include <utility>

namespace {

constexpr unsigned long kLogLimit = 1 << 20;  // bytes

constexpr std::pair<ErrorCode, LPCSTR> kSentences[] = {
    {kErrorOpenInventory, "The inventory could not be opened."},
    {kErrorNoInventory, "There is no inventory in the folder."},
    {kErrorReadSettings, "What was kept could not be read."},
    {kErrorWriteSettings, "The settings could not be kept."},
    {kErrorReadReport, "A report that was kept could not be read."},
    {kErrorWriteReport,
     "The report could not be written to its file: it is there until the program ends."},
    {kErrorDeleteReport,
     "The report's file could not be deleted: it is there again when the program starts."},
    {kErrorExport, "The list could not be written."},
    {kErrorOpenLog, "The log could not be opened."},
    {kErrorExportLog, "The log could not be written to a file."},
    {kErrorPrint, "The pages could not be printed."},
    {kErrorNoPrinter, "There is no printer to print on."},
    {kErrorReadPackageFile, "A file of the package could not be read."},
    {kErrorSnapshot, "The snapshot could not be written."},
    {kErrorCompare, "The inventory could not be compared."},
    {kErrorControls, "The controls that show comparisons could not be registered."},
    {kErrorKeepError, "An error could not be kept in the application's log."},
};

CString s_strLog;
bool s_bComplained = false;  // that the log cannot be written

LPCSTR SentenceOf(ErrorCode code) {
    for (const auto& [known, pszText] : kSentences) {
        if (known == code) {
            return pszText;
        }
    }
    return "";
}

Failure MakeStatus(DWORD dwCode, LPCSTR pszText, LPCSTR pszWhere, Failure pCause) {
    auto pStatus = std::make_unique<QVStatus>(dwCode, pszText);
    if (pszWhere != nullptr) {
        pStatus->SetWhere(pszWhere);
    }
    if (pCause != nullptr) {
        pStatus->SetCause(pCause.release());
    }
    return pStatus;
}

bool IsError(const Failure& pFailure) {
    return pFailure != nullptr && !WasCancelled(pFailure);
}

void Show(Failure pFailure, CWnd* pParent) {
    QVStatusReport::Report(pFailure.release(), pParent != nullptr ? pParent : AfxGetMainWnd(), 0);
}

// Null: it is kept, or there is nothing to keep.
Failure Append(const Failure& pFailure) {
    if (!IsError(pFailure) || s_strLog.IsEmpty()) {
        return nullptr;
    }
    try {
        QVStatusLogText(s_strLog, kLogLimit).Log(pFailure.get());
        return nullptr;
    } catch (CException* pException) {
        return FileReason(pException);
    }
}

}  // namespace

bool WasCancelled(const Failure& pFailure) {
    return pFailure != nullptr && !pFailure->IsSystem() && pFailure->Code() == QVStatus::cancelled;
}

Failure Failed(ErrorCode code, Failure pCause, LPCSTR pszWhere) {
    return MakeStatus(code, SentenceOf(code), pszWhere, std::move(pCause));
}

Failure Reason(LPCSTR pszText, LPCSTR pszWhere, Failure pCause) {
    return MakeStatus(kErrorCause, pszText, pszWhere, std::move(pCause));
}

Failure ProblemReason(const Problem& problem) {
    const std::string strPlace = ProblemPlace(problem);
    std::string strSentence = problem.strMessage + ".";
    strSentence[0] = static_cast<char>(std::toupper(static_cast<unsigned char>(strSentence[0])));
    return Reason(strSentence.c_str(), strPlace.c_str(), SystemReason(problem.nError, nullptr));
}

Failure SystemReason(DWORD dwError, LPCSTR pszWhere) {
    Failure pStatus(dwError != 0 ? QVStatus::FromSystem(dwError) : nullptr);
    if (pStatus != nullptr && pszWhere != nullptr) {
        pStatus->SetWhere(pszWhere);
    }
    return pStatus;
}

Failure FileReason(CException* pException) {
    auto pStatus = std::make_unique<QVStatus>(pException);
    pException->Delete();
    return pStatus;
}

void KeepErrorsIn(const CString& strPath) {
    s_strLog = strPath;
}

const CString& ErrorLogPath() {
    return s_strLog;
}

void Keep(const Failure& pFailure) {
    Append(pFailure);
}

void Tell(Failure pFailure, CWnd* pParent) {
    if (!IsError(pFailure)) {
        return;
    }
    Failure pReason = Append(pFailure);
    Show(std::move(pFailure), pParent);
    if (pReason != nullptr && !std::exchange(s_bComplained, true)) {
        Show(Failed(kErrorKeepError, std::move(pReason)), nullptr);
    }
}

void TellOrKeep(Failure pFailure, bool bInteractive) {
    if (bInteractive) {
        Tell(std::move(pFailure));
    } else {
        Keep(pFailure);
    }
}
