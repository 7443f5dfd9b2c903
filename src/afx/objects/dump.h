// Descriptions of objects for people who look for faults.
#pragma once

#include "afx/objects/object.h"
#include "afx/values/time.h"

class CFile;

/// Text goes to a file, or without one to the debugger.
class QVAFX_API CDumpContext {
public:
    explicit CDumpContext(CFile* pFile = nullptr) : m_pFile(pFile) {}
    CDumpContext(const CDumpContext&) = delete;
    CDumpContext& operator=(const CDumpContext&) = delete;

    CFile* m_pFile;

    /// Over 0: what objects hold is described as well.
    int GetDepth() const { return m_nDepth; }
    void SetDepth(int nNewDepth) { m_nDepth = nNewDepth; }
    void Flush();

    CDumpContext& operator<<(LPCTSTR lpsz);
    CDumpContext& operator<<(LPCWSTR lpsz);
    CDumpContext& operator<<(const void* lp);
    CDumpContext& operator<<(const CObject* pOb);  ///< by its Dump
    CDumpContext& operator<<(const CObject& ob) { return *this << &ob; }
    CDumpContext& operator<<(BYTE by);
    CDumpContext& operator<<(WORD w);
    CDumpContext& operator<<(UINT u);
    CDumpContext& operator<<(LONG l);
    CDumpContext& operator<<(DWORD dw);
    CDumpContext& operator<<(int n);
    CDumpContext& operator<<(float f);
    CDumpContext& operator<<(double d);
    CDumpContext& operator<<(LONGLONG n);
    CDumpContext& operator<<(ULONGLONG n);
    CDumpContext& operator<<(HWND h) { return *this << static_cast<const void*>(h); }
    CDumpContext& operator<<(HDC h) { return *this << static_cast<const void*>(h); }
    CDumpContext& operator<<(HMENU h) { return *this << static_cast<const void*>(h); }
    CDumpContext& operator<<(HFONT h) { return *this << static_cast<const void*>(h); }
    CDumpContext& DumpAsHex(BYTE b);
    CDumpContext& DumpAsHex(DWORD dw);
    CDumpContext& DumpAsHex(int n);
    CDumpContext& DumpAsHex(WORD w);
    /// Lines of nWidth bytes, each line behind lpszLine.
    void HexDump(LPCTSTR lpszLine, BYTE* pby, int nBytes, int nWidth);

private:
    template <class... Args>
    CDumpContext& Print(LPCSTR lpszFormat, Args... args);

    int m_nDepth = 0;
};

QVAFX_API CDumpContext& operator<<(CDumpContext& dc, SIZE size);
QVAFX_API CDumpContext& operator<<(CDumpContext& dc, POINT point);
QVAFX_API CDumpContext& operator<<(CDumpContext& dc, const RECT& rect);
QVAFX_API CDumpContext& operator<<(CDumpContext& dc, CTime time);
QVAFX_API CDumpContext& operator<<(CDumpContext& dc, CTimeSpan timeSpan);

/// To the debugger.
extern QVAFX_API CDumpContext afxDump;
/// One object to the debugger.
QVAFX_API void AfxDump(const CObject* pOb);
