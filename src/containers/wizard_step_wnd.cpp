#include "containers/wizard_step_wnd.h"

#include "containers/core/wizard_diagram.h"
#include "containers/wizard_page.h"
#include "containers/wizard_step_data.h"
#include "frame/ancestor_font.h"
#include "frame/dc_guards.h"
#include "frame/out_of_memory.h"
#include "frame/rectangles.h"
#include "frame/text_out.h"

#include <array>

IMPLEMENT_DYNCREATE(QVWizardStepWnd, QVCustCtrl)

QVWizardStepWnd::QVWizardStepWnd() = default;

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
    if (m_nStepIndex != -1) {
        pData->UpdateState(m_nStepIndex, WizStepVisited);
    }
    qv::StepRowReader reader(pData->m_Steps, m_dwStepID, rect.right);
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
}
