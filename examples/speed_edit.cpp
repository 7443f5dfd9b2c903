// An edit that completes what is typed from a list: the fonts of this machine.
#include "resource.h"

#include <QVControls.h>
#include <set>

// In the order in which the edit searches: by the code page's rules, without regard to case.
struct Less {
    bool operator()(const CString& left, const CString& right) const {
        return left.CompareNoCase(right) < 0;
    }
};

class FontDlg : public CDialog {
public:
    FontDlg() : CDialog(IDD_SPEED_EDIT) {}

protected:
    BOOL OnInitDialog() override {
        CDialog::OnInitDialog();
        ReadFonts();
        m_name.SetSpeedData(&m_names);  // not copied
        m_name.SetSpeedOnly(1);         // nothing but fonts that there are
        m_name.SubclassDlgItem(IDC_FONT, this);
        m_name.SetWindowText("Tahoma");
        return TRUE;
    }

private:
    static int CALLBACK TakeFont(const LOGFONT* pFont, const TEXTMETRIC*, DWORD, LPARAM lNames) {
        reinterpret_cast<std::set<CString, Less>*>(lNames)->insert(pFont->lfFaceName);
        return TRUE;
    }
    void ReadFonts() {
        std::set<CString, Less> names;
        ::EnumFontFamilies(CClientDC(this).m_hDC, nullptr, TakeFont,
                           reinterpret_cast<LPARAM>(&names));
        for (const CString& strName : names) {
            m_names.Add(strName);
        }
    }
    // The sample below follows what is typed.
    afx_msg void OnName() {
        CString strName;
        m_name.GetWindowText(strName);
        m_font.DeleteObject();
        m_font.CreatePointFont(200, strName);
        GetDlgItem(IDC_SAMPLE)->SetFont(&m_font);
    }
    DECLARE_MESSAGE_MAP()

    CStringArray m_names;
    QVSpeedEdit m_name;
    CFont m_font;
};

BEGIN_MESSAGE_MAP(FontDlg, CDialog)
    ON_EN_CHANGE(IDC_FONT, &FontDlg::OnName)
END_MESSAGE_MAP()

class App : public CWinApp {
    BOOL InitInstance() override {
        FontDlg dlg;
        m_pMainWnd = &dlg;
        dlg.DoModal();
        return FALSE;
    }
} theApp;
