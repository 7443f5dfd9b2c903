// The tree in real windows, beside the platform's own tree control in the same process: same size,
// font and texts.

#include "QVControls.h"
#include "window_bench.h"

#include <afxcmn.h>

#include <random>

namespace {

using bench::Compare;
using bench::Frame;

constexpr int kManyItems = 100000;
constexpr int kRedrawnItems = 10000;
constexpr int kRoots = 100;
constexpr int kMiddle = 10;
constexpr int kLeaves = 109;
constexpr DWORD kStyle = WS_CHILD | WS_VISIBLE | TVS_HASLINES | TVS_HASBUTTONS | TVS_LINESATROOT;

template <class Tree>
struct OursOf {
    Frame frame;
    Tree tree;
    OursOf() { tree.Create(kStyle, CRect(0, 0, 400, 600), &frame, 1); }
    HTREEITEM Add(const char* psz, HTREEITEM hParent) {
        return tree.InsertItem(psz, 0, 0, hParent, TVI_LAST);
    }
    void Open(HTREEITEM h) { tree.Expand(h, TVE_EXPAND, FALSE, FALSE); }
    void Clear() { tree.DeleteAllItems(); }
    CWnd& Window() { return tree; }
};

using Ours = OursOf<QVTreeCtrlEx>;

// Counts as one that replaces steps, though it replaces none.
class DerivedTree : public QVTreeCtrlEx {};

struct Theirs {
    Frame frame;
    CTreeCtrl tree;
    Theirs() {
        tree.Create(kStyle, CRect(0, 0, 400, 600), &frame, 1);
        tree.SetFont(&frame.m_font);
    }
    HTREEITEM Add(const char* psz, HTREEITEM hParent) {
        return tree.InsertItem(psz, 0, 0, hParent != nullptr ? hParent : TVI_ROOT, TVI_LAST);
    }
    void Open(HTREEITEM h) { tree.Expand(h, TVE_EXPAND); }
    void Clear() { tree.DeleteAllItems(); }
    CWnd& Window() { return tree; }
};

const std::vector<std::string>& Texts() {
    static const std::vector<std::string> s_texts = [] {
        std::mt19937 random(5);
        std::vector<std::string> texts;
        for (int i = 0; i < kManyItems; ++i) {
            texts.push_back("item " + std::to_string(random()));
        }
        return texts;
    }();
    return s_texts;
}

template <class Side>
void FillFlat(Side& side, int nItems) {
    side.Window().SetRedraw(FALSE);
    for (int i = 0; i < nItems; ++i) {
        side.Add(Texts()[static_cast<size_t>(i)].c_str(), nullptr);
    }
    side.Window().SetRedraw(TRUE);
    side.Window().UpdateWindow();
}

template <class Side>
double TimeFillFlat() {
    Side side;
    return bench::Time([&] { FillFlat(side, kManyItems); });
}

template <class Side>
double TimeFillDeep() {
    Side side;
    return bench::Time([&] {
        side.Window().SetRedraw(FALSE);
        for (int i = 0; i < kRoots; ++i) {
            HTREEITEM hRoot = side.Add("a section", nullptr);
            for (int k = 0; k < kMiddle; ++k) {
                HTREEITEM hMiddle = side.Add("a group", hRoot);
                for (int m = 0; m < kLeaves; ++m) {
                    side.Add(Texts()[static_cast<size_t>(m)].c_str(), hMiddle);
                }
                side.Open(hMiddle);
            }
            side.Open(hRoot);
        }
        side.Window().SetRedraw(TRUE);
        side.Window().UpdateWindow();
    });
}

// Rows that begin with signs, which may be others than ASCII has.
double TimeFillWith(const wchar_t* pszSigns) {
    constexpr size_t kRows = 20000;
    const std::string strSigns = static_cast<LPCSTR>(CString(pszSigns));
    std::vector<std::string> texts;
    for (size_t i = 0; i < kRows; ++i) {
        texts.push_back(strSigns + Texts()[i]);
    }
    Ours side;
    return bench::Time([&] {
        side.tree.SetRedraw(FALSE);
        for (const std::string& strText : texts) {
            side.Add(strText.c_str(), nullptr);
        }
        side.tree.SetRedraw(TRUE);
        side.tree.UpdateWindow();
    });
}

template <class Side>
double TimeDelete() {
    Side side;
    FillFlat(side, kManyItems);
    return bench::Time([&] { side.Clear(); });
}

template <class Side>
double TimeRedrawnInsertions() {
    Side side;
    return bench::Time([&] {
        for (int i = 0; i < kRedrawnItems; ++i) {
            side.Add(Texts()[static_cast<size_t>(i)].c_str(), nullptr);
        }
        side.Window().UpdateWindow();
    });
}

// Ten pages of branches and leaves, so that there are lines and buttons to draw.
template <class Side>
double TimeRepaint() {
    constexpr int kPaints = 20;
    Side side;
    side.Window().SetRedraw(FALSE);
    for (int i = 0; i < 100; ++i) {
        HTREEITEM h = side.Add(Texts()[static_cast<size_t>(i)].c_str(), nullptr);
        side.Add("child", h);
        side.Add("child", h);
        side.Open(h);
    }
    side.Window().SetRedraw(TRUE);
    side.Window().UpdateWindow();
    return bench::Time([&] {
               for (int i = 0; i < kPaints; ++i) {
                   side.Window().InvalidateRect(nullptr);
                   side.Window().UpdateWindow();
               }
           }) /
           kPaints;
}

template <class Tree>
double TimeSort() {
    OursOf<Tree> side;
    HTREEITEM hParent = side.Add("parent", nullptr);
    side.tree.SetRedraw(FALSE);
    for (const std::string& strText : Texts()) {
        side.Add(strText.c_str(), hParent);
    }
    return bench::Time([&] { side.tree.SortChildren(hParent); });
}

template <class Tree>
void MeasureSteps(int nRows, const std::string& strSuffix) {
    constexpr int kSteps = 50;
    OursOf<Tree> side;
    FillFlat(side, nRows);
    CWnd& wnd = side.Window();
    side.tree.SelectItem(side.tree.GetRootItem());
    const auto measure = [&](const char* pszName, UINT nMessage, WPARAM wThere, WPARAM wBack) {
        const double nTime = bench::MedianOf([&] {
            return bench::Time([&] {
                for (int i = 0; i < kSteps; ++i) {
                    wnd.SendMessage(nMessage, i % 10 < 5 ? wThere : wBack, 0);
                    wnd.UpdateWindow();
                }
            });
        });
        bench::Figure(("tree/" + std::string(pszName) + strSuffix).c_str(), nTime / kSteps * 1e6,
                      "us");
    };
    measure("wheel-notch-", WM_MOUSEWHEEL, MAKEWPARAM(0, static_cast<WORD>(-WHEEL_DELTA)),
            MAKEWPARAM(0, WHEEL_DELTA));
    measure("key-down-", WM_KEYDOWN, VK_DOWN, VK_UP);
    if (nRows == kManyItems) {
        const HTREEITEM hLast = side.tree.GetNextItem(side.tree.GetRootItem(), TVGN_NEXT);
        HTREEITEM hFar = hLast;
        for (int i = 0; i < nRows - 10; ++i) {
            hFar = side.tree.GetNextSiblingItem(hFar);
        }
        const double nEnsure = bench::MedianOf([&] {
            return bench::Time([&] {
                side.tree.EnsureVisible(hFar);
                wnd.UpdateWindow();
                side.tree.EnsureVisible(side.tree.GetRootItem());
                wnd.UpdateWindow();
            });
        });
        bench::Figure(("tree/ensure-visible-far-" + strSuffix).c_str(), nEnsure / 2 * 1e6, "us");
        const double nThumb = bench::MedianOf([&] {
            SCROLLINFO info{sizeof(info), SIF_POS, 0, 0, 0, nRows / 2, 0};
            return bench::Time([&] {
                ::SetScrollInfo(wnd.m_hWnd, SB_VERT, &info, FALSE);
                wnd.SendMessage(WM_VSCROLL, MAKEWPARAM(SB_THUMBPOSITION, 0), 0);
                wnd.UpdateWindow();
                info.nPos = 0;
                ::SetScrollInfo(wnd.m_hWnd, SB_VERT, &info, FALSE);
                wnd.SendMessage(WM_VSCROLL, MAKEWPARAM(SB_THUMBPOSITION, 0), 0);
                wnd.UpdateWindow();
            });
        });
        bench::Figure(("tree/thumb-middle-" + strSuffix).c_str(), nThumb / 2 * 1e6, "us");
    }
}

}  // namespace

