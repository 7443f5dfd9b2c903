// Report: the inventory as a document for a printer, or for a preview of one.
//
// Pages are laid out for the device context given at construction, which must outlive the report,
// as must the inventory, the settings and the lists. PrintPage draws on that device context or on
// one that stands in for it.

#pragma once

#include "QVControls.h"
#include "model/report_content.h"
#include "model/settings.h"
#include "pages/report_table.h"
#include "work.h"

#include <list>

// A sheet in units of the device context that it is for.
struct SheetMeasures {
    SheetMeasures(CDC& dc, const Settings& settings, bool bLandscape);

    CSize paper;
    CPoint origin;  // of the device context, on the paper
    CRect rcText;   // within the margins
};

class Report {
public:
    // The settings tell paper, margins and the footer; where dc is no printer's, bLandscape tells
    // how the paper lies. The parent bears the report's lists; list is printed as it stands. A step
    // of the work for each row.
    Report(Work& work, const Inventory& inventory, const ReportDefinition& definition,
           const Settings& settings, CWnd& parent, QVListCtrlEx& list, CDC& dc, bool bLandscape);
    // On upright paper the columns would be cut too short to be read. dc: upright.
    static bool NeedsLandscape(const ReportDefinition& definition, const Settings& settings,
                               QVListCtrlEx& list, CDC& dc);

    unsigned Pages() const { return m_nPages; }
    // False if memory did not suffice for all of it.
    bool IsComplete() const { return m_bTables && m_pEngine->IsComplete(); }
    // Of the whole sheet, in units of the device context.
    CSize PaperSize() const { return m_sheet.paper; }
    // Where the device context's origin lies on the sheet.
    CPoint Origin() const { return m_sheet.origin; }
    // Counted from 1.
    void PrintPage(CDC& dc, unsigned nPage);

private:
    CString Text(const std::string& strText) const;
    void MakeFonts(CDC& dc);
    void AddIntroduction(CDC& dc);
    void AddSection(Work& work, const ReportGroup& section, CWnd& parent, CDC& dc);
    void AddTable(Work& work, const ReportGroup& group, CWnd& parent, CDC& dc);
    void AddTotals(const ReportGroup& group, CDC& dc);
    void AddSectionTotals(CWnd& parent, CDC& dc);

    const ReportDefinition m_definition;
    const Settings& m_settings;
    const ReportContent m_content;
    CFont m_fontTitle;
    CFont m_fontSection;
    CFont m_fontHeader;
    CFont m_fontNormal;
    const SheetMeasures m_sheet;
    int m_nLineHeight = 0;
    // What the engine reads outlives it.
    std::list<ReportTable> m_tables;
    bool m_bTables = true;  // all of them could be made
    QVListCtrlEx m_totals;  // the columns of the sections' totals
    CStringArray m_totalRows;
    std::unique_ptr<QVPrintEngine> m_pEngine;
    size_t m_nRows = 0;  // of tables, so far
    unsigned m_nPages = 0;
};

// A text of a report, its codes replaced.
CString ReportText(const std::string& strText, const ReportContent& content);
