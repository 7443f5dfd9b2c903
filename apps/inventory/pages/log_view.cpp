#include "pages/log_view.h"

#include "row_colors.h"

#include <algorithm>

BEGIN_MESSAGE_MAP(LogView, QVTextHeaderWnd)
    ON_WM_SYSCOLORCHANGE()
END_MESSAGE_MAP()

Failure LogView::Open(const CString& strPath) {
    m_strPath = strPath;
    m_nRead = 0;
    QVTextWnd& text = GetTextWnd();
    if (m_nRemoval == -1) {
        text.SetExactLayout(TRUE);
        text.EnableExpectedKeys();
        UseColors();
    }
    const CWaitCursor wait;
    text.ClearTextData();
    Failure pReason;
    AddLines(true, pReason);
    text.CalcLayout();
    SetHeaderText(pReason == nullptr ? strPath : strPath + " - cannot be read");
    return pReason != nullptr ? Failed(kErrorOpenLog, std::move(pReason)) : nullptr;
}

void LogView::UseColors() {
    ShowStyle(GetTextWnd(), m_nRemoval, {RGB(0, 0, 160), kWindowBack});
    ShowStyle(GetTextWnd(), m_nTrouble, kTroubleColors);
}

void LogView::OnSysColorChange() {
    QVTextHeaderWnd::OnSysColorChange();
    if (m_nRemoval != -1) {
        UseColors();
    }
}

int LogView::StyleOf(const CString& strLine) const {
    const auto has = [&](LPCSTR psz) { return strLine.Find(psz) >= 0; };
    const bool bOwn = strLine.Left(4) == "=== " && has(" Error ");
    if (bOwn || has(" error") || has("Error:") || has("failed")) {
        return m_nTrouble;
    }
    return has(" remove ") || has(" purge ") || has("Remove:") || has("Purge:") ? m_nRemoval : 0;
}

int LogView::AddLines(bool bAll, Failure& pReason) {
    int nLines = 0;
    try {
        CFile file(m_strPath, CFile::modeRead | CFile::shareDenyNone);
        const ULONGLONG nLength = file.GetLength();
        std::string bytes(static_cast<size_t>(nLength - std::min(nLength, m_nRead)), '\0');
        file.Seek(static_cast<LONGLONG>(m_nRead), CFile::begin);
        bytes.resize(file.Read(bytes.data(), static_cast<UINT>(bytes.size())));
        std::replace(bytes.begin(), bytes.end(), '\0', ' ');
        size_t nStart = 0;
        for (size_t nEnd; nStart < bytes.size(); nStart = nEnd + 1, ++nLines) {
            nEnd = bytes.find('\n', nStart);
            if (nEnd == std::string::npos) {
                if (!bAll) {
                    break;
                }
                nEnd = bytes.size();
            }
            const size_t nBytes = nEnd - nStart;
            const bool bReturn = nBytes > 0 && bytes[nEnd - 1] == '\r';
            const CString strLine(bytes.data() + nStart, static_cast<int>(nBytes - bReturn));
            GetTextWnd().AddText(strLine, StyleOf(strLine));
        }
        m_nRead += std::min(nStart, bytes.size());
    } catch (CFileException* pException) {
        pReason = FileReason(pException);
        return -1;
    }
    return nLines;
}

bool LogView::ReadMore() {
    CFileStatus status;
    if (!CFile::GetStatus(m_strPath, status)) {
        return false;
    }
    if (static_cast<ULONGLONG>(status.m_size) < m_nRead) {
        return Open(m_strPath) == nullptr;
    }
    const bool bAtEnd = AtEnd();
    Failure pReason;  // looked for again in a moment
    if (static_cast<ULONGLONG>(status.m_size) == m_nRead || AddLines(false, pReason) <= 0) {
        return false;
    }
    GetTextWnd().CalcLayout();
    if (bAtEnd) {
        ShowEnd();
    }
    return true;
}

bool LogView::AtEnd() {
    SCROLLINFO info{};
    info.cbSize = sizeof(info);
    info.fMask = SIF_ALL;
    return !GetTextWnd().GetScrollInfo(SB_VERT, &info) ||
           info.nPos + static_cast<int>(info.nPage) > info.nMax;
}

void LogView::ShowEnd() {
    GetTextWnd().ScrollTo(GetTextWnd().NumRows(), 0);
}
