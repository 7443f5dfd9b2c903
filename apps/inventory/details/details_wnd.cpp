#include "details/details_wnd.h"

#include "details/configuration_page.h"
#include "details/dependencies_page.h"
#include "details/facts_page.h"
#include "details/files_page.h"
#include "details/scripts_page.h"
#include "pages/printing.h"

#include <climits>

namespace {

constexpr UINT_PTR kTimer = 1;
constexpr UINT kStays = 60;  // milliseconds
constexpr double kMarginInch = 0.8;

}  // namespace

BEGIN_MESSAGE_MAP(DetailsWnd, QVTabWnd)
    ON_WM_TIMER()
    ON_COMMAND_RANGE(ID_DETAILS_FIRST, ID_DETAILS_LAST, &DetailsWnd::OnPage)
    ON_COMMAND_RANGE(ID_DETAILS_NEXT, ID_DETAILS_PREVIOUS, &DetailsWnd::OnStep)
    ON_COMMAND(ID_DETAILS_GO, &DetailsWnd::OnGo)
    ON_COMMAND_RANGE(ID_DETAILS_PRINT, ID_DETAILS_PRINT_ACTIVE, &DetailsWnd::OnPrint)
    ON_UPDATE_COMMAND_UI_RANGE(ID_DETAILS_FIRST, ID_DETAILS_LAST, &DetailsWnd::OnUpdatePage)
    ON_UPDATE_COMMAND_UI(ID_DETAILS_GO, &DetailsWnd::OnUpdateGo)
    ON_UPDATE_COMMAND_UI_RANGE(ID_DETAILS_PRINT, ID_DETAILS_PRINT_ACTIVE,
                               &DetailsWnd::OnUpdatePrint)
END_MESSAGE_MAP()

template <class DetailsOfPackage>
void DetailsWnd::Add(const char* pszTitle) {
    auto pPage = std::make_unique<DetailsOfPackage>(m_source);
    if (AddPage(pszTitle, pPage.get()) != nullptr) {
        pPage.release();
    }
}

void DetailsWnd::AddTabPages() {
    Add<FactsPage>("Facts");
    Add<FilesPage>("Files");
    Add<DependenciesPage>("Dependencies");
    Add<ScriptsPage>("Scripts");
    Add<ConfigurationPage>("Configuration");
    GetTabCtrl().ModifyStyle(0, WS_TABSTOP);
}

// --- The package

void DetailsWnd::UseSource(const Inventory& inventory, const PackageStore& store) {
    m_source.pInventory = &inventory;
    m_source.store = store;
    Show(nullptr);
}

void DetailsWnd::Show(const Package* pPackage) {
    m_next = pPackage != nullptr ? *pPackage : Package();
    m_bNext = pPackage != nullptr;
    m_bWaits = SetTimer(kTimer, kStays, nullptr) != 0;
    if (!m_bWaits) {
        TakeNext();
    }
}

void DetailsWnd::OnTimer(UINT_PTR) {
    TakeNext();
}

void DetailsWnd::TakeNext() {
    KillTimer(kTimer);
    m_bWaits = false;
    m_source.package = m_next;
    m_source.bChosen = m_bNext;
    for (int nPage = 0; nPage < NumPages(); ++nPage) {
        Page(nPage).Forget();
    }
    if (Active() != nullptr) {
        Active()->ReadOnce();
    }
}

DetailsPage* DetailsWnd::Active() {
    return static_cast<DetailsPage*>(GetPage(GetActivePage()));
}

void DetailsWnd::GoToTarget() {
    const CString strName = Active() != nullptr ? Active()->Target() : CString();
    if (!strName.IsEmpty()) {
        m_owner.OnGoTo(strName);
    }
}

// --- Commands

void DetailsWnd::OnPage(UINT nID) {
    SetActivePage(static_cast<int>(nID - ID_DETAILS_FIRST));
}

