#include "afx/dialogs/dialog_template.h"

#include <algorithm>
#include <cstring>

namespace {

constexpr WORD kOrdinal = 0xFFFF;      // a number follows instead of a text
constexpr WORD kMessageFont = 0x7FFF;  // stands for the system's message font, without a name
constexpr DWORD kItemAlignment = 4;

/// The start of a DIALOGEX template.
#pragma pack(push, 1)
struct ExtendedHead {
    WORD nVersion;
    WORD nSignature;  // kOrdinal, which no style of a DIALOG template begins with
    DWORD dwHelpID;
    DWORD dwExStyle;
    DWORD dwStyle;
    WORD nItems;
    short x;
    short y;
    short cx;
    short cy;
};
struct ExtendedItem {
    DWORD dwHelpID;
    DWORD dwExStyle;
    DWORD dwStyle;
    short x;
    short y;
    short cx;
    short cy;
    DWORD nID;
};
/// What stands before the name of a DIALOGEX template's font.
struct ExtendedFontHead {
    WORD nPoints = 0;
    WORD nWeight = FW_NORMAL;
    BYTE bItalic = FALSE;
    BYTE nCharSet = DEFAULT_CHARSET;
};
#pragma pack(pop)

const BYTE* Aligned(const BYTE* pStart, const BYTE* p) {
    const auto nOffset = static_cast<size_t>(p - pStart);
    return pStart + (nOffset + kItemAlignment - 1) / kItemAlignment * kItemAlignment;
}

/// Where the parts of a template lie.
class TemplateView {
public:
    explicit TemplateView(const DLGTEMPLATE* pTemplate)
        : m_pStart(reinterpret_cast<const BYTE*>(pTemplate)),
          m_bExtended(Extended().nSignature == kOrdinal) {}

    DWORD Style() const { return m_bExtended ? Extended().dwStyle : Plain().style; }
    int Items() const { return m_bExtended ? Extended().nItems : Plain().cdit; }
    SIZE Units() const {
        return m_bExtended ? SIZE{Extended().cx, Extended().cy} : SIZE{Plain().cx, Plain().cy};
    }
    /// Without a name of its own, the font is none that a template could hand on.
    bool HasFont() const { return HasFontPart() && Word(FontPart()) != kMessageFont; }

    bool HasFontPart() const { return (Style() & DS_SETFONT) != 0; }
    const BYTE* FontPart() const {
        const BYTE* p = m_pStart + (m_bExtended ? sizeof(ExtendedHead) : sizeof(DLGTEMPLATE));
        p = BehindText(p);     // menu
        p = BehindText(p);     // class
        return BehindText(p);  // caption
    }
    const BYTE* Face() const { return FontPart() + FontHeadBytes(); }
    const BYTE* BehindFont() const {
        if (!HasFontPart()) {
            return FontPart();
        }
        return HasFont() ? BehindText(Face()) : FontPart() + sizeof(WORD);
    }
    size_t FontHeadBytes() const {
        return m_bExtended ? sizeof(ExtendedFontHead) : sizeof(WORD);  // the points alone
    }
    const BYTE* FirstItem() const { return Aligned(m_pStart, BehindFont()); }
    const BYTE* End() const {
        const BYTE* p = BehindFont();
        for (int i = 0; i < Items(); ++i) {
            p = Aligned(m_pStart, p);
            p += m_bExtended ? sizeof(ExtendedItem) : sizeof(DLGITEMTEMPLATE);
            p = BehindText(p);  // class
            p = BehindText(p);  // text
            p += sizeof(WORD) + Word(p);
        }
        return p;
    }
    bool IsExtended() const { return m_bExtended; }

    static WORD Word(const BYTE* p) { return *reinterpret_cast<const WORD*>(p); }

private:
    const DLGTEMPLATE& Plain() const { return *reinterpret_cast<const DLGTEMPLATE*>(m_pStart); }
    const ExtendedHead& Extended() const {
        return *reinterpret_cast<const ExtendedHead*>(m_pStart);
    }
    static const BYTE* BehindText(const BYTE* p) {
        if (Word(p) == kOrdinal) {
            return p + 2 * sizeof(WORD);
        }
        while (Word(p) != 0) {
            p += sizeof(WORD);
        }
        return p + sizeof(WORD);
    }

