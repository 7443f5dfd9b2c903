#include "afx/app/dock_state.h"

#include <afxwin.h>

namespace {

constexpr char kSummary[] = "-Summary";
constexpr char kBars[] = "Bars";
// What a damaged profile may claim.
constexpr int kMostBars = 256;

/// What a bar has, under its name in the profile.
template <class Info, class Visit>
void VisitFields(Info& info, Visit visit) {
    visit("BarID", info.nBarID);
    visit("Visible", info.bVisible);
    visit("Floating", info.bFloating);
    visit("DockBarID", info.nDockBarID);
    visit("BesideLast", info.bBesideLast);
    visit("Offset", info.nOffset);
    visit("FloatX", info.pointFloat.x);
    visit("FloatY", info.pointFloat.y);
    visit("MRUWidth", info.nMRUWidth);
}

CString SectionOf(LPCTSTR lpszProfileName, int nBar) {
    CString strSection;
    strSection.Format("%s-Bar%d", lpszProfileName, nBar);
    return strSection;
}

}  // namespace

void CDockState::SaveState(LPCTSTR lpszProfileName) const {
    CWinApp* pApp = AfxGetApp();
    const int nCount = static_cast<int>(m_bars.size());
    for (int nBar = 0; nBar < nCount; ++nBar) {
        const CString strSection = SectionOf(lpszProfileName, nBar);
        VisitFields(m_bars[static_cast<size_t>(nBar)], [&](LPCTSTR lpszName, const auto& value) {
            pApp->WriteProfileInt(strSection, lpszName, static_cast<int>(value));
        });
    }
    pApp->WriteProfileInt(CString(lpszProfileName) + kSummary, kBars, nCount);
}

void CDockState::LoadState(LPCTSTR lpszProfileName) {
    CWinApp* pApp = AfxGetApp();
    Clear();
    const auto nCount =
        static_cast<int>(pApp->GetProfileInt(CString(lpszProfileName) + kSummary, kBars, 0));
    for (int nBar = 0; nBar < nCount && nBar < kMostBars; ++nBar) {
        const CString strSection = SectionOf(lpszProfileName, nBar);
        CControlBarInfo info;
        VisitFields(info, [&](LPCTSTR lpszName, auto& value) {
            using Value = std::remove_reference_t<decltype(value)>;
            value = static_cast<Value>(
                pApp->GetProfileInt(strSection, lpszName, static_cast<int>(value)));
        });
        m_bars.push_back(info);
    }
}
