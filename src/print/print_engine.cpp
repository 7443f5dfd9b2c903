#include "print/print_engine.h"

#include <algorithm>

#include "frame/select_object.h"
#include "print/core/pagination.h"
#include "print/print_items.h"

namespace {

unsigned LineHeight(CDC& dc, CFont* pFont) {
    const qv::SelectGuard<CFont> font(dc, pFont);
    return static_cast<unsigned>(dc.GetTextExtent("0", 1).cy);
}

// Draws nothing outside of rect as long as it lives; without bCut it leaves the context alone.
class CutGuard {
public:
    CutGuard(CDC& dc, const CRect& rect, bool bCut) : m_dc(dc), m_nSaved(bCut ? dc.SaveDC() : 0) {
        if (bCut) {
            dc.IntersectClipRect(&rect);
        }
    }
    ~CutGuard() {
        if (m_nSaved != 0) {
            m_dc.RestoreDC(m_nSaved);
        }
    }
    CutGuard(const CutGuard&) = delete;
    CutGuard& operator=(const CutGuard&) = delete;

private:
    CDC& m_dc;
    const int m_nSaved;
};

CString ResourceText(unsigned nStringID) {
    CString strText;
    strText.LoadString(nStringID);
    return strText;
}

}  // namespace

// The items as the pagination asks for them.
class QVPrintEngine::PageItems : public qv::PageItems {
public:
    explicit PageItems(QVPrintEngine& engine) : m_engine(engine) {}

    size_t Count() const override { return m_engine.m_Items.size(); }
    unsigned MinSize(size_t nItem) override { return At(nItem).MinSize(); }
    unsigned MaxSize(size_t nItem) override { return At(nItem).MaxSize(); }
    bool Optional(size_t nItem) override { return At(nItem).Optional(); }
    bool DoNotWidow(size_t nItem) override { return At(nItem).DoNotWidow(); }
    void CalcSize(size_t nItem, unsigned nWidth) override { At(nItem).CalcSize(nWidth); }
    bool PrintSize(size_t nItem, unsigned nFirst, unsigned& nLast, unsigned& nRemaining) override {
        return At(nItem).PrintSize(nFirst, nLast, nRemaining);
    }

private:
    QVPrintEngineData& At(size_t nItem) { return *m_engine.m_Items[nItem]; }

    QVPrintEngine& m_engine;
};

QVPrintEngine::QVPrintEngine(CDC* pDC, CFont* pHeaderFont, CFont* pNormalFont, CFont* pSectionFont)
    : m_pHeaderFont(pHeaderFont), m_pNormalFont(pNormalFont), m_pSectionFont(pSectionFont) {
    if (pDC != nullptr) {
        m_nHeaderHeight = LineHeight(*pDC, pHeaderFont);
        m_nNormalHeight = LineHeight(*pDC, pNormalFont);
        m_nSectionHeight = LineHeight(*pDC, pSectionFont);
    }
}

QVPrintEngine::~QVPrintEngine() {
    ClearData();
}

void QVPrintEngine::ClearData() {
    m_Items.clear();
    m_Pages.clear();
}

void QVPrintEngine::AddSectionHeader(unsigned nStringID) {
    AddSectionHeader(ResourceText(nStringID));
}

void QVPrintEngine::AddSectionHeader(const char* pszText) {
    Add(std::make_shared<QVPeDataSectionHeader>(pszText, QVPeFont{m_pSectionFont, m_nSectionHeight},
                                                QVPeFont{m_pNormalFont, m_nNormalHeight}));
}

void QVPrintEngine::AddGroupHeader(unsigned nStringID) {
    AddGroupHeader(ResourceText(nStringID));
}

void QVPrintEngine::AddGroupHeader(const char* pszText) {
    Add(std::make_shared<QVPeDataGroupHeader>(pszText, QVPeFont{m_pHeaderFont, m_nHeaderHeight},
                                              QVPeFont{m_pNormalFont, m_nNormalHeight}));
}

