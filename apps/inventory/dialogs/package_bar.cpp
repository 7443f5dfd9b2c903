#include "dialogs/package_bar.h"

#include "dialogs/day_edit.h"

#include <algorithm>
#include <mbstring.h>

namespace {

// In dialog units.
constexpr int kMargin = 4;
constexpr int kGap = 6;  // between groups that moved
constexpr int kRowUnits = 18;

bool NameBefore(const std::string& str1, const std::string& str2) {
    const auto bytes = [](const std::string& str) {
        return reinterpret_cast<const unsigned char*>(str.c_str());
    };
    return _mbsicmp(bytes(str1), bytes(str2)) < 0;
}

// Row 0 stands for all; the others are what they say.
std::string Chosen(QVBitmapComboBox& box) {
    CString str;
    const int nRow = box.GetCurSel();
    return nRow > 0 && box.GetItemString(nRow, str) ? std::string(str) : std::string();
}

// The row of a text, or row 0 if there is none.
void Choose(QVBitmapComboBox& box, const std::string& strText) {
    CString str;
    int nRow = strText.empty() ? 0 : box.GetCount() - 1;
    while (nRow > 0 && !(box.GetItemString(nRow, str) && strText == std::string(str))) {
        --nRow;
    }
    box.SetCurSel(nRow);
}

}  // namespace

PackageImage ImageOf(const Section& section) {
    const auto any = [&](bool Package::*pMark) {
        return std::any_of(section.packages.begin(), section.packages.end(),
                           [&](const Package& package) { return package.*pMark; });
    };
    return StripImage(any(&Package::bUnusual), any(&Package::bRequired));
}

CString MenuText(const std::string& strName) {
    CString strText(strName.c_str());
    strText.Replace("&", "&&");
    strText.Replace('\t', ' ');
    return strText;
}

// A command's string says what it does, and behind a line feed what it is called.
static CString TipOf(UINT nCommand) {
    CString strHelp;
    strHelp.LoadString(nCommand);
    return strHelp.Mid(strHelp.Find('\n') + 1);
}

// --- The button

void ReportButton::OfferCommands() {
    SetStartCmdID(ID_PACKAGES_PREVIEW);
    AddString("Preview the report");
    AddString("Print the report...");
    AddString("Export the list...");
    m_nCommands = m_astrItems.GetSize();
}

void ReportButton::OfferReports(const std::vector<std::string>& names) {
    m_astrItems.SetSize(m_nCommands);
    for (const std::string& strName : names) {
        AddString(MenuText(strName));
    }
}

// The reports have commands of their own.
void ReportButton::OnMenuSelected(unsigned nIndex) {
    if (static_cast<INT_PTR>(nIndex) < m_nCommands) {
        QVMenuButton::OnMenuSelected(nIndex);
    } else {
        AfxGetMainWnd()->PostMessage(
            WM_COMMAND, ID_REPORT_FIRST_NAMED + nIndex - static_cast<unsigned>(m_nCommands));
    }
}

// --- The bar

BEGIN_MESSAGE_MAP(PackageBar, CDialog)
    ON_CBN_SELCHANGE(IDC_FILTER_SECTION, &PackageBar::OnChoice)
    ON_CBN_SELCHANGE(IDC_FILTER_ARCHITECTURE, &PackageBar::OnChoice)
    ON_NOTIFY(DTN_DATETIMECHANGE, IDC_FILTER_SINCE, &PackageBar::OnSince)
    ON_BN_CLICKED(IDC_FILTER_ANY_DATE, &PackageBar::OnAnyDate)
    ON_EN_CHANGE(IDC_JUMP, &PackageBar::OnTyped)
    ON_COMMAND_RANGE(ID_FIRST_COMMAND, ID_LAST_COMMAND, &PackageBar::OnTool)
END_MESSAGE_MAP()

BOOL PackageBar::OnInitDialog() {
    CDialog::OnInitDialog();
    FindGroups();
    m_section.Initialize(IDC_FILTER_SECTION, IDB_PACKAGES, kStripMask, kStripImageWidth, this);
    m_architecture.Initialize(IDC_FILTER_ARCHITECTURE, IDB_PACKAGES, kStripMask, kStripImageWidth,
                              this);
    m_section.EnableExpectedKeys();
    m_architecture.EnableExpectedKeys();
    m_since.SubclassDlgItem(IDC_FILTER_SINCE, this);
    m_jump.SubclassDlgItem(IDC_JUMP, this);
    m_jump.SetSpeedData(&m_names);
    m_jump.SetSpeedOnly(TRUE);
    m_required.SubclassDlgItem(IDC_MARK_REQUIRED, this);
    m_unusual.SubclassDlgItem(IDC_MARK_UNUSUAL, this);
    SetUpTools();
    ShowSince();
    return FALSE;
}

void PackageBar::FindGroups() {
    CRect rcUnits(kMargin, kRowUnits, kGap, 0);
    MapDialogRect(&rcUnits);
    m_nRowHeight = rcUnits.top;
    CRect rcBar;
    GetClientRect(&rcBar);
    m_nBelow = rcBar.Height() - 2 * m_nRowHeight;
    for (CWnd* pWnd = GetWindow(GW_CHILD); pWnd != nullptr; pWnd = pWnd->GetNextWindow()) {
        CRect rc;
        pWnd->GetWindowRect(&rc);
        ScreenToClient(&rc);
        const int nID = pWnd->GetDlgCtrlID();
        const bool bLabel = (pWnd->GetStyle() & WS_GROUP) != 0;
        if (m_groups.empty() || bLabel || nID == ID_RELOAD) {
            m_groups.push_back({rc, {}});
        }
        Group& group = m_groups.back();
        group.rc |= rc;
        group.controls.emplace_back(pWnd->m_hWnd, rc.TopLeft());
    }
    for (Group& group : m_groups) {
        for (auto& control : group.controls) {
            control.second -= group.rc.TopLeft();
        }
    }
}

