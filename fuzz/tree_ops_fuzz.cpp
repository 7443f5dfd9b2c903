// Random sequences of all that a tree can be told, with its invariants checked after each.

#include "fuzz_input.h"
#include "support/test_tree.h"

namespace {

class TreeRun {
public:
    TreeRun(const std::uint8_t* pData, std::size_t nSize) : m_input(pData, nSize) {
        m_tree.window.size = {static_cast<int>(m_input.Byte()), static_cast<int>(m_input.Byte())};
        m_tree.onSelect = [this](HTREEITEM h) { Select(h); };
        if (m_input.Byte() % 8 == 0) {
            m_tree.Replace(
                [this](HTREEITEM, HTREEITEM) { return static_cast<int>(m_input.Byte()) - 128; });
        }
    }

    void Run() {
        while (!m_input.AtEnd()) {
            Step();
            Check();
        }
    }

private:
    // A parent may do anything when it is told of a selection.
    void Select(HTREEITEM h) {
        switch (m_input.Byte() % 4) {
            case 0:
                m_tree.DeleteItem(h);
                break;
            case 1:
                m_tree.DeleteAllItems();
                break;
            default:
                m_tree.SelectItem(h);
        }
    }

    HTREEITEM Any() {
        const unsigned n = m_input.Byte();
        HTREEITEM h = n % 16 == 0 ? nullptr : m_tree.Root();
        for (unsigned i = 0; h != nullptr && i < n; ++i) {
            const HTREEITEM hNext = m_tree.Items().WalkNext(h);
            h = hNext != nullptr ? hNext : m_tree.Root();
        }
        return h;
    }

    void Insert() {
        const HTREEITEM positions[] = {nullptr, TVI_FIRST, TVI_LAST, TVI_SORT, Any()};
        HTREEITEM hParent = Any();
        for (unsigned n = 1 + m_input.Byte() % 40; n > 0; --n) {
            m_tree.Add(m_input.Text(), hParent, positions[m_input.Byte() % 5]);
        }
    }

    void Step() {
        switch (m_input.Byte() % 24) {
            case 0:
            case 1:
            case 2:
            case 3:
                return Insert();
            case 4:
                if (HTREEITEM h = Any(); h != nullptr || m_input.Byte() % 8 == 0) {
                    m_tree.DeleteItem(h);
                }
                return;
            case 5:
                m_tree.DeleteChildren(Any());
                return;
            case 6:
                m_tree.ChangeParent(Any(), Any());
                return;
            case 7:
                m_tree.SortChildren(Any());
                return;
            case 8:
            case 9:
            case 10:
                m_tree.Expand(Any(), m_input.Byte() % 5, true, m_input.Byte() % 2 != 0);
                return;
            case 11:
                m_tree.SetItemState(Any(), m_input.Byte() << 5 & TVIS_EXPANDED, TVIS_EXPANDED);
                return;
            case 12:
                m_tree.SetItemStateImage(Any(), m_input.Byte(), m_input.Byte() % 2 != 0);
                return;
            case 13:
                m_tree.SetItemText(Any(), m_input.Text().c_str());
                return;
            case 14:
                m_tree.SelectItem(Any());
                return;
            case 15: {
                int stops[4] = {m_input.Int(), m_input.Int(), m_input.Int() + 10000, 0};
                m_tree.UseTabs(stops, static_cast<int>(m_input.Byte() % 6) - 1 > 4 ? 4 : -1);
                return m_tree.SetIndentTabs(m_input.Byte() % 2 != 0);
            }
            case 16:
                return m_tree.SetRedraw(m_input.Byte() % 4 != 0);
            case 17:
                m_tree.window.size = {static_cast<int>(m_input.Byte()),
                                      static_cast<int>(m_input.Byte())};
                return m_tree.Resize();
            case 18:
                return m_tree.VScroll(m_input.Byte() % 9, m_input.Int());
            case 19:
                return m_tree.HScroll(m_input.Byte() % 9, m_input.Byte());
            case 20:
                m_tree.EnsureVisible(Any());
                return;
            case 21:
                m_tree.HitTest({m_input.Int() % 256, m_input.Int() % 256}, nullptr, nullptr);
                return;
            case 22:
                m_tree.StepView(m_input.Byte() % 2 != 0);
                return;
            default:
                m_tree.ChangeItemStyles(Any(), static_cast<int>(m_input.Byte() % 40),
                                        m_input.Byte() % 2 != 0, m_input.Byte() % 2 != 0);
        }
    }

    void Check() {
        FUZZ_CHECK(m_tree.CheckInvariants());
        FUZZ_CHECK(m_tree.VPage() >= 0 && m_tree.HPage() >= 0);
        if (m_tree.Redraw() && m_tree.Root() != nullptr) {
            m_tree.CalcScroll();
            m_tree.CalcBottomItem();
            FUZZ_CHECK(m_tree.Top() == nullptr || m_tree.Bottom() != nullptr);
            // Both ends are rows, unless the root level's start has been moved away.
            if (m_tree.Root()->pParent == nullptr && m_tree.Top() != nullptr) {
                int nRow = 0;
                HTREEITEM h = m_tree.Root();
                for (; h != nullptr && h != m_tree.Top();
                     h = m_tree.Items().NextDisplayableItem(h)) {
                    ++nRow;
                }
                FUZZ_CHECK(h != nullptr && nRow == m_tree.VScrollPos());
            }
        }
    }

    FuzzInput m_input;
    TestTree m_tree;
};

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* pData, std::size_t nSize) {
    TreeRun(pData, nSize).Run();
    return 0;
}
