// A document for the pagination: items of every kind that print knows, with sizes that a test can
// work out in its head.

#pragma once

#include "print/core/pagination.h"
#include "print/core/row_split.h"

#include <algorithm>
#include <vector>

class FakePageItems : public qv::PageItems {
public:
    static constexpr unsigned kLine = 10;  // a line of text, a row of a list, a group header

    struct Item {
        unsigned nMin = 0;
        unsigned nMax = 0;
        bool bOptional = false;
        bool bDoNotWidow = false;
        unsigned nRows = 0;  // 0 for an item that is not split
        unsigned nHeader = 0;
        unsigned nRowHeight = kLine;
        unsigned nChars = 0;  // of a text: its lines are as many characters long as the page wide
    };

    FakePageItems& Section() {
        return Add({.nMin = 3 * kLine, .nMax = 3 * kLine, .bDoNotWidow = true});
    }
    FakePageItems& Group() { return Add({.nMin = kLine, .nMax = kLine, .bDoNotWidow = true}); }
    FakePageItems& Break() { return Add({.nMin = kLine, .nMax = kLine, .bOptional = true}); }
    FakePageItems& Block(unsigned nSize) { return Add({.nMin = nSize, .nMax = nSize}); }
    FakePageItems& Text(unsigned nChars) {
        return Add({.nMin = kLine, .nMax = kLine, .nChars = nChars});
    }
    FakePageItems& List(unsigned nRows, unsigned nHeader = 0, unsigned nRowHeight = kLine) {
        return Add({.nMin = nHeader + nRowHeight,
                    .nMax = nHeader + nRows * nRowHeight,
                    .nRows = nRows,
                    .nHeader = nHeader,
                    .nRowHeight = nRowHeight});
    }
    FakePageItems& Labelled(unsigned nRows) {
        return Add({.nMin = std::min(nRows, 2u) * kLine, .nMax = nRows * kLine, .nRows = nRows});
    }
    FakePageItems& Add(const Item& item) {
        items.push_back(item);
        return *this;
    }

    std::size_t Count() const override { return items.size(); }
    unsigned MinSize(std::size_t nItem) override { return items[nItem].nMin; }
    unsigned MaxSize(std::size_t nItem) override { return items[nItem].nMax; }
    bool Optional(std::size_t nItem) override { return items[nItem].bOptional; }
    bool DoNotWidow(std::size_t nItem) override { return items[nItem].bDoNotWidow; }
    void CalcSize(std::size_t nItem, unsigned nWidth) override {
        Item& item = items[nItem];
        if (item.nChars > 0) {
            item.nRows = (item.nChars + nWidth - 1) / nWidth;
            item.nMax = item.nRows * kLine;
        }
    }
    bool PrintSize(std::size_t nItem, unsigned nFirst, unsigned& nLast,
                   unsigned& nRemaining) override {
        const Item& item = items[nItem];
        return qv::FitRows(item.nRows, item.nHeader, item.nRowHeight, nFirst, nLast, nRemaining);
    }

    std::vector<Item> items;
};
