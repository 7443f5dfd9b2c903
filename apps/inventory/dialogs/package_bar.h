// The bar above the package list: which packages it shows, a way to one of them by its name, and
// the list's commands. A child dialog.

#pragma once

#include "QVControls.h"
#include "model/flow_layout.h"
#include "model/package_filter.h"
#include "package_strip.h"
#include "resource.h"

#include <afxwin.h>

// Told of what the user does in the bar.
class PackageBarOwner {
public:
    virtual void OnFilterChanged() = 0;
    // The whole name of a package.
    virtual void OnJump(const CString& strName) = 0;

protected:
    ~PackageBarOwner() = default;
};

// What stands for a section: the image of what is to be said of its packages.
PackageImage ImageOf(const Section& section);
// A name as an entry of a menu.
CString MenuText(const std::string& strName);

// The button that has commands about the report below it, and the reports that the user keeps.
class ReportButton : public QVMenuButton {
public:
    void OfferCommands();
    void OfferReports(const std::vector<std::string>& names);

protected:
    void OnMenuSelected(unsigned nIndex) override;

private:
    INT_PTR m_nCommands = 0;
};

class PackageBar : public CDialog {
public:
    explicit PackageBar(PackageBarOwner& owner) : m_owner(owner) {}
    BOOL Create(CWnd* pParent) { return CDialog::Create(IDD_PACKAGE_BAR, pParent); }

    // Puts the controls into a bar of that width, in more rows where it is narrow. The height that
    // they take.
    int LayOut(int cx);
    // What can be chosen. The filter stays as far as it still can.
    void SetInventory(const Inventory& inventory);
    // Tells nobody.
    void SetFilter(const PackageFilter& filter);
    const PackageFilter& Filter() const { return m_filter; }
    // Null: none.
    void ShowMarks(const Package* pPackage);
    // The names of the reports that the user keeps.
    void ShowReports(const std::vector<std::string>& names) { m_report.OfferReports(names); }
    void ShowImageColumn(bool bOwn) { m_imageColumn.SetCheck(bOwn); }
    bool HasFocusInJump() const { return ::GetFocus() == m_jump.m_hWnd; }

protected:
    BOOL OnInitDialog() override;
    BOOL PreTranslateMessage(MSG* pMsg) override;
    void OnOK() override {}
    void OnCancel() override {}
    afx_msg void OnChoice();
    afx_msg void OnSince(NMHDR* pNMHDR, LRESULT* pResult);
    afx_msg void OnAnyDate();
    afx_msg void OnTyped();
    afx_msg void OnTool(UINT nID);
    DECLARE_MESSAGE_MAP()

private:
    void FindGroups();
    void SetUpTools();
    void ShowSince();
    void TakeFilter();

    // A label and what belongs to it, as the template has them.
    struct Group {
        CRect rc;
        std::vector<std::pair<HWND, CPoint>> controls;  // and where each lies in it
    };

    PackageBarOwner& m_owner;
    std::vector<Group> m_groups;
    int m_nRowHeight = 0;  // pixels from row to row
    int m_nBelow = 0;      // and below the last one
    PackageFilter m_filter;
    CImageList m_images;
    CStringArray m_names;  // of all packages, in order
    QVBitmapComboBox m_section;
    QVBitmapComboBox m_architecture;
    QVDateTimeEdit m_since;
    QVSpeedEdit m_jump;
    QVToolButton m_reload;
    QVToolButton m_find;
    QVToolButton m_export;
    QVBitmapButton m_imageColumn;
    ReportButton m_report;
    QVCheckWnd m_required;
    QVCheckWnd m_unusual;
};
