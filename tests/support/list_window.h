// A list in a recording parent that has a font, on the screen.
#pragma once

#include "QVControls.h"
#include "support/tree_window.h"

#include <string>
#include <vector>

constexpr UINT kListId = 78;
constexpr UINT kListImages = 30008;  // the library's own check marks, 12 pixels wide
constexpr int kListImageWidth = 12;
constexpr COLORREF kListImageMask = RGB(0, 128, 128);

// What only derived classes see.
template <class List = QVListCtrlEx>
class OpenList : public List {
public:
    using List::FillEmptySpace;
    using List::m_nClientWidth;
    using List::m_nDataWidth;
    using List::m_nTextHeight;
    using List::SortOnHeader;
};

template <class List = QVListCtrlEx>
class ListWindow {
public:
    explicit ListWindow(const char* pszHeaders = nullptr, bool bImages = false,
                        CSize size = CSize(400, 200))
        : parent(size) {
        list.Create(kListId, CRect(CPoint(0, 0), size), kListImages, kListImageMask,
                    bImages ? kListImageWidth : 0, &parent);
        if (pszHeaders != nullptr) {
            list.QVListCtrlEx::AddHeader(pszHeaders);
        }
    }
    int Add(const char* pszRow, int nImage = 0) {
        return list.InsertBitmapString(nImage, -1, pszRow);
    }
    std::string Row(int nItem) {
        CString str;
        return list.GetItemString(nItem, str) ? std::string(str) : "none";
    }
    // All rows, '|' between.
    std::string Rows() {
        std::string strRows;
        for (int i = 0; i < list.GetItemCount(); ++i) {
            strRows += (i > 0 ? "|" : "") + Row(i);
        }
        return strRows;
    }
    CRect RectOf(int nItem) {
        CRect rc;
        list.GetItemRect(nItem, &rc, LVIR_BOUNDS);
        return rc;
    }

    FontParent parent;
    OpenList<List> list;
};

// A device context that writes down the texts that are drawn on it.
class TextRecorder : public CDC {
public:
    struct Text {
        std::string str;
        CRect rc;
        UINT nFormat;
        COLORREF crText;
        HGDIOBJ hFont;
    };

    explicit TextRecorder(CSize size = CSize(1, 1)) {
        CreateCompatibleDC(nullptr);
        m_bitmap.CreateBitmap(size.cx, size.cy, 1, 32, nullptr);
        m_hOld = ::SelectObject(m_hDC, m_bitmap);
        m_bPrinting = TRUE;
    }
    ~TextRecorder() override { ::SelectObject(m_hDC, m_hOld); }

    using CDC::DrawText;
    int DrawText(LPCTSTR psz, int nCount, LPRECT pRect, UINT nFormat) override {
        texts.push_back(
            {nCount < 0 ? std::string(psz) : std::string(psz, static_cast<size_t>(nCount)),
             CRect(pRect), nFormat, GetTextColor(), ::GetCurrentObject(m_hDC, OBJ_FONT)});
        return CDC::DrawText(psz, nCount, pRect, nFormat);
    }
    // The texts, '|' between.
    std::string All() const {
        std::string strAll;
        for (const Text& text : texts) {
            strAll += (strAll.empty() ? "" : "|") + text.str;
        }
        return strAll;
    }

    std::vector<Text> texts;

private:
    CBitmap m_bitmap;
    HGDIOBJ m_hOld;
};