void QVPrintEngine::AddHeader(const CString& strText, CDC* pDC) {
    Add(std::make_shared<QVPeDataText>(pDC, strText, m_pHeaderFont));
}

void QVPrintEngine::AddText(const CString& strText, CDC* pDC, CFont* pFont) {
    Add(std::make_shared<QVPeDataText>(pDC, strText, pFont != nullptr ? pFont : m_pNormalFont));
}

void QVPrintEngine::AddText(const CStringArray& aText, CDC* pDC, CFont* pFont) {
    Add(std::make_shared<QVPeDataText>(pDC, aText, pFont != nullptr ? pFont : m_pNormalFont));
}

void QVPrintEngine::AddBreak() {
    Add(std::make_shared<QVPeDataBreak>(QVPeFont{m_pHeaderFont, m_nHeaderHeight},
                                        QVPeFont{m_pNormalFont, m_nNormalHeight}));
}

void QVPrintEngine::AddList(QVListCtrlEx* pList, CDC* pDC) {
    Add(std::make_shared<QVPeDataList>(pDC, pList, QVPeFont{m_pHeaderFont, m_nHeaderHeight},
                                       QVPeFont{m_pNormalFont, m_nNormalHeight}));
}

void QVPrintEngine::AddStringList(CStringArray* pRows, QVListCtrlEx* pList, CDC* pDC) {
    Add(std::make_shared<QVPeDataStringList>(pDC, pList, pRows,
                                             QVPeFont{m_pHeaderFont, m_nHeaderHeight},
                                             QVPeFont{m_pNormalFont, m_nNormalHeight}));
}

QVPeDataLabeledList& QVPrintEngine::AddLabeledDataList(CDC* pDC) {
    auto pItem = std::make_shared<QVPeDataLabeledList>(pDC, m_pHeaderFont, m_nHeaderHeight,
                                                       m_pNormalFont, m_nNormalHeight);
    QVPeDataLabeledList& list = *pItem;
    Add(std::move(pItem));
    return list;
}

unsigned QVPrintEngine::Paginate(const CRect& rect) {
    PageItems items(*this);
    std::vector<qv::PageRecord> records;
    const unsigned nPages =
        qv::Paginate(items, static_cast<unsigned>(std::max(rect.Width(), 0)),
                     static_cast<unsigned>(std::max(rect.Height(), 0)), records,
                     m_bPrintAllRows ? qv::RowNumbers::kOwn : qv::RowNumbers::kKept);
    for (const qv::PageRecord& record : records) {
        QVPrintEnginePage page;
        page.SetFirstItem(record.nFirstItem);
        page.SetLastItem(record.nLastItem);
        page.SetFirstSub(record.nFirstSub);
        page.SetLastSub(record.nLastSub);
        m_Pages.push_back(page);
    }
    m_bNeedsPagination = false;
    return nPages;
}

void QVPrintEngine::PrintPage(CDC* pDC, const CRect& rect, unsigned nPage) {
    if (nPage == 0 || nPage > m_Pages.size()) {
        return;
    }
    const QVPrintEnginePage& page = m_Pages[nPage - 1];
    const qv::PageRecord record{page.GetFirstItem(), page.GetLastItem(), page.GetFirstSub(),
                                page.GetLastSub()};
    // Only an item that fits no page can reach out of its page. It gets the room that it wants at
    // least, so that it prints the row that the page then cuts.
    const unsigned nMinSize = m_Items[record.nFirstItem]->MinSize();
    const bool bCut = record.nFirstItem == record.nLastItem &&
                      nMinSize > static_cast<unsigned>(std::max(rect.Height(), 0));
    const CutGuard cut(*pDC, rect, bCut);
    CRect work(rect);
    if (bCut) {
        work.bottom = work.top + static_cast<LONG>(nMinSize);
    }
    qv::ForEachOnPage(record, [&](size_t nItem, unsigned nFirst, unsigned nLast) {
        m_Items[nItem]->Print(pDC, work, nFirst, nLast);
    });
}
