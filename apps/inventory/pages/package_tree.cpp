#include "pages/package_tree.h"

#include "model/find_rows.h"
#include "pages/row_fields.h"
#include "row_colors.h"

#include <algorithm>
#include <iterator>

namespace {

constexpr int kScreenDpi = 96;
constexpr int kFitGap = 12;    // behind the widest text
constexpr int kColumnGap = 4;  // of the control, behind each text

enum Level { kLevelRoot, kLevelSection, kLevelPackage };

// Item data of the child that keeps a package's place until its rows are made.
constexpr DWORD_PTR kPlaceholder = 1;

}  // namespace

BEGIN_MESSAGE_MAP(PackageTree, QVTreeCtrlEx)
    ON_WM_SYSCOLORCHANGE()
END_MESSAGE_MAP()

void PackageTree::OnSysColorChange() {
    QVTreeCtrlEx::OnSysColorChange();
    UseColors();
}

void PackageTree::UseColors() {
    ShowStyle(*this, m_nTrouble, kTroubleColors);
    ShowStyle(*this, m_nRequired, kRequiredColors);
    ShowStyle(*this, m_nDetail, kDetailColors);
}

void PackageTree::SetUp() {
    KeepSteps(typeid(PackageTree));  // it replaces none
    EnableExpectedKeys();
    UseColors();
    CreateImages(m_images);
    SetImageList(&m_images, TVSIL_NORMAL);
    LoadStandardCheckStates();
    SetShowStatesAtRoot(TRUE);
    UseIndentedColumns(true);
    CString strHeadings;
    for (const Column& column : kColumns) {
        strHeadings += strHeadings.IsEmpty() ? "" : "\t";
        strHeadings += column.pszHeading;
    }
    SetAccessibleHeadings(strHeadings);
}

void PackageTree::UseIndentedColumns(bool bIndented) {
    m_bIndented = bIndented;
    SetIndentTabs(bIndented);
    UseStops();
}

void PackageTree::UseStops() {
    const auto stops = TreeStops(m_widths, m_bIndented, Dpi());
    UseTabs(stops.data(), static_cast<int>(stops.size()));
    SetRedraw(TRUE);  // fits the scroll bars to the new columns
    if (m_onEdges) {
        m_onEdges();
    }
}

// --- Columns

const PackageTree::Column PackageTree::kColumns[kTreeColumns] = {{"Package", HDF_LEFT},
                                                                 {"Version", HDF_LEFT},
                                                                 {"Size", HDF_RIGHT},
                                                                 {"State", HDF_CENTER},
                                                                 {"Summary", HDF_LEFT}};

int PackageTree::Dpi() {
    return CClientDC(this).GetDeviceCaps(LOGPIXELSX);
}

void PackageTree::UseWidths(const TreeWidths& widths) {
    m_widths = widths;
    UseStops();
}

// Where the text of a package begins, in row coordinates.
int PackageTree::TextLeft() {
    const HTREEITEM hPackage = GetChildItem(GetChildItem(GetRootItem()));
    if (hPackage == nullptr || !m_bIndented) {
        return ::MulDiv(kTreeLevels, Dpi(), kScreenDpi);
    }
    CClientDC dc(this);
    CRect rc;
    CalcItemRect(dc, 0, hPackage, rc, TRUE);
    return rc.left;
}

int PackageTree::HeadingWidth(int nCol) {
    return ::MulDiv(m_widths[static_cast<size_t>(nCol)], Dpi(), kScreenDpi) +
           (nCol == 0 ? TextLeft() : 0);
}

int PackageTree::LeastHeadingWidth(int nCol) {
    return ::MulDiv(kLeastTreeWidth, Dpi(), kScreenDpi) + (nCol == 0 ? TextLeft() : 0);
}

void PackageTree::SetHeadingWidth(int nCol, int nWidth) {
    if (nCol < 0 || nCol >= kTreeWidths) {
        return;
    }
    const int nOwn = nWidth - (nCol == 0 ? TextLeft() : 0);
    m_widths[static_cast<size_t>(nCol)] =
        std::clamp(::MulDiv(nOwn, kScreenDpi, Dpi()), kLeastTreeWidth, kMostTreeWidth);
    UseStops();
}

