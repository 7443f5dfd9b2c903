// A list box or combo box in a recording parent that has a font, as a dialog has it: the window is
// there before its object. The parent hands the notifications of a list's header on.
#pragma once

#include "QVControls.h"
#include "support/list_window.h"
#include "support/mortal.h"

#include <functional>
#include <memory>
#include <string>
#include <type_traits>

constexpr UINT kBoxId = 81;
constexpr UINT kBoxHeaderId = 82;
inline COLORREF g_aBoxColors[] = {RGB(255, 0, 0), RGB(0, 255, 0), RGB(0, 0, 255)};

template <class Box>
constexpr bool kIsList = std::is_base_of_v<CListBox, Box>;
template <class Box>
constexpr bool kHasImages = !std::is_base_of_v<QVColorComboBox, Box>;

constexpr DWORD kListStyle = LBS_OWNERDRAWVARIABLE | LBS_HASSTRINGS | LBS_NOTIFY;
constexpr DWORD kComboStyle = CBS_OWNERDRAWVARIABLE | CBS_HASSTRINGS;

template <class Box>
constexpr DWORD kPlainBox = kIsList<Box> ? 0 : CBS_DROPDOWNLIST;

// What all boxes do alike for tests.
template <class Base>
class OpenBox : public Mortal<Base> {
public:
    LRESULT lRefusal = 0;                 // what insertions give, unless 0
    std::function<void(UINT)> onHandled;  // after a message; in a virtual step, 0

protected:
    LRESULT WindowProc(UINT nMessage, WPARAM wParam, LPARAM lParam) override {
        if (lRefusal != 0 && (nMessage == LB_INSERTSTRING || nMessage == CB_INSERTSTRING)) {
            return lRefusal;
        }
        const auto told = onHandled;
        const LRESULT lResult = Base::WindowProc(nMessage, wParam, lParam);
        if (told) {
            told(nMessage);
        }
        return lResult;
    }
};

class OpenListBox : public OpenBox<QVBitmapListBox> {
public:
    using QVBitmapListBox::m_anPrintHeaderTabs;
    using QVBitmapListBox::m_anPrintTabs;
    using QVBitmapListBox::m_bRedraw;
    using QVBitmapListBox::m_header;
    using QVBitmapListBox::m_imageList;
    using QVBitmapListBox::m_nTabs;
    using QVBitmapListBox::m_wndFrame;
    using QVBitmapListBox::RestoreSelections;
    using QVBitmapListBox::SaveSelections;

    int CalcTabs(CDC* pDC, int* pTabs) override {
        return calcTabs ? calcTabs(pTabs) : QVBitmapListBox::CalcTabs(pDC, pTabs);
    }
    void SortOnHeader(int nColumn) override {
        nSorted = nColumn;
        onHandled ? onHandled(0) : void();
    }
    void PreCreateHeaders(CRect& rc) override { rcShared = rc; }

    std::function<int(int*)> calcTabs;
    int nSorted = -1;
    CRect rcShared;
};

template <class Combo>
class OpenCombo : public OpenBox<Combo> {
protected:
    void GetDisplayText(int nItem, DWORD_PTR dwItemData, int bEdit, CString& str) override {
        Combo::GetDisplayText(nItem, dwItemData, bEdit, str);
        this->onHandled ? this->onHandled(0) : void();
    }
};
using OpenColorCombo = OpenCombo<QVColorComboBox>;

class OpenBitmapCombo : public OpenCombo<QVBitmapComboBox> {
public:
    using QVBitmapComboBox::m_imageList;
    using QVBitmapComboBox::m_nBitmapHeight;
    using QVBitmapComboBox::m_nBitmapWidth;
    using QVBitmapComboBox::m_nFontHeight;
    int nIndent = 0;

protected:
    int GetItemIndent(int nItem, DWORD_PTR dwItemData) override {
        return nIndent != 0 ? nIndent + nItem + static_cast<int>(dwItemData) : 0;
    }
};

/// With images 12 wide, or with the three colours.
template <class Box>
int SetUpBox(Box& box, CWnd* pParent, UINT nID = kBoxId, bool bImages = true) {
    if constexpr (kHasImages<Box>) {
        const int nWidth = bImages ? kListImageWidth : 0;
        return box.Initialize(nID, kListImages, kListImageMask, nWidth, pParent);
    } else {
        return box.Initialize(nID, g_aBoxColors, 3, pParent);
    }
}
template <class Box>
int InsertRow(Box& box, int nNumber, int nIndex, const char* pszText) {
    if constexpr (kHasImages<Box>) {
        return box.InsertBitmapString(nNumber, nIndex, pszText);
    } else {
        return box.InsertColorString(nNumber, nIndex, pszText);
    }
}

template <class Box>
class BoxWindow {
public:
    explicit BoxWindow(DWORD dwStyle = kPlainBox<Box>, bool bImages = true, bool bHeader = false)
        : parent(CSize(340, 200)) {
        ::CreateWindowEx(0, kIsList<Box> ? "LISTBOX" : "COMBOBOX", "",
                         WS_CHILD | WS_VISIBLE | WS_VSCROLL | dwStyle |
                             (kIsList<Box> ? kListStyle : kComboStyle),
                         10, 20, 300, 160, parent.m_hWnd,
                         reinterpret_cast<HMENU>(static_cast<UINT_PTR>(kBoxId)), nullptr, nullptr);
        if constexpr (kIsList<Box>) {
            box->SetHeader(bHeader ? kBoxHeaderId : 0);
            parent.m_hook = [this](NMHDR* pHdr, LRESULT*) {
                if (pHdr->idFrom == kBoxHeaderId && box != nullptr) {
                    box->OnHdNotify(static_cast<int>(pHdr->code),
                                    reinterpret_cast<NMHEADER*>(pHdr));
                }
                return false;
            };
        }
        SetUpBox(*box, &parent, kBoxId, bImages);
    }
    ~BoxWindow() {
        parent.m_hook = nullptr;
        parent.m_onMessage = nullptr;
    }
    std::string Stored(int nRow) {
        CString str;
        if constexpr (kIsList<Box>) {
            box->GetText(nRow, str);
        } else {
            box->GetLBText(nRow, str);
        }
        return std::string(str);
    }
    // The selected row of a combo box; those of a list, the caret in brackets: "0|2(2)".
    std::string Selection() {
        std::string str;
        if constexpr (!kIsList<Box>) {
            return std::to_string(box->GetCurSel());
        } else {
            for (int i = 0; i < box->GetCount(); ++i) {
                str += box->GetSel(i) > 0 ? (str.empty() ? "" : "|") + std::to_string(i) : "";
            }
            return str + "(" + std::to_string(box->GetCaretIndex()) + ")";
        }
    }

    FontParent parent;
    std::unique_ptr<Box> box = std::make_unique<Box>();
};
