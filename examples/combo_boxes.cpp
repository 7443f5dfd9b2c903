// Combo boxes whose rows show an image, or a square in a colour: the drives of this machine, and
// the colours that its user has chosen.
#include "resource.h"

#include <QVControls.h>

class ChoicesDlg : public CDialog {
public:
    ChoicesDlg() : CDialog(IDD_COMBO_BOXES) {}

protected:
    BOOL OnInitDialog() override {
        CDialog::OnInitDialog();
        m_drives.Initialize(IDC_DRIVES, IDB_IMAGES, RGB(255, 0, 255), 16, this);
        for (char chDrive = 'A'; chDrive <= 'Z'; ++chDrive) {
            const CString strRoot = CString(chDrive) + ":\\";
            const UINT nType = ::GetDriveType(strRoot);
            if (nType > DRIVE_NO_ROOT_DIR) {
                m_drives.AddBitmapString(nType == DRIVE_CDROM    ? IMAGE_DISC
                                         : nType == DRIVE_REMOTE ? IMAGE_NETWORK
                                                                 : IMAGE_DRIVE,
                                         strRoot);
            }
        }
        m_drives.SetCurSel(0);

        // The table is copied; each row names its colour by the index there.
        COLORREF colors[_countof(kElements)];
        for (int n = 0; n < int(_countof(kElements)); ++n) {
            colors[n] = ::GetSysColor(kElements[n].nIndex);
        }
        m_colors.Initialize(IDC_COLORS, colors, _countof(kElements), this);
        for (int n = 0; n < int(_countof(kElements)); ++n) {
            m_colors.InsertColorString(n, n, kElements[n].pszName);
        }
        m_colors.SetCurSel(1);
        m_sample.Initialize(IDC_SAMPLE, this);
        OnColor();
        return TRUE;
    }

private:
    struct Element {
        int nIndex;
        LPCSTR pszName;
    };
    static constexpr Element kElements[] = {
        {COLOR_WINDOW, "Windows"},  {COLOR_HIGHLIGHT, "Selections"},
        {COLOR_BTNFACE, "Buttons"}, {COLOR_ACTIVECAPTION, "Captions"},
        {COLOR_INFOBK, "Tips"},     {COLOR_BACKGROUND, "Desktop"}};

    // Texts of a text box stay readable: they get the colour that its own does not have.
    afx_msg void OnColor() {
        const COLORREF cr =
            ::GetSysColor(kElements[m_colors.GetColor(m_colors.GetCurSel())].nIndex);
        const bool bDark = GetRValue(cr) + 2 * GetGValue(cr) + GetBValue(cr) < 2 * 255;
        m_sample.SetTextBkColor(cr);
        m_sample.SetTextColor(bDark ? RGB(255, 255, 255) : RGB(0, 0, 0));
        m_sample.Invalidate();
    }
    DECLARE_MESSAGE_MAP()

    QVBitmapComboBox m_drives;
    QVColorComboBox m_colors;
    QVTextBox m_sample;
};

BEGIN_MESSAGE_MAP(ChoicesDlg, CDialog)
    ON_CBN_SELCHANGE(IDC_COLORS, &ChoicesDlg::OnColor)
END_MESSAGE_MAP()

class App : public CWinApp {
    BOOL InitInstance() override {
        ChoicesDlg dlg;
        m_pMainWnd = &dlg;
        dlg.DoModal();
        return FALSE;
    }
} theApp;