int PackageBar::LayOut(int cx) {
    CRect rcUnits(kMargin, 0, kGap, 0);
    MapDialogRect(&rcUnits);
    std::vector<FlowGroup> places;
    for (const Group& group : m_groups) {
        places.push_back(
            {group.rc.left, group.rc.top / std::max(m_nRowHeight, 1), group.rc.Width()});
    }
    const int nRows = FlowGroups(places, cx, rcUnits.left, rcUnits.right);
    for (size_t i = 0; i < m_groups.size(); ++i) {
        const Group& group = m_groups[i];
        const int nTop = group.rc.top % std::max(m_nRowHeight, 1) + places[i].nRow * m_nRowHeight;
        for (const auto& [hWnd, pt] : group.controls) {
            ::SetWindowPos(hWnd, nullptr, places[i].nLeft + pt.x, nTop + pt.y, 0, 0,
                           SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
        }
    }
    Invalidate();
    return nRows * m_nRowHeight + m_nBelow;
}

void PackageBar::SetUpTools() {
    m_images.Create(IDB_TOOLS, kStripImageWidth, 0, kStripMask);
    struct Tool {
        QVBitmapButton& button;
        UINT nID;
        int nImage;
    };
    for (const Tool& tool :
         {Tool{m_reload, ID_RELOAD, 0}, Tool{m_find, ID_FIND, 1}, Tool{m_export, ID_LIST_EXPORT, 2},
          Tool{m_imageColumn, ID_LIST_IMAGE_COLUMN, 3}}) {
        tool.button.SubclassDlgItem(tool.nID, this);
        tool.button.SetImageID(&m_images, tool.nImage);
        tool.button.EnableToolTip(TipOf(tool.nID));
    }
    m_report.SubclassDlgItem(IDC_REPORT_MENU, this);
    m_report.OfferCommands();
}

// The page around moves the focus, out of the bar as well.
BOOL PackageBar::PreTranslateMessage(MSG* pMsg) {
    return CWnd::PreTranslateMessage(pMsg);
}

// --- What can be chosen

void PackageBar::SetInventory(const Inventory& inventory) {
    for (QVBitmapComboBox* pBox : {&m_section, &m_architecture}) {
        pBox->SetRedraw(FALSE);
        pBox->ResetContent();
    }
    m_section.AddBitmapString(kPlainPackage, "all sections");
    std::vector<std::string> names;
    for (const Section& section : inventory.Sections()) {
        m_section.AddBitmapString(ImageOf(section), section.strName.c_str());
        for (const Package& package : section.packages) {
            names.push_back(package.strName);
        }
    }
    m_architecture.AddBitmapString(kPlainPackage, "all");
    for (const std::string& strName : Architectures(inventory)) {
        m_architecture.AddBitmapString(kPlainPackage, strName.c_str());
    }
    std::sort(names.begin(), names.end(), NameBefore);
    m_names.SetSize(static_cast<INT_PTR>(names.size()));
    for (size_t i = 0; i < names.size(); ++i) {
        m_names[static_cast<INT_PTR>(i)] = names[i].c_str();
    }
    for (QVBitmapComboBox* pBox : {&m_section, &m_architecture}) {
        pBox->SetRedraw(TRUE);
        pBox->Invalidate(FALSE);
    }
    SetFilter(m_filter);
}

void PackageBar::ShowMarks(const Package* pPackage) {
    const auto show = [](QVCheckWnd& mark, bool bSet) {
        if (bSet != (mark.Checked() != 0)) {
            mark.SetIsChecked(bSet);
        }
    };
    show(m_required, pPackage != nullptr && pPackage->bRequired);
    show(m_unusual, pPackage != nullptr && pPackage->bUnusual);
}

// --- The filter

// Before there is an inventory nothing can be chosen, and the filter waits.
void PackageBar::SetFilter(const PackageFilter& filter) {
    m_filter = filter;
    ShowSince();
    if (m_section.GetCount() == 0) {
        return;
    }
    Choose(m_section, filter.strSection);
    Choose(m_architecture, filter.strArchitecture);
    m_filter.strSection = Chosen(m_section);
    m_filter.strArchitecture = Chosen(m_architecture);
}

void PackageBar::ShowSince() {
    ShowDay(m_since, m_filter.tSince);
}

void PackageBar::TakeFilter() {
    m_filter = {Chosen(m_section), Chosen(m_architecture), DayIn(m_since)};
    m_owner.OnFilterChanged();
}

void PackageBar::OnChoice() {
    TakeFilter();
}

void PackageBar::OnSince(NMHDR*, LRESULT* pResult) {
    *pResult = 0;
    TakeFilter();
}

void PackageBar::OnAnyDate() {
    m_since.SetWindowText("");
    TakeFilter();
}

// --- Commands

void PackageBar::OnTyped() {
    CString strName;
    m_jump.GetWindowText(strName);
    if (!strName.IsEmpty()) {
        m_owner.OnJump(strName);
    }
}

// The buttons say what the menu says.
void PackageBar::OnTool(UINT nID) {
    AfxGetMainWnd()->PostMessage(WM_COMMAND, nID);
}
