#include "model/all_files.h"

#include "model/file_text.h"
#include "model/stanza.h"

namespace {

constexpr std::string_view kRoot = "/.";  // how a list begins

bool IsFolderOf(std::string_view folder, std::string_view path) {
    return path.size() > folder.size() && path.starts_with(folder) && path[folder.size()] == '/';
}

}  // namespace

void AllFiles::Start(const Inventory& inventory, const PackageStore& store) {
    m_store = store;
    m_packages.clear();
    m_rows.clear();
    m_lists.clear();
    m_nRead = 0;
    m_problem = Problem();
    for (const Section& section : inventory.Sections()) {
        for (const Package& package : section.packages) {
            m_packages.push_back(&package);
        }
    }
}

bool AllFiles::ReadNext() {
    if (m_nRead >= m_packages.size()) {
        return false;
    }
    const auto nPackage = static_cast<std::uint32_t>(m_nRead++);
    const std::string strFile = m_store.InfoFile(*m_packages[nPackage], "list");
    if (strFile.empty()) {
        return true;
    }
    FileText text = ReadFileText(strFile);
    if (!text.WasRead()) {
        m_problem = text.problem;
        return true;
    }
    m_lists.push_back(std::move(text.strText));
    const std::vector<std::string_view> lines = Lines(m_lists.back());
    for (size_t i = 0; i < lines.size(); ++i) {
        const std::string_view path = lines[i];
        // What is in a folder follows it.
        const bool bFolder = i + 1 < lines.size() && IsFolderOf(path, lines[i + 1]);
        if (!path.empty() && path != kRoot && !bFolder) {
            m_rows.push_back({path.data(), static_cast<std::uint32_t>(path.size()), nPackage});
        }
    }
    return true;
}

std::string_view AllFiles::Path(size_t nRow) const {
    return {m_rows[nRow].pPath, m_rows[nRow].nLength};
}

std::string_view AllFiles::Folder(size_t nRow) const {
    const std::string_view path = Path(nRow);
    const size_t nEnd = path.rfind('/');
    return nEnd == std::string_view::npos ? std::string_view()
                                          : path.substr(0, nEnd == 0 ? 1 : nEnd);
}

std::string_view AllFiles::Name(size_t nRow) const {
    const std::string_view path = Path(nRow);
    return path.substr(path.rfind('/') + 1);
}
