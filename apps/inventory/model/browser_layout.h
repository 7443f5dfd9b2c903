// How the packages page is divided, and what of a package it shows.

#pragma once

#include "model/settings.h"
#include "model/tree_columns.h"

struct BrowserLayout {
    int nTreePercent = 32;  // of the width
    int nListPercent = 52;  // of the height beside the tree
    int nDetails = 0;       // the tab in front
    TreeWidths treeWidths = kFirstTreeWidths;
};

// The tabs as they stand in the file, in their order.
constexpr const char* kDetailsNames[] = {"facts", "files", "dependencies", "scripts",
                                         "configuration"};

// How a layout stands in its file.
class LayoutValues : public KeyedValues {
public:
    LayoutValues();
    explicit LayoutValues(const BrowserLayout& layout);
    // Where no pane could be seen, the layout is that of the beginning.
    BrowserLayout Layout() const;
};
