// A status with its causes as core takes them.

#pragma once

#include "common/core/status_text.h"
#include "common/status.h"

#include <string>
#include <vector>

namespace qv {

// The texts are those of the statuses.
std::vector<StatusRecord> ChainOf(const QVStatus& status);

// Of a status that is not there, one of which nothing is known.
template <class Use>
auto WithStatus(const QVStatus* pStatus, Use use) {
    const QVStatus unknown(QVStatus::unknownError);
    return use(pStatus != nullptr ? *pStatus : unknown);
}

std::string LogEntry(const QVStatus* pStatus, std::string_view name, std::string_view lineEnd);

}  // namespace qv
