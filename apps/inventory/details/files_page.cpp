#include "details/files_page.h"

#include "errors.h"
#include "model/count_text.h"
#include "model/file_text.h"
#include "model/stanza.h"
#include "sources/code_page.h"

#include <algorithm>

namespace {

enum Column { kColumnFile, kColumnSize };

}  // namespace

BEGIN_MESSAGE_MAP(FilesPage, DetailsPage)
    ON_NOTIFY(LVN_GETDISPINFO, IDC_DETAILS_LIST, &FilesPage::OnGetDispInfo)
END_MESSAGE_MAP()

BOOL FilesPage::OnInitDialog() {
    DetailsPage::OnInitDialog();
    m_list.Initialize(IDC_DETAILS_LIST, this);
    m_list.EnableExpectedKeys();
    m_list.AddHeader("File\tSize");
    m_list.SetColFormat(kColumnSize, LVCFMT_RIGHT);
    m_list.SetHdrFormat(kColumnSize, LVCFMT_RIGHT);
    return FALSE;
}

CString FilesPage::Read() {
    m_list.SetRedraw(FALSE);
    m_list.SetItemCountEx(0);
    m_files.clear();
    m_sizes.clear();
    CString strProblem;
    const std::string strList = m_source.store.InfoFile(m_source.package, "list");
    if (!m_source.store.IsKnown()) {
        strProblem = "Windows does not tell which files belong to a program.";
    } else if (strList.empty()) {
        strProblem.Format("The database has no list of the files of %s.",
                          m_source.package.strName.c_str());
    } else {
        const FileText text = ReadFileText(strList);
        if (!text.WasRead()) {
            strProblem = ProblemText(text.problem).c_str();
            Keep(Failed(kErrorReadPackageFile, ProblemReason(text.problem)));
        }
        for (const std::string_view line : Lines(text.strText)) {
            // "/." is how a list begins.
            if (!line.empty() && line != "/.") {
                m_files.emplace_back(line);
            }
        }
        if (strProblem.IsEmpty() && m_files.empty()) {
            strProblem.Format("%s has no files.", m_source.package.strName.c_str());
        }
    }
    const auto longest = std::max_element(
        m_files.begin(), m_files.end(),
        [](const std::string& str1, const std::string& str2) { return str1.size() < str2.size(); });
    if (longest != m_files.end()) {
        m_list.SetupColumnsFromString(Shown(*longest) + "~~\t1023.9 MiB~");
        m_list.SetItemCountEx(static_cast<int>(m_files.size()));
        m_list.EnsureVisible(0, FALSE);
    }
    m_list.SetRedraw(TRUE);
    m_list.Invalidate(FALSE);
    return strProblem;
}

CString FilesPage::SizeOf(const std::string& strFile) const {
    const std::string strPath = m_source.store.MachineFile(strFile);
    if (strPath.empty()) {
        return "";
    }
    WIN32_FILE_ATTRIBUTE_DATA data;
    if (!::GetFileAttributesEx(InProcessCodePage(strPath).c_str(), GetFileExInfoStandard, &data)) {
        return "missing";
    }
    if ((data.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0) {
        return "folder";
    }
    const ULONGLONG nBytes = static_cast<ULONGLONG>(data.nFileSizeHigh) << 32 | data.nFileSizeLow;
    if (nBytes < 1024) {
        return CountText(static_cast<size_t>(nBytes), "byte").c_str();
    }
    return SizeText(static_cast<long>(nBytes / 1024)).c_str();
}

void FilesPage::OnGetDispInfo(NMHDR* pNMHDR, LRESULT* pResult) {
    LVITEM& item = reinterpret_cast<NMLVDISPINFO*>(pNMHDR)->item;
    *pResult = 0;
    const auto nFile = static_cast<size_t>(item.iItem);
    if ((item.mask & LVIF_TEXT) != 0 && item.cchTextMax > 0 && nFile < m_files.size()) {
        CString strText;
        if (item.iSubItem == kColumnFile) {
            strText = Shown(m_files[nFile]);
        } else if (const auto [it, bNew] = m_sizes.try_emplace(nFile); bNew) {
            strText = it->second = SizeOf(m_files[nFile]);
        } else {
            strText = it->second;
        }
        ::lstrcpyn(item.pszText, strText, item.cchTextMax);
    }
}

void FilesPage::Print(CDC& dc, QVPrintEngine& engine) {
    engine.AddList(&m_list, &dc);
}
