// A window of coloured text that wraps to its width: what this machine is. Ctrl+C copies all of it.
#include <QVControls.h>

class Window : public CFrameWnd {
public:
    Window() {
        Create(nullptr, "This machine", WS_OVERLAPPEDWINDOW,
               CRect(CPoint(80, 80), CSize(440, 270)));
        CRect rcText;
        GetClientRect(rcText);
        m_text.Create(rcText, this, AFX_IDW_PANE_FIRST, FALSE);
        m_text.SetBkColor(RGB(255, 255, 248));
        m_nHeading = m_text.AddStyle(RGB(0, 64, 160), RGB(255, 255, 248));
        m_nWarning = m_text.AddStyle(RGB(176, 0, 0), RGB(255, 255, 248));
        Describe();
        m_text.CalcLayout();  // once, behind the last line
        RecalcLayout();
    }

private:
    void Add(LPCSTR pszFormat, ULONGLONG nValue, int nStyle = 0) {
        CString strLine;
        strLine.Format(pszFormat, nValue);
        m_text.AddText("    " + strLine, nStyle);
    }
    void Describe() {
        m_text.AddText("Processor", m_nHeading);
        SYSTEM_INFO system;
        ::GetNativeSystemInfo(&system);
        Add("%llu processors", system.dwNumberOfProcessors);
        Add("pages of %llu bytes", system.dwPageSize);
        m_text.AddText("Memory", m_nHeading);
        MEMORYSTATUSEX memory = {};
        memory.dwLength = sizeof(memory);
        ::GlobalMemoryStatusEx(&memory);
        Add("%llu MB in all", memory.ullTotalPhys >> 20);
        Add("%llu MB are free", memory.ullAvailPhys >> 20,
            memory.dwMemoryLoad > 90 ? m_nWarning : 0);
        m_text.AddText("Screen", m_nHeading);
        Add("%llu pixels wide", ::GetSystemMetrics(SM_CXSCREEN));
        Add("%llu pixels high", ::GetSystemMetrics(SM_CYSCREEN));
        Add("colours of %llu bits", CWindowDC(nullptr).GetDeviceCaps(BITSPIXEL));
        m_text.AddText("Texts", m_nHeading);
        Add("Programs that use 8-bit texts get code page %llu. A manifest can ask for UTF-8, with "
            "which such a program can show each character that there is.",
            ::GetACP(), ::GetACP() == CP_UTF8 ? 0 : m_nWarning);
    }
    afx_msg void OnSetFocus(CWnd*) { m_text.SetFocus(); }
    afx_msg void OnCopy() { m_text.CopyToClipboard(); }
    BOOL PreTranslateMessage(MSG* pMsg) override {
        if (pMsg->message == WM_KEYDOWN && pMsg->wParam == 'C' && ::GetKeyState(VK_CONTROL) < 0) {
            return PostMessage(WM_COMMAND, ID_EDIT_COPY), TRUE;
        }
        return CFrameWnd::PreTranslateMessage(pMsg);
    }
    DECLARE_MESSAGE_MAP()

    QVTextWnd m_text;
    int m_nHeading = 0;
    int m_nWarning = 0;
};

BEGIN_MESSAGE_MAP(Window, CFrameWnd)
    ON_WM_SETFOCUS()
    ON_COMMAND(ID_EDIT_COPY, &Window::OnCopy)
END_MESSAGE_MAP()

class App : public CWinApp {
    BOOL InitInstance() override { return (m_pMainWnd = new Window)->ShowWindow(SW_SHOW), TRUE; }
} theApp;
