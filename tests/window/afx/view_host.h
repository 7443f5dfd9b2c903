// A frame of its own for a view.
#pragma once

#include "support/pump.h"

#include <afxwin.h>

class EmptyDocument : public CDocument {};

/// A frame with one view of the class, on a document.
template <class View, class Doc = EmptyDocument>
class ViewHost {
public:
    ViewHost() {
        auto* pFrame = new CFrameWnd;
        CCreateContext context;
        context.m_pNewViewClass = RUNTIME_CLASS(View);
        context.m_pCurrentDoc = &m_doc;
        m_doc.m_bAutoDelete = FALSE;
        pFrame->Create(nullptr, "", WS_OVERLAPPEDWINDOW, CRect(60, 60, 360, 260), nullptr, nullptr,
                       0, &context);
        pFrame->InitialUpdateFrame(&m_doc, TRUE);
        m_hFrame = *pFrame;
        PumpPending();
    }
    ~ViewHost() { ::DestroyWindow(m_hFrame); }
    CFrameWnd* Frame() { return static_cast<CFrameWnd*>(CWnd::FromHandlePermanent(m_hFrame)); }
    View* operator->() { return static_cast<View*>(Frame()->GetActiveView()); }
    View& operator*() { return *operator->(); }
    bool IsEnabled(UINT nID) {
        CMenu menu;
        menu.CreatePopupMenu();
        menu.AppendMenu(MF_STRING, nID, "command");
        Frame()->SendMessage(WM_INITMENUPOPUP, reinterpret_cast<WPARAM>(menu.m_hMenu));
        return !(menu.GetMenuState(0, MF_BYPOSITION) & MF_GRAYED);
    }
    void Command(UINT nID) { Frame()->SendMessage(WM_COMMAND, nID); }
    Doc m_doc;

private:
    HWND m_hFrame;
};
