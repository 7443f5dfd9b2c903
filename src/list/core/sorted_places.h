// Finds where a row belongs among rows that may be in any order: behind it stands the first row
// with a greater key, as a walk from the first row would find it. The keys are made once, and a
// place is found without a walk.
//
// The keys of rows 0 to n have a greatest one; over n it never falls. So the first row with a
// greater key than a given one is the first at which that greatest key passes it.

#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace qv {

class SortedPlaces {
public:
    void Clear();
    std::size_t Count() const { return m_aGreatest.size(); }
    void Append(std::string strKey);
    // The first row with a greater key, or Count().
    std::size_t Find(const std::string& strKey) const;
    // A row came in front of row nPlace, which is at most Count().
    void Insert(std::size_t nPlace, std::string strKey);

    bool CheckInvariants() const;

private:
    std::vector<std::string> m_aKeys;
    // By row: which of the keys is the greatest of that row and all above.
    std::vector<std::uint32_t> m_aGreatest;
};

// A key that orders as the number does.
std::string NumberKey(std::int32_t nValue);

}  // namespace qv
