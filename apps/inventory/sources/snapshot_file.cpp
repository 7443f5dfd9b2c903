#include "sources/snapshot_file.h"

#include "model/snapshot.h"
#include "sources/code_page.h"
#include "sources/whole_file.h"

namespace {

constexpr size_t kPiece = 1 << 16;

void Write(LPCSTR pszPath, const Inventory& inventory, Work& work) {
    CFile file(pszPath, CFile::modeCreate | CFile::modeWrite);
    const size_t nAll = inventory.CountPackages();
    size_t nDone = 0;
    std::string strPiece;
    const auto flush = [&] {
        file.Write(strPiece.data(), static_cast<UINT>(strPiece.size()));
        strPiece.clear();
    };
    for (const Section& section : inventory.Sections()) {
        for (const Package& package : section.packages) {
            work.Step(nDone++, nAll);
            // An entry of the database is in UTF-8 already.
            strPiece += package.pStanza != nullptr ? SnapshotEntry(package)
                                                   : InUtf8(SnapshotEntry(package));
            if (strPiece.size() >= kPiece) {
                flush();
            }
        }
    }
    flush();
    file.Close();
}

}  // namespace

Failure WriteSnapshot(LPCSTR pszPath, const Inventory& inventory) {
    return WriteWholeFile("Writing the snapshot...", kErrorSnapshot, pszPath,
                          [&](LPCSTR pszPart, Work& work) {
                              Write(pszPart, inventory, work);
                              return TRUE;
                          });
}
