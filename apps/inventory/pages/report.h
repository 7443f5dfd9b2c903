// Report: the inventory as a document for a printer, or for a preview of one.
//
// Pages are laid out for the device context given at construction, which must outlive the report,
// as must the inventory and the lists. PrintPage draws on that device context or on one that stands
// in for it.

#pragma once

#include "QVControls.h"
#include "model/inventory.h"
#include "model/settings.h"

#include <list>

struct ReportOptions {
    bool bIntroduction = true;
    bool bSections = true;
    bool bTotals = true;
    bool bList = false;
};

class Report {
public:
    // columns gives the sections' packages their columns, list is printed as it stands.
    Report(const Inventory& inventory, const ReportOptions& options, const Settings& settings,
           QVListCtrlEx& columns, QVListCtrlEx& list, CDC& dc);

    unsigned Pages() const { return m_nPages; }
    // False if memory did not suffice for all of it.
    bool IsComplete() const { return m_pEngine->IsComplete(); }
    // Of the whole sheet, in units of the device context.
    CSize PaperSize() const { return m_paper; }
    // Where the device context's origin lies on the sheet.
    CPoint Origin() const { return m_origin; }
    // Counted from 1.
    void PrintPage(CDC& dc, unsigned nPage);

private:
    // What goes into the report of a machine's inventory.
    void Choose(const Inventory& inventory);
    // A text of the settings, its codes replaced.
    CString Text(int nSetting) const;
    void MeasurePaper(CDC& dc);
    void MakeFonts(CDC& dc);
    void AddIntroduction(CDC& dc);
    void AddSection(const Section& section, QVListCtrlEx& columns, CDC& dc);
    void AddTotals(const Section& section, CDC& dc);

    ReportOptions m_options;
    const Settings& m_settings;
    Inventory m_inventory;
    CFont m_fontNormal;
    CFont m_fontHeader;
    CFont m_fontSection;
    CSize m_paper;
    CPoint m_origin;
    CRect m_rcText;  // within the margins
    int m_nLineHeight = 0;
    std::list<CStringArray> m_rows;  // outlive the engine, which reads them
    std::unique_ptr<QVPrintEngine> m_pEngine;
    unsigned m_nPages = 0;
};
