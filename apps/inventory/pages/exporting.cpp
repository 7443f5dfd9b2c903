#include "pages/exporting.h"

#include "dialogs/export_dialog.h"
#include "model/count_text.h"
#include "pages/row_fields.h"
#include "sources/code_page.h"
#include "sources/whole_file.h"

#include <shlobj.h>

namespace {

constexpr std::string_view kUtf8Mark = "\xEF\xBB\xBF";  // by which a spreadsheet knows UTF-8
constexpr size_t kPiece = 1 << 16;

// Gathers what is written. What cannot be written leaves it as an exception of the file.
class PieceFile {
public:
    explicit PieceFile(LPCSTR pszPath)
        : m_file(pszPath, CFile::modeCreate | CFile::modeWrite | CFile::shareExclusive) {}

    void Put(std::string_view text) {
        m_strPiece += text;
        if (m_strPiece.size() >= kPiece) {
            Flush();
        }
    }
    void Close() {
        Flush();
        m_file.Close();
    }

private:
    void Flush() {
        m_file.Write(m_strPiece.data(), static_cast<UINT>(m_strPiece.size()));
        m_strPiece.clear();
    }

    CFile m_file;
    std::string m_strPiece;
};

// The number of rows.
size_t WriteTable(LPCSTR pszPath, TableKind kind, char chSeparator, const Exporter::Write& write,
                  Work& work) {
    PieceFile file(pszPath);
    if (kind == TableKind::Csv) {
        file.Put(kUtf8Mark);
    }
    TableWriter writer(kind, chSeparator, [&](std::string_view text) {
        file.Put(kind == TableKind::Text ? std::string(text) : InUtf8(std::string(text)));
    });
    write(writer, work);
    file.Close();
    return writer.Rows();
}

// The settings' one, or else the user's own.
CString FolderOf(const Settings& settings) {
    CString strFolder = settings.Value(kSettingExportFolder).c_str();
    char szOwn[MAX_PATH] = "";
    if (strFolder.IsEmpty() && ::SHGetSpecialFolderPath(nullptr, szOwn, CSIDL_PERSONAL, FALSE)) {
        strFolder = szOwn;
    }
    return strFolder;
}

}  // namespace

CString Exporter::Run(CWnd& parent, LPCSTR pszName, const Write& write) {
    ExportDialog dialog(&parent);
    dialog.m_strPath = m_strPath;
    if (m_pSettings != nullptr) {
        dialog.m_nSeparator = m_pSettings->Choice(kSettingSeparator);
        const CString strFolder = FolderOf(*m_pSettings);
        if (m_strPath.IsEmpty() && !strFolder.IsEmpty()) {
            const CString strName = m_pSettings->Value(kSettingExportName).c_str();
            QVPath path(strFolder);
            path.Append(pszName != nullptr ? pszName : static_cast<LPCSTR>(strName));
            dialog.m_strPath = path.GetPath();
        }
    }
    if (dialog.DoModal() != IDOK) {
        return "";
    }
    size_t nRows = 0;
    Failure pFailure = WriteWholeFile(
        "Writing the list...", kErrorExport, dialog.m_strPath, [&](LPCSTR pszPath, Work& work) {
            nRows = WriteTable(pszPath, dialog.Kind(), dialog.Separator(), write, work);
            return TRUE;
        });
    CString strSaid;
    if (pFailure == nullptr) {
        m_strPath = dialog.m_strPath;
        strSaid = (CountText(nRows, "row") + " written to ").c_str() + m_strPath;
    } else if (WasCancelled(pFailure)) {
        strSaid = "Writing the list was cancelled.";
    }
    Tell(std::move(pFailure), &parent);
    return strSaid;
}

void WriteList(QVListCtrlEx& list, const std::string& strTitle, TableWriter& writer, Work& work) {
    // A column for images alone has a blank for its heading.
    std::vector<int> shown;
    std::vector<TableColumn> columns;
    CString strHeadings;
    list.MakeHeaderString(strHeadings);
    int nCol = 0;
    for (const std::string& strHeading : FieldsOf(list, strHeadings)) {
        if (strHeading != " " || nCol > 0) {
            shown.push_back(nCol);
            columns.push_back({strHeading, list.GetColFormat(nCol) == LVCFMT_RIGHT});
        }
        ++nCol;
    }
    writer.Begin(strTitle, columns);
    const int nItems = list.GetItemCount();
    for (int nItem = 0; nItem < nItems; ++nItem) {
        work.Step(static_cast<std::uint64_t>(nItem), static_cast<std::uint64_t>(nItems));
        std::vector<std::string> cells;
        for (const int nShown : shown) {
            const CString strCell = list.GetItemText(nItem, nShown);
            cells.emplace_back(list.ParseStyleText(strCell));
        }
        writer.Row(cells);
    }
    writer.End();
}

void WriteBox(QVBitmapListBox& box, const std::string& strTitle, TableWriter& writer, Work& work) {
    CString strRow;
    box.MakeHeaderString(strRow);
    std::vector<TableColumn> columns;
    for (const std::string& strHeading : FieldsOf(box, strRow)) {
        columns.push_back({strHeading});
    }
    writer.Begin(strTitle, columns);
    const int nRows = box.GetCount();
    for (int nRow = 0; nRow < nRows; ++nRow) {
        work.Step(static_cast<std::uint64_t>(nRow), static_cast<std::uint64_t>(nRows));
        if (box.GetItemString(nRow, strRow)) {
            writer.Row(FieldsOf(box, strRow));
        }
    }
    writer.End();
}
