// The walk through the application without a person: real input, a picture at each station, and a
// word when an input had no effect.

#pragma once

#include "main_frame.h"
#include "walk/walk_input.h"

#include <afxdlgs.h>

#include <functional>
#include <vector>

class Walk {
public:
    Walk(MainFrame& frame, const CString& strFolder) : m_frame(frame), m_strFolder(strFolder) {}
    // False, with the reason on standard output, as soon as something does not happen. With the
    // environment's QV_WALK_ONLY=comparisons, =keys or =look only that part, for whoever works on
    // it.
    bool Run();

private:
    bool All();
    bool AllComparisons();
    bool AllKeys();
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
    // Writes the list in front to a file, through the dialog.
    bool ExportTo(const CString& strFile, const char* pszStation);
    bool KeepOldExport(const CString& strFile);
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
    // Presses keys in the menu of the button Report.
    void OpenReportMenu(const std::vector<WORD>& keys, const char* pszStation);
    // The largest packages
    bool LargestPackages();
    bool LargestOnPaper();
    bool PrintToNamedFile();
    bool LargestHeading(int nCol, LargestList::Order order, const char* pszStation);
    // The logs
    bool Logs();
    bool FollowLog();
    bool LogOnPaper();
    // What fails, and how the user learns of it
    bool DamagedDatabase();
    bool LockedFile();
    bool FullDisk();
    bool ErrorsInLog();
    // The report of an error: that it has these words; a picture, and it is closed.
    bool ReadReport(CWnd& dialog, const char* pszStation, std::initializer_list<const char*> words);
    // Another database, of another machine
    bool OpenDatabase();
    bool OpenMachine();
    bool NameMachine();
    bool ChooseFolderOf(CWnd& dialog);
    bool ShowSettings();
    // The settings
    bool TypeSettings();
    bool ChooseSetting();
    bool ChooseFolder();
    bool SettingsKept();
    // The report
    bool ReportPages();
    bool Zoom();
    bool FindInReport();
    bool ExportReport();
    bool Paper();
    // The preferences
    bool ReportSettings();
    bool FillReportSettings(CWnd& page);
    bool ChooseColors(CPropertySheet& sheet);
    bool ChooseStart(CPropertySheet& sheet);
    bool PreferencesDropped();
    CString SettingInFile(int nSetting);
    // The report's wizard
    bool NewReport();
    bool FillReport(CPropertySheet& wizard);
    bool FillWhat(CPropertySheet& wizard);
    bool FillColumns(CPropertySheet& wizard);
    bool FillOrder(CPropertySheet& wizard);
    bool FillLook(CPropertySheet& wizard);
    bool FillReady(CPropertySheet& wizard);
    bool NextStep(CPropertySheet& wizard, int nStep);
    bool FinishEarly();
    bool FinishWithoutColumns(CPropertySheet& wizard);
    bool CancelWizard();
    bool RunFromBar();
    bool EditReport();
    bool DeleteReport();
    // Its names
    bool SaveReportAs();
    bool AskAgain();
    bool RenameReport();
    // What is different from an earlier database, and the about box
    bool Comparisons();
    bool SaveSnapshot();
    bool CompareWithEarlier();
    bool ComparisonPages();
    bool ExportComparison();
    bool FindInComparison(class ChangedGrid& grid);
    bool ComparisonCells(class ChangedGrid& grid);
    bool CompareWithGone();
    bool ComparisonPreview();
    bool ShowInInventory();
    bool CompareWithSame();
    bool CloseComparison();
    bool About();
    // By keys alone, and menus at controls
    bool EditByKeys();
    bool CopyRows();
    bool PanesByKeys();
    bool TabsEverywhere();
    bool ContextMenus();
    bool LogByKeys();
    bool InMenu(const char* pszWhat, const char* pszStation, const std::function<void()>& cause,
                const std::function<bool()>& look);
    // How it looks
    bool Look();
    bool Toolbar();
    int PageTop();  // on the screen
    bool TreeHeadings();
    bool CutText();
    bool SortArrow();
    bool FilesOfAll();
    bool Colors();
    // Long work
    bool CancelLoad();
    bool CancelExport();
    bool CancelPrint();
    // Does something slowly, and cancels it in the wait dialog.
    bool CancelWork(const char* pszStation, DWORD nSlow, const std::function<void()>& cause,
                    const std::function<bool()>& meanwhile);

    PackageTree& Tree() { return m_frame.Packages().Tree(); }
    PackageBrowser& Browser() { return m_frame.Packages().Browser(); }
    DetailsWnd& Details() { return Browser().Details(); }
    PackageList& List() { return m_frame.Packages().List(); }
    CPoint PointOf(HTREEITEM hItem, int nOffset);
    CPoint PointOfHeading(int nCol);
    CPoint PointOfRow(int nItem);
    CPoint PointOfTool(UINT nID);
    void ClickTab(int nPage);
    // Opens the dialog that asks what to find, types letters into it, and closes it when the search
    // is through and the picture, unless null, is taken.
    bool AskFor(const char* pszLetters, const char* pszStation = nullptr);
    // Clicks on an item of a dialog, which has the focus then.
    bool Enter(CWnd& dialog, int nID);
    // Acts in a dialog with that title as soon as it is up; modal ones run a loop of their own. The
    // dialog is closed if that fails.
    void WhileUp(const char* pszTitle, std::function<bool(CWnd&)> act);
    // The same, and whether it came to that and went well. cause brings the dialog up.
    template <class Cause>
    bool InDialog(const char* pszTitle, Cause cause, std::function<bool(CWnd&)> act) {
        bool bActed = false;
        bool bGood = false;
        WhileUp(pszTitle, [&](CWnd& dialog) {
            bActed = true;
            return bGood = act(dialog);
        });
        cause();
        return Expect(pszTitle, [&] { return bActed; }) && bGood;
    }
    // A picture of a window; null: the main one.
    bool Station(const char* pszName, CWnd* pWnd = nullptr);
    bool Happened(const char* pszWhat, bool bHappened);
    template <class Condition>
    bool Expect(const char* pszWhat, Condition condition) {
        return Happened(pszWhat, WaitFor(condition));
    }

    MainFrame& m_frame;
    CString m_strFolder;
};
