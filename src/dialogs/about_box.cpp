#include "dialogs/about_box.h"

#include "activex/control_answers.h"
#include "dialogs/ask_parts.h"
#include "dialogs/dialog_ids.h"

#include <qvcontrols/version.h>

namespace {

constexpr char kVersion[] = QVCONTROLS_VERSION;
constexpr char kLegalLine[] = "No licence has been chosen yet.";

void ExchangeIfThere(CDataExchange* pDX, int nID, CString& strText) {
    if (pDX->m_pDlgWnd->GetDlgItem(nID) != nullptr) {
        DDX_Text(pDX, nID, strText);
    }
}

}  // namespace

QVAboutBox::QVAboutBox(CWnd* pParent) : QVAboutBox(QV_IDD_ABOUT, 0, pParent) {}

QVAboutBox::QVAboutBox(int bShowDatabase, CWnd* pParent)
    : QVAboutBox(bShowDatabase ? QV_IDD_ABOUT_DATABASE : QV_IDD_ABOUT, bShowDatabase, pParent) {}

QVAboutBox::QVAboutBox(UINT nIDTemplate, int bShowDatabase, CWnd* pParent)
    : CDialog(nIDTemplate, pParent), m_bShowDatabase(bShowDatabase) {}

void QVAboutBox::SetDatabaseInfo(const char* pszType, const char* pszLocation,
                                 const char* pszName) {
    qv::StoreText(m_strDatabaseType, pszType);
    qv::StoreText(m_strDatabaseLocation, pszLocation);
    qv::StoreText(m_strDatabaseName, pszName);
}

void QVAboutBox::DoDataExchange(CDataExchange* pDX) {
    CDialog::DoDataExchange(pDX);
    DDX_Control(pDX, QV_IDC_ABOUT_ICON, m_wndIcon);
    DDX_Text(pDX, QV_IDC_ABOUT_PRODUCT, m_strProductName);
    if (m_bExtended) {
        ExchangeIfThere(pDX, QV_IDC_ABOUT_EXTRA1, m_strExtra1);
        ExchangeIfThere(pDX, QV_IDC_ABOUT_EXTRA2, m_strExtra2);
        ExchangeIfThere(pDX, QV_IDC_ABOUT_EXTRA3, m_strExtra3);
        ExchangeIfThere(pDX, QV_IDC_ABOUT_EXTRA4, m_strExtra4);
    }
    if (m_bShowDatabase) {
        DDX_Control(pDX, QV_IDC_ABOUT_DATABASE_TYPE, m_wndDatabaseType);
        DDX_Control(pDX, QV_IDC_ABOUT_DATABASE_LOCATION, m_wndDatabaseLocation);
        DDX_Control(pDX, QV_IDC_ABOUT_DATABASE_NAME, m_wndDatabaseName);
    }
}

int QVAboutBox::OnInitDialog() {
    const qv::WindowWatch watch(m_alive, m_hWnd);
    CDialog::OnInitDialog();
    if (!watch) {
        return TRUE;
    }
    SetWindowText(m_strTitle);
    ShowIcon();
    SetDlgItemText(QV_IDC_ABOUT_VERSION, kVersion);
    SetDlgItemText(QV_IDC_ABOUT_LEGAL, kLegalLine);
    SetDlgItemText(QV_IDC_ABOUT_PRODUCT, m_strProductName);
    if (m_bExtended) {
        ShowExtras();
    }
    if (m_bShowDatabase) {
        ShowDatabase();
    }
    return TRUE;
}

void QVAboutBox::ShowIcon() {
    HICON hIcon = nullptr;
    if (m_nIconID != 0) {
        const LPCSTR pszName = MAKEINTRESOURCE(m_nIconID);
        hIcon = ::LoadIcon(AfxFindResourceHandle(pszName, RT_GROUP_ICON), pszName);
    }
    if (hIcon != nullptr) {
        m_wndIcon.SetIcon(hIcon);
    }
    m_wndIcon.ShowWindow(hIcon != nullptr ? SW_SHOW : SW_HIDE);
}

void QVAboutBox::ShowExtras() {
    SetDlgItemText(QV_IDC_ABOUT_EXTRA1, m_strExtra1);
    SetDlgItemText(QV_IDC_ABOUT_EXTRA2, m_strExtra2);
    const HWND hExtra4 = ::GetDlgItem(m_hWnd, QV_IDC_ABOUT_EXTRA4);
    if (!m_strExtra4.IsEmpty()) {
        SetDlgItemText(QV_IDC_ABOUT_EXTRA4, m_strExtra4);
        SetDlgItemText(QV_IDC_ABOUT_EXTRA3, m_strExtra3);
    }
    ::ShowWindow(hExtra4, m_strExtra4.IsEmpty() ? SW_HIDE : SW_SHOW);
}

// To be read and copied, not to be typed over. The controls tell the dialog that their texts
// change, where a derived class may end it.
void QVAboutBox::ShowDatabase() {
    constexpr long kReadOnly = 1;  // ControlType
    const qv::WindowWatch watch(m_alive, m_hWnd);
    const auto show = [&](CfpText& control, const CString& strText) {
        if (watch) {
            qv::ControlAnswers([&] { control.SetText(strText); });
        }
        if (watch) {
            qv::ControlAnswers([&] { control.SetControlType(kReadOnly); });
        }
    };
    show(m_wndDatabaseType, m_strDatabaseType);
    show(m_wndDatabaseLocation, m_strDatabaseLocation);
    show(m_wndDatabaseName, m_strDatabaseName);
}
