// QVWizardStepWnd: the black panel on each page of a wizard that shows the wizard's steps as boxes
// with titles, joined by lines: the page's own step green and its title bold, steps seen before
// grey, others silver, the last one red until it is the page's. Painting is what marks a step as
// visited.
//
// It draws what QVWizardStepData::GetWizStepData gives at that moment, and without one is plain
// black. Colours are fixed; all measures are pixels, whatever the font: boxes of 16 in rows of 32,
// unless ScaleToFont asks for larger ones. Titles end at the panel's right edge; an ampersand in
// them underlines what follows.
//
// A QVWizardPage holds one and makes it of an item of its dialog; elsewhere Initialize attaches it
// to an item, or Create makes it by code.

#pragma once

#include "containers/wizard_records.h"
#include "frame/accessible.h"
#include "frame/cust_ctrl.h"

#include <vector>

class QVWizardPage;
class QVWizardStepData;

class QV_CONTROLS_API QVWizardStepWnd : public QVCustCtrl, public QVAccessible {
    DECLARE_DYNCREATE(QVWizardStepWnd)

public:
    QVWizardStepWnd();
    ~QVWizardStepWnd() override;

    // Of a parent that is a QVWizardPage the panel takes the step, as it stands now. Makes the
    // fonts from that of the nearest ancestor that has one.
    int Initialize(UINT nID, CWnd* pParent) override;

    // With bScale the diagram grows with a font whose titles are higher than 16 pixels, so that
    // none of them is cut below; the boxes are as high as a title then. Off at first. At any time,
    // before the window too; what is shown is painted anew.
    void ScaleToFont(BOOL bScale);

    // --- What a screen reader is told: the steps in a list that nobody can choose from

    // Of a step its title.
    CString GetAccessibleName(long nPart) override;
    // Which step it is: "2 of 5".
    CString GetAccessibleDescription(long nPart) override;
    long GetAccessibleRole(long nPart) override;
    // The page's step is the selected one, those seen before are traversed.
    long GetAccessibleState(long nPart) override;
    // Box and title.
    BOOL GetAccessibleRect(long nPart, CRect& rect) override;
    long GetAccessibleCount() override;
    long AccessibleHitTest(CPoint pt) override;
    long GetAccessibleFocus() override;
    long GetNextAccessibleSelected(long nPart) override;

protected:
    void Draw(CDC& dc, const CRect& rect) override;
    afx_msg LRESULT OnGetObject(WPARAM wParam, LPARAM lParam);
    DECLARE_MESSAGE_MAP()

    DWORD m_dwStepID = 0;   // the page's step
    int m_nStepIndex = -1;  // its first place among the steps; -1: it is none of them
    CFont m_fontNormal;
    CFont m_fontBold;

private:
    static const std::vector<_QVWIZSTEP_INFO>& Steps();
    const _QVWIZSTEP_INFO* PartStep(long nPart) const;
    void TakeStep(QVWizardPage& page);
    void MakeFonts();
    void MeasureUnit();
    bool MarkVisited(QVWizardStepData& data);

    bool m_bScaleToFont = false;
    int m_nUnit;  // of the diagram, in pixels
};