void PackageTree::FitColumn(int nCol) {
    CClientDC dc(this);
    const qv::SelectGuard<CFont> font(dc, NearestFontOf(*this));
    TreeWidths widest{};
    for (HTREEITEM hSection = GetChildItem(GetRootItem()); hSection != nullptr;
         hSection = GetNextSiblingItem(hSection)) {
        for (HTREEITEM h = GetChildItem(hSection); h != nullptr; h = GetNextSiblingItem(h)) {
            const std::vector<std::string> fields = FieldsOf(*this, GetItemText(h));
            for (size_t i = 0; i < std::min(fields.size(), widest.size()); ++i) {
                const CString strField(fields[i].c_str());
                widest[i] = std::max<int>(widest[i], dc.GetTextExtent(strField).cx);
            }
        }
    }
    for (size_t i = 0; i < widest.size(); ++i) {
        const CString strHeading(kColumns[i].pszHeading);
        const int nHeading = i == 0 ? 0 : dc.GetTextExtent(strHeading).cx;
        if (nCol == -1 || nCol == static_cast<int>(i)) {
            m_widths[i] =
                std::clamp(::MulDiv(std::max(widest[i], nHeading), kScreenDpi, Dpi()) + kFitGap,
                           kLeastTreeWidth, kMostTreeWidth);
        }
    }
    UseStops();
}

bool PackageTree::TipCellAt(CPoint pt, TipCell& cell) {
    CRect rcRow;
    const HTREEITEM hItem = HitTest(pt, nullptr, &rcRow);
    CRect rcText;
    if (hItem == nullptr || !GetItemRect(hItem, &rcText, TRUE)) {
        return false;
    }
    const std::vector<std::string> fields = FieldsOf(*this, GetItemText(hItem));
    const int nStart = m_bIndented ? rcText.left : 0;
    const int nAt = pt.x + LeftEdge();
    int nLeft = rcText.left;
    for (size_t i = 0; i < fields.size() && i < kTreeColumns; ++i) {
        const int nRight = nStart + GetTabValue(static_cast<int>(i));
        if (nAt >= nLeft && nAt < nRight) {
            cell.nId = GetItemPart(hItem) * INT_PTR{kTreeColumns} + static_cast<INT_PTR>(i);
            cell.nAlign = i > 0 ? GetTabFormat(static_cast<int>(i) - 1) : DT_LEFT;
            cell.rcText.SetRect(nLeft - LeftEdge(), rcText.top, nRight - LeftEdge() - kColumnGap,
                                rcText.bottom);
            cell.strText = fields[i].c_str();
            return true;
        }
        nLeft = nRight;
    }
    return false;
}

// Whatever moves them, the headings follow.
LRESULT PackageTree::WindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
    const LRESULT lResult = CutTips::WindowProc(message, wParam, lParam);
    if (m_hWnd != nullptr && m_onEdges &&
        (m_nLeftEdge != LeftEdge() || m_nRightEdge != RightEdge())) {
        m_nLeftEdge = LeftEdge();
        m_nRightEdge = RightEdge();
        m_onEdges();
    }
    return lResult;
}

void PackageTree::Show(const Inventory& inventory) {
    SetRedraw(FALSE);
    const bool bFirst = GetRootItem() == nullptr;
    const Kept kept = Keep();
    DeleteAllItems();
    const HTREEITEM hRoot = InsertItem(MakeStyleText("All packages", 0), kImageSection,
                                       kImageSectionOpen, TVI_ROOT, TVI_LAST);
    for (const Section& section : inventory.Sections()) {
        const CString strRow = MakeStyleText(section.strName.c_str(), 0);
        HTREEITEM hSection = InsertItem(strRow, kImageSection, kImageSectionOpen, hRoot, TVI_LAST);
        SetItemData(hSection, reinterpret_cast<DWORD_PTR>(&section));
        for (const Package& package : section.packages) {
            HTREEITEM hPackage = AddPackage(hSection, package);
            if (package.bUnusual) {
                ChangeItemStyles(hPackage, m_nTrouble, TRUE, TRUE);
            }
        }
    }
    if (bFirst) {
        Expand(hRoot, TVE_EXPAND, FALSE, FALSE);
        SetRedraw(TRUE);
    } else {
        Restore(kept);
    }
}

