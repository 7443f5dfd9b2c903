// CMetaFileDC: a context that keeps what is drawn.
#pragma once

#include "afx/drawing/dc.h"

/// Drawing goes into the metafile; questions go to the context that SetAttribDC names, if one is
/// named. Close it once; what is still open when the object goes away is thrown away.
class QVAFX_API CMetaFileDC : public CDC {
    DECLARE_DYNAMIC(CMetaFileDC)

public:
    CMetaFileDC() = default;
    ~CMetaFileDC() override;

    BOOL Create(LPCTSTR lpszFilename = nullptr);  ///< null: in memory
    /// lpBounds in hundredths of a millimetre, or null for what is drawn. lpszDescription: two
    /// texts, each with its terminator, and one more.
    BOOL CreateEnhanced(CDC* pDCRef, LPCTSTR lpszFileName, LPCRECT lpBounds,
                        LPCTSTR lpszDescription);
    HMETAFILE Close();  ///< the caller's to delete
    HENHMETAFILE CloseEnhanced();

    void SetAttribDC(HDC hDC) override;
    int GetClipBox(LPRECT lpRect) const override;
    BOOL PtVisible(int x, int y) const override;
    BOOL RectVisible(LPCRECT lpRect) const override;

private:
    bool m_bNew = false;  ///< being attached: the metafile's context answers no questions
};
