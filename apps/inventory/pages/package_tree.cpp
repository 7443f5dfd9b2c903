#include "pages/package_tree.h"

#include "model/find_rows.h"
#include "pages/row_fields.h"

#include <algorithm>
#include <iterator>

namespace {

// Version, size (right-aligned), state (centred) and summary, from the start of the text or of the
// row, at 96 dpi. A stop behind the last column lets the summary take the room it needs.
constexpr int kIndentedStops[] = {190, 20310, 10380, 470, 3000};
constexpr int kAbsoluteStops[] = {310, 20430, 10500, 590, 3000};
constexpr int kAlignment = 10000;  // what the control adds for it

enum Level { kLevelRoot, kLevelSection, kLevelPackage };

// Item data of the child that keeps a package's place until its rows are made.
constexpr DWORD_PTR kPlaceholder = 1;

}  // namespace

void PackageTree::SetUp() {
    KeepSteps(typeid(PackageTree));  // it replaces none
    const COLORREF crWindow = ::GetSysColor(COLOR_WINDOW);
    m_nTrouble = AddStyle(RGB(176, 0, 0), RGB(255, 232, 224));
    m_nRequired = AddStyle(RGB(0, 0, 144), crWindow);
    m_nDetail = AddStyle(RGB(96, 96, 96), crWindow);
    CreateImages(m_images);
    SetImageList(&m_images, TVSIL_NORMAL);
    LoadStandardCheckStates();
    SetShowStatesAtRoot(TRUE);
    UseIndentedColumns(true);
}

void PackageTree::UseIndentedColumns(bool bIndented) {
    m_bIndented = bIndented;
    SetIndentTabs(bIndented);
    const int nDpi = CClientDC(this).GetDeviceCaps(LOGPIXELSX);
    int aStops[std::size(kAbsoluteStops)];
    std::transform(std::begin(bIndented ? kIndentedStops : kAbsoluteStops),
                   std::end(bIndented ? kIndentedStops : kAbsoluteStops), aStops, [&](int nStop) {
                       const int nPixels = nStop % kAlignment;
                       return nStop - nPixels + ::MulDiv(nPixels, nDpi, 96);
                   });
    UseTabs(aStops, static_cast<int>(std::size(aStops)));
    SetRedraw(TRUE);  // fits the scroll bars to the new columns
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
