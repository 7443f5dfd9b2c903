#include "afx/drawing/meta_file_dc.h"

#include <afxwin.h>

IMPLEMENT_DYNAMIC(CMetaFileDC, CDC)

CMetaFileDC::~CMetaFileDC() {
    if (m_hDC == nullptr) {
        return;
    }
    if (::GetObjectType(m_hDC) == OBJ_ENHMETADC) {
        ::DeleteEnhMetaFile(CloseEnhanced());
    } else {
        ::DeleteMetaFile(Close());
    }
}

BOOL CMetaFileDC::Create(LPCTSTR lpszFilename) {
    m_bNew = true;
    const BOOL bMade = Attach(::CreateMetaFile(lpszFilename));
    m_bNew = false;
    return bMade;
}

BOOL CMetaFileDC::CreateEnhanced(CDC* pDCRef, LPCTSTR lpszFileName, LPCRECT lpBounds,
                                 LPCTSTR lpszDescription) {
    const HDC hRef = pDCRef != nullptr ? pDCRef->m_hAttribDC : nullptr;
    m_bNew = true;
    const BOOL bMade = Attach(::CreateEnhMetaFile(hRef, lpszFileName, lpBounds, lpszDescription));
    m_bNew = false;
    return bMade;
}

HMETAFILE CMetaFileDC::Close() {
    return ::CloseMetaFile(Detach());
}

HENHMETAFILE CMetaFileDC::CloseEnhanced() {
    return ::CloseEnhMetaFile(Detach());
}

void CMetaFileDC::SetAttribDC(HDC hDC) {
    if (!m_bNew) {
        CDC::SetAttribDC(hDC);
    }
}

// Everything may show, wherever the picture will be played.

int CMetaFileDC::GetClipBox(LPRECT lpRect) const {
    return m_hAttribDC != nullptr ? ::GetClipBox(m_hAttribDC, lpRect) : ERROR;
}

BOOL CMetaFileDC::PtVisible(int x, int y) const {
    return m_hAttribDC == nullptr || ::PtVisible(m_hAttribDC, x, y);
}

BOOL CMetaFileDC::RectVisible(LPCRECT lpRect) const {
    return m_hAttribDC == nullptr || ::RectVisible(m_hAttribDC, lpRect);
}
