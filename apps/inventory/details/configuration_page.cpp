#include "details/configuration_page.h"

#include "model/stanza.h"
#include "row_colors.h"
#include "sources/code_page.h"
#include "sources/md5.h"

BOOL ConfigurationPage::OnInitDialog() {
    DetailsPage::OnInitDialog();
    m_list.Initialize(IDC_DETAILS_LIST, this);
    m_list.EnableExpectedKeys();
    UseColors();
    m_list.AddHeader("File\tState\tChecksum as it came");
    return FALSE;
}

void ConfigurationPage::UseColors() {
    ShowStyle(m_list, m_nChanged, kTroubleColors);
    ShowStyle(m_list, m_nDetail, kDetailColors);
}

CString ConfigurationPage::Read() {
    m_list.SetRedraw(FALSE);
    m_list.DeleteAllItems();
    CString strProblem;
    if (m_source.package.pStanza == nullptr) {
        strProblem = "Windows does not tell which files configure a program.";
    } else {
        for (const ConfigurationFile& file :
             ConfigurationFiles(StanzaValue(*m_source.package.pStanza, "Conffiles"))) {
            Add(file);
        }
        if (m_list.GetItemCount() == 0) {
            strProblem.Format("%s has no configuration files.", m_source.package.strName.c_str());
        }
    }
    m_list.SetRedraw(TRUE);
    m_list.Invalidate(FALSE);
    return strProblem;
}

void ConfigurationPage::Add(const ConfigurationFile& file) {
    const std::string strPath = m_source.store.MachineFile(file.strPath);
    const char* pszState = "not known";
    int nStyle = 0;
    if (!strPath.empty()) {
        const CString strFile = InProcessCodePage(strPath).c_str();
        CFileStatus status;
        const CString strChecksum = Md5OfFile(strFile);
        if (!strChecksum.IsEmpty()) {
            const bool bSame = strChecksum.CompareNoCase(file.strChecksum.c_str()) == 0;
            pszState = bSame ? "as it came" : "changed";
            nStyle = bSame ? 0 : m_nChanged;
        } else if (!CFile::GetStatus(strFile, status)) {
            pszState = "missing";
            nStyle = m_nChanged;
        }
    }
    CString strRow = m_list.MakeStyleText(Shown(file.strPath), nStyle);
    const CString strState = CString(pszState) + (file.bObsolete ? ", obsolete" : "");
    m_list.AppendStyleText(strRow, strState, nStyle);
    m_list.AppendStyleText(strRow, Shown(file.strChecksum), m_nDetail);
    m_list.InsertBitmapString(-1, -1, strRow);
    m_list.SetupColumnsFromString(Shown(file.strPath) + "~\tas it came, obsolete\t" +
                                  Shown(file.strChecksum) + "~");
}

void ConfigurationPage::Print(CDC& dc, QVPrintEngine& engine) {
    engine.AddList(&m_list, &dc);
}
