#include "compare/comparison_view.h"

#include "compare/changed_page.h"
#include "compare/list_pages.h"
#include "main_frame.h"
#include "pages/print_target.h"
#include "resource.h"

#include <afxext.h>

IMPLEMENT_DYNCREATE(ComparisonView, QVTabView)

BEGIN_MESSAGE_MAP(ComparisonView, QVTabView)
    ON_COMMAND(ID_FILE_PRINT, &CView::OnFilePrint)
    ON_COMMAND(ID_FILE_PRINT_DIRECT, &CView::OnFilePrint)
    ON_COMMAND(ID_FILE_PRINT_PREVIEW, &CView::OnFilePrintPreview)
    ON_COMMAND_EX(ID_EDIT_COPY, &ComparisonView::OnPageCommand)
    ON_COMMAND_EX(ID_EDIT_SELECT_ALL, &ComparisonView::OnPageCommand)
    ON_COMMAND_EX(ID_COMPARE_GO, &ComparisonView::OnPageCommand)
    ON_UPDATE_COMMAND_UI(ID_EDIT_COPY, &ComparisonView::OnUpdateCommand)
    ON_UPDATE_COMMAND_UI(ID_EDIT_SELECT_ALL, &ComparisonView::OnUpdateCommand)
    ON_UPDATE_COMMAND_UI(ID_COMPARE_GO, &ComparisonView::OnUpdateCommand)
    ON_COMMAND_RANGE(ID_COMPARE_PAGE_FIRST, ID_COMPARE_PAGE_LAST, &ComparisonView::OnPage)
    ON_UPDATE_COMMAND_UI_RANGE(ID_COMPARE_PAGE_FIRST, ID_COMPARE_PAGE_LAST,
                               &ComparisonView::OnUpdatePage)
    ON_COMMAND_RANGE(ID_COMPARE_NEXT, ID_COMPARE_PREVIOUS, &ComparisonView::OnStep)
    ON_UPDATE_COMMAND_UI(ID_INDICATOR_MESSAGE, &ComparisonView::OnUpdateMessage)
    ON_COMMAND(ID_LIST_EXPORT, &ComparisonView::OnExport)
    ON_COMMAND_RANGE(ID_NEXT_PANE, ID_PREV_PANE, &ComparisonView::OnPane)
    ON_UPDATE_COMMAND_UI_RANGE(ID_NEXT_PANE, ID_PREV_PANE, &ComparisonView::OnUpdatePane)
    ON_COMMAND_RANGE(ID_COMPARE_SORT_FIRST, ID_COMPARE_SORT_LAST, &ComparisonView::OnSort)
    ON_UPDATE_COMMAND_UI_RANGE(ID_COMPARE_SORT_FIRST, ID_COMPARE_SORT_LAST,
                               &ComparisonView::OnUpdateSort)
END_MESSAGE_MAP()

ComparisonView::ComparisonView() : QVTabView(IDC_COMPARE_TABS) {}

ComparisonView::~ComparisonView() = default;

ComparisonPage* ComparisonView::Page(int nPage) {
    return nPage >= 0 ? static_cast<ComparisonPage*>(GetPage(nPage)) : nullptr;
}

void ComparisonView::AddTabPages() {
    AddPage("Summary", RUNTIME_CLASS(SummaryPage));
    AddPage("New", RUNTIME_CLASS(NewPage));
    AddPage("Gone", RUNTIME_CLASS(GonePage));
    AddPage("Changed", RUNTIME_CLASS(ChangedPage));
}

// Where a file is opened in the frame of another one, the document has told already.
void ComparisonView::OnInitialUpdate() {
    if (Page(0) == nullptr) {
        QVTabView::OnInitialUpdate();
        UpdateAllPages(0, nullptr);
    }
}

void ComparisonView::OnUpdate(CView*, LPARAM, CObject*) {
    if (Page(0) != nullptr) {
        UpdateAllPages(0, nullptr);
    }
}

// --- Commands

void ComparisonView::OnPage(UINT nID) {
    const int nPage = static_cast<int>(nID - ID_COMPARE_PAGE_FIRST);
    if (ComparisonPage* pPage = Page(nPage)) {
        SetActivePage(static_cast<short>(nPage));
        pPage->SetPageFocus();
        Say("");
    }
}

void ComparisonView::OnUpdatePage(CCmdUI* pCmdUI) {
    const int nPage = static_cast<int>(pCmdUI->m_nID - ID_COMPARE_PAGE_FIRST);
    pCmdUI->Enable(Page(nPage) != nullptr);
    pCmdUI->SetRadio(nPage == GetActivePage());
}

