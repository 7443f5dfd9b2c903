// Printing into a file of the virtual printer, the print dialog's answers and the page range.
#include "support/temp_file.h"
#include "virtual_printer/virtual_printer.h"

#include <afxdlgs.h>
#include <afxext.h>

#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace {

void FreeAnswer(CPrintDialog& dlg) {
    ::GlobalFree(dlg.m_pd.hDevMode);
    ::GlobalFree(dlg.m_pd.hDevNames);
}

/// A machine with the virtual printer as its default; others have nothing to measure by.
class Print : public testing::Test {
protected:
    void SetUp() override {
        std::string strError;
        ASSERT_TRUE(EnsureVirtualPrinter(strError)) << strError;
        char szName[256] = "";
        DWORD nBytes = sizeof szName;
        ASSERT_TRUE(::GetDefaultPrinter(szName, &nBytes));
        if (lstrcmp(szName, kVirtualPrinterName) != 0) {
            GTEST_SKIP() << "the default printer is another one: " << szName;
        }
    }
};

}  // namespace

// Runs before the printer is set up, so it finds a machine without one at the first run there.
TEST(PrintWithoutPrinter, DefaultsAreRefusedInSilence) {
    DWORD nBytes = 0;
    ::GetDefaultPrinter(nullptr, &nBytes);
    if (::GetLastError() != ERROR_FILE_NOT_FOUND) {
        GTEST_SKIP() << "there is a printer";
    }
    CPrintDialog dlg(FALSE);
    EXPECT_FALSE(dlg.GetDefaults());
    EXPECT_EQ(dlg.CreatePrinterDC(), nullptr);
    EXPECT_EQ(dlg.GetDevMode(), nullptr);
    EXPECT_TRUE(dlg.GetDeviceName().IsEmpty());
}

TEST_F(Print, ASecondCallChangesNothing) {
    const auto printers = [] {
        DWORD nBytes = 0;
        DWORD nPrinters = 0;
        ::EnumPrinters(PRINTER_ENUM_LOCAL, nullptr, 4, nullptr, 0, &nBytes, &nPrinters);
        std::vector<BYTE> buffer(nBytes);
        ::EnumPrinters(PRINTER_ENUM_LOCAL, nullptr, 4, buffer.data(), nBytes, &nBytes, &nPrinters);
        return nPrinters;
    };
    const DWORD nBefore = printers();
    EXPECT_GT(nBefore, 0u);
    std::string strError;
    EXPECT_TRUE(EnsureVirtualPrinter(strError)) << strError;
    EXPECT_EQ(printers(), nBefore);
}

TEST_F(Print, ADocumentGoesToTheFileAsPostScript) {
    CDC dc;
    ASSERT_TRUE(dc.CreateDC("WINSPOOL", kVirtualPrinterName, nullptr, nullptr));
    EXPECT_EQ(dc.GetDeviceCaps(LOGPIXELSX), 600);
    EXPECT_EQ(dc.GetDeviceCaps(LOGPIXELSY), 600);
    // A4 less the margins of the description: 559 by 770 points.
    EXPECT_NEAR(dc.GetDeviceCaps(HORZRES), 4658, 2);
    EXPECT_NEAR(dc.GetDeviceCaps(VERTRES), 6416, 2);

    const TempFile file;
    DOCINFO info{};
    info.cbSize = sizeof info;
    info.lpszDocName = "Two pages";
    info.lpszOutput = file.Path();
    ASSERT_GT(dc.StartDoc(&info), 0);
    for (LPCTSTR lpszText : {"first", "second"}) {
        ASSERT_GT(dc.StartPage(), 0);
        EXPECT_TRUE(dc.TextOut(600, 600, lpszText));
        ASSERT_GT(dc.EndPage(), 0);
    }
    ASSERT_GT(dc.EndDoc(), 0);

    const std::string strContent = file.Content();
    EXPECT_EQ(strContent.substr(0, 4), "%!PS");
    EXPECT_NE(strContent.find("%%Pages: 2"), std::string::npos);
    EXPECT_NE(strContent.find("%%EOF"), std::string::npos);
}

TEST_F(Print, DefaultsNameThePrinterAndMakeItsContexts) {
    CPrintDialog dlg(FALSE);
    ASSERT_TRUE(dlg.GetDefaults());
    EXPECT_STREQ(dlg.GetDeviceName(), kVirtualPrinterName);
    EXPECT_FALSE(dlg.GetDriverName().IsEmpty());
    EXPECT_STREQ(dlg.GetPortName(), "FILE:");
    EXPECT_EQ(dlg.GetCopies(), 1);
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
    EXPECT_EQ(info.m_nCurPage, 1u);
    EXPECT_TRUE(info.m_bContinuePrinting);
    EXPECT_EQ(info.GetMinPage(), 1u);
    EXPECT_EQ(info.GetFromPage(), 1u);
    info.SetMinPage(2);
    info.SetMaxPage(9);
    EXPECT_EQ(info.GetFromPage(), 2u);
    EXPECT_EQ(info.GetToPage(), 9u);
    EXPECT_TRUE(info.m_pPD->PrintAll());
    EXPECT_EQ(info.m_pPD->GetFromPage(), -1);
    info.m_pPD->m_pd.Flags |= PD_PAGENUMS;
    info.m_pPD->m_pd.nFromPage = 4;
    info.m_pPD->m_pd.nToPage = 5;
    EXPECT_FALSE(info.m_pPD->PrintAll());
    EXPECT_EQ(info.GetFromPage(), 4u);
    EXPECT_EQ(info.GetToPage(), 5u);
    EXPECT_EQ(info.m_pPD->GetToPage(), 5);
    EXPECT_EQ(info.GetMaxPage(), 9u);
}

TEST(PrintInfo, DeletesTheContextOfItsDialog) {
    HDC hDC = ::CreateCompatibleDC(nullptr);
    {
        CPrintInfo info;
        info.m_pPD->m_pd.hDC = hDC;
    }
    EXPECT_EQ(::GetObjectType(hDC), 0u);
}
