// PackageList: the packages as a report that sorts itself: name, version, size, date of
// installation, section, state and summary.

#pragma once

#include "QVControls.h"
#include "model/package_filter.h"
#include "model/package_ids.h"
#include "pages/cut_tips.h"
#include "row_colors.h"
#include "work.h"

#include <string>
#include <vector>

class PackageList : public CutTipList<QVSortingListCtrl> {
    DECLARE_DYNCREATE(PackageList)

public:
    // Styles and columns; call once the window exists.
    void SetUp(CFont* pFont);
    // Fills the list anew with what the filter lets through, in the order of the last sort; what
    // was selected is selected again if it is still there. The inventory must outlive what is shown
    // of it.
    void Show(const Inventory& inventory, const PackageFilter& filter);
    // Fills it with a step of the work for each package; Show, which is to follow, finds that done.
    // What the work throws leaves the list half filled.
    void Prepare(const Inventory& inventory, const PackageFilter& filter, Work& work);

    // Of the texts of each kind of package.
    void UseColors(COLORREF crInstalled, COLORREF crRequired, COLORREF crTrouble);
    // Images beside the names, or in a column of their own.
    void UseImageColumn(bool bOwn);
    bool HasImageColumn() const { return m_bImageColumn; }

    const Package* PackageOf(int nItem);
    // The package with the focus. Where none has it, as after a refill, one that is selected gets
    // it; null: none is.
    const Package* Front();
    // Selects the package of that name and shows it. False if the list does not have it.
    bool GoTo(const CString& strName);
    struct Selected {
        int nPackages = 0;
        long nSizeKiB = 0;
    };
    Selected CountSelected();
    int SummaryColumn() const { return NumColumns() - 1; }
    // As a click on the heading: a second time turns the order. Fields count without the images'
    // column.
    void SortByField(int nField) { SortOnHeader(nField + static_cast<int>(m_bImageColumn)); }
    bool IsSortedByField(int nField) const {
        return m_nSortCol == nField + static_cast<int>(m_bImageColumn);
    }

protected:
    int ImageWidth() override;
    afx_msg void OnSysColorChange();
    DECLARE_MESSAGE_MAP()

private:
    void ShowColors();
    void MakeColumns();
    void Refill(const Inventory& inventory, const PackageFilter& filter, Work* pWork);
    void Fill(Work* pWork = nullptr);
    CString Row(const Package& package) const;

    void SelectAlone(int nItem);
    // By package, so that it is found behind a refill.
    struct View {
        DWORD_PTR nFront = 0;
        DWORD_PTR nTop = 0;
        int nTopRow = 0;
        int nLeft = 0;  // pixels
        bool bFront = false;
    };
    void KeepView();
    void RestoreView();

    const Inventory* m_pInventory = nullptr;
    bool m_bPrepared = false;
    bool m_bSaved = false;  // what was selected, before a filling that was left
    PackageFilter m_filter;
    View m_view;  // as it was when the selection was saved
    bool m_bImageColumn = false;
    COLORREF m_crInstalled = RGB(0, 0, 0);
    COLORREF m_crRequired = kRequiredColors.crText;
    COLORREF m_crTrouble = kTroubleColors.crText;
    int m_nTrouble = 0;  // styles
    int m_nRequired = 0;
    int m_nDetail = 0;
    PackageIds m_ids;                        // item data
    std::vector<const Package*> m_packages;  // by number
};
