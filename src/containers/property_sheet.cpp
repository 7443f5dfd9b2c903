#include "containers/property_sheet.h"

#include "containers/property_page.h"
#include "frame/out_of_memory.h"

#include <afxpriv.h>

#include <cstring>

IMPLEMENT_DYNAMIC(QVPropertySheetEx, CPropertySheetEx)

namespace {

// What of the sheet's flags the pages are told: that it is a wizard, of the older or newer kind.
constexpr DWORD kWizardFlags = 0x2020;

void DropRecords(PROPSHEETHEADER& psh) {
    delete[] reinterpret_cast<const BYTE*>(psh.ppsp);
    psh.ppsp = nullptr;
    psh.nPages = 0;
}

// Makes psh.ppsp: records of dwBytes bytes, one behind the other. addTitles(page, psp) completes
// one.
template <class AddTitles>
void MakeRecords(CPropertySheet& sheet, PROPSHEETHEADER& psh, DWORD dwBytes, AddTitles addTitles) {
    DropRecords(psh);
    const int nPages = sheet.GetPageCount();
    auto* const pRecords = new BYTE[nPages * static_cast<size_t>(dwBytes)]();
    psh.ppsp = reinterpret_cast<LPCPROPSHEETPAGE>(pRecords);
    for (int i = 0; i < nPages; ++i) {
        CPropertyPage& page = *sheet.GetPage(i);
        auto& psp = *reinterpret_cast<PROPSHEETPAGE*>(pRecords + i * static_cast<size_t>(dwBytes));
        std::memcpy(&psp, &page.m_psp, PROPSHEETPAGE_V1_SIZE);
        psp.dwSize = dwBytes;
        // The fields behind are filled for titles alone, and the shorter record has none.
        psp.dwFlags &= ~static_cast<DWORD>(PSP_USEHEADERTITLE | PSP_USEHEADERSUBTITLE);
        addTitles(page, psp);
        page.PreProcessPageTemplate(psp, static_cast<int>(psh.dwFlags & kWizardFlags));
    }
    psh.nPages = static_cast<UINT>(nPages);
}

bool FontOfTemplate(const PROPSHEETPAGE& psp, CString& strFace, WORD& nPoints) {
    if ((psp.dwFlags & PSP_DLGINDIRECT) != 0) {
        return psp.pResource != nullptr &&
               CDialogTemplate::GetFont(psp.pResource, strFace, nPoints);
    }
    CDialogTemplate dialogTemplate;
    return dialogTemplate.Load(psp.pszTemplate) && dialogTemplate.GetFont(strFace, nPoints);
}

void TakeTabFont(const CPropertySheet& sheet, CFont& fontTab) {
    constexpr int kTenths = 10;  // of a point
    constexpr int kUsualPoints = 8;
    CString strFace;
    WORD nPoints = 0;
    const CPropertyPage* pFirst = sheet.GetPage(0);
    if (pFirst != nullptr && FontOfTemplate(pFirst->m_psp, strFace, nPoints)) {
        fontTab.DeleteObject();
        fontTab.CreatePointFont(nPoints * kTenths, strFace);
    }
    if (fontTab.m_hObject == nullptr) {
        fontTab.CreatePointFont(kUsualPoints * kTenths, "MS Shell Dlg");
    }
}

template <class AddTitles>
void BuildPages(CPropertySheet& sheet, PROPSHEETHEADER& psh, CFont& fontTab, DWORD dwBytes,
                AddTitles addTitles) {
    if (!qv::MemorySuffices([&] {
            MakeRecords(sheet, psh, dwBytes, addTitles);
            TakeTabFont(sheet, fontTab);
        })) {
        DropRecords(psh);
    }
}

// Where the pages lie, in pixels below the tab control's upper edge.
int PagesTop(HWND hTabs) {
    CRect rect;
    ::GetClientRect(hTabs, rect);
    ::SendMessage(hTabs, TCM_ADJUSTRECT, FALSE, reinterpret_cast<LPARAM>(&rect.left));
    return rect.top;
}

// The platform places pages when it makes them; the first one was made before the font came, and
// would lie over the edge below the tabs.
void GiveTabFont(const CPropertySheet& sheet, const CFont& fontTab) {
    const auto hTabs = reinterpret_cast<HWND>(::SendMessage(sheet, PSM_GETTABCONTROL, 0, 0));
    const int nTopBefore = PagesTop(hTabs);
    ::SendMessage(hTabs, WM_SETFONT, reinterpret_cast<WPARAM>(fontTab.m_hObject), TRUE);
    const int nDown = PagesTop(hTabs) - nTopBefore;
    const auto hPage = reinterpret_cast<HWND>(::SendMessage(sheet, PSM_GETCURRENTPAGEHWND, 0, 0));
    if (nDown == 0 || hPage == nullptr || sheet.IsWizard()) {
        return;
    }
    CRect rect;
    ::GetWindowRect(hPage, rect);
    ::MapWindowPoints(nullptr, sheet, reinterpret_cast<POINT*>(&rect.left), 2);
    ::SetWindowPos(hPage, nullptr, rect.left, rect.top + nDown, rect.Width(), rect.Height() - nDown,
                   SWP_NOZORDER | SWP_NOACTIVATE);
}

}  // namespace

QVPropertySheet::QVPropertySheet(UINT nIDCaption, CWnd* pParent, UINT iSelectPage)
    : CPropertySheet(nIDCaption, pParent, iSelectPage) {}

QVPropertySheet::QVPropertySheet(const char* pszCaption, CWnd* pParent, UINT iSelectPage)
    : CPropertySheet(pszCaption, pParent, iSelectPage) {}

void QVPropertySheet::BuildPropPageArray() {
    BuildPages(*this, m_psh, m_fontTab, PROPSHEETPAGE_V1_SIZE,
               [](CPropertyPage&, PROPSHEETPAGE&) {});
}

int QVPropertySheet::OnInitDialog() {
    const qv::WindowWatch watch(m_alive, m_hWnd);
    CPropertySheet::OnInitDialog();
    if (watch) {
        GiveTabFont(*this, m_fontTab);
    }
    return 1;
}

QVPropertySheetEx::QVPropertySheetEx() = default;

QVPropertySheetEx::QVPropertySheetEx(UINT nIDCaption, CWnd* pParent, UINT iSelectPage,
                                     HBITMAP hbmWatermark, HPALETTE hpalWatermark,
                                     HBITMAP hbmHeader)
    : CPropertySheetEx(nIDCaption, pParent, iSelectPage, hbmWatermark, hpalWatermark, hbmHeader) {}

QVPropertySheetEx::QVPropertySheetEx(const char* pszCaption, CWnd* pParent, UINT iSelectPage,
                                     HBITMAP hbmWatermark, HPALETTE hpalWatermark,
                                     HBITMAP hbmHeader)
    : CPropertySheetEx(pszCaption, pParent, iSelectPage, hbmWatermark, hpalWatermark, hbmHeader) {}

void QVPropertySheetEx::BuildPropPageArray() {
    BuildPages(*this, m_psh, m_fontTab, PROPSHEETPAGE_V2_SIZE,
               [](CPropertyPage& page, PROPSHEETPAGE& psp) {
                   if (const auto* pPage = dynamic_cast<const QVPropertyPageEx*>(&page)) {
                       pPage->AddHeaderTitles(psp);
                   }
               });
}

int QVPropertySheetEx::OnInitDialog() {
    const qv::WindowWatch watch(m_alive, m_hWnd);
    CPropertySheetEx::OnInitDialog();
    if (watch) {
        GiveTabFont(*this, m_fontTab);
    }
    return 1;
}