void DetailsWnd::OnStep(UINT nID) {
    const int nStep = nID == ID_DETAILS_NEXT ? 1 : NumPages() - 1;
    SetActivePage((GetActivePage() + nStep) % std::max(NumPages(), 1));
}

void DetailsWnd::OnUpdatePage(CCmdUI* pCmdUI) {
    pCmdUI->SetRadio(static_cast<int>(pCmdUI->m_nID - ID_DETAILS_FIRST) == GetActivePage());
}

void DetailsWnd::OnUpdateGo(CCmdUI* pCmdUI) {
    pCmdUI->Enable(Active() != nullptr && !Active()->Target().IsEmpty());
}

// --- Paper

void DetailsWnd::OnUpdatePrint(CCmdUI* pCmdUI) {
    pCmdUI->Enable(m_bNext);
}

void DetailsWnd::OnPrint(UINT nID) {
    PrinterChoice printer(this);
    CDC dc;
    if (printer.Ask(USHRT_MAX, "Details", dc)) {
        Tell(Print(dc, nID == ID_DETAILS_PRINT_ACTIVE, &printer, printer.Output()), this);
    }
}

Failure DetailsWnd::PrintToFile(LPCSTR pszOutput, bool bActiveOnly) {
    CDC dc;
    Failure pFailure = OpenDefaultPrinter(this, dc);
    return pFailure != nullptr ? std::move(pFailure) : Print(dc, bActiveOnly, nullptr, pszOutput);
}

Failure DetailsWnd::Print(CDC& dc, bool bActiveOnly, PrinterChoice* pPrinter, LPCSTR pszOutput) {
    const CWaitCursor wait;
    TakeNext();
    CFont fontNormal;
    CFont fontHeader;
    CFont fontSection;
    MakePrintFont(fontNormal, dc, 8, FW_NORMAL);
    MakePrintFont(fontHeader, dc, 11, FW_BOLD);
    MakePrintFont(fontSection, dc, 14, FW_BOLD);
    CRect rc(0, 0, dc.GetDeviceCaps(HORZRES), dc.GetDeviceCaps(VERTRES));
    rc.DeflateRect(static_cast<int>(kMarginInch * dc.GetDeviceCaps(LOGPIXELSX)),
                   static_cast<int>(kMarginInch * dc.GetDeviceCaps(LOGPIXELSY)));
    QVPrintEngine engine(&dc, &fontHeader, &fontNormal, &fontSection);
    engine.SetPrintAllRows(true);
    engine.AddHeader(CString("What is known of ") + Shows().c_str(), &dc);
    BeginPrinting(&dc, engine, bActiveOnly);
    const unsigned nPages = engine.Paginate(rc);
    const unsigned nFirst = pPrinter != nullptr ? pPrinter->FirstPage() : 1;
    const unsigned nLast = std::min(pPrinter != nullptr ? pPrinter->LastPage() : nPages, nPages);
    const int nLine = dc.GetDeviceCaps(LOGPIXELSY) / 4;
    const auto printPage = [&](unsigned nPage) {
        engine.PrintPage(&dc, rc, nPage);
        const qv::SelectGuard select(dc, &fontNormal);
        CString strFooter;
        strFooter.Format("%s, page %u of %u", Shows().c_str(), nPage, nPages);
        CRect rcFooter(rc.left, rc.bottom + nLine, rc.right, rc.bottom + 2 * nLine);
        dc.DrawText(strFooter, &rcFooter, DT_SINGLELINE | DT_NOPREFIX | DT_CENTER);
    };
    Failure pFailure = Work::Run("Printing the details...", [&](Work& work) {
        if (!engine.IsComplete()) {
            throw Failed(kErrorPrint, std::make_unique<QVStatus>(QVStatus::outOfMemory)).release();
        }
        PrintJob(work, dc, "Details", nFirst, nLast, pszOutput, printPage);
    });
    m_owner.Say("Details: " + PrintedText(pFailure, nLast - nFirst + 1, pszOutput));
    return pFailure;
}