// The texts of rows, which outlive the inventory that their item data point into.
std::string PackageTree::KeyOf(HTREEITEM hItem) {
    std::string strKey;
    for (HTREEITEM h = hItem; h != nullptr; h = GetParentItem(h)) {
        // What a package is said to have differs in its second field alone.
        const std::vector<std::string> fields = FieldsOf(*this, GetItemText(h));
        const size_t nFields = LevelOf(h) > kLevelPackage ? 2 : 1;
        for (size_t i = 0; i < std::min(nFields, fields.size()); ++i) {
            strKey += fields[i] + '\t';
        }
        strKey += '\n';
    }
    return strKey;
}

PackageTree::Kept PackageTree::Keep() {
    Kept kept;
    for (HTREEITEM h = GetRootItem(); h != nullptr; h = WalkNext(h)) {
        const int nLevel = LevelOf(h);
        if (nLevel <= kLevelPackage && ItemExpanded(h)) {
            kept.open.insert(KeyOf(h));
        }
        if (nLevel <= kLevelPackage && GetCheck(h)) {
            kept.ticked.insert(KeyOf(h));
        }
    }
    if (const HTREEITEM hSelected = GetSelectedItem()) {
        kept.strSelected = KeyOf(hSelected);
    }
    if (const HTREEITEM hTop = GetTopItem()) {
        kept.strTop = KeyOf(hTop);
    }
    kept.nLeft = GetHScrollPos();
    return kept;
}

void PackageTree::Restore(const Kept& kept) {
    HTREEITEM hTop = nullptr;
    for (HTREEITEM h = GetRootItem(); h != nullptr; h = WalkNext(h)) {
        const std::string strKey = KeyOf(h);
        if (kept.open.contains(strKey)) {
            Fill(h);
            Expand(h, TVE_EXPAND, FALSE, FALSE);
        }
        if (kept.ticked.contains(strKey)) {
            SetCheck(h, TRUE, FALSE);
        }
        if (strKey == kept.strSelected) {
            SelectItem(h);
        }
        if (strKey == kept.strTop) {
            hTop = h;
        }
    }
    SetRedraw(TRUE);
    // From the end back, a row that is to be in view comes to the top.
    if (hTop != nullptr) {
        SendMessage(WM_VSCROLL, SB_BOTTOM);
        EnsureVisible(hTop);
    }
    SendMessage(WM_HSCROLL, MAKEWPARAM(SB_THUMBPOSITION, kept.nLeft));
}

HTREEITEM PackageTree::AddPackage(HTREEITEM hSection, const Package& package) {
    const int nStyle = package.bUnusual ? m_nTrouble : package.bRequired ? m_nRequired : 0;
    CString strRow = MakeStyleText(package.strName.c_str(), nStyle);
    AppendStyleText(strRow, package.strVersion.c_str(), nStyle);
    AppendStyleText(strRow, SizeText(package.nSizeKiB).c_str(), nStyle);
    AppendStyleText(strRow, package.strState.c_str(), nStyle);
    AppendStyleText(strRow, package.strSummary.c_str(), m_nDetail);
    const int nImage = package.bUnusual ? kImageTrouble : kImagePackage;
    HTREEITEM hPackage = InsertItem(strRow, nImage, nImage, hSection, TVI_LAST);
    SetItemData(hPackage, reinterpret_cast<DWORD_PTR>(&package));
    SetItemData(InsertItem("", 0, 0, hPackage, TVI_LAST), kPlaceholder);
    return hPackage;
}

int PackageTree::LevelOf(HTREEITEM hItem) {
    int nLevel = -1;
    for (; hItem != nullptr; hItem = GetParentItem(hItem)) {
        ++nLevel;
    }
    return nLevel;
}

const Package* PackageTree::PackageOf(HTREEITEM hItem) {
    return LevelOf(hItem) == kLevelPackage ? reinterpret_cast<const Package*>(GetItemData(hItem))
                                           : nullptr;
}

bool PackageTree::IsSectionOrRoot(HTREEITEM hItem) {
    const int nLevel = LevelOf(hItem);
    return nLevel == kLevelRoot || nLevel == kLevelSection;
}

