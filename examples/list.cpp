// A report list that draws its rows itself: images, alignment, and styles that colour cells. The
// rows are the processes of this machine.
#include "resource.h"

#include <QVControls.h>
#include <map>
#include <tlhelp32.h>

class Window : public CFrameWnd {
public:
    Window() {
        Create(nullptr, "Processes", WS_OVERLAPPEDWINDOW, CRect(CPoint(80, 80), CSize(520, 320)));
        m_list.Create(AFX_IDW_PANE_FIRST, CRect(), IDB_IMAGES, RGB(255, 0, 255), 16, this);
        RecalcLayout();  // the last column fills the list, so that has to have its size
        m_list.AddHeader("Program\tNumber\tThreads\tStarted by");
        // Columns as wide as these texts; the asterisk marks the one that takes what is left.
        m_list.SetupColumnsFromString("      a-long-program.exe\tNumber\tThreads\tprogram.exe*");
        for (int nCol : {1, 2}) {
            m_list.SetColFormat(nCol, LVCFMT_RIGHT);  // cells and headings align by themselves
            m_list.SetHdrFormat(nCol, LVCFMT_RIGHT);
        }
        Fill();
        m_list.SelectItem(0);
    }

private:
    void Fill() {
        const int nOwn = m_list.AddStyle(RGB(0, 96, 0), RGB(224, 248, 224));
        const int nBusy = m_list.AddStyle(RGB(176, 0, 0), RGB(255, 232, 224));
        const HANDLE hAll = ::CreateToolhelp32Snapshot(TH32CS_SNAPPROCESS, 0);
        PROCESSENTRY32 entry = {};
        entry.dwSize = sizeof(entry);
        std::map<DWORD, CString> names;
        m_list.SetRedraw(FALSE);  // one refit at the end instead of one for each row
        for (BOOL bMore = ::Process32First(hAll, &entry); bMore;
             bMore = ::Process32Next(hAll, &entry)) {
            names[entry.th32ProcessID] = entry.szExeFile;
            CString strNumber, strThreads;
            strNumber.Format("%lu", entry.th32ProcessID);
            strThreads.Format("%lu", entry.cntThreads);
            // A style holds from its field on; style 0 is the plain one.
            const bool bOwn = entry.th32ProcessID == ::GetCurrentProcessId();
            CString strRow = m_list.MakeStyleText(entry.szExeFile, bOwn ? nOwn : 0);
            m_list.AppendStyleText(strRow, strNumber, 0);
            m_list.AppendStyleText(strRow, strThreads, entry.cntThreads > 8 ? nBusy : 0);
            m_list.AppendStyleText(strRow, names[entry.th32ParentProcessID], 0);
            m_list.InsertBitmapString(IMAGE_PROGRAM, -1, strRow);
        }
        m_list.SetRedraw(TRUE);
        ::CloseHandle(hAll);
    }

    afx_msg void OnSetFocus(CWnd*) { m_list.SetFocus(); }
    DECLARE_MESSAGE_MAP()

    QVListCtrlEx m_list;
};

BEGIN_MESSAGE_MAP(Window, CFrameWnd)
    ON_WM_SETFOCUS()
END_MESSAGE_MAP()

class App : public CWinApp {
    BOOL InitInstance() override { return (m_pMainWnd = new Window)->ShowWindow(SW_SHOW), TRUE; }
} theApp;
