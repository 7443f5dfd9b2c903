#include "afx/app/print_info.h"

#include "afx/app/last_page.h"

#include <afxdlgs.h>
#include <afxext.h>

namespace {

/// The same text for all jobs, which share its memory.
const CString& PageDescription() {
    static const CString strPageDesc("Page %u\nPages %u-%u\n");
    return strPageDesc;
}

}  // namespace

CPrintInfo::CPrintInfo()
    : m_pPD(new CPrintDialog(FALSE, PD_ALLPAGES | PD_USEDEVMODECOPIES | PD_NOSELECTION)),
      m_strPageDesc(PageDescription()) {
    SetMinPage(1);
    SetMaxPage(kAfxUnknownLastPage);
}

CPrintInfo::~CPrintInfo() {
    if (m_pPD != nullptr && m_pPD->m_pd.hDC != nullptr) {
        ::DeleteDC(m_pPD->m_pd.hDC);
    }
    delete m_pPD;
}

void CPrintInfo::SetMinPage(UINT nMinPage) {
    m_pPD->m_pd.nMinPage = static_cast<WORD>(nMinPage);
}
void CPrintInfo::SetMaxPage(UINT nMaxPage) {
    m_pPD->m_pd.nMaxPage = static_cast<WORD>(nMaxPage);
}
UINT CPrintInfo::GetMinPage() const {
    return m_pPD->m_pd.nMinPage;
}
UINT CPrintInfo::GetMaxPage() const {
    return m_pPD->m_pd.nMaxPage;
}

UINT CPrintInfo::GetFromPage() const {
    const WORD nFrom = m_pPD->m_pd.nFromPage;
    return nFrom != 0 ? nFrom : GetMinPage();
}

UINT CPrintInfo::GetToPage() const {
    const WORD nTo = m_pPD->m_pd.nToPage;
    return nTo != 0 ? nTo : GetMaxPage();
}
