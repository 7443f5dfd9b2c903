// Tab stops: where the columns of a row begin, in pixels from the start of its text.
//
// A stop is one number, position plus 10000 for centred or 20000 for right-aligned. The first field
// of a row lies before any stop, as column -1; field i (from 1) belongs to stop i - 1.

#pragma once

#include <array>
#include <span>

namespace qv {

inline constexpr int kMaxTabs = 20;

// Position in pixels; 0 for an index that is none.
int TabValue(std::span<const int> tabs, int nTab);
// Keeps the format. A value that is not positive gives 0.
void SetTabValue(std::span<int> tabs, int nTab, int nValue);
// DT_LEFT, DT_CENTER or DT_RIGHT; 0 for an index that is none.
unsigned TabFormat(std::span<const int> tabs, int nTab);
// Keeps the position. Any format but DT_CENTER and DT_RIGHT gives DT_LEFT.
void SetTabFormat(std::span<int> tabs, int nTab, unsigned nFormat);

// Copies stops to a table of kMaxTabs and zeroes the rest of it; gives how many there are. nCount
// -1 counts up to the first 0; more than kMaxTabs are not taken. Null gives none.
int CopyTabs(const int* pFrom, int nCount, int* pTable);

// A table of its own.
class TabStops {
public:
    void Use(const int* pTabs, int nCount) { m_nTabs = CopyTabs(pTabs, nCount, m_aTabs.data()); }
    void Clear() { Use(nullptr, 0); }

    int Count() const { return m_nTabs; }
    int Value(int nTab) const { return TabValue(Table(), nTab); }
    void SetValue(int nTab, int nValue) { SetTabValue({m_aTabs.data(), Size()}, nTab, nValue); }
    unsigned Format(int nTab) const { return TabFormat(Table(), nTab); }
    void SetFormat(int nTab, unsigned nFormat) {
        SetTabFormat({m_aTabs.data(), Size()}, nTab, nFormat);
    }

private:
    std::size_t Size() const { return static_cast<std::size_t>(m_nTabs); }
    std::span<const int> Table() const { return {m_aTabs.data(), Size()}; }

    int m_nTabs = 0;
    std::array<int, kMaxTabs> m_aTabs{};
};

}  // namespace qv
