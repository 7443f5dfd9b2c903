// Entries of packages, of any bytes and of words of the format: what the details of a package make
// of them.

#include "fuzz_input.h"
#include "model/dependencies.h"
#include "model/package_database.h"
#include "model/package_facts.h"
#include "model/stanza.h"

namespace {

void CheckPackage(const Inventory& inventory, const Package& package) {
    for (const Fact& fact : FactsOf(package)) {
        FUZZ_CHECK((fact.strName + fact.strValue).find_first_of("\n\t\033") == std::string::npos);
    }
    FUZZ_CHECK(!DescriptionOf(package).empty());
    for (const ConfigurationFile& file :
         ConfigurationFiles(StanzaValue(*package.pStanza, "Conffiles"))) {
        FUZZ_CHECK(!file.strPath.empty() && file.strChecksum.find(' ') == std::string::npos);
    }
    const Relations relations = RelationsOf(inventory, package);
    for (const Relation& relation : relations.needs) {
        FUZZ_CHECK(!relation.strText.empty());
    }
    for (const Relation& relation : relations.neededBy) {
        FUZZ_CHECK(!relation.strName.empty() && !relation.strText.empty());
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* pData, std::size_t nSize) {
    const std::string_view bytes(reinterpret_cast<const char*>(pData), nSize);
    Paragraphs(bytes);
    ConfigurationFiles(bytes);
    StanzaFields(bytes);
    static constexpr const char* kWords[] = {"\n\nPackage: ",
                                             "\nDepends: ",
                                             "\nProvides: ",
                                             "\nConffiles:",
                                             "\n ",
                                             "\nDescription: ",
                                             " obsolete",
                                             "a",
                                             "b",
                                             ":",
                                             " | ",
                                             ",",
                                             " (",
                                             "\t",
                                             ".",
                                             "\033"};
    std::string strText("Package: a");
    for (FuzzInput input(pData, nSize); !input.AtEnd();) {
        strText += kWords[input.Byte() % std::size(kWords)];
    }
    std::vector<Package> packages;
    Problem problem;
    if (ParsePackages(strText, packages, problem)) {
        Inventory inventory;
        inventory.SetPackages(std::move(packages));
        for (const Section& section : inventory.Sections()) {
            for (const Package& package : section.packages) {
                CheckPackage(inventory, package);
            }
        }
    }
    return 0;
}
