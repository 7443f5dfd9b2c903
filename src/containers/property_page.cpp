#include "containers/property_page.h"

IMPLEMENT_DYNCREATE(QVPropertyPage, CPropertyPage)
IMPLEMENT_DYNCREATE(QVPropertyPageEx, CPropertyPageEx)

namespace {

LPCDLGTEMPLATE TemplateOf(const PROPSHEETPAGE& psp) {
    if ((psp.dwFlags & PSP_DLGINDIRECT) != 0) {
        return psp.pResource;
    }
    const HRSRC hResource = ::FindResource(psp.hInstance, psp.pszTemplate, RT_DIALOG);
    const HGLOBAL hData = hResource != nullptr ? ::LoadResource(psp.hInstance, hResource) : nullptr;
    return hData != nullptr ? static_cast<LPCDLGTEMPLATE>(::LockResource(hData)) : nullptr;
}

// hOwn: the page's own copy of a template, which is needed no longer. initialize: what the
// framework does to a template before its use.
template <class Initialize>
void PointAtTemplate(PROPSHEETPAGE& psp, HGLOBAL& hOwn, Initialize initialize) {
    LPCDLGTEMPLATE pTemplate = TemplateOf(psp);
    if (pTemplate == nullptr) {
        return;  // the platform would read a null template
    }
    pTemplate = initialize(pTemplate);
    if (hOwn != nullptr) {
        ::GlobalFree(hOwn);
        hOwn = nullptr;
    }
    psp.dwFlags |= PSP_DLGINDIRECT;
    psp.pResource = pTemplate;
}

}  // namespace

QVPropertyPage::QVPropertyPage() = default;

QVPropertyPage::QVPropertyPage(UINT nIDTemplate, UINT nIDCaption)
    : CPropertyPage(nIDTemplate, nIDCaption) {}

QVPropertyPage::QVPropertyPage(const char* pszTemplate, UINT nIDCaption)
    : CPropertyPage(pszTemplate, nIDCaption) {}

void QVPropertyPage::PreProcessPageTemplate(PROPSHEETPAGE& psp, int) {
    PointAtTemplate(psp, m_hDialogTemplate,
                    [this](LPCDLGTEMPLATE pTemplate) { return InitDialogInfo(pTemplate); });
}

QVPropertyPageEx::QVPropertyPageEx() = default;

QVPropertyPageEx::QVPropertyPageEx(UINT nIDTemplate, UINT nIDCaption, UINT nIDHeaderTitle,
                                   UINT nIDHeaderSubTitle)
    : CPropertyPageEx(nIDTemplate, nIDCaption, nIDHeaderTitle, nIDHeaderSubTitle) {}

QVPropertyPageEx::QVPropertyPageEx(const char* pszTemplate, UINT nIDCaption, UINT nIDHeaderTitle,
                                   UINT nIDHeaderSubTitle)
    : CPropertyPageEx(pszTemplate, nIDCaption, nIDHeaderTitle, nIDHeaderSubTitle) {}

void QVPropertyPageEx::PreProcessPageTemplate(PROPSHEETPAGE& psp, int) {
    PointAtTemplate(psp, m_hDialogTemplate,
                    [this](LPCDLGTEMPLATE pTemplate) { return InitDialogInfo(pTemplate); });
}

void QVPropertyPageEx::AddHeaderTitles(PROPSHEETPAGE& psp) const {
    if (!m_strHeaderTitle.IsEmpty()) {
        psp.dwFlags |= PSP_USEHEADERTITLE;
        psp.pszHeaderTitle = m_strHeaderTitle;
    }
    if (!m_strHeaderSubTitle.IsEmpty()) {
        psp.dwFlags |= PSP_USEHEADERSUBTITLE;
        psp.pszHeaderSubTitle = m_strHeaderSubTitle;
    }
}
