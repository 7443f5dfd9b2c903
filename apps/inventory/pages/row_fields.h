// The fields of a control's row, as texts without their styles.

#pragma once

#include "QVControls.h"

#include <string>
#include <vector>

// A TAB at the very end starts no further field.
inline std::vector<std::string> FieldsOf(const QVStyleTable& styles, const CString& strRow) {
    std::vector<std::string> fields;
    const std::string strAll(strRow);
    for (size_t nAt = 0; nAt < strAll.size();) {
        const size_t nEnd = std::min(strAll.find('\t', nAt), strAll.size());
        fields.emplace_back(styles.ParseStyleText(strAll.substr(nAt, nEnd - nAt).c_str()));
        nAt = nEnd + 1;
    }
    return fields;
}
