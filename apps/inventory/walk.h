// The walk through the application without a person: real input, a picture at each station, and a
// word when an input had no effect.

#pragma once

#include "main_frame.h"

class Walk {
public:
    Walk(MainFrame& frame, const CString& strFolder) : m_frame(frame), m_strFolder(strFolder) {}
    // False, with the reason on standard output, as soon as something does not happen.
    bool Run();

private:
    bool Sections();
    bool OpenBranch();
    bool Marks();
    bool AbsoluteColumns();
    bool Find();
    bool Vetoes();

    PackageTree& Tree() { return m_frame.Page().Tree(); }
    CPoint PointOf(HTREEITEM hItem, int nOffset);
    bool Station(const char* pszName);
    template <class Condition>
    bool Expect(const char* pszWhat, Condition condition);

    MainFrame& m_frame;
    CString m_strFolder;
};
