// The items that a print engine makes: private to it, but for the labelled list, which is handed
// out and has a header of its own.

#pragma once

#include "print/print_engine_data.h"

#include <afxext.h>

#include <vector>

class QVListCtrlEx;

inline constexpr UINT kPrintLabelFlags = DT_END_ELLIPSIS | DT_NOPREFIX | DT_SINGLELINE;

// A font and the height of a line in it.
struct QVPeFont {
    CFont* pFont;
    unsigned nHeight;
};

class QVPeDataBreak : public QVPrintEngineData {
public:
    QVPeDataBreak(QVPeFont header, QVPeFont normal);
    bool Optional() override { return true; }
    void Print(CDC* pDC, CRect& rect, unsigned nFirst, unsigned nLast) override;
};

class QVPeDataSectionHeader : public QVPrintEngineData {
public:
    QVPeDataSectionHeader(const char* pszText, QVPeFont header, QVPeFont normal);
    bool DoNotWidow() override { return true; }
    void Print(CDC* pDC, CRect& rect, unsigned nFirst, unsigned nLast) override;

private:
    CString m_strText;
};

class QVPeDataGroupHeader : public QVPrintEngineData {
public:
    QVPeDataGroupHeader(const char* pszText, QVPeFont header, QVPeFont normal);
    bool DoNotWidow() override { return true; }
    void Print(CDC* pDC, CRect& rect, unsigned nFirst, unsigned nLast) override;

private:
    CString m_strText;
};

class QVPeDataText : public QVPrintEngineData {
public:
    QVPeDataText(CDC* pDC, const CString& strText, CFont* pFont);
    QVPeDataText(CDC* pDC, const CStringArray& aText, CFont* pFont);
    void CalcSize(unsigned nWidth) override;
    void Print(CDC* pDC, CRect& rect, unsigned nFirst, unsigned nLast) override;
    bool PrintSize(unsigned nFirst, unsigned& nLast, unsigned& nRemaining) override;

protected:
    virtual void PrintLines(CDC* pDC, unsigned nFirst, unsigned nLast, const CRect& rect);

private:
    QVPeDataText(CDC* pDC, CFont* pFont);
    unsigned Count() const { return static_cast<unsigned>(m_aLines.size()); }

    CDC* m_pDC;
    CStringArray m_aSource;
    std::vector<CString> m_aLines;  // wrapped to m_nWidth
    bool m_bWrapped = false;
    unsigned m_nWidth = 0;
    unsigned m_nLineHeight = 0;
};

// What the two kinds of list items share: the list's print run, its headings and its sizes.
class QVPeDataListBase : public QVPrintEngineData {
public:
    QVPeDataListBase(CDC* pDC, QVListCtrlEx* pList, QVPeFont header, QVPeFont normal);
    QVPeDataListBase(const QVPeDataListBase&) = delete;
    QVPeDataListBase& operator=(const QVPeDataListBase&) = delete;
    ~QVPeDataListBase() override;
    // A row number behind the last row prints no row and leaves rect behind the headings.
    void Print(CDC* pDC, CRect& rect, unsigned nFirst, unsigned nLast) override;
    bool PrintSize(unsigned nFirst, unsigned& nLast, unsigned& nRemaining) override;

protected:
    virtual unsigned Count() const = 0;
    virtual void PrintItems(CDC* pDC, unsigned nFirst, unsigned nLast, const CRect& rect) = 0;
    void TakeSizes();

    CDC* m_pDC;
    QVListCtrlEx* m_pList;
    unsigned m_nHeaderHeight = 0;  // 0 for a list without headings
    unsigned m_nItemHeight = 0;

private:
    void BeginRun();
    void EndRun() noexcept;

    CPrintInfo m_infoForEnd;  // made in time: the end of a run must not need memory
};

class QVPeDataList : public QVPeDataListBase {
public:
    QVPeDataList(CDC* pDC, QVListCtrlEx* pList, QVPeFont header, QVPeFont normal);

protected:
    unsigned Count() const override;
    void PrintItems(CDC* pDC, unsigned nFirst, unsigned nLast, const CRect& rect) override;
};

class QVPeDataStringList : public QVPeDataListBase {
public:
    QVPeDataStringList(CDC* pDC, QVListCtrlEx* pList, CStringArray* pRows, QVPeFont header,
                       QVPeFont normal);

protected:
    unsigned Count() const override;
    void PrintItems(CDC* pDC, unsigned nFirst, unsigned nLast, const CRect& rect) override;

private:
    void PrintRow(CDC* pDC, const CRect& rcRow, const CString& strRow);

    CStringArray* m_pRows;
    int m_nScale = 1;  // printer pixels a screen pixel
};
