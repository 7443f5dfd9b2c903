// A million rows that nobody keeps: each is made when the list shows it. A click on a heading
// sorts.
#include <QVControls.h>

constexpr int kDays = 1000000;

// The days from 1 January 1601 on, as far as the next four thousand years.
class Days : public QVRowSource {
public:
    void GetRow(int nRow, QVLISTROW& row) override {
        static const char* const s_names[] = {"Monday", "Tuesday",  "Wednesday", "Thursday",
                                              "Friday", "Saturday", "Sunday"};
        const SYSTEMTIME day = Day(nRow);
        row.strText.Format("%04u-%02u-%02u\t%s%s\t%d", day.wYear, day.wMonth, day.wDay,
                           nRow % 7 > 4 ? m_strFree.GetString() : "", s_names[nRow % 7], nRow + 1);
    }
    CString m_strFree;  // the style code of free days

private:
    static SYSTEMTIME Day(int nRow) {
        ULARGE_INTEGER n;
        n.QuadPart = static_cast<ULONGLONG>(nRow) * 24 * 3600 * 10000000;
        const FILETIME time{n.LowPart, n.HighPart};
        SYSTEMTIME day{};
        ::FileTimeToSystemTime(&time, &day);
        return day;
    }
};

class Window : public CFrameWnd {
public:
    Window() {
        m_font.CreatePointFont(90, "Tahoma");
        Create(nullptr, "A million days", WS_OVERLAPPEDWINDOW,
               CRect(CPoint(80, 80), CSize(480, 360)));
        m_list.Create(AFX_IDW_PANE_FIRST, CRect(), this);
        RecalcLayout();  // the column with a star fills the list, so that has to have its size
        m_list.AddHeader("Day\tWeekday", lcdtString);
        m_list.AddHeader("Number", lcdtNumber);
        m_list.SetupColumnsFromString("2026-11-22\tWednesday*\t0000000");
        m_list.SetColFormat(2, LVCFMT_RIGHT);
        m_list.SetHdrFormat(2, LVCFMT_RIGHT);
        const int nFree = m_list.AddStyle(RGB(160, 0, 0), RGB(255, 240, 232));
        m_days.m_strFree = m_list.MakeStyleText("", nFree);
        m_list.SetRowSource(&m_days);
        m_list.SetRowCount(kDays);
        m_list.SelectItem(3);
    }

private:
    // The list has no font of its own, so it asks the windows around it.
    afx_msg LRESULT OnGetFont(WPARAM, LPARAM) {
        return reinterpret_cast<LRESULT>(m_font.m_hObject);
    }
    afx_msg void OnSetFocus(CWnd*) { m_list.SetFocus(); }
    DECLARE_MESSAGE_MAP()

    CFont m_font;
    Days m_days;  // there as long as the list
    QVVirtualListCtrl m_list;
};

BEGIN_MESSAGE_MAP(Window, CFrameWnd)
    ON_MESSAGE(WM_GETFONT, &Window::OnGetFont)
    ON_WM_SETFOCUS()
END_MESSAGE_MAP()

class App : public CWinApp {
    BOOL InitInstance() override { return (m_pMainWnd = new Window)->ShowWindow(SW_SHOW), TRUE; }
} theApp;
