// The print dialog's answers and the page range.
#include "virtual_printer/virtual_printer.h"

#include <afxdlgs.h>
#include <afxext.h>

#include <gtest/gtest.h>
#include <string>

namespace {

void FreeAnswer(CPrintDialog& dlg) {
    ::GlobalFree(dlg.m_pd.hDevMode);
    ::GlobalFree(dlg.m_pd.hDevNames);
}

}  // namespace

TEST(PrintDialog, DefaultsNameThePrinterAndMakeItsContexts) {
    std::string strError;
    ASSERT_TRUE(EnsureVirtualPrinter(strError)) << strError;
    char szName[256] = "";
    DWORD nBytes = sizeof szName;
    ASSERT_TRUE(::GetDefaultPrinter(szName, &nBytes));
    if (lstrcmp(szName, kVirtualPrinterName) != 0) {
        GTEST_SKIP() << "nothing to measure another printer by: " << szName;
    }
    CPrintDialog dlg(FALSE);
    ASSERT_TRUE(dlg.GetDefaults());
    EXPECT_STREQ(dlg.GetDeviceName(), kVirtualPrinterName);
    EXPECT_STREQ(dlg.GetPortName(), "FILE:");
    LPDEVMODE pMode = dlg.GetDevMode();
    ASSERT_NE(pMode, nullptr);
    EXPECT_EQ(pMode->dmPaperSize, DMPAPER_A4);
    pMode->dmFields |= DM_COPIES;
    pMode->dmCopies = 3;
    ::GlobalUnlock(dlg.m_pd.hDevMode);
    EXPECT_EQ(dlg.GetCopies(), 3);

    CDC returned;
    ASSERT_TRUE(returned.Attach(dlg.GetPrinterDC()));
    CDC made;
    ASSERT_TRUE(made.Attach(dlg.CreatePrinterDC()));
    EXPECT_NE(made.m_hDC, returned.m_hDC);
    EXPECT_EQ(dlg.GetPrinterDC(), made.m_hDC);
    EXPECT_EQ(made.GetDeviceCaps(LOGPIXELSX), 600);
    EXPECT_FALSE(dlg.GetDefaults());
    FreeAnswer(dlg);

    CPrintDialog setup(TRUE);
    ASSERT_TRUE(setup.GetDefaults());
    EXPECT_EQ(setup.GetPrinterDC(), nullptr);
    FreeAnswer(setup);
}

TEST(PrintInfo, TheRangeIsTheDocumentUntilThePrintDialogNarrowsIt) {
    CPrintInfo info;
    EXPECT_EQ(info.GetFromPage(), 1u);
    info.SetMinPage(2);
    info.SetMaxPage(9);
    EXPECT_EQ(info.GetFromPage(), 2u);
    EXPECT_EQ(info.GetToPage(), 9u);
    EXPECT_EQ(info.m_pPD->GetFromPage(), -1);
    info.m_pPD->m_pd.Flags |= PD_PAGENUMS;
    info.m_pPD->m_pd.nFromPage = 4;
    info.m_pPD->m_pd.nToPage = 5;
    EXPECT_EQ(info.GetFromPage(), 4u);
    EXPECT_EQ(info.GetToPage(), 5u);
    EXPECT_EQ(info.GetMaxPage(), 9u);
}

TEST(PrintInfo, DeletesTheContextOfItsDialog) {
    HDC hDC = ::CreateCompatibleDC(nullptr);
    { CPrintInfo().m_pPD->m_pd.hDC = hDC; }
    EXPECT_EQ(::GetObjectType(hDC), 0u);
}
