#include "list/header_ctrl_ex.h"

#include "frame/core/styled_text.h"
#include "list/core/header_fields.h"
#include "list/cut_text.h"

#include <string_view>

namespace {

int HeaderFormat(qv::HeaderAlign align) {
    switch (align) {
        case qv::HeaderAlign::Left:
            return HDF_STRING | HDF_LEFT;
        case qv::HeaderAlign::Right:
            return HDF_STRING | HDF_RIGHT;
        default:
            return HDF_STRING | HDF_CENTER;
    }
}

}  // namespace

void QVHeaderCtrlEx::AddHeader(const CString& strHeaders) {
    const std::string_view headers(strHeaders);
    std::string_view text;
    int nCol = 0;
    for (int nPos = 0; qv::NextField(headers, nPos, text);) {
        const qv::HeaderField field = qv::ParseHeaderField(text);
        const qv::Heading<qv::kHeaderItemBytes + 1> title(field.title);
        HDITEMA item{};
        item.mask = HDI_WIDTH | HDI_TEXT | HDI_FORMAT;
        item.cxy = qv::kHeaderItemWidth;
        item.pszText = title.Text();
        item.fmt = HeaderFormat(field.align);
        if (SendMessage(HDM_INSERTITEMA, static_cast<WPARAM>(nCol),
                        reinterpret_cast<LPARAM>(&item)) >= 0) {
            ++nCol;
        }
    }
}
