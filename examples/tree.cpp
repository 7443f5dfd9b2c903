#include <QVControls.h>

class Window : public CFrameWnd {
public:
    Window() {
        m_font.CreatePointFont(90, "Tahoma");
        Create(nullptr, "Machines", WS_OVERLAPPEDWINDOW, CRect(100, 100, 460, 300));
        m_tree.Create(WS_CHILD | WS_VISIBLE | TVS_HASLINES | TVS_HASBUTTONS | TVS_LINESATROOT,
                      CRect(), this, AFX_IDW_PANE_FIRST);  // the frame gives it all its room
        const int stops[] = {90, 20190, 260};              // right-aligned from 190 to 260
        m_tree.UseTabs(stops, 3);
        HTREEITEM hLab = m_tree.InsertItem("Lab", 0, 0, TVI_ROOT, TVI_LAST);
        m_tree.InsertItem("gamma\tonline\t8 GB", 0, 0, hLab, TVI_SORT);
        m_tree.InsertItem("alpha\tonline\t12 GB", 0, 0, hLab, TVI_SORT);
        m_tree.InsertItem("beta\tnot reachable\t256 GB", 0, 0, hLab, TVI_SORT);
        m_tree.Expand(hLab, TVE_EXPAND, TRUE, FALSE);
    }
    // The tree draws in the font of the nearest window around it that has one.
    LRESULT WindowProc(UINT nMsg, WPARAM w, LPARAM l) override {
        return nMsg == WM_GETFONT ? LRESULT(HFONT(m_font)) : CFrameWnd::WindowProc(nMsg, w, l);
    }
    CFont m_font;
    QVTreeCtrlEx m_tree;
};
class App : public CWinApp {
    BOOL InitInstance() override { return (m_pMainWnd = new Window)->ShowWindow(SW_SHOW), TRUE; }
} theApp;
