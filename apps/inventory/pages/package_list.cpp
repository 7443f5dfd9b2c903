#include "pages/package_list.h"

#include "package_strip.h"

IMPLEMENT_DYNCREATE(PackageList, QVSortingListCtrl)

BEGIN_MESSAGE_MAP(PackageList, QVSortingListCtrl)
    ON_WM_SYSCOLORCHANGE()
END_MESSAGE_MAP()

void PackageList::SetUp(CFont* pFont) {
    EnableExpectedKeys();
    SetFont(pFont);
    ShowColors();
    ShowSortArrow();
    MakeColumns();
}

void PackageList::UseColors(COLORREF crInstalled, COLORREF crRequired, COLORREF crTrouble) {
    m_crInstalled = crInstalled;
    m_crRequired = crRequired;
    m_crTrouble = crTrouble;
    ShowColors();
    InvalidateData(FALSE);
}

void PackageList::ShowColors() {
    const QVSTYLE plain = ColorsOnScreen({m_crInstalled, kWindowBack});
    UpdateStyle(0, plain.crText, plain.crBk);
    ShowStyle(*this, m_nTrouble, {m_crTrouble, kTroubleColors.crBk});
    ShowStyle(*this, m_nRequired, {m_crRequired, kWindowBack});
    ShowStyle(*this, m_nDetail, kDetailColors);
}

int PackageList::ImageWidth() {
    return kStripImageWidth;
}

void PackageList::OnSysColorChange() {
    QVSortingListCtrl::OnSysColorChange();
    ShowColors();
}

void PackageList::MakeColumns() {
    ClearHeaders();
    ClearCols();
    SetImageFirstCol(m_bImageColumn);
    if (m_bImageColumn) {
        AddHeader(" ", lcdtString);
    }
    AddHeader("Package\tVersion", lcdtString);
    AddHeader("KiB", lcdtNumber);
    AddHeader("Installed", lcdtDate);
    AddHeader("Section\tState\tSummary", lcdtString);
    const int nFirst = m_bImageColumn ? 1 : 0;
    SetColFormat(nFirst + 2, LVCFMT_RIGHT);
    SetHdrFormat(nFirst + 2, LVCFMT_RIGHT);
    SetColFormat(nFirst + 5, LVCFMT_CENTER);
    SetHdrFormat(nFirst + 5, LVCFMT_CENTER);
    const CString strSample =
        "a-package-with-a-long-name-and\t1:14.0.6-12+deb12u1~\t1234567\t2026-11-21 "
        "00:00~~\tinterpreters~\tnot-installed\tA summary of what the package is good for";
    SetupColumnsFromString(m_bImageColumn ? "\t" + strSample : strSample);
    if (m_bImageColumn) {
        SetColWidth(0, 2 * kStripImageWidth, nullptr);
    }
}

void PackageList::UseImageColumn(bool bOwn) {
    const int nShift = static_cast<int>(bOwn) - static_cast<int>(m_bImageColumn);
    m_bImageColumn = bOwn;
    m_nSortCol = std::max(m_nSortCol + nShift, 0);
    SetRedraw(FALSE);
    SaveSelections();
    DeleteAllItems();
    MakeColumns();
    Fill();
    SetRedraw(TRUE);
    Invalidate(FALSE);
}

void PackageList::Show(const Inventory& inventory, const PackageFilter& filter) {
    if (std::exchange(m_bPrepared, false) && filter == m_filter) {
        m_pInventory = &inventory;  // it may have moved
    } else {
        Refill(inventory, filter, nullptr);
    }
}

void PackageList::Prepare(const Inventory& inventory, const PackageFilter& filter, Work& work) {
    Refill(inventory, filter, &work);
    m_bPrepared = true;
}

void PackageList::Refill(const Inventory& inventory, const PackageFilter& filter, Work* pWork) {
    if (m_pInventory == nullptr) {
        m_bAscending = TRUE;
    }
    m_pInventory = &inventory;
    SetRedraw(FALSE);
    if (!std::exchange(m_bSaved, true)) {
        SaveSelections();
        KeepView();
    }
    if (filter != m_filter) {
        m_view = View();  // other rows begin at their top
    }
    m_filter = filter;
    m_packages.clear();  // what they point at may be gone already
    DeleteAllItems();
    Fill(pWork);
    SetRedraw(TRUE);
    RestoreView();
    Invalidate(FALSE);
}

