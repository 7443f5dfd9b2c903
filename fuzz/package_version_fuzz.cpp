// Versions of any bytes: one total order over all of them.

#include "model/package_version.h"

#include "fuzz_input.h"

#include <algorithm>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* pData, std::size_t nSize) {
    static constexpr char kBytes[] = "0019~~-:.+aZ\xC3";
    std::string aVersions[3];
    FuzzInput input(pData, nSize);
    for (std::string& strVersion : aVersions) {
        for (unsigned n = input.Byte() % 8; n > 0; --n) {
            const unsigned nByte = input.Byte();
            strVersion += nByte < 250 ? kBytes[nByte % sizeof(kBytes)] : static_cast<char>(nByte);
        }
    }
    const auto& [a, b, c] = aVersions;
    for (const std::string& str : aVersions) {
        FUZZ_CHECK(CompareVersions(str, str) == 0);
        FUZZ_CHECK(CompareVersions(str + "~", str) < 0);
    }
    FUZZ_CHECK(CompareVersions(a, b) == 0 <=> CompareVersions(b, a));
    if (CompareVersions(a, b) <= 0 && CompareVersions(b, c) <= 0) {
        FUZZ_CHECK(CompareVersions(a, c) <= 0);
        FUZZ_CHECK(CompareVersions(a, c) < 0 ||
                   (CompareVersions(a, b) == 0 && CompareVersions(b, c) == 0));
    }
    return 0;
}
