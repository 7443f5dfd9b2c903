#include "print/print_engine.h"

#include "frame/dc_guards.h"
#include "frame/out_of_memory.h"
#include "frame/text_out.h"
#include "print/core/pagination.h"
#include "print/print_items.h"

#include <algorithm>

namespace {

unsigned LineHeight(CDC& dc, CFont* pFont) {
    const qv::SelectGuard<CFont> font(dc, pFont);
    return static_cast<unsigned>(qv::TextExtent(dc, "0").cy);
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
        m_bComplete = qv::MemorySuffices([&] {
            m_nHeaderHeight = LineHeight(*pDC, pHeaderFont);
            m_nNormalHeight = LineHeight(*pDC, pNormalFont);
            m_nSectionHeight = LineHeight(*pDC, pSectionFont);
        });
    }
}

QVPrintEngine::QVPrintEngine(const QVPrintEngine& other) {
    *this = other;
}

QVPrintEngine& QVPrintEngine::operator=(const QVPrintEngine& other) {
    std::vector<std::shared_ptr<QVPrintEngineData>> items;
    std::vector<QVPrintEnginePage> pages;
    if (!qv::MemorySuffices([&] {
            items = other.m_Items;
            pages = other.m_Pages;
        })) {
        m_bComplete = false;
        return *this;
    }
    m_pHeaderFont = other.m_pHeaderFont;
    m_pNormalFont = other.m_pNormalFont;
    m_pSectionFont = other.m_pSectionFont;
    m_nHeaderHeight = other.m_nHeaderHeight;
    m_nNormalHeight = other.m_nNormalHeight;
    m_nSectionHeight = other.m_nSectionHeight;
    m_bNeedsPagination = other.m_bNeedsPagination;
    m_bPrintAllRows = other.m_bPrintAllRows;
    m_bComplete = other.m_bComplete;
    m_Items.swap(items);
    m_Pages.swap(pages);
    return *this;
}

QVPrintEngine::~QVPrintEngine() {
    ClearData();
}

void QVPrintEngine::ClearData() {
    m_Items.clear();
    m_Pages.clear();
}

bool QVPrintEngine::IsComplete() const {
    return m_bComplete && std::all_of(m_Items.begin(), m_Items.end(),
                                      [](const auto& pItem) { return pItem->IsComplete(); });
}

// Appends what make gives. Without memory the document stays as it was, and false comes out.
template <class Make>
bool QVPrintEngine::Add(Make make) {
    const bool bAdded = qv::MemorySuffices([&] { m_Items.push_back(make()); });
    m_bComplete = m_bComplete && bAdded;
    return bAdded;
}

void QVPrintEngine::AddSectionHeader(unsigned nStringID) {
    Add([&] {
        return std::make_shared<QVPeDataSectionHeader>(ResourceText(nStringID),
                                                       QVPeFont{m_pSectionFont, m_nSectionHeight},
                                                       QVPeFont{m_pNormalFont, m_nNormalHeight});
    });
}

void QVPrintEngine::AddSectionHeader(const char* pszText) {
    Add([&] {
        return std::make_shared<QVPeDataSectionHeader>(pszText,
                                                       QVPeFont{m_pSectionFont, m_nSectionHeight},
                                                       QVPeFont{m_pNormalFont, m_nNormalHeight});
    });
}

void QVPrintEngine::AddGroupHeader(unsigned nStringID) {
    Add([&] {
        return std::make_shared<QVPeDataGroupHeader>(ResourceText(nStringID),
                                                     QVPeFont{m_pHeaderFont, m_nHeaderHeight},
                                                     QVPeFont{m_pNormalFont, m_nNormalHeight});
    });
}

void QVPrintEngine::AddGroupHeader(const char* pszText) {
    Add([&] {
        return std::make_shared<QVPeDataGroupHeader>(pszText,
                                                     QVPeFont{m_pHeaderFont, m_nHeaderHeight},
                                                     QVPeFont{m_pNormalFont, m_nNormalHeight});
    });
}

void QVPrintEngine::AddHeader(const CString& strText, CDC* pDC) {
    Add([&] { return std::make_shared<QVPeDataText>(pDC, strText, m_pHeaderFont); });
}

void QVPrintEngine::AddText(const CString& strText, CDC* pDC, CFont* pFont) {
    Add([&] {
        return std::make_shared<QVPeDataText>(pDC, strText,
                                              pFont != nullptr ? pFont : m_pNormalFont);
    });
}

void QVPrintEngine::AddText(const CStringArray& aText, CDC* pDC, CFont* pFont) {
    Add([&] {
        return std::make_shared<QVPeDataText>(pDC, aText, pFont != nullptr ? pFont : m_pNormalFont);
    });
}

void QVPrintEngine::AddBreak() {
    Add([&] {
        return std::make_shared<QVPeDataBreak>(QVPeFont{m_pHeaderFont, m_nHeaderHeight},
                                               QVPeFont{m_pNormalFont, m_nNormalHeight});
    });
}

void QVPrintEngine::AddList(QVListCtrlEx* pList, CDC* pDC) {
    Add([&] {
        return std::make_shared<QVPeDataList>(pDC, pList, QVPeFont{m_pHeaderFont, m_nHeaderHeight},
                                              QVPeFont{m_pNormalFont, m_nNormalHeight});
    });
}

void QVPrintEngine::AddStringList(CStringArray* pRows, QVListCtrlEx* pList, CDC* pDC) {
    Add([&] {
        return std::make_shared<QVPeDataStringList>(pDC, pList, pRows,
                                                    QVPeFont{m_pHeaderFont, m_nHeaderHeight},
                                                    QVPeFont{m_pNormalFont, m_nNormalHeight});
    });
}

QVPeDataLabeledList& QVPrintEngine::AddLabeledDataList(CDC* pDC) {
    QVPeDataLabeledList* pList = nullptr;
    const bool bAdded = Add([&] {
        auto pItem = std::make_shared<QVPeDataLabeledList>(pDC, m_pHeaderFont, m_nHeaderHeight,
                                                           m_pNormalFont, m_nNormalHeight);
        pList = pItem.get();
        return pItem;
    });
    return bAdded ? *pList : m_unprinted;
}

unsigned QVPrintEngine::Paginate(const CRect& rect) {
    PageItems items(*this);
    std::vector<qv::PageRecord> records;
    if (!qv::MemorySuffices([&] {
            qv::Paginate(items, static_cast<unsigned>(std::max(rect.Width(), 0)),
                         static_cast<unsigned>(std::max(rect.Height(), 0)), records,
                         m_bPrintAllRows ? qv::RowNumbers::kOwn : qv::RowNumbers::kKept);
            m_Pages.reserve(m_Pages.size() + records.size());
        })) {
        return 0;
    }
    for (const qv::PageRecord& record : records) {
        QVPrintEnginePage page;
        page.SetFirstItem(record.nFirstItem);
        page.SetLastItem(record.nLastItem);
        page.SetFirstSub(record.nFirstSub);
        page.SetLastSub(record.nLastSub);
        m_Pages.push_back(page);
    }
    m_bNeedsPagination = false;
    return static_cast<unsigned>(records.size());
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
    const bool bPrinted = qv::MemorySuffices([&] {
        qv::ForEachOnPage(record, [&](size_t nItem, unsigned nFirst, unsigned nLast) {
            m_Items[nItem]->Print(pDC, work, nFirst, nLast);
        });
    });
    m_bComplete = m_bComplete && bPrinted;
}
