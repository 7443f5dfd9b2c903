#include "afx/dialogs/dialog_template.h"

#include "afx/dialogs/template_view.h"
#include "afx/drawing/select_guard.h"

#include <algorithm>
#include <cstring>

namespace {

/// A template's memory, locked while this lives.
class LockedTemplate {
public:
    explicit LockedTemplate(HGLOBAL hGlobal)
        : m_hGlobal(hGlobal), m_pData(hGlobal != nullptr ? ::GlobalLock(hGlobal) : nullptr) {}
    ~LockedTemplate() {
        if (m_pData != nullptr) {
            ::GlobalUnlock(m_hGlobal);
        }
    }
    LockedTemplate(const LockedTemplate&) = delete;
    LockedTemplate& operator=(const LockedTemplate&) = delete;
    const DLGTEMPLATE* Get() const { return static_cast<const DLGTEMPLATE*>(m_pData); }

private:
    HGLOBAL m_hGlobal;
    void* m_pData;
};

/// The units of a dialog in its template's font: the average width of a letter, and the height of a
/// line.
SIZE UnitsOfFont(const AfxTemplateView& view, LPCTSTR lpszFace, WORD nPoints) {
    constexpr int kTenths = 10;  // of a point
    LOGFONT log = {};
    log.lfHeight = kTenths * nPoints;
    log.lfCharSet = DEFAULT_CHARSET;
    lstrcpyn(log.lfFaceName, lpszFace, LF_FACESIZE);
    if (view.IsExtended()) {
        const auto& head = *reinterpret_cast<const AfxExtendedFontHead*>(view.FontPart());
        log.lfWeight = head.nWeight;
        log.lfItalic = head.bItalic;
        log.lfCharSet = head.nCharSet;
    }
    CFont font;
    font.CreatePointFontIndirect(&log);
    const HDC hDC = ::GetDC(nullptr);
    constexpr char kLetters[] = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz";
    constexpr int kCount = sizeof kLetters - 1;
    TEXTMETRIC metric = {};
    SIZE size = {};
    {
        const AfxSelectGuard select(hDC, font.m_hObject);
        ::GetTextMetrics(hDC, &metric);
        ::GetTextExtentPoint32(hDC, kLetters, kCount, &size);
    }
    ::ReleaseDC(nullptr, hDC);
    return {(size.cx / (kCount / 2) + 1) / 2, metric.tmHeight};
}

/// A copy of a template of dwOldBytes bytes with another font, and how long it is. Null without
/// memory.
HGLOBAL CopyWithFont(const DLGTEMPLATE* pTemplate, DWORD dwOldBytes, LPCTSTR lpszFace, WORD nPoints,
                     DWORD& dwNewBytes) {
    const AfxTemplateView view(pTemplate);
    const auto* pStart = reinterpret_cast<const BYTE*>(pTemplate);
    const BYTE* pFont = view.FontPart();
    const BYTE* pItems = view.FirstItem();
    const DWORD dwItemBytes =
        view.Items() > 0 ? dwOldBytes - static_cast<DWORD>(pItems - pStart) : 0;

    WCHAR szFace[LF_FACESIZE] = {};
    ::MultiByteToWideChar(CP_ACP, 0, lpszFace, -1, szFace, LF_FACESIZE - 1);
    const auto nFaceBytes = static_cast<DWORD>((::lstrlenW(szFace) + 1) * sizeof(WCHAR));
    const auto dwFontAt = static_cast<DWORD>(pFont - pStart);
    const DWORD dwFaceAt = dwFontAt + static_cast<DWORD>(view.FontHeadBytes());
    const DWORD dwItemsAt = (dwFaceAt + nFaceBytes + kAfxItemAlignment - 1) / kAfxItemAlignment *
                            kAfxItemAlignment;  // counted from the template's start

    const HGLOBAL hNew = ::GlobalAlloc(GPTR, dwItemsAt + dwItemBytes);
    if (hNew == nullptr) {
        return nullptr;
    }
    auto* const pNew = static_cast<BYTE*>(hNew);
    std::memcpy(pNew, pStart, dwFontAt);
    if (view.IsExtended()) {
        AfxExtendedFontHead head;
        if (view.HasFont()) {
            std::memcpy(&head, pFont, sizeof head);
        }
        std::memcpy(pNew + dwFontAt, &head, sizeof head);
        reinterpret_cast<AfxExtendedHead*>(pNew)->dwStyle |= DS_SETFONT;
    } else {
        reinterpret_cast<DLGTEMPLATE*>(pNew)->style |= DS_SETFONT;
    }
    std::memcpy(pNew + dwFontAt, &nPoints, sizeof nPoints);
    std::memcpy(pNew + dwFaceAt, szFace, nFaceBytes);
    std::memcpy(pNew + dwItemsAt, pItems, dwItemBytes);
    dwNewBytes = dwItemsAt + dwItemBytes;
    return hNew;
}

}  // namespace

CDialogTemplate::CDialogTemplate(const DLGTEMPLATE* pTemplate) {
    if (pTemplate != nullptr) {
        Attach(pTemplate);
    }
}

CDialogTemplate::CDialogTemplate(HGLOBAL hGlobal)
    : m_hTemplate(hGlobal), m_dwTemplateSize(static_cast<DWORD>(::GlobalSize(hGlobal))) {}

