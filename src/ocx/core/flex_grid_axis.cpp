#include "ocx/core/flex_grid_axis.h"

#include "ocx/core/flex_grid_order.h"

#include <algorithm>
#include <bit>

namespace qv {

namespace {

// The sum tree's entry n ends with line n - 1; this is how many lines it sums.
int Span(int n) {
    return n & -n;
}

}  // namespace

int FlexGridAxis::SizeOf(const FlexGridLine& line) const {
    if (line.nSize == 0) {
        return 0;
    }
    return std::max(line.nSize < 0 ? m_nDefaultSize : line.nSize, m_nLeastSize);
}

void FlexGridAxis::Resize(int nCount) {
    Reserve(nCount);
    m_lines.resize(static_cast<std::size_t>(nCount));
    ForgetFrom(nCount);
}

// The sums have room for all lines whenever they are made, so that asking needs no memory.
void FlexGridAxis::Reserve(int nCount) {
    const auto nLines = static_cast<std::size_t>(nCount);
    if (m_sums.size() < nLines + 1) {
        m_sums.resize(nLines + 1);
    }
    if (m_lines.capacity() < nLines) {
        m_lines.reserve(std::max(nLines, m_lines.capacity() * 2));
    }
}

void FlexGridAxis::Insert(int n) {
    Reserve(Count() + 1);
    m_lines.insert(m_lines.begin() + n, FlexGridLine());
    ForgetFrom(n);
}

void FlexGridAxis::Remove(int n) {
    m_lines.erase(m_lines.begin() + n);
    ForgetFrom(n);
}

void FlexGridAxis::Move(int nFrom, int nTo) {
    MoveElement(m_lines.begin(), nFrom, nTo);
    ForgetFrom(std::min(nFrom, nTo));
}

void FlexGridAxis::Reorder(int nFirst, const std::vector<int>& order) {
    ReorderElements(m_lines, nFirst, order);
    ForgetFrom(nFirst);
}

void FlexGridAxis::SetSize(int n, int nSize) {
    const int nOld = Size(n);
    At(n).nSize = std::clamp(nSize, FlexGridLine::kDefault, kLargestSize);
    const int nGrown = Size(n) - nOld;
    for (int i = n + 1; i <= m_nBuilt; i += Span(i)) {
        m_sums[static_cast<std::size_t>(i)] += nGrown;
    }
}

void FlexGridAxis::SetDefaultSize(int nSize) {
    m_nDefaultSize = std::clamp(nSize, 1, kLargestSize);
    ForgetFrom(0);
}

void FlexGridAxis::SetLeastSize(int nSize) {
    m_nLeastSize = std::clamp(nSize, 0, kLargestSize);
    ForgetFrom(0);
}

void FlexGridAxis::Build() const {
    for (int i = m_nBuilt + 1; i <= Count(); ++i) {
        std::int64_t nSum = Size(i - 1);
        for (int nPart = 1; nPart < Span(i); nPart *= 2) {
            nSum += m_sums[static_cast<std::size_t>(i - nPart)];
        }
        m_sums[static_cast<std::size_t>(i)] = nSum;
    }
    m_nBuilt = Count();
}

std::int64_t FlexGridAxis::Start(int n) const {
    Build();
    std::int64_t nSum = 0;
    for (int i = n; i > 0; i -= Span(i)) {
        nSum += m_sums[static_cast<std::size_t>(i)];
    }
    return nSum;
}

int FlexGridAxis::Find(std::int64_t nPos) const {
    Build();
    nPos = std::max<std::int64_t>(nPos, 0);
    int n = 0;  // so many lines end at nPos at the latest
    for (int nStep = static_cast<int>(std::bit_floor(static_cast<unsigned>(Count()))); nStep > 0;
         nStep /= 2) {
        if (n + nStep <= Count() && m_sums[static_cast<std::size_t>(n + nStep)] <= nPos) {
            n += nStep;
            nPos -= m_sums[static_cast<std::size_t>(n)];
        }
    }
    return n;
}

int FlexGridAxis::ShownFrom(int n) const {
    return Has(n) && Size(n) > 0 ? n : n >= Count() ? Count() : Find(Start(std::max(n, 0)));
}

int FlexGridAxis::ShownUpTo(int n) const {
    n = std::min(n, Count() - 1);
    if (n < 0 || Size(n) > 0) {
        return n;
    }
    const std::int64_t nEnd = Start(n);
    return nEnd > 0 ? Find(nEnd - 1) : -1;
}

bool FlexGridAxis::CheckInvariants() const {
    std::int64_t nPos = 0;
    for (int n = 0; n < Count(); ++n) {
        if (Start(n) != nPos || (Size(n) > 0 && Find(nPos) != n)) {
            return false;
        }
        nPos += Size(n);
    }
    return Length() == nPos && Find(nPos) == Count() && m_nBuilt <= Count();
}

}  // namespace qv
