// The platform's published names, for core. On Windows they come from the real headers; elsewhere
// the table below defines them, so that core builds and is tested natively. On Windows the same
// table becomes assertions, which holds the two together.

#pragma once

#include <cstdint>

#ifdef _WIN32
#include <windows.h>
// The common controls header needs the one above.
#include <commctrl.h>
#else

struct _TREEITEM;
using HTREEITEM = struct _TREEITEM*;
using COLORREF = std::uint32_t;

inline HTREEITEM PlatformTreePosition(std::intptr_t nValue) {
    return reinterpret_cast<HTREEITEM>(nValue);
}
#define TVI_ROOT PlatformTreePosition(-0x10000)
#define TVI_FIRST PlatformTreePosition(-0xFFFF)
#define TVI_LAST PlatformTreePosition(-0xFFFE)
#define TVI_SORT PlatformTreePosition(-0xFFFD)

#endif

#define QV_PLATFORM_NAMES(NAME)        \
    NAME(WS_MAXIMIZE, 0x01000000)      \
    NAME(WS_MINIMIZE, 0x20000000)      \
    NAME(WS_HSCROLL, 0x00100000)       \
    NAME(WS_VSCROLL, 0x00200000)       \
    NAME(TVS_HASBUTTONS, 0x0001)       \
    NAME(TVS_HASLINES, 0x0002)         \
    NAME(TVS_LINESATROOT, 0x0004)      \
    NAME(TVS_SHOWSELALWAYS, 0x0020)    \
    NAME(TVIS_SELECTED, 0x0002)        \
    NAME(TVIS_EXPANDED, 0x0020)        \
    NAME(TVIS_EXPANDEDONCE, 0x0040)    \
    NAME(TVIS_OVERLAYMASK, 0x0F00)     \
    NAME(TVIS_STATEIMAGEMASK, 0xF000)  \
    NAME(TVE_COLLAPSE, 0x0001)         \
    NAME(TVE_EXPAND, 0x0002)           \
    NAME(TVE_TOGGLE, 0x0003)           \
    NAME(TVGN_ROOT, 0x0000)            \
    NAME(TVGN_NEXT, 0x0001)            \
    NAME(TVGN_PREVIOUS, 0x0002)        \
    NAME(TVGN_PARENT, 0x0003)          \
    NAME(TVGN_CHILD, 0x0004)           \
    NAME(TVGN_FIRSTVISIBLE, 0x0005)    \
    NAME(TVGN_NEXTVISIBLE, 0x0006)     \
    NAME(TVGN_PREVIOUSVISIBLE, 0x0007) \
    NAME(TVGN_DROPHILITE, 0x0008)      \
    NAME(TVGN_CARET, 0x0009)           \
    NAME(TVHT_NOWHERE, 0x0001)         \
    NAME(TVHT_ONITEMICON, 0x0002)      \
    NAME(TVHT_ONITEMLABEL, 0x0004)     \
    NAME(TVHT_ONITEMINDENT, 0x0008)    \
    NAME(TVHT_ONITEMBUTTON, 0x0010)    \
    NAME(TVHT_ONITEMRIGHT, 0x0020)     \
    NAME(TVHT_ONITEMSTATEICON, 0x0040) \
    NAME(TVHT_ABOVE, 0x0100)           \
    NAME(TVHT_BELOW, 0x0200)           \
    NAME(TVHT_TORIGHT, 0x0400)         \
    NAME(TVHT_TOLEFT, 0x0800)          \
    NAME(SB_HORZ, 0)                   \
    NAME(SB_VERT, 1)                   \
    NAME(VK_ESCAPE, 0x1B)              \
    NAME(VK_PRIOR, 0x21)               \
    NAME(VK_NEXT, 0x22)                \
    NAME(VK_END, 0x23)                 \
    NAME(VK_HOME, 0x24)                \
    NAME(VK_LEFT, 0x25)                \
    NAME(VK_UP, 0x26)                  \
    NAME(VK_RIGHT, 0x27)               \
    NAME(VK_DOWN, 0x28)                \
    NAME(SB_LINEUP, 0)                 \
    NAME(SB_LINELEFT, 0)               \
    NAME(SB_LINEDOWN, 1)               \
    NAME(SB_LINERIGHT, 1)              \
    NAME(SB_PAGEUP, 2)                 \
    NAME(SB_PAGELEFT, 2)               \
    NAME(SB_PAGEDOWN, 3)               \
    NAME(SB_PAGERIGHT, 3)              \
    NAME(SB_THUMBPOSITION, 4)          \
    NAME(SB_THUMBTRACK, 5)             \
    NAME(SB_TOP, 6)                    \
    NAME(SB_BOTTOM, 7)                 \
    NAME(SB_ENDSCROLL, 8)              \
    NAME(DT_LEFT, 0x0000)              \
    NAME(DT_CENTER, 0x0001)            \
    NAME(DT_RIGHT, 0x0002)

#ifdef _WIN32
#define QV_CHECK_NAME(name, value) static_assert(name == value);
#else
#define QV_CHECK_NAME(name, value) inline constexpr unsigned name = value;
#endif
QV_PLATFORM_NAMES(QV_CHECK_NAME)
#undef QV_CHECK_NAME
