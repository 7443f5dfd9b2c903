// Moves and orders of lines, the same for what is kept of their lengths and of their cells.

#pragma once

#include <algorithm>
#include <utility>
#include <vector>

namespace qv {

// Takes the element nFrom out and puts it in where it then has the index nTo.
template <class Iterator>
void MoveElement(Iterator first, int nFrom, int nTo) {
    if (nFrom < nTo) {
        std::rotate(first + nFrom, first + nFrom + 1, first + nTo + 1);
    } else {
        std::rotate(first + nTo, first + nFrom, first + nFrom + 1);
    }
}

// Element nFirst + i becomes the one that was order[i]. May throw std::bad_alloc before anything
// has moved.
template <class Element>
void ReorderElements(std::vector<Element>& elements, int nFirst, const std::vector<int>& order) {
    std::vector<Element> moved;
    moved.reserve(order.size());
    for (const int n : order) {
        moved.push_back(std::move(elements[static_cast<std::size_t>(n)]));
    }
    std::move(moved.begin(), moved.end(), elements.begin() + nFirst);
}

}  // namespace qv
