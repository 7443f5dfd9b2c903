// The rows of a flexible grid, or its columns: how long each is, where it begins, and what else is
// kept for it. Lengths and positions are pixels.
//
// Positions are sums over all lines before, held in a tree that gives one in logarithmic time and
// takes a changed length likewise. Lines that are put in or taken out in the middle cost the sums
// behind them, which are made again when somebody asks.

#pragma once

#include <cstdint>
#include <vector>

namespace qv {

/// Where a text or picture stands in its cell: three columns of top, middle and bottom.
enum FlexGridAlignment : short {
    fgaLeftTop = 0,
    fgaLeftCenter = 1,
    fgaLeftBottom = 2,
    fgaCenterTop = 3,
    fgaCenter = 4,
    fgaCenterBottom = 5,
    fgaRightTop = 6,
    fgaRightCenter = 7,
    fgaRightBottom = 8,
    fgaGeneral = 9,  // numbers at the right, texts at the left
    fgaUnset = -1,
};

struct FlexGridLine {
    static constexpr int kDefault = -1;  // as long as the axis says
    int nSize = kDefault;                // 0: hidden
    int nData = 0;                       // the application's
    short nAlignment = fgaGeneral;       // of a column
    short nFixedAlignment = fgaUnset;    // of a column's heading; unset: as the column
    bool bMerge = false;
};

class FlexGridAxis {
public:
    static constexpr int kMaxCount = 10'000'000;
    static constexpr int kLargestSize = 100'000;

    explicit FlexGridAxis(int nDefaultSize) : m_nDefaultSize(nDefaultSize) {}

    // --- Lines; what grows may throw std::bad_alloc, and everything is as before then

    int Count() const { return static_cast<int>(m_lines.size()); }
    bool Has(int n) const { return n >= 0 && n < Count(); }
    void Resize(int nCount);
    void Reserve(int nCount);
    void Insert(int n);
    void Remove(int n);
    // Takes a line out and puts it in where it then has the index nTo.
    void Move(int nFrom, int nTo);
    // Line nFirst + i becomes the one that was order[i].
    void Reorder(int nFirst, const std::vector<int>& order);

    // n has to be there, here and below.
    const FlexGridLine& Line(int n) const { return m_lines[static_cast<std::size_t>(n)]; }
    void SetData(int n, int nData) { At(n).nData = nData; }
    void SetMerge(int n, bool bMerge) { At(n).bMerge = bMerge; }
    void SetAlignment(int n, short nAlignment) { At(n).nAlignment = nAlignment; }
    void SetFixedAlignment(int n, short nAlignment) { At(n).nFixedAlignment = nAlignment; }

    // --- Lengths

    // kDefault or less for the default one; more than kLargestSize counts as that.
    void SetSize(int n, int nSize);
    void SetDefaultSize(int nSize);
    int DefaultSize() const { return m_nDefaultSize; }
    // No line that is not hidden is shorter.
    void SetLeastSize(int nSize);
    int LeastSize() const { return m_nLeastSize; }
    int Size(int n) const { return SizeOf(Line(n)); }

    // --- Positions

    // Where line n begins; of Count() the end of all.
    std::int64_t Start(int n) const;
    std::int64_t Length() const { return Start(Count()); }
    // The line that holds a position, never a hidden one; Count() behind all, the first that shows
    // before the start.
    int Find(std::int64_t nPos) const;
    // The nearest line from n on that is not hidden; Count() or -1 if there is none.
    int ShownFrom(int n) const;
    int ShownUpTo(int n) const;
    int LastShown() const { return ShownUpTo(Count() - 1); }

    bool CheckInvariants() const;

private:
    FlexGridLine& At(int n) { return m_lines[static_cast<std::size_t>(n)]; }
    int SizeOf(const FlexGridLine& line) const;
    void Build() const;
    void ForgetFrom(int n) { m_nBuilt = n < m_nBuilt ? n : m_nBuilt; }

    std::vector<FlexGridLine> m_lines;
    int m_nDefaultSize;
    int m_nLeastSize = 0;
    // A Fenwick tree: entry i holds the sum of the i & -i lines that end with line i - 1. The first
    // m_nBuilt + 1 entries are true.
    mutable std::vector<std::int64_t> m_sums;
    mutable int m_nBuilt = 0;
};

}  // namespace qv