// Behind a page's last row comes the first one of the next page that has any; the last page is
// followed by the first.
void ComparisonView::OnStep(UINT nID) {
    const int nStep = nID == ID_COMPARE_NEXT ? 1 : -1;
    ComparisonPage* pPage = Active();
    if (pPage == nullptr) {
        return;
    }
    const auto rows = [&] { return static_cast<int>(pPage->Rows()); };
    int nPage = GetActivePage();
    int nRow = nPage == kSummary ? -1 : pPage->Row() + nStep;
    if (nPage == kSummary || nRow < 0 || nRow >= rows()) {
        do {
            nPage = (nPage + nStep + kChanged + 1) % (kChanged + 1);
            pPage = Page(nPage);
        } while (pPage != nullptr && nPage != GetActivePage() &&
                 (nPage == kSummary || pPage->Rows() == 0));
        if (pPage == nullptr || nPage == kSummary || pPage->Rows() == 0) {
            return;
        }
        OnPage(ID_COMPARE_PAGE_FIRST + static_cast<UINT>(nPage));
        nRow = nStep > 0 ? 0 : rows() - 1;
    }
    pPage->GoTo(nRow);
}

void ComparisonView::OnSort(UINT nID) {
    if (ComparisonPage* const pPage = Active()) {
        pPage->SortBy(static_cast<int>(nID - ID_COMPARE_SORT_FIRST));
    }
}

void ComparisonView::OnUpdateSort(CCmdUI* pCmdUI) {
    pCmdUI->Enable(Active() != nullptr && Active()->CanSort());
}

void ComparisonView::OnUpdatePane(CCmdUI* pCmdUI) {
    pCmdUI->Enable();  // a view has none by itself without a splitter around it
}

// There are two: the tabs, and the page beside them.
void ComparisonView::OnPane(UINT) {
    ComparisonPage* const pPage = Active();
    if (pPage != nullptr && ::GetFocus() == m_TabCtrl.m_hWnd) {
        pPage->SetPageFocus();
    } else {
        GoToTabs();
    }
}

BOOL ComparisonView::PreTranslateMessage(MSG* pMsg) {
    const bool bInTabs = pMsg->message == WM_KEYDOWN && pMsg->hwnd == m_TabCtrl.m_hWnd;
    if (bInTabs && pMsg->wParam == VK_ESCAPE && Active() != nullptr) {
        Active()->SetPageFocus();
        return TRUE;
    }
    return QVTabView::PreTranslateMessage(pMsg);
}

void ComparisonView::OnUpdateMessage(CCmdUI* pCmdUI) {
    pCmdUI->Enable();
    if (ComparisonPage* pPage = Active()) {
        pCmdUI->SetText(m_strSaid.IsEmpty() || m_nSaid != GetActivePage() ? pPage->Message()
                                                                          : m_strSaid);
    }
}

// The tables of the page as on paper, all of each text.
void ComparisonView::OnExport() {
    ComparisonPage* const pPage = Active();
    if (pPage == nullptr) {
        return;
    }
    m_exporter.UseSettings(static_cast<MainFrame*>(AfxGetMainWnd())->Settings().Values());
    Say(m_exporter.Run(*this, "comparison.csv", [&](TableWriter& writer, Work& work) {
        WritePaper(*pPage->Table(), writer, work);
    }));
}

// --- Paper

BOOL ComparisonView::OnPreparePrinting(CPrintInfo* pInfo) {
    pInfo->m_pPD->m_pd.Flags &= ~static_cast<DWORD>(PD_HIDEPRINTTOFILE);
    return Active() != nullptr && HasPrinter(this) && DoPreparePrinting(pInfo);
}

void ComparisonView::OnBeginPrinting(CDC* pDC, CPrintInfo* pInfo) {
    if (ComparisonPage* pPage = Active()) {
        const CWaitCursor wait;
        m_pPaper = std::make_unique<ComparisonPaper>(*pDC, *this, pPage->Table());
        pInfo->SetMaxPage(m_pPaper->Pages());
    }
}

void ComparisonView::OnPrint(CDC* pDC, CPrintInfo* pInfo) {
    if (m_pPaper != nullptr) {
        m_pPaper->PrintPage(*pDC, pInfo->m_nCurPage);
    }
}

void ComparisonView::OnEndPrinting(CDC*, CPrintInfo*) {
    m_pPaper.reset();
}
