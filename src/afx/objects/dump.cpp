#include "afx/objects/dump.h"

#include <afx.h>

CDumpContext afxDump;

void CDumpContext::Flush() {
    if (m_pFile != nullptr) {
        m_pFile->Flush();
    }
}

CDumpContext& CDumpContext::operator<<(LPCTSTR lpsz) {
    if (lpsz == nullptr) {
        lpsz = "(null)";
    }
    if (m_pFile != nullptr) {
        m_pFile->Write(lpsz, static_cast<UINT>(std::strlen(lpsz)));
    } else {
        ::OutputDebugString(lpsz);
    }
    return *this;
}

CDumpContext& CDumpContext::operator<<(LPCWSTR lpsz) {
    return *this << static_cast<LPCTSTR>(CString(lpsz));
}

template <class... Args>
CDumpContext& CDumpContext::Print(LPCSTR lpszFormat, Args... args) {
    char szText[512];
    std::snprintf(szText, sizeof(szText), lpszFormat, args...);
    return *this << szText;
}

CDumpContext& CDumpContext::operator<<(const void* lp) {
    return Print("$%p", lp);
}

CDumpContext& CDumpContext::operator<<(const CObject* pOb) {
    if (pOb == nullptr) {
        return *this << "(null)";
    }
    pOb->Dump(*this);
    return *this;
}

CDumpContext& CDumpContext::operator<<(BYTE by) {
    return Print("%u", static_cast<UINT>(by));
}
CDumpContext& CDumpContext::operator<<(WORD w) {
    return Print("%u", static_cast<UINT>(w));
}
CDumpContext& CDumpContext::operator<<(UINT u) {
    return Print("%u", u);
}
CDumpContext& CDumpContext::operator<<(LONG l) {
    return Print("%ld", l);
}
CDumpContext& CDumpContext::operator<<(DWORD dw) {
    return Print("%lu", dw);
}
CDumpContext& CDumpContext::operator<<(int n) {
    return Print("%d", n);
}
CDumpContext& CDumpContext::operator<<(float f) {
    return Print("%g", static_cast<double>(f));
}
CDumpContext& CDumpContext::operator<<(double d) {
    return Print("%g", d);
}
CDumpContext& CDumpContext::operator<<(LONGLONG n) {
    return Print("%lld", n);
}
CDumpContext& CDumpContext::operator<<(ULONGLONG n) {
    return Print("%llu", n);
}
CDumpContext& CDumpContext::DumpAsHex(BYTE b) {
    return Print("$%02X", static_cast<UINT>(b));
}
CDumpContext& CDumpContext::DumpAsHex(WORD w) {
    return Print("$%04X", static_cast<UINT>(w));
}
CDumpContext& CDumpContext::DumpAsHex(DWORD dw) {
    return Print("$%08lX", dw);
}
CDumpContext& CDumpContext::DumpAsHex(int n) {
    return Print("$%X", static_cast<UINT>(n));
}

void CDumpContext::HexDump(LPCTSTR lpszLine, BYTE* pby, int nBytes, int nWidth) {
    for (int n = 0; n < nBytes; ++n) {
        if (n % (nWidth > 0 ? nWidth : nBytes) == 0) {
            *this << (n > 0 ? "\n" : "") << lpszLine;
        }
        Print(" %02X", static_cast<UINT>(pby[n]));
    }
    if (nBytes > 0) {
        *this << "\n";
    }
}

CDumpContext& operator<<(CDumpContext& dc, SIZE size) {
    return dc << "(" << size.cx << " x " << size.cy << ")";
}
CDumpContext& operator<<(CDumpContext& dc, POINT point) {
    return dc << "(" << point.x << ", " << point.y << ")";
}
CDumpContext& operator<<(CDumpContext& dc, const RECT& rect) {
    return dc << "(L " << rect.left << ", T " << rect.top << ", R " << rect.right << ", B "
              << rect.bottom << ")";
}
CDumpContext& operator<<(CDumpContext& dc, CTime time) {
    return dc << "CTime(" << static_cast<LPCTSTR>(time.Format("%Y-%m-%d %H:%M:%S")) << ")";
}
CDumpContext& operator<<(CDumpContext& dc, CTimeSpan timeSpan) {
    return dc << "CTimeSpan(" << timeSpan.GetTotalSeconds() << " s)";
}

void AfxDump(const CObject* pOb) {
    afxDump << pOb << "\n";
}
