#include "print/print_labeled_list.h"

#include "frame/dc_guards.h"
#include "frame/out_of_memory.h"
#include "frame/text_out.h"
#include "print/core/pagination.h"
#include "print/core/row_split.h"
#include "print/print_items.h"

#include <algorithm>

namespace {

constexpr int kIndentSpaces = 6;
constexpr char kUsualNumber[] = "9,999,999";

}  // namespace

// CObject gives no copying of its own.
QVPeDataLabeledListItem::QVPeDataLabeledListItem(const QVPeDataLabeledListItem& other)
    : CObject(),
      m_strLabel(other.m_strLabel),
      m_strData(other.m_strData),
      m_eJustification(other.m_eJustification) {}

QVPeDataLabeledListItem& QVPeDataLabeledListItem::operator=(const QVPeDataLabeledListItem& other) {
    Set(other.m_strLabel, other.m_strData, other.m_eJustification);
    return *this;
}

void QVPeDataLabeledListItem::Set(const char* pszLabel, const char* pszData,
                                  Justification eJustification) {
    const CString strLabel(pszLabel);
    const CString strData(pszData);
    m_strLabel = strLabel;
    m_strData = strData;
    m_eJustification = eJustification;
}

QVPeDataLabeledList::QVPeDataLabeledList(CDC* pDC, CFont* pHeaderFont, unsigned nHeaderHeight,
                                         CFont* pNormalFont, unsigned nNormalHeight)
    : QVPrintEngineData(pHeaderFont, nHeaderHeight, pNormalFont, nNormalHeight), m_pDC(pDC) {
    const qv::SelectGuard<CFont> font(*pDC, pNormalFont);
    m_nSpace = static_cast<unsigned>(qv::TextExtent(*pDC, "M").cx);
}

QVPeDataLabeledList::QVPeDataLabeledList(const QVPeDataLabeledList& other)
    : QVPrintEngineData(other) {
    *this = other;
}

QVPeDataLabeledList& QVPeDataLabeledList::operator=(const QVPeDataLabeledList& other) {
    std::vector<QVPeDataLabeledListItem> items;
    if (!qv::MemorySuffices([&] { items = other.m_Items; })) {
        SetIncomplete();
        return *this;
    }
    QVPrintEngineData::operator=(other);
    m_Items.swap(items);
    m_pDC = other.m_pDC;
    m_nLabelWidth = other.m_nLabelWidth;
    m_nDataOffset = other.m_nDataOffset;
    m_nSpace = other.m_nSpace;
    m_bIndented = other.m_bIndented;
    m_bFitNumbers = other.m_bFitNumbers;
    return *this;
}

void QVPeDataLabeledList::AddData(const char* pszLabel, const char* pszData,
                                  QVPeDataLabeledListItem::Justification eJustification) {
    if (m_pDC == nullptr) {
        return;
    }
    const size_t nRows = m_Items.size();
    if (!qv::MemorySuffices([&] {
            QVPeDataLabeledListItem item;
            item.Set(pszLabel, pszData, eJustification);
            m_Items.push_back(item);
            CheckLabelWidth(pszLabel);
        })) {
        m_Items.resize(nRows);
        SetIncomplete();
    }
}

void QVPeDataLabeledList::AddData(unsigned nLabelID, const char* pszData,
                                  QVPeDataLabeledListItem::Justification eJustification) {
    CString strLabel;
    if (qv::MemorySuffices([&] { strLabel.LoadString(nLabelID); })) {
        AddData(static_cast<const char*>(strLabel), pszData, eJustification);
    } else {
        SetIncomplete();
    }
}

void QVPeDataLabeledList::CheckLabelWidth(const char* pszLabel) {
    const qv::SelectGuard<CFont> font(*m_pDC, NormalFont());
    const auto nWidth =
        static_cast<unsigned>(qv::TextExtent(*m_pDC, pszLabel != nullptr ? pszLabel : "").cx);
    if (nWidth > m_nLabelWidth) {
        m_nLabelWidth = nWidth;
        m_nDataOffset = nWidth + m_nSpace;
    }
}

unsigned QVPeDataLabeledList::MinSize() {
    return NormalFontHeight() * std::min(Count(), 2u);
}

unsigned QVPeDataLabeledList::MaxSize() {
    return NormalFontHeight() * Count();
}

bool QVPeDataLabeledList::PrintSize(unsigned nFirst, unsigned& nLast, unsigned& nRemaining) {
    return qv::FitRows(Count(), 0, NormalFontHeight(), nFirst, nLast, nRemaining);
}

// Pixels of the column of numbers, in the font that is selected.
int QVPeDataLabeledList::NumberWidth(CDC& dc) const {
    int nWidth = static_cast<int>(qv::TextExtent(dc, kUsualNumber).cx);
    for (const QVPeDataLabeledListItem& item : m_Items) {
        if (m_bFitNumbers && item.Justified() != QVPeDataLabeledListItem::Left) {
            nWidth =
                std::max(nWidth, static_cast<int>(qv::TextExtent(dc, qv::View(item.Data())).cx));
        }
    }
    return nWidth;
}

void QVPeDataLabeledList::Print(CDC* pDC, CRect& rect, unsigned nFirst, unsigned nLast) {
    const unsigned nEnd = nLast == qv::kToEnd ? Count() : std::min(nLast + 1, Count());
    if (nFirst >= nEnd) {
        return;
    }
    const qv::SelectGuard<CFont> font(*pDC, NormalFont());
    const auto nShift = m_bIndented ? kIndentSpaces * static_cast<int>(m_nSpace) : 0;
    const auto nHeight = static_cast<int>(NormalFontHeight());
    CRect rcLabel(rect.left + nShift, rect.top, rect.right, rect.top + nHeight);
    CRect rcData(rcLabel);
    rcData.left += static_cast<LONG>(m_nDataOffset);
    CRect rcNumber(rcData);
    rcNumber.right = rcNumber.left + NumberWidth(*pDC);
    for (unsigned n = nFirst; n < nEnd; ++n) {
        const QVPeDataLabeledListItem& item = m_Items[n];
        qv::DrawTextIn(*pDC, qv::View(item.Label()), rcLabel, kPrintLabelFlags);
        if (item.Justified() == QVPeDataLabeledListItem::Left) {
            qv::DrawTextIn(*pDC, qv::View(item.Data()), rcData, kPrintLabelFlags);
        } else {
            qv::DrawTextIn(*pDC, qv::View(item.Data()), rcNumber, kPrintLabelFlags | DT_RIGHT);
        }
        for (CRect* pRect : {&rcLabel, &rcData, &rcNumber}) {
            pRect->OffsetRect(0, nHeight);
        }
    }
    rect.top = rcLabel.top;
}
