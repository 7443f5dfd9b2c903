#include "common/status_output.h"

#include "common/process_text.h"
#include "common/status_chain.h"

#include <new>

namespace qv {

std::vector<StatusRecord> ChainOf(const QVStatus& status) {
    static constexpr std::string_view kSeverities[] = {"Information", "Warning", "Error"};
    std::vector<StatusRecord> chain;
    for (const QVStatus* p = &status; p != nullptr; p = p->Cause()) {
        const auto nSeverity = static_cast<size_t>(p->GetSeverity());
        chain.push_back({p->Code(), p->IsSystem() != FALSE,
                         nSeverity < std::size(kSeverities) ? kSeverities[nSeverity] : "Error",
                         p->Text(), p->Where()});
    }
    return chain;
}

std::string LogEntry(const QVStatus* pStatus, std::string_view name, std::string_view lineEnd) {
    return WithStatus(pStatus, [&](const QVStatus& status) {
        return StatusEntry(ChainOf(status), name,
                           status.When().Format("%Y-%m-%d %H:%M:%S").GetString(), lineEnd);
    });
}

}  // namespace qv

namespace {

template <class Compose>
void Give(const QVStatus* pStatus, CString& strOut, Compose compose) {
    for (const bool bWhole : {true, false}) {
        try {
            strOut.Empty();
            const std::string strText = bWhole               ? compose()
                                        : pStatus != nullptr ? pStatus->Text()
                                                             : "";
            strOut = CString(strText.data(), static_cast<int>(strText.size()));
            return;
        } catch (const std::bad_alloc&) {
        } catch (CMemoryException* pException) {
            pException->Delete();
        }
    }
}

}  // namespace

QVStatusOutputGenerator::QVStatusOutputGenerator(const char* pszName) {
    Give(nullptr, m_strName, [&] { return std::string(pszName != nullptr ? pszName : ""); });
}

void QVStatusOutputGenerator::AsCompactString(const QVStatus* pStatus, CString& strOut) const {
    Give(pStatus, strOut, [&] {
        return qv::WithStatus(pStatus, [&](const QVStatus& status) {
            return qv::CompactStatus(qv::ChainOf(status), m_strName.GetString(), qv::ProcessText());
        });
    });
}

void QVStatusOutputGenerator::LogStatus(const QVStatus* pStatus, CString& strOut) const {
    Give(pStatus, strOut, [&] { return qv::LogEntry(pStatus, m_strName.GetString(), "\n"); });
}
