// The walk through the application without a person: real input, a picture at each station, and a
// word when an input had no effect.

#pragma once

#include "main_frame.h"
#include "walk/walk_input.h"

class Walk {
public:
    Walk(MainFrame& frame, const CString& strFolder) : m_frame(frame), m_strFolder(strFolder) {}
    // False, with the reason on standard output, as soon as something does not happen.
    bool Run();

private:
    // The tree
    bool SectionsTree();
    bool OpenBranch();
    bool SectionNarrows();
    bool Marks();
    bool AbsoluteColumns();
    bool Find();
    bool Vetoes();
    bool AllPackages();
    // The list
    bool Packages();
    bool FindPackage();
    bool ImageColumn();
    bool Export();
    bool Refresh();
    // The panes, their bars and the details
    bool DragBars();
    bool DragBar(PaneSplit& split, CSize size, const char* pszStation);
    bool DetailsTabs();
    bool GoToDependency();
    bool NothingToShow();
    bool KeysAround();
    bool DetailsOnPaper();
    bool LayoutKept();
    // The bar above it
    bool FilterSection();
    bool FilterDate();
    bool FilterOpens();
    bool Jump();
    bool ToolTip();
    bool ReportMenu();
    // The largest packages
    bool LargestPackages();
    bool LargestOnPaper();
    bool LargestHeading(int nCol, LargestList::Order order, const char* pszStation);
    // The logs
    bool Logs();
    bool FollowLog();
    bool LogOnPaper();
    // The settings
    bool TypeSettings();
    bool ChooseSetting();
    bool SettingsKept();
    // The report
    bool ReportPages();
    bool Zoom();
    bool ReportSettings();
    bool FillReportSettings(CWnd& dialog);
    static void CALLBACK WhenReportSettingsAreUp(HWND hWnd, UINT nMessage, UINT_PTR nTimer,
                                                 DWORD dwTime);
    bool Paper();

    PackageTree& Tree() { return m_frame.Packages().Tree(); }
    PackageBrowser& Browser() { return m_frame.Packages().Browser(); }
    DetailsWnd& Details() { return Browser().Details(); }
    PackageList& List() { return m_frame.Packages().List(); }
    CPoint PointOf(HTREEITEM hItem, int nOffset);
    CPoint PointOfHeading(int nCol);
    CPoint PointOfRow(int nItem);
    CPoint PointOfTool(UINT nID);
    void ClickTab(int nPage);
    // Opens the dialog that asks what to find, and types letters into it.
    void AskFor(const char* pszLetters);
    bool Station(const char* pszName);
    bool Happened(const char* pszWhat, bool bHappened);
    template <class Condition>
    bool Expect(const char* pszWhat, Condition condition) {
        return Happened(pszWhat, WaitFor(condition));
    }

    MainFrame& m_frame;
    CString m_strFolder;
    bool m_bSettingsFilled = false;
    static inline Walk* s_pWalk = nullptr;  // for what happens while a dialog is up
};
