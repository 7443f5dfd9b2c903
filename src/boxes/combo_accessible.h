// What a combo box that draws its own rows tells a screen reader, and the list that it opens. The
// platform's own list would say the strings that it keeps, with numbers and style codes.
//
// The combo box has the parts that the platform's has: its text, or its edit, which answers for
// itself; its button; its list, a window of its own with a part for each row, counted from 1.

#pragma once

#include "frame/accessible.h"
#include "frame/alive.h"

#include <memory>

class QV_CONTROLS_API QVComboAccessible : public QVAccessible {
public:
    // What is heard of a row of the list.
    virtual CString GetAccessibleRow(int nRow) = 0;

    // The text before the combo box in its dialog.
    CString GetAccessibleName(long nPart) override;
    // The selected row, or what is typed.
    CString GetAccessibleValue(long nPart) override;
    // "Open" or "Close".
    CString GetAccessibleAction(long nPart) override;
    long GetAccessibleRole(long nPart) override;
    long GetAccessibleState(long nPart) override;
    BOOL GetAccessibleRect(long nPart, CRect& rect) override;
    long GetAccessibleCount() override;
    HWND GetAccessibleWindow(long nPart) override;
    long AccessibleHitTest(CPoint pt) override;
    BOOL DoAccessibleAction(long nPart) override;
    // Of a combo box with an edit: as typed.
    BOOL SetAccessibleValue(long nPart, const CString& strValue) override;

protected:
    // combo is the control that derives from this, and alive its token.
    QVComboAccessible(CComboBox& combo, const qv::AliveToken& alive);
    ~QVComboAccessible() override;

    // For WindowProc: handle does what there is to be done with a message.
    template <class Handle>
    LRESULT FollowMessage(UINT nMessage, WPARAM wParam, LPARAM lParam, Handle handle) {
        if (nMessage == WM_GETOBJECT && AsksAccessible(lParam)) {
            m_bAsked = true;
            FollowList();
            return AnswerAccessible(wParam, lParam);
        }
        const bool bReads = nMessage == CB_GETLBTEXT || nMessage == CB_GETLBTEXTLEN;
        const qv::WindowWatch watch(m_comboAlive, m_combo.m_hWnd);
        if (bReads) {
            BeginReading();
        } else {
            SeeMessage(nMessage);
        }
        const LRESULT lResult = handle();
        if (watch) {
            bReads ? EndReading() : TellChange(nMessage, wParam);
        }
        return lResult;
    }

private:
    class List;
    // What listeners know.
    struct Told {
        int nRow = kUnknown;
        bool bOpen = false;
        static constexpr int kUnknown = -2;
    };

    DWORD Kind() const;
    bool HasFocus() const;
    Told Now() const;
    void FollowList();
    void BeginReading();
    void EndReading();
    void SeeMessage(UINT nMessage);
    void TellChange(UINT nMessage, WPARAM wParam);
    void TellRow();

    CComboBox& m_combo;
    const qv::AliveToken& m_comboAlive;
    std::unique_ptr<List> m_pList;
    HWND m_hFollowed = nullptr;  // the combo box that the list is of
    bool m_bAsked = false;       // by anybody who reads the screen
    Told m_told;
};
