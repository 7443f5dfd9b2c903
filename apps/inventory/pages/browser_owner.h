// What the panes of the packages page tell the page.

#pragma once

#include "model/inventory.h"

#include <afxwin.h>

#include <string>

class BrowserOwner {
public:
    // In the tree. Empty: all sections.
    virtual void OnSectionChosen(const std::string& strSection) = 0;
    virtual void OnPackageChosen(const Package& package) = 0;
    // From one package's details to another package.
    virtual void OnGoTo(const CString& strName) = 0;
    // In the status bar.
    virtual void Say(const CString& strMessage) = 0;

protected:
    ~BrowserOwner() = default;
};
