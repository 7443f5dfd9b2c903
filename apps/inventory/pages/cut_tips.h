// Cells whose text is cut, by their column or by the window, say the whole of it in a tooltip.

#pragma once

#include "QVControls.h"

#include <string>

struct TipCell {
    INT_PTR nId = -1;  // tells it from the control's other cells
    CRect rcText;      // the room for the text, in client pixels
    UINT nAlign = DT_LEFT;
    CString strText;
};

// The font of the nearest window that has one; null: there is none.
CFont* NearestFontOf(CWnd& wnd);

// Some of the text does not show.
bool IsCut(CWnd& wnd, const TipCell& cell);

// For controls of columns: Control and its tooltips.
template <class Control>
class CutTips : public Control {
protected:
    // False: there is no cell.
    virtual bool TipCellAt(CPoint pt, TipCell& cell) = 0;

    void PreSubclassWindow() override {
        Control::PreSubclassWindow();
        this->EnableToolTips();
    }

    INT_PTR OnToolHitTest(CPoint pt, TOOLINFO* pTool) const override {
        auto& self = const_cast<CutTips&>(*this);
        TipCell cell;
        if (pTool == nullptr || !self.TipCellAt(pt, cell) || !IsCut(self, cell)) {
            return -1;
        }
        self.m_strTip = cell.strText;
        pTool->hwnd = this->m_hWnd;
        pTool->uId = static_cast<UINT_PTR>(cell.nId);
        pTool->rect = cell.rcText;
        pTool->lpszText = LPSTR_TEXTCALLBACK;
        return cell.nId;
    }

    BOOL OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* pResult) override {
        auto* pHeader = reinterpret_cast<NMHDR*>(lParam);
        if (pHeader->code == TTN_NEEDTEXTA) {
            reinterpret_cast<NMTTDISPINFOA*>(lParam)->lpszText = m_strTip.GetBuffer();
        } else if (pHeader->code == TTN_NEEDTEXTW) {
            const int nWide = ::MultiByteToWideChar(CP_ACP, 0, m_strTip, -1, nullptr, 0);
            m_strWideTip.resize(static_cast<size_t>(nWide));
            ::MultiByteToWideChar(CP_ACP, 0, m_strTip, -1, m_strWideTip.data(), nWide);
            reinterpret_cast<NMTTDISPINFOW*>(lParam)->lpszText = m_strWideTip.data();
        } else {
            return Control::OnNotify(wParam, lParam, pResult);
        }
        *pResult = 0;
        return TRUE;
    }

private:
    CString m_strTip;
    std::wstring m_strWideTip;
};

// nImageWidth: of the images in the first column.
bool ListTipCellAt(QVListCtrlEx& list, CPoint pt, int nImageWidth, TipCell& cell);

template <class List>
class CutTipList : public CutTips<List> {
protected:
    virtual int ImageWidth() { return 0; }
    bool TipCellAt(CPoint pt, TipCell& cell) override {
        return ListTipCellAt(*this, pt, ImageWidth(), cell);
    }
};
