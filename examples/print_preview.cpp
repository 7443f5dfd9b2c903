// A view that goes to paper by the print engine, and to the preview first: the colours of the
// system. A machine without a printer shows the view alone: there is nothing to lay out pages for.
#include "resource.h"

#include <afxext.h>

#include <QVControls.h>
#include <optional>

class ColorsDoc : public CDocument {
    DECLARE_DYNCREATE(ColorsDoc)
};
IMPLEMENT_DYNCREATE(ColorsDoc, CDocument)

class ColorsView : public CView {
    DECLARE_DYNCREATE(ColorsView)

protected:
    void OnDraw(CDC* pDC) override {
        for (int n = 0; n <= COLOR_INFOBK; ++n) {
            pDC->FillSolidRect(20 + n % 5 * 60, 20 + n / 5 * 40, 50, 30, ::GetSysColor(n));
        }
    }
    // The order of printing, and of the preview: prepare, begin, each page, end.
    BOOL OnPreparePrinting(CPrintInfo* pInfo) override { return DoPreparePrinting(pInfo); }
    void OnBeginPrinting(CDC* pDC, CPrintInfo* pInfo) override {
        m_fontNormal.CreatePointFont(90, "Tahoma", pDC);
        m_fontSection.CreatePointFont(160, "Tahoma", pDC);
        m_rcText.SetRect(0, 0, pDC->GetDeviceCaps(HORZRES), pDC->GetDeviceCaps(VERTRES));
        m_rcText.DeflateRect(pDC->GetDeviceCaps(LOGPIXELSX), pDC->GetDeviceCaps(LOGPIXELSY));
        m_engine.emplace(pDC, &m_fontNormal, &m_fontNormal, &m_fontSection);
        m_engine->AddSectionHeader("Colours");
        m_engine->AddText("The amounts of red, green and blue in each.", pDC, nullptr);
        m_engine->AddBreak();
        QVPeDataLabeledList& colors = m_engine->AddLabeledDataList(pDC);
        for (int n = 0; n <= COLOR_INFOBK; ++n) {
            const COLORREF cr = ::GetSysColor(n);
            CString strLabel, strAmounts;
            strLabel.Format("Colour %d:", n);
            strAmounts.Format("%d, %d, %d", GetRValue(cr), GetGValue(cr), GetBValue(cr));
            colors.AddData(strLabel, strAmounts, QVPeDataLabeledListItem::Left);
        }
        pInfo->SetMaxPage(m_engine->Paginate(m_rcText));
    }
    void OnPrint(CDC* pDC, CPrintInfo* pInfo) override {
        m_engine->PrintPage(pDC, m_rcText, pInfo->m_nCurPage);
    }
    void OnEndPrinting(CDC*, CPrintInfo*) override {
        m_engine.reset();  // first: what it holds still uses the fonts
        m_fontNormal.DeleteObject();
        m_fontSection.DeleteObject();
    }
    DECLARE_MESSAGE_MAP()

    CFont m_fontNormal, m_fontSection;
    CRect m_rcText;
    std::optional<QVPrintEngine> m_engine;
};
IMPLEMENT_DYNCREATE(ColorsView, CView)

BEGIN_MESSAGE_MAP(ColorsView, CView)
    ON_COMMAND(ID_FILE_PRINT, &CView::OnFilePrint)
    ON_COMMAND(ID_FILE_PRINT_PREVIEW, &CView::OnFilePrintPreview)
END_MESSAGE_MAP()

class App : public CWinApp {
    BOOL InitInstance() override {
        AddDocTemplate(new CSingleDocTemplate(IDR_MAINFRAME, RUNTIME_CLASS(ColorsDoc),
                                              RUNTIME_CLASS(CFrameWnd), RUNTIME_CLASS(ColorsView)));
        if (OpenDocumentFile(nullptr) == nullptr) {
            return FALSE;
        }
        m_pMainWnd->SetWindowPos(nullptr, 80, 80, 640, 560, SWP_NOZORDER);
        CDC dcPrinter;
        if (CreatePrinterDC(dcPrinter)) {  // the default one
            m_pMainWnd->PostMessage(WM_COMMAND, ID_FILE_PRINT_PREVIEW);
        }
        return TRUE;
    }
} theApp;
