// The texts that a metafile holds.
#pragma once

#include <afxwin.h>

#include <string>
#include <vector>

struct DrawnText {
    std::wstring str;
    int nWidth = 0;  ///< the room that it takes
    POINT pt{};
};

/// For EnumEnhMetaFile: appends to the vector that lParam points at.
inline int CALLBACK CollectText(HDC, HANDLETABLE*, const ENHMETARECORD* pRecord, int,
                                LPARAM lParam) {
    if (pRecord->iType == EMR_EXTTEXTOUTW) {
        const EMRTEXT& record = reinterpret_cast<const EMREXTTEXTOUTW*>(pRecord)->emrtext;
        const auto* pBytes = reinterpret_cast<const BYTE*>(pRecord);
        const auto* pWidths = reinterpret_cast<const UINT*>(pBytes + record.offDx);
        DrawnText text;
        text.str.assign(reinterpret_cast<const wchar_t*>(pBytes + record.offString), record.nChars);
        for (UINT i = 0; i < record.nChars; ++i) {
            text.nWidth += static_cast<int>(pWidths[i]);
        }
        text.pt = {record.ptlReference.x, record.ptlReference.y};
        reinterpret_cast<std::vector<DrawnText>*>(lParam)->push_back(text);
    }
    return 1;
}

/// Of a metafile, which is deleted.
inline std::vector<DrawnText> TakeTexts(HENHMETAFILE hFile) {
    std::vector<DrawnText> texts;
    const RECT rc{0, 0, 10, 10};
    ::EnumEnhMetaFile(nullptr, hFile, CollectText, &texts, &rc);
    ::DeleteEnhMetaFile(hFile);
    return texts;
}
