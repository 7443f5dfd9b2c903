// The order of two rows of a list box or combo box.

#pragma once

#include "base/multi_byte.h"
#include "frame/core/styled_text.h"

namespace qv {

// A row as it is compared; the text is not null.
struct BoxKey {
    int nImage = 0;
    const char* pszText = "";
};

// By image first where rows are sorted so, then by what compareTexts says of both texts.
template <class CompareTexts>
int CompareBoxRows(bool bByImage, const BoxKey& row1, const BoxKey& row2,
                   CompareTexts compareTexts) {
    if (bByImage && row1.nImage != row2.nImage) {
        return row1.nImage < row2.nImage ? -1 : 1;
    }
    return compareTexts(row1.pszText, row2.pszText);
}

// The order of texts in fields. Without any style code whole, without regard to case. With one in
// either text by fields, without their codes, and case counts; a row that is the start of the other
// one is equal to it.
int CompareBoxFields(const char* psz1, const char* psz2, const StyleTable& styles,
                     const MultiByte& text);

}  // namespace qv
