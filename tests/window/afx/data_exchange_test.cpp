// Data exchange between a dialog's members and its controls.
#include "support/test_app.h"
#include "window/afx/afx_test_ids.h"

#include <gtest/gtest.h>

namespace {

class ExchangeDialog : public CDialog {
public:
    CString m_strName;
    int m_nNumber = 0;
    double m_real = 0;
    int m_nCheck = 0;
    int m_nRadio = 0;
    CString m_strList;
    int m_nList = -1;
    CString m_strCombo;
    int m_nScroll = 0;
    CButton m_button;
    int m_nChanges = 0;

    BOOL OnInitDialog() override {
        auto* pList = static_cast<CListBox*>(GetDlgItem(IDC_LIST));
        auto* pCombo = static_cast<CComboBox*>(GetDlgItem(IDC_COMBO));
        for (LPCTSTR lpsz : {"alpha", "beta", "gamma"}) {
            pList->AddString(lpsz);
            pCombo->AddString(lpsz);
        }
        GetDlgItem(IDC_SCROLL)->SetScrollRange(SB_CTL, 0, 100);
        return CDialog::OnInitDialog();
    }

protected:
    void DoDataExchange(CDataExchange* pDX) override {
        CDialog::DoDataExchange(pDX);
        DDX_Control(pDX, IDOK, m_button);
        DDX_Text(pDX, IDC_NAME, m_strName);
        DDV_MaxChars(pDX, m_strName, 5);
        DDX_Text(pDX, IDC_NUMBER, m_nNumber);
        DDV_MinMaxInt(pDX, m_nNumber, -10, 10);
        DDX_Text(pDX, IDC_REAL, m_real);
        DDX_Check(pDX, IDC_CHECK, m_nCheck);
        DDX_Radio(pDX, IDC_RADIO_FIRST, m_nRadio);
        DDX_LBString(pDX, IDC_LIST, m_strList);
        DDX_CBString(pDX, IDC_COMBO, m_strCombo);
        DDX_Scroll(pDX, IDC_SCROLL, m_nScroll);
    }
    afx_msg void OnNameChange() { ++m_nChanges; }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(ExchangeDialog, CDialog)
    ON_EN_CHANGE(IDC_NAME, &ExchangeDialog::OnNameChange)
END_MESSAGE_MAP()

class DataExchange : public testing::Test {
protected:
    DataExchange() {
        m_dlg.m_strName = "Anna";
        m_dlg.m_nNumber = -7;
        m_dlg.m_real = 2.5;
        m_dlg.m_nCheck = 1;
        m_dlg.m_nRadio = 2;
        m_dlg.m_strList = "beta";
        m_dlg.m_strCombo = "free text";
        m_dlg.m_nScroll = 40;
        EXPECT_TRUE(m_dlg.Create(IDD_EXCHANGE));
        TheTestApp().Forget();
    }
    CString TextOf(int nID) {
        CString str;
        m_dlg.GetDlgItemText(nID, str);
        return str;
    }
    /// Puts a text in and tries to read everything back.
    bool Rejected(int nID, LPCTSTR lpszText) {
        m_dlg.SetDlgItemText(nID, lpszText);
        TheTestApp().Forget();
        return !m_dlg.UpdateData() && TheTestApp().m_prompts.size() == 1;
    }
    ExchangeDialog m_dlg;
};

TEST_F(DataExchange, FillsTheControlsAtTheStart) {
    EXPECT_STREQ(TextOf(IDC_NAME), "Anna");
    EXPECT_STREQ(TextOf(IDC_NUMBER), "-7");
    EXPECT_STREQ(TextOf(IDC_REAL), "2.5");
    EXPECT_EQ(m_dlg.IsDlgButtonChecked(IDC_CHECK), 1u);
    EXPECT_EQ(m_dlg.GetCheckedRadioButton(IDC_RADIO_FIRST, IDC_RADIO_THIRD), IDC_RADIO_THIRD);
    EXPECT_EQ(m_dlg.SendDlgItemMessage(IDC_LIST, LB_GETCURSEL), 1);
    EXPECT_STREQ(TextOf(IDC_COMBO), "free text");
    EXPECT_EQ(m_dlg.GetDlgItem(IDC_SCROLL)->GetScrollPos(SB_CTL), 40);
    EXPECT_EQ(m_dlg.m_button.m_hWnd, m_dlg.GetDlgItem(IDOK)->m_hWnd);
    EXPECT_EQ(m_dlg.m_nChanges, 0) << "filling is not the user's doing";
    EXPECT_EQ(m_dlg.SendDlgItemMessage(IDC_NAME, EM_GETLIMITTEXT), 5);
}

TEST_F(DataExchange, ReadsTheControlsBack) {
    m_dlg.SetDlgItemText(IDC_NAME, "Berta");
    EXPECT_EQ(m_dlg.m_nChanges, 1);
    m_dlg.SetDlgItemText(IDC_NUMBER, " 10 ");
    m_dlg.SetDlgItemText(IDC_REAL, "-1e3");
    m_dlg.CheckDlgButton(IDC_CHECK, 0);
    m_dlg.CheckRadioButton(IDC_RADIO_FIRST, IDC_RADIO_THIRD, IDC_RADIO_SECOND);
    m_dlg.SendDlgItemMessage(IDC_LIST, LB_SETCURSEL, 2);
    m_dlg.SendDlgItemMessage(IDC_COMBO, CB_SETCURSEL, 0);
    m_dlg.GetDlgItem(IDC_SCROLL)->SetScrollPos(SB_CTL, 55);
    ASSERT_TRUE(m_dlg.UpdateData());
    EXPECT_STREQ(m_dlg.m_strName, "Berta");
    EXPECT_EQ(m_dlg.m_nNumber, 10);
    EXPECT_EQ(m_dlg.m_real, -1000);
    EXPECT_EQ(m_dlg.m_nCheck, 0);
    EXPECT_EQ(m_dlg.m_nRadio, 1);
    EXPECT_STREQ(m_dlg.m_strList, "gamma");
    EXPECT_STREQ(m_dlg.m_strCombo, "alpha");
    EXPECT_EQ(m_dlg.m_nScroll, 55);

    m_dlg.CheckDlgButton(IDC_RADIO_SECOND, 0);
    m_dlg.SendDlgItemMessage(IDC_LIST, LB_SETCURSEL, static_cast<WPARAM>(-1));
    ASSERT_TRUE(m_dlg.UpdateData());
    EXPECT_EQ(m_dlg.m_nRadio, -1);
    EXPECT_STREQ(m_dlg.m_strList, "");
}

TEST_F(DataExchange, RejectsWhatIsNoNumberOrOutOfBounds_AndKeepsTheOldValue) {
    for (LPCTSTR lpszBad : {"", "seven", "7x", "99999999999", "11", "-11"}) {
        EXPECT_TRUE(Rejected(IDC_NUMBER, lpszBad)) << lpszBad;
    }
    EXPECT_EQ(TheTestApp().m_prompts[0], "Please enter a whole number from -10 to 10.");
    m_dlg.SetDlgItemText(IDC_NUMBER, "3");
    EXPECT_TRUE(Rejected(IDC_REAL, "1,5,2"));
    EXPECT_EQ(m_dlg.m_real, 2.5);
    m_dlg.SetDlgItemText(IDC_REAL, "1");
    EXPECT_TRUE(Rejected(IDC_NAME, "longer than five"));
    m_dlg.SetDlgItemText(IDC_NAME, "short");
    EXPECT_TRUE(m_dlg.UpdateData());
}

}  // namespace
