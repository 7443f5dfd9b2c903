// Random paths, cut and put together again, in each kind of code page.

#include "common/core/path.h"

#include "fuzz_input.h"
#include "fuzz_text.h"

#include <vector>

namespace {

std::vector<std::string> Components(const qv::PathText& rules, const std::string& strPath) {
    std::vector<std::string> parts;
    std::size_t nPos = 0;
    for (auto part = rules.Next(strPath, nPos); !part.empty(); part = rules.Next(strPath, nPos)) {
        parts.emplace_back(part);
    }
    FUZZ_CHECK(nPos == strPath.size());
    return parts;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* pData, std::size_t nSize) {
    FuzzInput input(pData, nSize);
    const qv::MultiByte text = TextOfKind(input.Byte());
    const qv::PathText rules(text, "\\/a:."[input.Byte() % 5]);
    std::string strPath;
    while (!input.AtEnd() && strPath.size() < 400) {
        static constexpr const char* kPieces[] = {
            "\\", "/", "..", "C:", "\\\\", "\\\\?\\", "UNC\\"};
        const unsigned n = input.Byte();
        strPath += n % 2 == 0 ? kPieces[n / 2 % std::size(kPieces)] : input.Text();
    }
    const std::size_t nFirst = rules.RootOf(strPath).bDrive ? 1 : 0;
    const std::vector<std::string> parts = Components(rules, strPath);
    // One by one from the end they are the same, and the root stays. Put together again they are as
    // before, but for half characters, which are dropped.
    std::string strLeft = strPath;
    for (std::size_t i = parts.size(); i > nFirst; --i) {
        const auto cut = rules.CutLast(strLeft, 1);
        FUZZ_CHECK(cut.nTaken == 1 && cut.taken == parts[i - 1]);
        strLeft = std::string(cut.rest);
    }
    FUZZ_CHECK(rules.CutLast(strLeft, 1).nTaken == 0);
    for (std::size_t i = nFirst; i < parts.size(); ++i) {
        rules.Append(strLeft, parts[i]);
    }
    FUZZ_CHECK(!text.KeepsAscii() || Components(rules, strLeft) == parts);

    const std::string strNormal = rules.Normal(strPath);
    FUZZ_CHECK(rules.Normal(strNormal) == strNormal);
    return 0;
}
