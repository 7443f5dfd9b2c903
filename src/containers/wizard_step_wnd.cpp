#include "containers/wizard_step_wnd.h"

#include "containers/core/wizard_diagram.h"
#include "containers/wizard_page.h"
#include "containers/wizard_step_data.h"
#include "frame/ancestor_font.h"
#include "frame/dc_guards.h"
#include "frame/out_of_memory.h"
#include "frame/rectangles.h"
#include "frame/text_out.h"

#include <algorithm>
#include <array>
#include <oleacc.h>

IMPLEMENT_DYNCREATE(QVWizardStepWnd, QVCustCtrl)

BEGIN_MESSAGE_MAP(QVWizardStepWnd, QVCustCtrl)
    ON_MESSAGE(WM_GETOBJECT, &QVWizardStepWnd::OnGetObject)
END_MESSAGE_MAP()

QVWizardStepWnd::QVWizardStepWnd()
    : QVAccessible(static_cast<CWnd&>(*this)), m_nUnit(qv::kStepUnit) {}

QVWizardStepWnd::~QVWizardStepWnd() = default;

// --- What the page gives

int QVWizardStepWnd::Initialize(UINT nID, CWnd* pParent) {
    const int nResult = QVCustCtrl::Initialize(nID, pParent);
    if (nResult != 0) {
        qv::MemorySuffices([&] {
            if (auto* pPage = DYNAMIC_DOWNCAST(QVWizardPage, pParent)) {
                TakeStep(*pPage);
            }
            MakeFonts();
        });
    }
    return nResult;
}

void QVWizardStepWnd::TakeStep(QVWizardPage& page) {
    m_dwStepID = page.WizStepID();
    const QVWizardStepData* pData = QVWizardStepData::GetWizStepData();
    m_nStepIndex = pData != nullptr ? qv::FindStep(pData->m_Steps, m_dwStepID) : -1;
}

// A page that is shown again gives its panel a new window, and the fonts anew.
void QVWizardStepWnd::MakeFonts() {
    m_fontNormal.DeleteObject();
    m_fontBold.DeleteObject();
    LOGFONT logFont{};
    CFont* pFont = qv::NearestFont(GetParent());
    if (pFont != nullptr && pFont->GetLogFont(&logFont) != 0) {
        m_fontNormal.CreateFontIndirect(&logFont);
    } else {
        m_fontNormal.CreateStockObject(ANSI_VAR_FONT);
        m_fontNormal.GetLogFont(&logFont);
    }
    logFont.lfWeight = FW_BOLD;
    m_fontBold.CreateFontIndirect(&logFont);
    MeasureUnit();
}

void QVWizardStepWnd::ScaleToFont(BOOL bScale) {
    m_bScaleToFont = bScale != FALSE;
    if (GetSafeHwnd() != nullptr) {
        MeasureUnit();
        Invalidate(FALSE);
    }
}

void QVWizardStepWnd::MeasureUnit() {
    m_nUnit = qv::kStepUnit;
    if (m_bScaleToFont) {
        CClientDC dc(this);
        const qv::SelectGuard<CFont> font(dc, &m_fontBold);
        TEXTMETRIC metrics;
        dc.GetTextMetrics(&metrics);
        m_nUnit = qv::StepUnitFor(static_cast<int>(metrics.tmHeight));
    }
}

// --- Painting

namespace {

void DrawLine(CDC& dc, std::span<const qv::Point> points) {
    dc.MoveTo(points[0].x, points[0].y);
    for (const qv::Point pt : points.subspan(1)) {
        dc.LineTo(pt.x, pt.y);
    }
}

}  // namespace

void QVWizardStepWnd::Draw(CDC& dc, const CRect& rect) {
    CBrush brBack(qv::kStepBack);
    std::array<CBrush, qv::kStepFills.size()> fills;
    for (std::size_t i = 0; i < fills.size(); ++i) {
        fills[i].CreateSolidBrush(qv::kStepFills[i]);
    }
    CPen penLine(PS_SOLID, 1, qv::kStepLine);
    const qv::SelectGuard<CPen> pen(dc, &penLine);
    const qv::SelectGuard<CFont> font(dc, &m_fontNormal);
    const qv::ColorGuard colors(dc);
    dc.SetTextColor(qv::kStepTitle);
    dc.SetBkColor(qv::kStepBack);
    dc.FillRect(&rect, &brBack);

    QVWizardStepData* pData = QVWizardStepData::GetWizStepData();
    if (pData == nullptr) {
        return;
    }
    const bool bFirstTime = MarkVisited(*pData);
    qv::StepRowReader reader(pData->m_Steps, m_dwStepID, rect.right, m_nUnit);
    for (qv::StepRow row; reader.Next(row);) {
        if (row.eFill != qv::StepFill::None) {
            const CRect rcBox = qv::ToCRect(row.rcBox);
            dc.FillRect(&rcBox, &fills[static_cast<std::size_t>(row.eFill) - 1]);
        }
        for (const qv::StepPolyline& line : row.lines) {
            DrawLine(dc, line.Points());
        }
        const qv::SelectGuard<CFont> titleFont(dc, row.bBold ? &m_fontBold : &m_fontNormal);
        CRect rcTitle = qv::ToCRect(row.rcTitle);
        qv::DrawTextIn(dc, row.pszTitle, rcTitle, 0);
    }
    if (bFirstTime) {
        TellAccessible(EVENT_OBJECT_STATECHANGE, m_nStepIndex + 1);
    }
}

