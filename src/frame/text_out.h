// The only place that measures and draws 8-bit text, on screen, paper and metafile, and puts it on
// the clipboard.
//
// Texts are in the process's code page. The platform's 8-bit calls would read them in the character
// set of the font instead, so what is not ASCII is converted here and goes to the wide calls. ASCII
// texts go through the device context's own virtual calls, so that a context of an application that
// replaces them sees each of these texts. So do all texts in a symbol font, whose bytes are glyphs
// and of no code page.
//
// Drawing is done in dc.m_hDC, measuring in dc.m_hAttribDC; where they differ, texts that are not
// ASCII take the room on m_hDC that m_hAttribDC gives them. Nothing here throws.

#pragma once

#include "base/text_measure.h"

#include <afxwin.h>

#include <string_view>

namespace qv {

inline std::string_view View(const CString& str) {
    return {str, static_cast<size_t>(str.GetLength())};
}

// True for a text that the 8-bit calls read as it is meant, in the font selected in hDC.
bool IsReadByBytes(HDC hDC, std::string_view text);

// Extent of one line of text, in units of dc.
CSize TextExtent(const CDC& dc, std::string_view text);

// pWidths[i] becomes the width up to the end of the character that holds byte i, for all bytes.
void TextPrefixWidths(const CDC& dc, std::string_view text, int* pWidths);

// As the platform's DrawText with flags DT_; gives the height of the text. rect is changed by
// DT_CALCRECT alone.
int DrawTextIn(CDC& dc, std::string_view text, CRect& rect, UINT nFormat);

// As the platform's TextOut, at (x, y) by the context's text alignment.
BOOL DrawTextAt(CDC& dc, int x, int y, std::string_view text);

// As the platform's TabbedTextOut with tab stops each nTabStop units from nOrigin on. The extent.
CSize DrawTabbedText(CDC& dc, int x, int y, std::string_view text, int nTabStop, int nOrigin);

// Puts a text on the clipboard in place of what is there, wide and in the code page. hText is a
// movable block that ends with a terminator; it belongs to the clipboard or is freed. False if the
// text is not on the clipboard now.
bool GiveToClipboard(CWnd& wnd, HGLOBAL hText);

// Text in a font selected in a device context.
class DcMeasure : public TextMeasure {
public:
    explicit DcMeasure(const CDC& dc) : m_dc(dc) {}
    Size Extent(std::string_view text) override;
    void PrefixWidths(std::string_view text, int* pWidths) override;
    std::size_t CharBytes(std::string_view text) const override;

private:
    const CDC& m_dc;
};

}  // namespace qv
