// Package databases of any bytes.

#include "fuzz_input.h"
#include "model/package_database.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* pData, std::size_t nSize) {
    std::vector<Package> packages;
    Problem problem;
    // The bytes as they are, and words of the format chosen by them.
    ParsePackages({reinterpret_cast<const char*>(pData), nSize}, packages, problem);
    static constexpr const char* kWords[] = {
        "Package: ", "Status: ", "Installed-Size: ",     "Depends: ", "\n", "\n\n",
        " ",         ",",        "install ok installed", "12",        "|",  "x"};
    std::string strText;
    for (FuzzInput input(pData, nSize); !input.AtEnd();) {
        strText += kWords[input.Byte() % std::size(kWords)];
    }
    const bool bParsed = ParsePackages(strText, packages, problem);
    FUZZ_CHECK(bParsed || (packages.empty() && problem.nLine > 0));
    Inventory inventory;
    inventory.SetPackages(packages);
    FUZZ_CHECK(inventory.CountPackages() == packages.size());
    for (const Package& package : packages) {
        FUZZ_CHECK(!package.strName.empty() && !package.strSection.empty());
    }
    return 0;
}