std::string PackageTree::SectionOf(HTREEITEM hItem) {
    int nLevel = LevelOf(hItem);
    for (; nLevel > kLevelSection; --nLevel) {
        hItem = GetParentItem(hItem);
    }
    return nLevel == kLevelSection ? reinterpret_cast<const Section*>(GetItemData(hItem))->strName
                                   : "";
}

void PackageTree::ShowSection(const std::string& strSection) {
    const HTREEITEM hSelected = GetSelectedItem();
    const HTREEITEM hRoot = GetRootItem();
    const bool bIsThere = strSection.empty()
                              ? hSelected != nullptr && LevelOf(hSelected) != kLevelSection
                              : SectionOf(hSelected) == strSection;
    if (bIsThere || hRoot == nullptr) {
        return;
    }
    HTREEITEM hItem = hRoot;
    if (!strSection.empty()) {
        hItem = GetChildItem(hRoot);
        while (hItem != nullptr && SectionOf(hItem) != strSection) {
            hItem = GetNextSiblingItem(hItem);
        }
    }
    SelectItem(hItem);
    EnsureVisible(hItem);
}

void PackageTree::Fill(HTREEITEM hPackage) {
    const Package* pPackage = PackageOf(hPackage);
    if (pPackage == nullptr || GetItemData(GetChildItem(hPackage)) != kPlaceholder) {
        return;
    }
    const BOOL bRedraw = GetRedraw();
    SetRedraw(FALSE);
    DeleteChildren(hPackage);
    AddDetail(hPackage, "Version", pPackage->strVersion, kImageVersion);
    AddDetail(hPackage, "Size", SizeText(pPackage->nSizeKiB), kImageSize);
    for (const std::string& strDependency : pPackage->dependencies) {
        AddDetail(hPackage, "Depends on", strDependency, kImageDependency);
    }
    SetItemStateImage(hPackage, GetItemStateImage(hPackage), TRUE);
    SetRedraw(bRedraw);
}

void PackageTree::AddDetail(HTREEITEM hPackage, const char* pszWhat, const std::string& strValue,
                            int nImage) {
    CString strRow = MakeStyleText(pszWhat, m_nDetail);
    AppendStyleText(strRow, strValue.c_str(), 0);
    InsertItem(strRow, nImage, nImage, hPackage, TVI_LAST);
}

void PackageTree::ExpandSections(UINT nCode) {
    SetRedraw(FALSE);
    for (HTREEITEM h = GetChildItem(GetRootItem()); h != nullptr; h = GetNextSiblingItem(h)) {
        Expand(h, nCode, FALSE, FALSE);
    }
    SetRedraw(TRUE);
}

FindResult PackageTree::Find(const TextQuery& query, bool bDown) {
    std::vector<HTREEITEM> rows;
    for (HTREEITEM h = GetRootItem(); h != nullptr; h = NextDisplayableItem(h)) {
        rows.push_back(h);
    }
    const auto start = std::find(rows.begin(), rows.end(), GetSelectedItem());
    const int nStart = start != rows.end() ? static_cast<int>(start - rows.begin()) : -1;
    const FoundRow found = FindRow(static_cast<int>(rows.size()), nStart, bDown, [&](int nRow) {
        return RowHas(*this, GetItemText(rows[static_cast<size_t>(nRow)]), query);
    });
    if (found.nRow >= 0) {
        const HTREEITEM hFound = rows[static_cast<size_t>(found.nRow)];
        EnsureVisible(hFound);
        NfySelectItem(hFound);
    }
    return {found.nRow >= 0, found.bWrapped, "the open branches of the tree"};
}

PackageTree::Marked PackageTree::CountMarked() {
    Marked marked;
    for (HTREEITEM hSection = GetChildItem(GetRootItem()); hSection != nullptr;
         hSection = GetNextSiblingItem(hSection)) {
        for (HTREEITEM h = GetChildItem(hSection); h != nullptr; h = GetNextSiblingItem(h)) {
            if (GetCheck(h)) {
                ++marked.nPackages;
                marked.nSizeKiB += PackageOf(h)->nSizeKiB;
            }
        }
    }
    return marked;
}
