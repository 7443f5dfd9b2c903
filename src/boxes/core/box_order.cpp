#include "boxes/core/box_order.h"

#include <cstring>

namespace qv {

int CompareBoxFields(const char* psz1, const char* psz2, const StyleTable& styles,
                     const MultiByte& text) {
    // ESC is no second byte in any code page.
    if (std::strchr(psz1, kStyleEscape) == nullptr && std::strchr(psz2, kStyleEscape) == nullptr) {
        return text.CompareNoCase(psz1, psz2);
    }
    int nPos1 = 0;
    int nPos2 = 0;
    int nStyle;
    for (std::string_view field1, field2;
         NextField(psz1, nPos1, field1) && NextField(psz2, nPos2, field2);) {
        const int nOrder =
            text.Compare(styles.ParseField(field1, nStyle), styles.ParseField(field2, nStyle));
        if (nOrder != 0) {
            return nOrder;
        }
    }
    return 0;
}

}  // namespace qv