    const BYTE* m_pStart;
    bool m_bExtended;
};

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
SIZE UnitsOfFont(const TemplateView& view, LPCTSTR lpszFace, WORD nPoints) {
    constexpr int kTenths = 10;  // of a point
    LOGFONT log = {};
    log.lfHeight = kTenths * nPoints;
    log.lfCharSet = DEFAULT_CHARSET;
    lstrcpyn(log.lfFaceName, lpszFace, LF_FACESIZE);
    if (view.IsExtended()) {
        const auto& head = *reinterpret_cast<const ExtendedFontHead*>(view.FontPart());
        log.lfWeight = head.nWeight;
        log.lfItalic = head.bItalic;
        log.lfCharSet = head.nCharSet;
    }
    CFont font;
    font.CreatePointFontIndirect(&log);
    const HDC hDC = ::GetDC(nullptr);
    const HGDIOBJ hOld = ::SelectObject(hDC, font.m_hObject);
    constexpr char kLetters[] = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz";
    constexpr int kCount = sizeof kLetters - 1;
    TEXTMETRIC metric = {};
    SIZE size = {};
    ::GetTextMetrics(hDC, &metric);
    ::GetTextExtentPoint32(hDC, kLetters, kCount, &size);
    ::SelectObject(hDC, hOld);
    ::ReleaseDC(nullptr, hDC);
    return {(size.cx / (kCount / 2) + 1) / 2, metric.tmHeight};
}

/// A copy of a template of dwOldBytes bytes with another font, and how long it is. Null without
/// memory.
HGLOBAL CopyWithFont(const DLGTEMPLATE* pTemplate, DWORD dwOldBytes, LPCTSTR lpszFace, WORD nPoints,
                     DWORD& dwNewBytes) {
    const TemplateView view(pTemplate);
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
    const DWORD dwItemsAt = (dwFaceAt + nFaceBytes + kItemAlignment - 1) / kItemAlignment *
                            kItemAlignment;  // counted from the template's start

    const HGLOBAL hNew = ::GlobalAlloc(GPTR, dwItemsAt + dwItemBytes);
    if (hNew == nullptr) {
        return nullptr;
    }
    auto* const pNew = static_cast<BYTE*>(hNew);
    std::memcpy(pNew, pStart, dwFontAt);
    if (view.IsExtended()) {
        ExtendedFontHead head;
        if (view.HasFont()) {
            std::memcpy(&head, pFont, sizeof head);
        }
        std::memcpy(pNew + dwFontAt, &head, sizeof head);
        reinterpret_cast<ExtendedHead*>(pNew)->dwStyle |= DS_SETFONT;
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
    return Copy(pStart, static_cast<DWORD>(TemplateView(pTemplate).End() - pStart));
}

HGLOBAL CDialogTemplate::Detach() {
    const HGLOBAL hTemplate = m_hTemplate;
    m_hTemplate = nullptr;
    m_dwTemplateSize = 0;
    return hTemplate;
}

BOOL CDialogTemplate::HasFont() const {
    const LockedTemplate locked(m_hTemplate);
    return locked.Get() != nullptr && TemplateView(locked.Get()).HasFont();
}

BOOL CDialogTemplate::GetFont(CString& strFaceName, WORD& nFontSize) const {
    const LockedTemplate locked(m_hTemplate);
    return locked.Get() != nullptr && GetFont(locked.Get(), strFaceName, nFontSize);
}

BOOL CDialogTemplate::GetFont(const DLGTEMPLATE* pTemplate, CString& strFaceName, WORD& nFontSize) {
    const TemplateView view(pTemplate);
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
    nFontSize = TemplateView::Word(view.FontPart());
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
    *pSize = locked.Get() != nullptr ? TemplateView(locked.Get()).Units() : SIZE{};
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
        units = UnitsOfFont(TemplateView(locked.Get()), strFace, nPoints);
    }
    pSize->cx = ::MulDiv(pSize->cx, units.cx, kUnitsAcross);
    pSize->cy = ::MulDiv(pSize->cy, units.cy, kUnitsDown);
}
