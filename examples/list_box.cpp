// A list box with images, columns under a header, and coloured fields. The rows are the services of
// this machine; their order is that of the images first.
#include "resource.h"

#include <QVControls.h>
#include <memory>

class ServicesDlg : public CDialog {
public:
    ServicesDlg() : CDialog(IDD_LIST_BOX) {}

protected:
    BOOL OnInitDialog() override {
        CDialog::OnInitDialog();
        // What concerns the header and the order has to be said before the first row.
        m_list.SetHeader(IDC_HEADER);
        m_list.SortByImageIndex(1);
        m_list.Initialize(IDC_LIST, IDB_IMAGES, RGB(255, 0, 255), 16, this);
        const int stops[] = {250, 320};  // in pixels: where the columns end
        m_list.UseTabs(stops, 2);
        m_list.AddHeader("Service");
        m_list.AddHeader("State");
        Fill();
        m_list.SetCurSel(m_list.GetCount() - 1);
        return TRUE;
    }
    // The header is the dialog's child, and what it tells is for the list: a divider that moves.
    BOOL OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* pResult) override {
        if (wParam == m_list.HeaderID()) {
            auto* pHeader = reinterpret_cast<NMHEADER*>(lParam);
            m_list.OnHdNotify(static_cast<int>(pHeader->hdr.code), pHeader);
        }
        return CDialog::OnNotify(wParam, lParam, pResult);
    }

private:
    void Fill() {
        const int nRunning = m_list.AddStyle(RGB(0, 96, 0), COLORREF(-1));  // the list's background
        const int nStopped = m_list.AddStyle(RGB(128, 128, 128), COLORREF(-1));
        const SC_HANDLE hManager = ::OpenSCManager(nullptr, nullptr, SC_MANAGER_ENUMERATE_SERVICE);
        DWORD dwBytes = 0, dwCount = 0, dwResume = 0;
        ::EnumServicesStatus(hManager, SERVICE_WIN32, SERVICE_STATE_ALL, nullptr, 0, &dwBytes,
                             &dwCount, &dwResume);
        const std::unique_ptr<BYTE[]> buffer(new BYTE[dwBytes + 1]);
        auto* pServices = reinterpret_cast<ENUM_SERVICE_STATUS*>(buffer.get());
        ::EnumServicesStatus(hManager, SERVICE_WIN32, SERVICE_STATE_ALL, pServices, dwBytes,
                             &dwBytes, &dwCount, &dwResume);
        for (DWORD n = 0; n < dwCount; ++n) {
            const bool bRuns = pServices[n].ServiceStatus.dwCurrentState == SERVICE_RUNNING;
            CString strRow = m_list.MakeStyleText(pServices[n].lpDisplayName, 0);
            m_list.AppendStyleText(strRow, bRuns ? "running" : "stopped",
                                   bRuns ? nRunning : nStopped);
            m_list.AddBitmapString(bRuns ? IMAGE_ON : IMAGE_OFF, strRow);
        }
        ::CloseServiceHandle(hManager);
    }

    QVBitmapListBox m_list;
};

class App : public CWinApp {
    BOOL InitInstance() override {
        ServicesDlg dlg;
        m_pMainWnd = &dlg;
        dlg.DoModal();
        return FALSE;  // the dialog was all there is
    }
} theApp;