void MeasureTree() {
    Compare("tree/fill-flat-100k", 1e3, "ms",
            bench::FastestPair(TimeFillFlat<Ours>, TimeFillFlat<Theirs>));
    Compare("tree/fill-3level-110k", 1e3, "ms",
            bench::FastestPair(TimeFillDeep<Ours>, TimeFillDeep<Theirs>));
    const bench::Pair signs =
        bench::FastestPair([] { return TimeFillWith(L"\u201C\u201D\u20AC\u2013"); },
                           [] { return TimeFillWith(L"\"\"E-"); });
    bench::Figure("tree/fill-20k-quotes", signs.ours * 1e3, "ms");
    bench::Ratio("tree/fill-20k-quotes", signs.ours, signs.theirs);
    Compare("tree/delete-all-100k", 1e3, "ms",
            bench::FastestPair(TimeDelete<Ours>, TimeDelete<Theirs>));
    Compare("tree/repaint-page", 1e3, "ms",
            bench::FastestPair(TimeRepaint<Ours>, TimeRepaint<Theirs>));
    MeasureSteps<QVTreeCtrlEx>(100, "100");
    MeasureSteps<QVTreeCtrlEx>(kManyItems, "100k");
    MeasureSteps<DerivedTree>(100, "100-derived");
    MeasureSteps<DerivedTree>(kManyItems, "100k-derived");
    bench::Figure("tree/sort-100k", bench::MedianOf(TimeSort<QVTreeCtrlEx>) * 1e3, "ms");
    bench::Figure("tree/sort-100k-derived", bench::MedianOf(TimeSort<DerivedTree>) * 1e3, "ms");
    // The platform's control takes most of a minute for this, so it runs once.
    Compare("tree/insert-redraw-on-10k", 1e3, "ms",
            {bench::MedianOf(TimeRedrawnInsertions<Ours>), TimeRedrawnInsertions<Theirs>()});
}