void PackageList::KeepView() {
    m_view = View();
    const int nFront = GetNextItem(-1, LVNI_FOCUSED);
    m_view.bFront = nFront != -1;
    m_view.nFront = m_view.bFront ? GetItemData(nFront) : 0;
    m_view.nTopRow = GetTopIndex();
    m_view.nTop = GetItemCount() > 0 ? GetItemData(m_view.nTopRow) : 0;
    m_view.nLeft = GetScrollPos(SB_HORZ);
}

// Where the row that was the top one is gone, the one in its place is.
void PackageList::RestoreView() {
    const int nItems = GetItemCount();
    int nTop = std::min(m_view.nTopRow, nItems - 1);
    for (int nItem = 0; nItem < nItems; ++nItem) {
        const DWORD_PTR nId = GetItemData(nItem);
        if (m_view.bFront && nId == m_view.nFront) {
            SetItemState(nItem, LVIS_FOCUSED, LVIS_FOCUSED);
        }
        if (m_view.nTopRow > 0 && nId == m_view.nTop) {
            nTop = nItem;
        }
    }
    // From the end back, a row that is to be in view comes to the top.
    if (nTop > 0) {
        EnsureVisible(nItems - 1, FALSE);
        EnsureVisible(nTop, FALSE);
    }
    Scroll(CSize(m_view.nLeft - GetScrollPos(SB_HORZ), 0));
}

void PackageList::Fill(Work* pWork) {
    if (m_pInventory == nullptr) {
        return;
    }
    const size_t nAll = m_pInventory->CountPackages();
    size_t nDone = 0;
    for (const Section& section : m_pInventory->Sections()) {
        for (const Package& package : section.packages) {
            if (pWork != nullptr) {
                pWork->Step(nDone++, nAll);
            }
            if (!m_filter.Shows(package)) {
                continue;
            }
            const int nItem = InsertBitmapString(StripImage(package), -1, Row(package));
            const size_t nId = m_ids.Of(package.strName);
            SetItemData(nItem, nId);
            m_packages.resize(std::max<size_t>(m_packages.size(), nId + 1));
            m_packages[nId] = &package;
        }
    }
    ReSort();
    RestoreSelections();
    m_bSaved = false;
}

CString PackageList::Row(const Package& package) const {
    const int nStyle = package.bUnusual ? m_nTrouble : package.bRequired ? m_nRequired : 0;
    CString strRow = MakeStyleText(package.strName.c_str(), nStyle);
    const std::string aFields[] = {package.strVersion, std::to_string(package.nSizeKiB),
                                   DateText(package.tInstalled), package.strSection};
    for (const std::string& strField : aFields) {
        strRow += '\t';
        strRow += strField.c_str();
    }
    AppendStyleText(strRow, package.strState.c_str(), nStyle);
    AppendStyleText(strRow, package.strSummary.c_str(), m_nDetail);
    return strRow;
}

const Package* PackageList::PackageOf(int nItem) {
    const DWORD_PTR nId = nItem >= 0 ? GetItemData(nItem) : m_packages.size();
    return nId < m_packages.size() ? m_packages[nId] : nullptr;
}

const Package* PackageList::Front() {
    int nItem = GetNextItem(-1, LVNI_FOCUSED);
    if (nItem == -1 && (nItem = GetNextItem(-1, LVNI_SELECTED)) != -1) {
        SetItemState(nItem, LVIS_FOCUSED, LVIS_FOCUSED);
        EnsureVisible(nItem, FALSE);
    }
    return PackageOf(nItem);
}

bool PackageList::GoTo(const CString& strName) {
    for (int nItem = 0; nItem < GetItemCount(); ++nItem) {
        const Package* pPackage = PackageOf(nItem);
        if (pPackage != nullptr && strName == pPackage->strName.c_str()) {
            SelectAlone(nItem);
            return true;
        }
    }
    return false;
}

void PackageList::SelectAlone(int nItem) {
    SetItemState(-1, 0, LVIS_SELECTED);
    SetItemState(nItem, LVIS_SELECTED | LVIS_FOCUSED, LVIS_SELECTED | LVIS_FOCUSED);
    EnsureVisible(nItem, FALSE);
}

PackageList::Selected PackageList::CountSelected() {
    Selected selected;
    for (int nItem = -1; (nItem = GetNextItem(nItem, LVNI_SELECTED)) != -1;) {
        if (const Package* pPackage = PackageOf(nItem)) {
            ++selected.nPackages;
            selected.nSizeKiB += pPackage->nSizeKiB;
        }
    }
    return selected;
}
