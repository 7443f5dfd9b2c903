// AllFilesPage: all files of all packages, in a list that keeps none of them. They are read while
// the page is there already; a row leads to its package.

#pragma once

#include "model/all_files.h"
#include "pages/cut_tips.h"
#include "pages/exporting.h"
#include "pages/page.h"

#include <functional>

class FileList : public CutTipList<QVVirtualListCtrl> {
public:
    // Some heading was clicked since Forget.
    bool IsSorted() const { return m_bSorted; }
    void Forget() { m_bSorted = false; }

protected:
    void SortOnHeader(int nCol) override {
        m_bSorted = true;
        CutTipList::SortOnHeader(nCol);
    }

private:
    bool m_bSorted = false;
};

class AllFilesPage : public Page, private QVRowSource {
public:
    LPCSTR Title() const override { return "Files"; }
    void SetInventory(const Inventory& inventory) override;
    // Of the status file, with a separator at the end; empty: there is none. Call before
    // SetInventory.
    void UseDatabase(const CString& strFolder);
    CWnd& Control() override { return m_list; }
    ContextMenu MenuOf(CWnd& control) override {
        return &control == &m_list ? ContextMenu::Files : ContextMenu::None;
    }
    void OnShown() override { StartReading(); }
    FindResult Find(const TextQuery& query, bool bDown) override;
    CString MarkedText() override;

    // Called to show a package by its name.
    std::function<void(const CString&)> m_showPackage;
    // What the export dialog starts with.
    void UseSettings(const Settings& settings) { m_exporter.UseSettings(settings); }
    FileList& List() { return m_list; }
    const AllFiles& Files() const { return m_files; }
    // All lists are read.
    bool IsWhole() const { return m_bWhole; }
    // The first nMost pages on the default printer, without a question. pszOutput: a file that the
    // job goes to. Null, here as below, where all went well.
    Failure PrintToFile(LPCSTR pszOutput, unsigned nMost);

protected:
    afx_msg int OnCreate(LPCREATESTRUCT lpCreateStruct);
    afx_msg void OnSize(UINT nType, int cx, int cy);
    afx_msg void OnTimer(UINT_PTR nTimer);
    afx_msg void OnDoubleClick(NMHDR* pNMHDR, LRESULT* pResult);
    afx_msg void OnEnter();
    afx_msg void OnGo();
    afx_msg void OnUpdateGo(CCmdUI* pCmdUI);
    afx_msg void OnExport();
    afx_msg void OnPrint();
    DECLARE_MESSAGE_MAP()

private:
    void GetRow(int nRow, QVLISTROW& row) override;
    BOOL GetSortText(int nRow, int nCol, CString& strText) override;
    CString Cell(size_t nRow, int nCol) const;
    void StartReading();
    void ReadSome();
    void SayHowMany();
    Failure Print(CDC& dc, unsigned nFirst, unsigned nLast, LPCSTR pszOutput);

    const Inventory* m_pInventory = nullptr;
    PackageStore m_store;
    AllFiles m_files;
    FileList m_list;
    Exporter m_exporter;
    bool m_bStarted = false;
    bool m_bWhole = false;
};
