// What pages of tab windows and of tab views do alike, and what is done with them.

#pragma once

#include "containers/page_life.h"
#include "frame/out_of_memory.h"

namespace qv {

// Dialogs take the focus as they are made, and a page is not shown then.
class FocusKept {
public:
    FocusKept() : m_hFocus(::GetFocus()) {}
    ~FocusKept() {
        if (::GetFocus() != m_hFocus && (m_hFocus == nullptr || ::IsWindow(m_hFocus))) {
            ::SetFocus(m_hFocus);
        }
    }
    FocusKept(const FocusKept&) = delete;
    FocusKept& operator=(const FocusKept&) = delete;

private:
    const HWND m_hFocus;
};

// An object of the class, or null if that makes no Page.
template <class Page>
Page* NewPage(CRuntimeClass* pClass) {
    CObject* pObject = pClass != nullptr ? pClass->CreateObject() : nullptr;
    auto* pPage = DYNAMIC_DOWNCAST(Page, pObject);
    if (pPage == nullptr) {
        delete pObject;
    }
    return pPage;
}

// Makes the page's window as a child of the tabs. True if it has one, hidden, afterwards. Page and
// tabs may be gone.
template <class Page>
bool MakePage(Page& page, PageLife& life, CWnd& tabs) {
    const PageLife::InUse inUse(life);
    int bMade = 0;
    {
        const FocusKept focus;
        bMade = page.Create(&tabs);
    }
    if (!bMade || !inUse || page.m_hWnd == nullptr) {
        return false;
    }
    page.ModifyStyleEx(0, WS_EX_CONTROLPARENT);
    page.ShowWindow(SW_HIDE);
    return inUse && page.m_hWnd != nullptr;
}

// Takes the page's window away, and the object as soon as none of its functions runs.
inline void DiscardPage(CWnd& page, PageLife& life) {
    const PageLife::InUse inUse(life);
    page.DestroyWindow();
    if (inUse) {
        life.Discard();
    }
}

// Appends a page and its title, both or none.
template <class Page>
bool KeepPage(CArray<Page*, Page*>& pages, CStringArray& titles, Page& page, const char* pszTitle) {
    const INT_PTR nPage = pages.GetSize();
    if (MemorySuffices([&] {
            pages.Add(&page);
            titles.Add(pszTitle);
        })) {
        return true;
    }
    if (pages.GetSize() > nPage) {
        pages.RemoveAt(nPage);
    }
    return false;
}

// The window that has the tabs which the page is in. Null if it is no Owner, or without a window.
template <class Owner>
Owner* OwnerOfPage(HWND hPage) {
    HWND hTabs = hPage != nullptr ? ::GetParent(hPage) : nullptr;
    HWND hOwner = hTabs != nullptr ? ::GetParent(hTabs) : nullptr;
    return hOwner != nullptr ? DYNAMIC_DOWNCAST(Owner, CWnd::FromHandlePermanent(hOwner)) : nullptr;
}

inline void MoveInset(CWnd& page, const CRect& rect) {
    constexpr int kPageInset = 10;
    page.MoveWindow(rect.left + kPageInset, rect.top + kPageInset, rect.Width() - 2 * kPageInset,
                    rect.Height() - 2 * kPageInset, TRUE);
}

// A main window that is no frame has no accelerators.
inline BOOL TranslateByMainWindow(MSG& msg) {
    auto* pFrame = DYNAMIC_DOWNCAST(CFrameWnd, AfxGetMainWnd());
    const HACCEL hTable = pFrame != nullptr ? pFrame->GetDefaultAccelerator() : nullptr;
    return hTable != nullptr && ::TranslateAccelerator(pFrame->m_hWnd, hTable, &msg);
}

// A page's message before it is dispatched: the main window's accelerators, then what translate
// does. hWndFocus: the control of the page that had the focus last; a frame that comes to the front
// gives the focus to its client window, which knows nothing of who had it before.
template <class Translate>
BOOL TranslateInPage(const CWnd& page, PageLife& life, MSG& msg, HWND& hWndFocus,
                     Translate translate) {
    const PageLife::InUse inUse(life);
    if (TranslateByMainWindow(msg) || !inUse) {
        return TRUE;
    }
    const BOOL bDone = translate();
    if (inUse && page.m_hWnd != nullptr) {
        HWND hFocus = ::GetFocus();
        if (::IsChild(page.m_hWnd, hFocus)) {
            hWndFocus = hFocus;
        }
    }
    return bDone;
}

// False if that control cannot have the focus any more.
inline bool GiveFocusBack(HWND hPage, HWND hWndFocus) {
    const bool bCan =
        ::IsChild(hPage, hWndFocus) && ::IsWindowVisible(hWndFocus) && ::IsWindowEnabled(hWndFocus);
    if (bCan) {
        ::SetFocus(hWndFocus);
    }
    return bCan;
}

}  // namespace qv
