#include "dialogs/export_dialog.h"

#include "QVControls.h"
#include "sources/disk_file.h"

#include <dlgs.h>

namespace {

// In the order of the filters.
constexpr LPCSTR kEnds[] = {"csv", "html", "txt"};

size_t FilterOf(const CString& strPath) {
    const TableKind kind = KindOfFile(static_cast<LPCSTR>(strPath));
    return strPath.IsEmpty() || kind == TableKind::Csv ? 0 : kind == TableKind::Html ? 1 : 2;
}

// The end of the name goes with the filter.
class TableFileDialog : public QVFileDialogEx {
public:
    TableFileDialog(const CString& strPath, CWnd* pParent)
        : QVFileDialogEx(FALSE, kEnds[FilterOf(strPath)], strPath,
                         OFN_HIDEREADONLY | OFN_OVERWRITEPROMPT,
                         "CSV for spreadsheets (*.csv)|*.csv|Web pages (*.html)|*.html|"
                         "Text (*.txt)|*.txt|All files (*.*)|*.*||",
                         pParent) {
        GetOFN().nFilterIndex = static_cast<DWORD>(FilterOf(strPath)) + 1;
    }

protected:
    void OnTypeChange() override {
        const size_t nFilter = GetOFN().nFilterIndex - 1;
        if (nFilter >= std::size(kEnds)) {
            return;
        }
        SetDefExt(kEnds[nFilter]);
        CString strName = GetFileName();
        for (const LPCSTR pszEnd : kEnds) {
            const CString strEnd = CString(".") + pszEnd;
            if (strName.Right(strEnd.GetLength()).CompareNoCase(strEnd) == 0) {
                strName =
                    strName.Left(strName.GetLength() - strEnd.GetLength()) + "." + kEnds[nFilter];
                SetControlText(edt1, strName);
                return;
            }
        }
    }
};

}  // namespace

BEGIN_MESSAGE_MAP(ExportDialog, CDialog)
    ON_COMMAND(IDC_EXPORT_BROWSE, &ExportDialog::OnBrowse)
    ON_EN_CHANGE(IDC_EXPORT_PATH, &ExportDialog::OnPathChanged)
END_MESSAGE_MAP()

BOOL ExportDialog::OnInitDialog() {
    auto* pSeparators = static_cast<CComboBox*>(GetDlgItem(IDC_EXPORT_SEPARATOR));
    for (const char* psz : {"TAB", "Comma", "Semicolon", "Bar"}) {
        pSeparators->AddString(psz);
    }
    CDialog::OnInitDialog();
    OnPathChanged();
    return TRUE;
}

void ExportDialog::DoDataExchange(CDataExchange* pDX) {
    CDialog::DoDataExchange(pDX);
    DDX_Text(pDX, IDC_EXPORT_PATH, m_strPath);
    DDX_CBIndex(pDX, IDC_EXPORT_SEPARATOR, m_nSeparator);
    if (!pDX->m_bSaveAndValidate) {
        m_strFolder = QVPath(m_strPath).GetParent();
        return;
    }
    if (m_strPath.IsEmpty()) {
        AfxMessageBox("Name the file that the list is to be written to.", MB_ICONINFORMATION);
        pDX->Fail();
    }
    // A name alone is one in the folder that was offered.
    if (!QVPath(m_strPath).IsAbsolute() && !m_strFolder.IsEmpty()) {
        QVPath path(m_strFolder);
        path.Append(m_strPath);
        m_strPath = path.GetPath();
    }
    if (!MayReplace()) {
        pDX->Fail();
    }
}

// What is there is not lost without a question; the platform's dialog has asked already.
bool ExportDialog::MayReplace() {
    CFileStatus status;
    if (m_strPath == m_strBrowsed || !CFile::GetStatus(m_strPath, status) ||
        (status.m_attribute & CFile::directory) != 0 || IsDevice(m_strPath)) {
        return true;
    }
    return AfxMessageBox(
               "There is a file " + m_strPath + " already. Is the list to take its place?",
               MB_YESNO | MB_ICONQUESTION | MB_DEFBUTTON2) == IDYES;
}

void ExportDialog::OnPathChanged() {
    CString strPath;
    GetDlgItemText(IDC_EXPORT_PATH, strPath);
    const TableKind kind = KindOfFile(static_cast<LPCSTR>(strPath));
    SetDlgItemText(IDC_EXPORT_KIND, kind == TableKind::Csv    ? "CSV for spreadsheets, in UTF-8"
                                    : kind == TableKind::Html ? "A web page, in UTF-8"
                                                              : "Text, the cells as they are");
    GetDlgItem(IDC_EXPORT_SEPARATOR)->EnableWindow(kind != TableKind::Html);
}

void ExportDialog::OnBrowse() {
    CString strPath;
    GetDlgItemText(IDC_EXPORT_PATH, strPath);
    TableFileDialog dialog(strPath, this);
    dialog.SetDlgTitle(IDS_LIST_FILE);
    if (dialog.DoModal() == IDOK) {
        m_strBrowsed = dialog.GetPathName();
        SetDlgItemText(IDC_EXPORT_PATH, m_strBrowsed);
    }
}
