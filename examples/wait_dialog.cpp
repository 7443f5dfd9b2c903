// A dialog over long work, which the user may cancel: ten rounds of a second, each of which counts
// how often this machine gets through some arithmetic.
#include <QVControls.h>

class Window : public CFrameWnd {
public:
    Window() {
        Create(nullptr, "Speed of this machine", WS_OVERLAPPEDWINDOW,
               CRect(CPoint(80, 80), CSize(480, 260)));
        CRect rc;
        GetClientRect(rc);
        m_text.Create(rc, this, AFX_IDW_PANE_FIRST, FALSE);
        PostMessage(WM_COMMAND, kMeasure);  // once the window is up
    }

private:
    enum { kMeasure = 1, kRounds = 10 };

    void Tell(LPCSTR pszFormat, int nValue) {
        CString strLine;
        strLine.Format(pszFormat, nValue);
        m_text.AddText(strLine, 0);
        m_text.CalcLayout();
    }
    static int Work() {
        unsigned nSum = 1;
        for (unsigned n = 0; n < 100000; ++n) {
            nSum = nSum * 1664525u + n;
        }
        return nSum == 0 ? 0 : 1;
    }
    afx_msg void OnMeasure() {
        QVWaitDlg wait;
        wait.SetHasCancelButton(TRUE);
        wait.SetProgressRange(kRounds);
        wait.SetWaitMessage("Counting what this machine can do in ten seconds...");
        wait.Display(this, FALSE);  // this window takes no input until Remove
        for (int nRound = 1; nRound <= kRounds && !wait.Cancelled(); ++nRound) {
            const ULONGLONG nEnd = ::GetTickCount64() + 1000;
            int nDone = 0;
            while (::GetTickCount64() < nEnd && !wait.Cancelled()) {
                nDone += Work();
                wait.Step(0);  // paints, and lets a click on Cancel through
            }
            Tell("%d hundred thousand steps in a second", nDone);
            wait.Step(1);
        }
        const BOOL bCancelled = wait.Cancelled();
        wait.Remove();
        Tell(bCancelled ? "Cancelled." : "Done.", 0);
    }
    DECLARE_MESSAGE_MAP()

    QVTextWnd m_text;
};

BEGIN_MESSAGE_MAP(Window, CFrameWnd)
    ON_COMMAND(kMeasure, &Window::OnMeasure)
END_MESSAGE_MAP()

class App : public CWinApp {
    BOOL InitInstance() override { return (m_pMainWnd = new Window)->ShowWindow(SW_SHOW), TRUE; }
} theApp;
