// A tree in a recording parent that has a font, on the screen.
#pragma once

#include "QVControls.h"
#include "support/recording_parent.h"

#include <functional>
#include <string>

// A parent that tells its font, as dialogs do, and may be made to do something before it looks at a
// message.
class FontParent : public RecordingParent {
public:
    explicit FontParent(CSize size, DWORD dwStyle = WS_OVERLAPPEDWINDOW | WS_CLIPCHILDREN)
        : RecordingParent(size, dwStyle) {
        m_font.CreatePointFont(90, "Tahoma");
    }
    // From now on it wants no memory for what it is told.
    void BeQuiet() {
        m_onMessage = [](UINT nMessage, WPARAM) {
            return nMessage == WM_NOTIFY || nMessage == WM_COMMAND;
        };
    }
    std::function<bool(UINT nMessage, WPARAM wParam)> m_onMessage;  // true: that was all

protected:
    LRESULT WindowProc(UINT nMessage, WPARAM wParam, LPARAM lParam) override {
        if (m_onMessage && m_onMessage(nMessage, wParam)) {
            return 0;
        }
        return nMessage == WM_GETFONT ? reinterpret_cast<LRESULT>(m_font.GetSafeHandle())
                                      : RecordingParent::WindowProc(nMessage, wParam, lParam);
    }

private:
    CFont m_font;
};

constexpr DWORD kTreeStyle =
    WS_CHILD | WS_VISIBLE | TVS_HASLINES | TVS_HASBUTTONS | TVS_LINESATROOT;
constexpr UINT kTreeId = 77;

template <class Tree = QVTreeCtrlEx>
class TreeWindow {
public:
    explicit TreeWindow(DWORD dwStyle = kTreeStyle, CSize size = CSize(300, 200)) : parent(size) {
        for (const UINT nCode : {TVN_SELCHANGING, TVN_SELCHANGED, TVN_ITEMEXPANDING,
                                 TVN_ITEMEXPANDED, static_cast<UINT>(NM_DBLCLK)}) {
            parent.SetSize(nCode, sizeof(NM_TREEVIEW));
        }
        tree.Create(dwStyle, CRect(CPoint(0, 0), size), &parent, kTreeId);
    }
    HTREEITEM Add(const char* psz, HTREEITEM hParent = nullptr) {
        return tree.InsertItem(psz, 0, 1, hParent, TVI_LAST);
    }
    int RowHeight() {
        CRect rc;
        return tree.GetItemRect(tree.GetNextItem(nullptr, TVGN_FIRSTVISIBLE), &rc, FALSE)
                   ? rc.Height()
                   : 0;
    }
    CRect RectOf(HTREEITEM h, BOOL bText = TRUE) {
        CRect rc;
        return tree.GetItemRect(h, &rc, bText) ? rc : CRect();
    }
    // The middle of the text, of the button left of the row, of the state image.
    CPoint TextOf(HTREEITEM h) { return RectOf(h).CenterPoint(); }
    CPoint ButtonOf(HTREEITEM h) {
        const CRect rc = RectOf(h, FALSE);
        return CPoint(rc.left - 9, rc.CenterPoint().y);
    }
    CPoint CheckOf(HTREEITEM h) {
        const CRect rc = RectOf(h, FALSE);
        return CPoint(rc.left + 6, rc.CenterPoint().y);
    }
    // Codes and items of the tree's notifications in order: "ing a>b", "ed a>b", "ex b", "exd b",
    // "dbl".
    std::string Told() {
        std::string strTold;
        for (const auto& n : parent.m_notifications) {
            const auto& nm = n.As<NM_TREEVIEW>();
            const auto name = [&](const TVITEM& item) {
                return item.hItem == nullptr ? "-" : std::string(tree.GetItemText(item.hItem));
            };
            const std::string strItems = name(nm.itemOld) + ">" + name(nm.itemNew);
            strTold += strTold.empty() ? "" : " | ";
            strTold += n.code == TVN_SELCHANGING                ? "ing " + strItems
                       : n.code == TVN_SELCHANGED               ? "ed " + strItems
                       : n.code == TVN_ITEMEXPANDING            ? "ex " + name(nm.itemNew)
                       : n.code == TVN_ITEMEXPANDED             ? "exd " + name(nm.itemNew)
                       : n.code == static_cast<UINT>(NM_DBLCLK) ? "dbl"
                                                                : "code " + std::to_string(n.code);
        }
        parent.Forget();
        return strTold;
    }

    FontParent parent;
    Tree tree;
};
