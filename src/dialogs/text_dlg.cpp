#include "dialogs/text_dlg.h"

#include "dialogs/ask_parts.h"
#include "dialogs/dialog_ids.h"

namespace {

const CSize kLeast(200, 100);  // pixels of the window

CRect PlaceOf(const CWnd& wnd, const CWnd& dialog) {
    CRect rc;
    wnd.GetWindowRect(&rc);
    dialog.ScreenToClient(&rc);
    return rc;
}

}  // namespace

BEGIN_MESSAGE_MAP(QVTextDlg, CDialog)
    ON_WM_SIZE()
    ON_WM_GETMINMAXINFO()
END_MESSAGE_MAP()

QVTextDlg::QVTextDlg(CWnd* pParent) : CDialog(QV_IDD_TEXT, pParent) {}

// The window's last messages find the items.
QVTextDlg::~QVTextDlg() {
    DestroyWindow();
}

void QVTextDlg::SetFilePath(const CString& strPath) {
    qv::StoreText(m_strFilePath, strPath);
}

void QVTextDlg::SetMessage(const CString& strMessage) {
    qv::StoreText(m_strMessage, strMessage);
}

void QVTextDlg::SetMessage(UINT nStringID) {
    qv::StoreText(m_strMessage, nStringID);
}

void QVTextDlg::SetTitle(const char* pszTitle) {
    qv::StoreText(m_strTitle, pszTitle);
}

void QVTextDlg::SetTitle(UINT nStringID) {
    qv::StoreText(m_strTitle, nStringID);
}

void QVTextDlg::DoDataExchange(CDataExchange* pDX) {
    CDialog::DoDataExchange(pDX);
    DDX_Control(pDX, QV_IDC_TEXT_MESSAGE, m_wndMessage);
    DDX_Control(pDX, IDCANCEL, m_btnClose);
}

int QVTextDlg::OnInitDialog() {
    m_bLoaded = 0;
    if (!qv::MemorySuffices([&] { FillItems(); })) {
        EndDialog(-1);
    }
    return 1;
}

void QVTextDlg::FillItems() {
    CDialog::OnInitDialog();
    SetWindowText(m_strTitle);
    SetDlgItemText(QV_IDC_TEXT_MESSAGE, m_strMessage);
    if (m_wndText.Initialize(QV_IDC_TEXT_PLACE, this, 1)) {
        // Else the ends of some lines would never show.
        m_wndText.SetExactLayout(TRUE);
        m_bLoaded = m_wndText.LoadFile(m_strFilePath, -1);
    }
}

void QVTextDlg::OnSize(UINT nType, int cx, int cy) {
    CDialog::OnSize(nType, cx, cy);
    if (m_wndMessage.m_hWnd == nullptr || m_wndText.m_hWnd == nullptr ||
        m_btnClose.m_hWnd == nullptr) {
        return;
    }
    CRect rcClient;
    GetClientRect(&rcClient);
    CRect rcMessage = PlaceOf(m_wndMessage, *this);
    CRect rcText = PlaceOf(m_wndText, *this);
    CRect rcButton = PlaceOf(m_btnClose, *this);
    rcMessage.right = rcClient.Width() - rcMessage.left;
    rcText.right = rcClient.Width() - rcText.left;
    rcButton.OffsetRect((rcClient.Width() - rcButton.Width()) / 2 - rcButton.left,
                        rcClient.Height() - rcMessage.top - rcButton.bottom);
    // The gap above the text and the one below it are the same.
    const int nGap = rcText.top - rcMessage.bottom;
    rcText.bottom = rcButton.top - nGap;
    m_wndMessage.MoveWindow(&rcMessage, FALSE);
    m_wndMessage.InvalidateRect(nullptr, FALSE);
    m_wndText.MoveWindow(&rcText, TRUE);
    m_btnClose.MoveWindow(&rcButton, TRUE);
}

void QVTextDlg::OnGetMinMaxInfo(MINMAXINFO* pInfo) {
    CDialog::OnGetMinMaxInfo(pInfo);
    pInfo->ptMinTrackSize = CPoint(kLeast.cx, kLeast.cy);
}
