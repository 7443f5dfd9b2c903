// A grid that is an automation control: fixed headings, merged cells, a sorted column. The rows are
// the fonts of this machine and the scripts that each of them has.
#include <QVControls.h>
#include <ocx/qvocx.h>

class Window : public CFrameWnd {
public:
    Window() {
        Create(nullptr, "Fonts and scripts", WS_OVERLAPPEDWINDOW,
               CRect(CPoint(80, 80), CSize(500, 340)));
        try {
            // FALSE, and no exception, where there is no such control.
            if (m_grid.Create(nullptr, WS_CHILD | WS_VISIBLE, CRect(), this, AFX_IDW_PANE_FIRST)) {
                Fill();
            }
        } catch (COleException* pException) {
            pException->ReportError();  // what the control has refused
            pException->Delete();
        }
        RecalcLayout();
    }

private:
    enum { kTwips = 15 };  // a pixel at 96 dpi: lengths of the grid are twips

    static int CALLBACK TakeFont(const LOGFONT* pFont, const TEXTMETRIC*, DWORD dwType,
                                 LPARAM lRows) {
        const auto* pEnum = reinterpret_cast<const ENUMLOGFONTEX*>(pFont);
        const CString strScript(reinterpret_cast<LPCSTR>(pEnum->elfScript));
        const LPCSTR pszKind = (dwType & TRUETYPE_FONTTYPE) != 0 ? "TrueType" : "bitmap";
        reinterpret_cast<CStringArray*>(lRows)->Add(CString(pFont->lfFaceName) + "\t" + strScript +
                                                    "\t" + pszKind);
        return TRUE;
    }
    void Fill() {
        m_grid.SetRedraw(FALSE);                        // lays out and paints once, at the end
        m_grid.SetFormatString("<Font|<Script|<Kind");  // headings, aligned left
        CClientDC dc(this);
        LOGFONT all = {};
        all.lfCharSet = DEFAULT_CHARSET;  // each font with each of its scripts
        CStringArray rows;
        ::EnumFontFamiliesEx(dc.m_hDC, &all, TakeFont, reinterpret_cast<LPARAM>(&rows), 0);
        for (int n = 0; n < rows.GetSize(); ++n) {
            m_grid.AddItem(rows[n], COleVariant());
        }
        if (m_grid.GetRows() > 2) {
            m_grid.RemoveItem(1);  // the empty row that a grid begins with
        }
        m_grid.SetColWidth(0, 170 * kTwips);
        m_grid.SetColWidth(1, 140 * kTwips);
        m_grid.SetColWidth(2, 100 * kTwips);
        m_grid.SetFixedCols(0);
        m_grid.SetRow(1);
        m_grid.SetCol(0);
        m_grid.SetRowSel(m_grid.GetRows() - 1);
        m_grid.SetSort(5);            // the selected rows by their texts
        m_grid.SetMergeCells(1);      // cells of one text stand together ...
        m_grid.SetMergeCol(0, TRUE);  // ... in the column of fonts
        m_grid.SetRow(1);
        m_grid.SetCol(1);
        m_grid.SetRedraw(TRUE);
    }

    CFlexGrid m_grid;
};

class App : public CWinApp {
    BOOL InitInstance() override {
        AfxOleInit();
        AfxEnableControlContainer();
        QVRegisterControls();  // ours for this program, unless the machine has others installed
        return (m_pMainWnd = new Window)->ShowWindow(SW_SHOW), TRUE;
    }
    int ExitInstance() override {
        QVRevokeControls();
        return CWinApp::ExitInstance();
    }
} theApp;
