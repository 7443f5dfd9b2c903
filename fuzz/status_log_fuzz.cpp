// Statuses of any texts in a log that begins with any bytes, on a disk that may be full; beside
// what was in the file before each.

#include "common/core/status_text.h"
#include "fuzz_input.h"
#include "fuzz_text.h"
#include "support/fake_log.h"

#include <vector>

namespace {

std::string Text(FuzzInput& input) {
    static constexpr std::string_view kPieces[] = {"\n=== ", "=== ", "\r",
                                                   "\0\x1A", "\x81", "\xC3"};
    std::string strText(input.Byte() % 32 == 0 ? input.Byte() * 2 : 0, 'x');
    for (unsigned n = input.Byte() % 8; n > 0; --n) {
        strText += kPieces[input.Byte() % std::size(kPieces)];
    }
    return strText;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* pData, std::size_t nSize) {
    FuzzInput input(pData, nSize);
    FakeLog log;
    log.str = Text(input);
    const std::uint64_t nUsual = input.Byte() * 16;
    while (!input.AtEnd()) {
        const std::string strText = Text(input);
        const std::vector<qv::StatusRecord> chain(1 + input.Byte() % 5,
                                                  {1, false, "Error", strText, strText});
        const auto multiByte = TextOfKind(input.Byte());
        FUZZ_CHECK(qv::CompactStatus(chain, strText, multiByte).size() < 3000);
        const std::string strEntry = qv::StatusEntry(chain, strText, "now", "\r\n");
        FUZZ_CHECK(strEntry.find("\n=== ") == strEntry.npos && strEntry.ends_with("\r\n"));
        FUZZ_CHECK(strEntry.find('\x1A') == strEntry.npos);
        const std::string strBefore = log.str;
        const bool bLine = strBefore.empty() || strBefore.back() == '\n';
        const std::string strAll = strBefore + (bLine ? "" : "\r\n") + strEntry;
        const std::uint64_t nLimit = input.Byte() < 30 ? strAll.size() : nUsual;
        log.nRoom = strBefore.size() + (input.Byte() < 30 ? input.Byte() : 1000000);
        try {
            qv::AppendToLog(log, strEntry, nLimit, qv::kEntryMark.size() + 1 + input.Byte() % 64);
        } catch (const DiskFull&) {
            FUZZ_CHECK(log.str == strBefore);
            continue;
        }
        FUZZ_CHECK(log.str.ends_with(strEntry) && strAll.ends_with(log.str));
        if (strAll.size() <= nLimit || strBefore.empty()) {
            FUZZ_CHECK(log.str == strAll);
        } else {
            // As many as half the limit holds, or the newest alone.
            const std::size_t nMore = strAll.rfind("\n=== ", strAll.size() - log.str.size() - 2);
            FUZZ_CHECK(log.str.starts_with("=== "));
            FUZZ_CHECK(log.str.size() <= nLimit / 2 || log.str == strEntry);
            FUZZ_CHECK(nMore == strAll.npos || strAll.size() - nMore - 1 > nLimit / 2);
        }
    }
    return 0;
}
