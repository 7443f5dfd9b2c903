// Where the parts of a dialog template lie, in memory. Internal to the framework.
#pragma once

#include "afx/values/api.h"

constexpr WORD kAfxOrdinal = 0xFFFF;      // a number follows instead of a text
constexpr WORD kAfxMessageFont = 0x7FFF;  // stands for the system's message font, without a name
constexpr DWORD kAfxItemAlignment = 4;

/// The start of a DIALOGEX template.
#pragma pack(push, 1)
struct AfxExtendedHead {
    WORD nVersion;
    WORD nSignature;  // kAfxOrdinal, which no style of a DIALOG template begins with
    DWORD dwHelpID;
    DWORD dwExStyle;
    DWORD dwStyle;
    WORD nItems;
    short x;
    short y;
    short cx;
    short cy;
};
struct AfxExtendedItem {
    DWORD dwHelpID;
    DWORD dwExStyle;
    DWORD dwStyle;
    short x;
    short y;
    short cx;
    short cy;
    DWORD nID;
};
/// What stands before the name of a DIALOGEX template's font.
struct AfxExtendedFontHead {
    WORD nPoints = 0;
    WORD nWeight = FW_NORMAL;
    BYTE bItalic = FALSE;
    BYTE nCharSet = DEFAULT_CHARSET;
};
#pragma pack(pop)

inline const BYTE* AfxAligned(const BYTE* pStart, const BYTE* p) {
    const auto nOffset = static_cast<size_t>(p - pStart);
    return pStart + (nOffset + kAfxItemAlignment - 1) / kAfxItemAlignment * kAfxItemAlignment;
}

/// Where the parts of a template lie.
class AfxTemplateView {
public:
    explicit AfxTemplateView(const DLGTEMPLATE* pTemplate)
        : m_pStart(reinterpret_cast<const BYTE*>(pTemplate)),
          m_bExtended(Extended().nSignature == kAfxOrdinal) {}

    DWORD Style() const { return m_bExtended ? Extended().dwStyle : Plain().style; }
    int Items() const { return m_bExtended ? Extended().nItems : Plain().cdit; }
    SIZE Units() const {
        return m_bExtended ? SIZE{Extended().cx, Extended().cy} : SIZE{Plain().cx, Plain().cy};
    }
    /// Without a name of its own, the font is none that a template could hand on.
    bool HasFont() const { return HasFontPart() && Word(FontPart()) != kAfxMessageFont; }

    bool HasFontPart() const { return (Style() & DS_SETFONT) != 0; }
    const BYTE* FontPart() const {
        const BYTE* p = m_pStart + (m_bExtended ? sizeof(AfxExtendedHead) : sizeof(DLGTEMPLATE));
        p = BehindText(p);     // menu
        p = BehindText(p);     // class
        return BehindText(p);  // caption
    }
    const BYTE* Face() const { return FontPart() + FontHeadBytes(); }
    const BYTE* BehindFont() const {
        if (!HasFontPart()) {
            return FontPart();
        }
        return HasFont() ? BehindText(Face()) : FontPart() + sizeof(WORD);
    }
    size_t FontHeadBytes() const {
        return m_bExtended ? sizeof(AfxExtendedFontHead) : sizeof(WORD);  // the points alone
    }
    const BYTE* FirstItem() const { return AfxAligned(m_pStart, BehindFont()); }
    const BYTE* End() const {
        const BYTE* p = BehindFont();
        for (int i = 0; i < Items(); ++i) {
            p = BehindItem(AfxAligned(m_pStart, p));
        }
        return p;
    }
    /// p: an item's beginning.
    const BYTE* BehindItem(const BYTE* p) const {
        p = BehindText(BehindText(ItemClass(p)));  // class and text
        return p + sizeof(WORD) + Word(p);
    }
    const BYTE* ItemClass(const BYTE* p) const {
        return p + (m_bExtended ? sizeof(AfxExtendedItem) : sizeof(DLGITEMTEMPLATE));
    }
    const BYTE* ItemText(const BYTE* p) const { return BehindText(ItemClass(p)); }
    bool IsExtended() const { return m_bExtended; }

    /// Tells a template in memory how many items it has.
    static void SetItems(BYTE* pTemplate, int nItems) {
        const auto nWord = static_cast<WORD>(nItems);
        if (AfxTemplateView(reinterpret_cast<LPCDLGTEMPLATE>(pTemplate)).IsExtended()) {
            reinterpret_cast<AfxExtendedHead*>(pTemplate)->nItems = nWord;
        } else {
            reinterpret_cast<DLGTEMPLATE*>(pTemplate)->cdit = nWord;
        }
    }

    static WORD Word(const BYTE* p) { return *reinterpret_cast<const WORD*>(p); }

private:
    const DLGTEMPLATE& Plain() const { return *reinterpret_cast<const DLGTEMPLATE*>(m_pStart); }
    const AfxExtendedHead& Extended() const {
        return *reinterpret_cast<const AfxExtendedHead*>(m_pStart);
    }
    static const BYTE* BehindText(const BYTE* p) {
        if (Word(p) == kAfxOrdinal) {
            return p + 2 * sizeof(WORD);
        }
        while (Word(p) != 0) {
            p += sizeof(WORD);
        }
        return p + sizeof(WORD);
    }

    const BYTE* m_pStart;
    bool m_bExtended;
};
