#include "pages/largest_list.h"

#include "package_strip.h"
#include "row_colors.h"

#include <algorithm>

namespace {

constexpr size_t kMost = 200;
constexpr int kGapsPerInch = 8;  // between columns
constexpr UINT kColumns = 5;
constexpr int kSizeTab = 0;  // the stop of the second column

}  // namespace

BEGIN_MESSAGE_MAP(LargestList, QVBitmapListBox)
    ON_WM_SYSCOLORCHANGE()
END_MESSAGE_MAP()

void LargestList::OnSysColorChange() {
    QVBitmapListBox::OnSysColorChange();
    UseColors();
}

void LargestList::UseColors() {
    ShowStyle(*this, m_nTrouble, kTroubleColors);
    ShowStyle(*this, m_nRequired, kRequiredColors);
}

void LargestList::SetUp() {
    EnableExpectedKeys();
    UseColors();
    AddHeader("Package");
    AddHeader("Size");
    AddHeader("Installed");
    AddHeader("Section");
    AddHeader("State");
    CalcListTabs();
}

void LargestList::Show(const Inventory& inventory) {
    m_packages.clear();
    for (const Section& section : inventory.Sections()) {
        for (const Package& package : section.packages) {
            m_packages.push_back(&package);
        }
    }
    std::stable_sort(
        m_packages.begin(), m_packages.end(),
        [](const Package* p1, const Package* p2) { return p1->nSizeKiB > p2->nSizeKiB; });
    m_packages.resize(std::min(m_packages.size(), kMost));
    const int nCaret = GetCaretIndex();
    const int nTop = GetTopIndex();
    Fill();
    // The rows are as many as before, or nearly so.
    SetCaretIndex(std::min(nCaret, GetCount() - 1), FALSE);
    SetTopIndex(std::min(nTop, GetCount() - 1));
}

void LargestList::Fill() {
    SetRedraw(FALSE);
    SaveSelections();
    ResetContent();
    SortByImageIndex(m_order == Order::State);
    for (const Package* pPackage : m_packages) {
        Insert(*pPackage);
    }
    CalcListTabs();
    RestoreSelections();
    SetRedraw(TRUE);
    Invalidate(FALSE);
}

// Where the row belongs among those that are there; by size they come in their order.
void LargestList::Insert(const Package& package) {
    const int nImage = StripImage(package);
    const CString strRow = Row(package);
    int nPlace = GetCount();
    if (m_order != Order::Size) {
        int nFirst = 0;
        while (nFirst < nPlace) {
            const int nMiddle = (nFirst + nPlace) / 2;
            if (CompareToItem(nImage, strRow, nMiddle) < 0) {
                nPlace = nMiddle;
            } else {
                nFirst = nMiddle + 1;
            }
        }
    }
    const int nRow = InsertBitmapString(nImage, nPlace, strRow);
    if (nRow >= 0) {
        SetItemData(nRow, m_ids.Of(package.strName));
    }
}

CString LargestList::Row(const Package& package) const {
    const int nStyle = package.bUnusual ? m_nTrouble : package.bRequired ? m_nRequired : 0;
    CString strRow = MakeStyleText(package.strName.c_str(), nStyle);
    // Colours run on to the fields behind; these are to be plain.
    AppendStyleText(strRow, SizeText(package.nSizeKiB).c_str(), 0);
    for (const std::string& strField :
         {DateText(package.tInstalled), package.strSection, package.strState}) {
        strRow += '\t';
        strRow += strField.c_str();
    }
    return strRow;
}

const Package* LargestList::PackageOf(int nRow) {
    const auto nId = static_cast<size_t>(nRow >= 0 ? GetItemData(nRow) : -1);
    const auto it = std::find_if(m_packages.begin(), m_packages.end(),
                                 [&](const Package* p) { return m_ids.Of(p->strName) == nId; });
    return it != m_packages.end() ? *it : nullptr;
}

// Columns as wide as their widest text, on screen and on paper.
int LargestList::CalcTabs(CDC* pDC, int* pTabs) {
    int aWidths[kColumns] = {};
    const auto measure = [&](const CString& strRow) {
        int nPos = 0;
        CString strField;
        for (UINT n = 0; n < kColumns && NextField(strRow, nPos, strField); ++n) {
            aWidths[n] =
                std::max<int>(aWidths[n], pDC->GetTextExtent(CString(ParseStyleText(strField))).cx);
        }
    };
    CString strRow;
    MakeHeaderString(strRow);
    measure(strRow);
    for (int nRow = 0; nRow < GetCount(); ++nRow) {
        if (GetItemString(nRow, strRow)) {
            measure(strRow);
        }
    }
    const int nGap = pDC->GetDeviceCaps(LOGPIXELSX) / kGapsPerInch;
    int nPos = 0;
    for (UINT n = 0; n < kColumns; ++n) {
        pTabs[n] = nPos += aWidths[n] + nGap;
    }
    constexpr int kRightAligned = 20000;
    pTabs[kSizeTab] += kRightAligned;
    return kColumns;
}

// The first column turns between name and state.
void LargestList::SortOnHeader(int nColumn) {
    if (nColumn == 0) {
        SortBy(m_order == Order::Name ? Order::State : Order::Name);
    } else if (nColumn == 1) {
        SortBy(Order::Size);
    }
}

void LargestList::SortBy(Order order) {
    m_order = order;
    Fill();
    SetTopIndex(0);
}