bool QVWizardStepWnd::MarkVisited(QVWizardStepData& data) {
    if (m_nStepIndex == -1) {
        return false;
    }
    const bool bVisited = data.GetStepInfo(m_nStepIndex).nState == WizStepVisited;
    data.UpdateState(m_nStepIndex, WizStepVisited);
    return !bVisited;
}

// --- What a screen reader is told

LRESULT QVWizardStepWnd::OnGetObject(WPARAM wParam, LPARAM lParam) {
    return AsksAccessible(lParam) ? AnswerAccessible(wParam, lParam) : Default();
}

// The steps that would be drawn at this moment.
const std::vector<_QVWIZSTEP_INFO>& QVWizardStepWnd::Steps() {
    static const std::vector<_QVWIZSTEP_INFO> s_none;
    const QVWizardStepData* pData = QVWizardStepData::GetWizStepData();
    return pData != nullptr ? pData->m_Steps : s_none;
}

// Null for no step.
const _QVWIZSTEP_INFO* QVWizardStepWnd::PartStep(long nPart) const {
    return nPart > 0 && static_cast<std::size_t>(nPart) <= Steps().size()
               ? &Steps()[static_cast<std::size_t>(nPart) - 1]
               : nullptr;
}

CString QVWizardStepWnd::GetAccessibleName(long nPart) {
    const _QVWIZSTEP_INFO* pStep = PartStep(nPart);
    return pStep != nullptr ? WithoutMarks(pStep->szTitle) : QVAccessible::GetAccessibleName(nPart);
}

CString QVWizardStepWnd::GetAccessibleDescription(long nPart) {
    CString strPlace;
    if (PartStep(nPart) != nullptr) {
        strPlace.Format("%ld of %ld", nPart, GetAccessibleCount());
    }
    return strPlace;
}

long QVWizardStepWnd::GetAccessibleRole(long nPart) {
    return nPart == CHILDID_SELF ? ROLE_SYSTEM_LIST : ROLE_SYSTEM_LISTITEM;
}

long QVWizardStepWnd::GetAccessibleState(long nPart) {
    const _QVWIZSTEP_INFO* pStep = PartStep(nPart);
    if (pStep == nullptr) {
        const bool bTabStop = (GetStyle() & WS_TABSTOP) != 0;
        return STATE_SYSTEM_READONLY |
               (bTabStop ? QVAccessible::GetAccessibleState(nPart) : AccessibleWindowState());
    }
    CRect rcStep;
    CRect rcClient;
    CRect rcShown;
    GetClientRect(&rcClient);
    GetAccessibleRect(nPart, rcStep);
    long nState = AccessibleWindowState() | STATE_SYSTEM_READONLY;
    if (!rcShown.IntersectRect(&rcStep, &rcClient)) {
        nState |= STATE_SYSTEM_OFFSCREEN | STATE_SYSTEM_INVISIBLE;
    }
    return nState | (pStep->dwStepID == m_dwStepID ? STATE_SYSTEM_SELECTED : 0) |
           (pStep->nState == WizStepVisited ? STATE_SYSTEM_TRAVERSED : 0);
}

BOOL QVWizardStepWnd::GetAccessibleRect(long nPart, CRect& rect) {
    if (PartStep(nPart) == nullptr) {
        return QVAccessible::GetAccessibleRect(nPart, rect);
    }
    CRect rcClient;
    GetClientRect(&rcClient);
    qv::StepRowReader reader(Steps(), m_dwStepID, static_cast<int>(rcClient.right), m_nUnit);
    reader.Skip(static_cast<std::size_t>(nPart) - 1);
    qv::StepRow row;
    reader.Next(row);
    rect = qv::ToCRect(row.rcBox);
    rect.right = std::max(rect.right, static_cast<LONG>(row.rcTitle.right));
    return TRUE;
}

long QVWizardStepWnd::GetAccessibleCount() {
    return static_cast<long>(Steps().size());
}

long QVWizardStepWnd::AccessibleHitTest(CPoint pt) {
    const long nPart = qv::StepAtY(static_cast<int>(pt.y), Steps().size(), m_nUnit) + 1;
    CRect rect;
    return nPart != 0 && GetAccessibleRect(nPart, rect) && rect.PtInRect(pt) ? nPart : CHILDID_SELF;
}

long QVWizardStepWnd::GetAccessibleFocus() {
    return CHILDID_SELF;
}

long QVWizardStepWnd::GetNextAccessibleSelected(long nPart) {
    const std::vector<_QVWIZSTEP_INFO>& steps = Steps();
    const auto first = steps.begin() + std::min(nPart, GetAccessibleCount());
    const auto it = std::find_if(first, steps.end(),
                                 [this](const auto& step) { return step.dwStepID == m_dwStepID; });
    return it != steps.end() ? static_cast<long>(it - steps.begin()) + 1 : 0;
}
