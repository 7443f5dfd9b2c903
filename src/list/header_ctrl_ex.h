// QVHeaderCtrlEx: a list's column header that takes its columns from one string.

#pragma once

#include "frame/qv_api.h"

#include <afxcmn.h>

class QV_CONTROLS_API QVHeaderCtrlEx : public CHeaderCtrl {
public:
    // A column 100 pixels wide for each TAB-separated title. "<" in front aligns it left, ">"
    // right, and is not shown; without either it is centred. Titles are cut at 254 bytes, between
    // characters. Each call inserts from column 0 on.
    void AddHeader(const CString& strHeaders);
};
