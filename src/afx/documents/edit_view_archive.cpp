// An edit's text in an archive.
#include "afx/documents/edit_view.h"

#include <afxext.h>

#include <algorithm>

static constexpr UINT kPiece = 0x10000;  // bytes read at a time, whatever a file claims to hold

void CEditView::Serialize(CArchive& ar) {
    if (ar.IsStoring()) {
        ar << static_cast<DWORD>(GetBufferLength());
        WriteToArchive(ar);
    } else {
        DWORD dwLength = 0;
        ar >> dwLength;
        ReadFromArchive(ar, dwLength);
    }
}

void CEditView::WriteToArchive(CArchive& ar) {
    const CString strText = Text();
    ar.Write(static_cast<LPCTSTR>(strText), static_cast<UINT>(strText.GetLength()));
}

void CEditView::ReadFromArchive(CArchive& ar, UINT nLen) {
    CString strText;
    while (nLen > 0) {
        const UINT nPiece = std::min(nLen, kPiece);
        CString strPiece;
        ar.EnsureRead(strPiece.GetBuffer(static_cast<int>(nPiece)), nPiece);
        strPiece.ReleaseBuffer(static_cast<int>(nPiece));
        strText += strPiece;
        nLen -= nPiece;
    }
    SetWindowText(strText);
    Invalidate();
}

void CEditView::SerializeRaw(CArchive& ar) {
    if (ar.IsStoring()) {
        WriteToArchive(ar);
        return;
    }
    CString strText;
    UINT nRead = 0;
    do {
        CString strPiece;
        nRead = ar.Read(strPiece.GetBuffer(static_cast<int>(kPiece)), kPiece);
        strPiece.ReleaseBuffer(static_cast<int>(nRead));
        strText += strPiece;
    } while (nRead == kPiece);
    SetWindowText(strText);
    Invalidate();
}
