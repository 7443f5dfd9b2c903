// QVPeDataLabeledList: rows of a label and a text or number beside it, for totals and particulars.
// The texts begin the width of "M" behind the widest label.
//
// Call SetFitNumbers(true) where a number may be wider than "9,999,999": it ends in an ellipsis
// otherwise.

#pragma once

#include "print/print_engine_data.h"

#include <vector>

class QV_CONTROLS_API QVPeDataLabeledListItem : public CObject {
public:
    // Numbers line up at the right edge of "9,999,999", or of the widest of them with
    // SetFitNumbers; texts may run to the page's edge.
    enum Justification { Left = 0, Right = 1 };

    QVPeDataLabeledListItem() = default;
    QVPeDataLabeledListItem(const QVPeDataLabeledListItem& other);
    QVPeDataLabeledListItem& operator=(const QVPeDataLabeledListItem& other);

    void Set(const char* pszLabel, const char* pszData, Justification eJustification);
    const CString& Label() const { return m_strLabel; }
    const CString& Data() const { return m_strData; }
    Justification Justified() const { return m_eJustification; }

private:
    CString m_strLabel;
    CString m_strData;
    Justification m_eJustification = Left;
};

// Made and owned by a QVPrintEngine, filled by the caller before the engine paginates. A row that
// there is no memory for is not added; IsComplete tells, the list's and the engine's.
class QV_CONTROLS_API QVPeDataLabeledList : public QVPrintEngineData {
public:
    QVPeDataLabeledList(CDC* pDC, CFont* pHeaderFont, unsigned nHeaderHeight, CFont* pNormalFont,
                        unsigned nNormalHeight);
    // Without memory for its rows a copy has none, or those it had.
    QVPeDataLabeledList(const QVPeDataLabeledList& other);
    QVPeDataLabeledList& operator=(const QVPeDataLabeledList& other);

    void AddData(const char* pszLabel, const char* pszData,
                 QVPeDataLabeledListItem::Justification eJustification);
    void AddData(unsigned nLabelID, const char* pszData,
                 QVPeDataLabeledListItem::Justification eJustification);
    // On: the column of numbers is as wide as its widest one, and at least as "9,999,999". Off at
    // first: it is as wide as "9,999,999", and wider numbers are cut. Read when the list is
    // printed.
    void SetFitNumbers(bool bFit) { m_bFitNumbers = bFit; }
    // Moves all rows six widths of "M" to the right. Read when the list is printed.
    void SetIndented(int bIndented) { m_bIndented = bIndented; }

    // Two rows at least stand where the list begins, if it has as many.
    unsigned MinSize() override;
    unsigned MaxSize() override;
    // A row number behind the last row prints nothing and leaves rect as it is.
    void Print(CDC* pDC, CRect& rect, unsigned nFirst, unsigned nLast) override;
    bool PrintSize(unsigned nFirst, unsigned& nLast, unsigned& nRemaining) override;

private:
    friend class QVPrintEngine;

    // Takes no rows.
    QVPeDataLabeledList() : QVPrintEngineData(nullptr, 0, nullptr, 0) {}
    void CheckLabelWidth(const char* pszLabel);
    int NumberWidth(CDC& dc) const;
    unsigned Count() const { return static_cast<unsigned>(m_Items.size()); }

    std::vector<QVPeDataLabeledListItem> m_Items;
    CDC* m_pDC = nullptr;
    unsigned m_nLabelWidth = 0;
    unsigned m_nDataOffset = 0;
    unsigned m_nSpace = 0;  // the width of "M"
    int m_bIndented = 0;
    bool m_bFitNumbers = false;
};
