// Dialog templates with ActiveX controls, and the data that their items begin with.
#include "support/fake_control.h"
#include "support/real_input.h"
#include "support/recording_parent.h"
#include "support/test_app.h"
#include "window/afx/hosting_test_ids.h"

#include <afxdlgs.h>
#include <afxocc.h>

#include <gtest/gtest.h>

namespace {

template <class Base>
class HostingDialog : public Base {
public:
    using Base::Base;
    CWnd m_control;
    int m_nInits = 0;
    std::function<void()> m_init;

    BOOL OnInitDialog() override {
        ++m_nInits;
        const BOOL bResult = Base::OnInitDialog();
        if (m_init) {
            m_init();
        }
        return bResult;
    }
    void DoDataExchange(CDataExchange* pDX) override { DDX_Control(pDX, IDC_HOSTED, m_control); }
};
using Dialog = HostingDialog<CDialog>;

class ControlDialog : public testing::Test {
protected:
    void FailAtSecond() {
        m_class.m_hook = [this](const std::string& step) {
            return step == "create" && m_class.m_nAlive == 1 ? E_FAIL : S_OK;
        };
    }
    FakeControlClass m_class{CLSID_FakeControl};
    RecordingParent m_parent;
};

TEST_F(ControlDialog, ControlsStandAtTheirPlacesWithTheirState) {
    m_class.m_strLicence = L"KY";
    {
        Dialog refused(IDD_HOSTING, &m_parent);
        EXPECT_FALSE(refused.Create(IDD_HOSTING, &m_parent)) << "the second one has no key";
        EXPECT_EQ(refused.m_nInits, 0);
    }
    m_class.m_strLicence.clear();
    m_class.m_values[DISPID_TEXT] = COleVariant("");
    std::string state;
    m_class.m_hook = [&](const std::string& step) {
        state += step == "load" || step == "new" ? step + " " : "";
        return S_OK;
    };
    Dialog dlg;
    ASSERT_TRUE(dlg.Create(IDD_HOSTING, &m_parent));
    EXPECT_EQ(state, "load new ");
    std::vector<int> order;
    for (HWND hWnd = ::GetTopWindow(dlg.m_hWnd); hWnd; hWnd = ::GetWindow(hWnd, GW_HWNDNEXT)) {
        order.push_back(::GetDlgCtrlID(hWnd));
    }
    EXPECT_EQ(order, (std::vector<int>{IDC_HOSTED, IDC_HOSTING_FIRST, IDC_HOSTED_SECOND,
                                       IDC_HOSTING_LAST}));
    EXPECT_EQ(dlg.SendDlgItemMessage(IDC_HOSTING_FIRST, LB_GETCOUNT), 1);
    CRect rcControl;
    CRect rcUnits(8, 16, 48, 40);
    dlg.m_control.GetWindowRect(rcControl);
    dlg.ScreenToClient(rcControl);
    dlg.MapDialogRect(rcUnits);
    EXPECT_EQ(rcControl, rcUnits);
    // The one without an object of the program's answers as well.
    CWnd* const pSecond = dlg.GetDlgItem(IDC_HOSTED_SECOND);
    ASSERT_NE(pSecond->GetControlUnknown(), nullptr);
    EXPECT_EQ(*V_BSTR(&m_class.m_values[DISPID_TEXT]), L'T');
    dlg.DestroyWindow();
    EXPECT_EQ(m_class.m_nAlive, 0);
    EXPECT_EQ(dlg.m_control.m_pCtrlSite, nullptr);
}

TEST_F(ControlDialog, OneThatCannotBeMadeTakesTheDialogWithIt) {
    const LONG nHandles = AfxGetOwnedHandleCount();
    FailAtSecond();
    Dialog modal(IDD_HOSTING, &m_parent);
    EXPECT_EQ(modal.DoModal(), -1);
    Dialog modeless;
    EXPECT_FALSE(modeless.Create(IDD_HOSTING, &m_parent));
    EXPECT_EQ(modal.m_nInits + modeless.m_nInits, 0);
    EXPECT_EQ(m_class.m_nAlive, 0);
    EXPECT_TRUE(m_parent.IsWindowEnabled());
    // A page comes up, without any of them.
    HostingDialog<CPropertyPage> page(IDD_HOSTING);
    CPropertySheet sheet("Sheet", &m_parent);
    sheet.AddPage(&page);
    TheTestApp().Forget();
    EXPECT_TRUE(sheet.Create(&m_parent));
    EXPECT_EQ(page.m_nInits, 1);
    EXPECT_EQ(m_class.m_nAlive, 0);
    EXPECT_EQ(TheTestApp().m_prompts.size(), 1u) << "of the data exchange";
    sheet.DestroyWindow();
    EXPECT_EQ(AfxGetOwnedHandleCount(), nHandles);
    TheTestApp().Forget();
}

TEST_F(ControlDialog, DialogsAndPagesOfBothKindsOfTemplates) {
    for (const UINT nID : {IDD_HOSTING, IDD_HOSTING_PLAIN}) {
        Dialog modal(nID, &m_parent);
        modal.m_init = [&] {
            EXPECT_NE(modal.m_control.GetControlUnknown(), nullptr);
            modal.EndDialog(5);
        };
        EXPECT_EQ(modal.DoModal(), 5);
        HostingDialog<CPropertyPage> page(nID);
        CPropertySheet sheet("Sheet", &m_parent);
        sheet.AddPage(&page);
        ASSERT_TRUE(sheet.Create(&m_parent));
        EXPECT_NE(page.m_control.GetControlUnknown(), nullptr);
        sheet.DestroyWindow();
    }
    EXPECT_EQ(m_class.m_nAlive, 0);
}

TEST_F(ControlDialog, TabPassesThroughControls_ReturnAndDefaultButton) {
    m_class.m_dwMiscStatus |= OLEMISC_ACTSLIKEBUTTON;
    m_class.m_values[DISPID_DOCLICK] = {};
    Dialog dlg;
    ASSERT_TRUE(dlg.Create(IDD_HOSTING, &m_parent));
    dlg.ShowWindow(SW_SHOW);
    ASSERT_TRUE(BringToFront(dlg.m_hWnd));
    dlg.GotoDlgCtrl(dlg.GetDlgItem(IDC_HOSTED));
    EXPECT_TRUE(dlg.m_control.m_pCtrlSite->IsDefaultButton());
    for (const int nNext : {IDC_HOSTING_FIRST, IDC_HOSTED_SECOND, IDC_HOSTING_LAST}) {
        ASSERT_TRUE(TypeKey(VK_TAB));
        EXPECT_EQ(CWnd::GetFocus()->GetDlgCtrlID(), nNext);
    }
    EXPECT_FALSE(dlg.m_control.m_pCtrlSite->IsDefaultButton());
    dlg.GotoDlgCtrl(&dlg.m_control);
    TypeKey(VK_RETURN);
    EXPECT_EQ(m_class.Count("invoke -551"), 1);
    // One that wants Return for itself gets it.
    m_class.m_dwControlFlags = CTRLINFO_EATS_RETURN;
    m_class.m_control->SiteAs<IOleControlSite>()->OnControlInfoChanged();
    dlg.GotoDlgCtrl(dlg.GetDlgItem(IDC_HOSTED_SECOND));
    TypeKey(VK_RETURN);
    EXPECT_EQ(m_class.Count("invoke -551"), 1);
    EXPECT_TRUE(dlg.IsWindowVisible());
}

}  // namespace