CDialogTemplate::~CDialogTemplate() {
    if (m_hTemplate != nullptr) {
        ::GlobalFree(m_hTemplate);
    }
}

BOOL CDialogTemplate::Copy(const void* pTemplate, DWORD dwBytes) {
    const HGLOBAL hNew = ::GlobalAlloc(GMEM_FIXED, dwBytes);
    if (hNew == nullptr) {
        return FALSE;
    }
    std::memcpy(hNew, pTemplate, dwBytes);
    if (m_hTemplate != nullptr) {
        ::GlobalFree(m_hTemplate);
    }
    m_hTemplate = hNew;
    m_dwTemplateSize = dwBytes;
    return TRUE;
}

BOOL CDialogTemplate::Load(LPCTSTR lpDialogTemplateID) {
    const HINSTANCE hInst = AfxFindResourceHandle(lpDialogTemplateID, RT_DIALOG);
    const HRSRC hResource = ::FindResource(hInst, lpDialogTemplateID, RT_DIALOG);
    const HGLOBAL hData = hResource != nullptr ? ::LoadResource(hInst, hResource) : nullptr;
    const void* pData = hData != nullptr ? ::LockResource(hData) : nullptr;
    return pData != nullptr && Copy(pData, ::SizeofResource(hInst, hResource));
}

BOOL CDialogTemplate::Attach(LPCDLGTEMPLATE pTemplate) {
    const auto* pStart = reinterpret_cast<const BYTE*>(pTemplate);
    return Copy(pStart, static_cast<DWORD>(AfxTemplateView(pTemplate).End() - pStart));
}

HGLOBAL CDialogTemplate::Detach() {
    const HGLOBAL hTemplate = m_hTemplate;
    m_hTemplate = nullptr;
    m_dwTemplateSize = 0;
    return hTemplate;
}

BOOL CDialogTemplate::HasFont() const {
    const LockedTemplate locked(m_hTemplate);
    return locked.Get() != nullptr && AfxTemplateView(locked.Get()).HasFont();
}

BOOL CDialogTemplate::GetFont(CString& strFaceName, WORD& nFontSize) const {
    const LockedTemplate locked(m_hTemplate);
    return locked.Get() != nullptr && GetFont(locked.Get(), strFaceName, nFontSize);
}

BOOL CDialogTemplate::GetFont(const DLGTEMPLATE* pTemplate, CString& strFaceName, WORD& nFontSize) {
    const AfxTemplateView view(pTemplate);
    if (!view.HasFont()) {
        return FALSE;
    }
    // A face that is longer than the drawing system takes is cut, as it would be there.
    constexpr int kMostBytes = 4 * LF_FACESIZE;
    char szFace[kMostBytes] = {};
    const auto* pWide = reinterpret_cast<LPCWSTR>(view.Face());
    const int nUnits = std::min<int>(::lstrlenW(pWide), LF_FACESIZE - 1);
    ::WideCharToMultiByte(CP_ACP, 0, pWide, nUnits, szFace, kMostBytes - 1, nullptr, nullptr);
    strFaceName = szFace;
    nFontSize = AfxTemplateView::Word(view.FontPart());
    return TRUE;
}

BOOL CDialogTemplate::SetFont(LPCTSTR lpFaceName, WORD nFontSize) {
    HGLOBAL hNew = nullptr;
    DWORD dwBytes = 0;
    if (const LockedTemplate locked(m_hTemplate); locked.Get() != nullptr) {
        hNew = CopyWithFont(locked.Get(), m_dwTemplateSize, lpFaceName, nFontSize, dwBytes);
    }
    if (hNew == nullptr) {
        return FALSE;
    }
    ::GlobalFree(m_hTemplate);
    m_hTemplate = hNew;
    m_dwTemplateSize = dwBytes;
    return TRUE;
}

BOOL CDialogTemplate::SetSystemFont(WORD nFontSize) {
    constexpr WORD kSystemPoints = 8;
    m_bSystemFont = TRUE;
    return SetFont("MS Shell Dlg", nFontSize != 0 ? nFontSize : kSystemPoints);
}

void CDialogTemplate::GetSizeInDialogUnits(SIZE* pSize) const {
    const LockedTemplate locked(m_hTemplate);
    *pSize = locked.Get() != nullptr ? AfxTemplateView(locked.Get()).Units() : SIZE{};
}

void CDialogTemplate::GetSizeInPixels(SIZE* pSize) const {
    constexpr int kUnitsAcross = 4;  // a letter is so many dialog units wide
    constexpr int kUnitsDown = 8;
    GetSizeInDialogUnits(pSize);
    CString strFace;
    WORD nPoints = 0;
    const LONG nSystem = ::GetDialogBaseUnits();
    SIZE units{LOWORD(nSystem), HIWORD(nSystem)};
    if (GetFont(strFace, nPoints)) {
        const LockedTemplate locked(m_hTemplate);
        units = UnitsOfFont(AfxTemplateView(locked.Get()), strFace, nPoints);
    }
    pSize->cx = ::MulDiv(pSize->cx, units.cx, kUnitsAcross);
    pSize->cy = ::MulDiv(pSize->cy, units.cy, kUnitsDown);
}
