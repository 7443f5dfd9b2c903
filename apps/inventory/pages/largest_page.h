// LargestPage: where the disk went, in a list box that prints itself.

#pragma once

#include "pages/exporting.h"
#include "pages/largest_list.h"
#include "pages/page.h"

class LargestPage : public Page {
public:
    LPCSTR Title() const override { return "Largest"; }
    void SetInventory(const Inventory& inventory) override { m_list.Show(inventory); }
    CWnd& Control() override { return m_list; }
    ContextMenu MenuOf(CWnd& control) override {
        return &control == &m_list ? ContextMenu::Largest : ContextMenu::None;
    }
    CString MarkedText() override;

    LargestList& List() { return m_list; }
    // What the export dialog starts with.
    void UseSettings(const Settings& settings) { m_exporter.UseSettings(settings); }
    // On the default printer, without a question. pszOutput: a file that the job goes to. Null,
    // here as below, where all went well.
    Failure PrintToFile(LPCSTR pszOutput);

protected:
    BOOL OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* pResult) override;
    afx_msg int OnCreate(LPCREATESTRUCT lpCreateStruct);
    afx_msg void OnSize(UINT nType, int cx, int cy);
    afx_msg void OnSelected();
    afx_msg void OnExport();
    afx_msg void OnPrint();
    afx_msg void OnOrder(UINT nID);
    afx_msg void OnUpdateOrder(CCmdUI* pCmdUI);
    DECLARE_MESSAGE_MAP()

private:
    // pPrinter, unless null, says which pages.
    Failure Print(CDC& dc, class PrinterChoice* pPrinter, LPCSTR pszOutput);

    LargestList m_list;
    Exporter m_exporter;
};
