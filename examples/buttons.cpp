// Buttons around an edit: with images that stay down until they are clicked again, and one that
// gives the focus back.
#include "resource.h"

#include <QVControls.h>

class NoteDlg : public CDialog {
public:
    NoteDlg() : CDialog(IDD_BUTTONS), m_clear(&m_edit) {}

protected:
    BOOL OnInitDialog() override {
        CDialog::OnInitDialog();
        m_images.Create(IDB_IMAGES, 16, 0, RGB(255, 0, 255));
        m_edit.SubclassDlgItem(IDC_TEXT, this);
        m_edit.SetWindowText("Buttons stay down until they are clicked again.");
        // The buttons are owner-drawn in the template; their texts serve the keyboard alone.
        Attach(m_bold, IDC_BOLD, IMAGE_BOLD, "Bold");
        Attach(m_italic, IDC_ITALIC, IMAGE_ITALIC, "Italic");
        Attach(m_underline, IDC_UNDERLINE, IMAGE_UNDERLINE, "Underline");
        Attach(m_clear, IDC_CLEAR, IMAGE_CLEAR, "Clear the text and go on typing");
        m_bold.SetCheck(1);
        OnLook(IDC_BOLD);
        return TRUE;
    }

private:
    void Attach(QVBitmapButton& button, UINT nID, int nImage, LPCSTR pszTip) {
        button.SubclassDlgItem(nID, this);
        button.SetImageID(&m_images, nImage);
        button.EnableToolTip(pszTip);
    }
    // The state of a button has moved by the time of its click.
    afx_msg void OnLook(UINT) {
        LOGFONT font;
        GetFont()->GetLogFont(&font);
        font.lfHeight *= 2;
        font.lfWeight = m_bold.GetCheck() == 1 ? FW_BOLD : FW_NORMAL;
        font.lfItalic = m_italic.GetCheck() == 1;
        font.lfUnderline = m_underline.GetCheck() == 1;
        m_font.DeleteObject();
        m_font.CreateFontIndirect(&font);
        m_edit.SetFont(&m_font);
    }
    afx_msg void OnClear() { m_edit.SetWindowText(""); }
    DECLARE_MESSAGE_MAP()

    CImageList m_images;  // outlives the buttons, which only borrow it
    QVBitmapButton m_bold, m_italic, m_underline;
    CEdit m_edit;
    QVToolButton m_clear;
    CFont m_font;
};

BEGIN_MESSAGE_MAP(NoteDlg, CDialog)
    ON_CONTROL_RANGE(BN_CLICKED, IDC_BOLD, IDC_UNDERLINE, &NoteDlg::OnLook)
    ON_BN_CLICKED(IDC_CLEAR, &NoteDlg::OnClear)
END_MESSAGE_MAP()

class App : public CWinApp {
    BOOL InitInstance() override {
        NoteDlg dlg;
        m_pMainWnd = &dlg;
        dlg.DoModal();
        return FALSE;
    }
} theApp;
