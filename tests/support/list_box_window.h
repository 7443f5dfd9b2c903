// A list box in a recording parent that has a font, as a dialog has it: the window is there before
// its object. The parent hands the header's notifications on.
#pragma once

#include "QVControls.h"
#include "support/list_window.h"

#include <climits>
#include <functional>
#include <string>
#include <vector>

constexpr UINT kBoxId = 81;
constexpr UINT kBoxHeaderId = 82;
constexpr DWORD kBoxStyle = LBS_OWNERDRAWVARIABLE | LBS_HASSTRINGS | LBS_NOTIFY | WS_VSCROLL;

// What derived classes see and replace.
class OpenListBox : public QVBitmapListBox {
public:
    using QVBitmapListBox::m_anPrintHeaderTabs;
    using QVBitmapListBox::m_anPrintTabs;
    using QVBitmapListBox::m_anTabs;
    using QVBitmapListBox::m_bRedraw;
    using QVBitmapListBox::m_header;
    using QVBitmapListBox::m_nItemHeight;
    using QVBitmapListBox::m_nPrintHeaderHeight;
    using QVBitmapListBox::m_nTabs;
    using QVBitmapListBox::m_wndFrame;
    using QVBitmapListBox::RestoreSelections;
    using QVBitmapListBox::SaveSelections;

    int CalcTabs(CDC* pDC, int* pTabs) override {
        return calcTabs ? calcTabs(pTabs) : QVBitmapListBox::CalcTabs(pDC, pTabs);
    }
    void SortOnHeader(int nColumn) override {
        nSorted = nColumn;
        if (onSort) {
            onSort();
        }
    }
    void PreCreateHeaders(CRect& rc) override {
        rcShared = rc;
        rc.top += nSpared;
    }

    std::function<int(int*)> calcTabs;
    std::function<void()> onSort;
    int nSorted = -1;
    int nSpared = 0;
    CRect rcShared;
    LRESULT lRefusal = 0;  // what insertions give, unless 0

protected:
    LRESULT WindowProc(UINT nMessage, WPARAM wParam, LPARAM lParam) override {
        return nMessage == LB_INSERTSTRING && lRefusal != 0
                   ? lRefusal
                   : QVBitmapListBox::WindowProc(nMessage, wParam, lParam);
    }
};

// A parent that may be made to do something before it looks at a message.
class HookedParent : public FontParent {
public:
    using FontParent::FontParent;
    std::function<bool(UINT nMessage)> onMessage;  // true: that was all

protected:
    LRESULT WindowProc(UINT nMessage, WPARAM wParam, LPARAM lParam) override {
        return onMessage && onMessage(nMessage) ? 0
                                                : FontParent::WindowProc(nMessage, wParam, lParam);
    }
};

template <class List = OpenListBox>
class ListBoxWindow {
public:
    explicit ListBoxWindow(DWORD dwStyle = 0, bool bImages = false, bool bHeader = false,
                           CSize size = CSize(300, 160))
        : parent(size + CSize(40, 40)) {
        ::CreateWindowEx(0, "LISTBOX", "", WS_CHILD | WS_VISIBLE | kBoxStyle | dwStyle, 10, 20,
                         size.cx, size.cy, parent.m_hWnd,
                         reinterpret_cast<HMENU>(static_cast<UINT_PTR>(kBoxId)), nullptr, nullptr);
        parent.m_hook = [this](NMHDR* pHdr, LRESULT*) {
            if (pHdr->idFrom == kBoxHeaderId && !bDeleted) {
                list->OnHdNotify(static_cast<int>(pHdr->code), reinterpret_cast<NMHEADER*>(pHdr));
            }
            return false;
        };
        list->SetHeader(bHeader ? kBoxHeaderId : 0);
        Initialize(bImages);
    }
    ~ListBoxWindow() {
        parent.m_hook = nullptr;
        parent.onMessage = nullptr;
        if (!bDeleted) {
            delete list;
        }
    }
    int Initialize(bool bImages) {
        return list->Initialize(kBoxId, kListImages, kListImageMask, bImages ? kListImageWidth : 0,
                                &parent);
    }
    std::string Row(int nRow) {
        CString str("none");
        list->GetItemString(nRow, str);
        return std::string(str);
    }
    std::string Stored(int nRow) {
        CString str;
        list->GetText(nRow, str);
        return std::string(str);
    }
    // In the parent's client area.
    CRect RectOf(const CWnd& wnd) {
        CRect rc;
        wnd.GetWindowRect(&rc);
        parent.ScreenToClient(&rc);
        return rc;
    }
    CRect RowRect(int nRow) {
        CRect rc;
        list->GetItemRect(nRow, &rc);
        return rc;
    }
    // Selected rows, '|' between, the caret in brackets.
    std::string Selection() {
        std::string str;
        for (int i = 0; i < list->GetCount(); ++i) {
            if (list->GetSel(i) > 0) {
                str += (str.empty() ? "" : "|") + std::to_string(i);
            }
        }
        return str + "(" + std::to_string(list->GetCaretIndex()) + ")";
    }
    HDITEM HeaderItem(int nItem) {
        HDITEM item{};
        item.mask = HDI_WIDTH | HDI_FORMAT;
        list->m_header.GetItem(nItem, &item);
        return item;
    }

    HookedParent parent;
    List* list = new List;
    bool bDeleted = false;
};
