#include "walk/walk.h"

#include "errors.h"
#include "resource.h"
#include "sources/disk_file.h"

#include <fstream>

namespace {

constexpr char kReportTitle[] = "Exception Message";
constexpr char kFullDevice[] = "Z:\\dev\\full";
constexpr int kPageLog = 3;
constexpr int kDamagedLine = 1000;

// What a window of lines shows, its lines behind each other.
CString TextOf(QVTextWnd& text) {
    CString strText;
    for (int i = 0; i < text.NumLines(); ++i) {
        strText += text.GetLine(i);
        strText += '\n';
    }
    return strText;
}

// The text window of a status report; null in any other dialog.
QVTextWnd* TextIn(CWnd& dialog) {
    for (HWND hChild = ::GetWindow(dialog.m_hWnd, GW_CHILD); hChild != nullptr;
         hChild = ::GetWindow(hChild, GW_HWNDNEXT)) {
        if (auto* pText = dynamic_cast<QVTextWnd*>(CWnd::FromHandlePermanent(hChild))) {
            return pText;
        }
    }
    return nullptr;
}

}  // namespace

bool Walk::ReadReport(CWnd& dialog, const char* pszStation,
                      std::initializer_list<const char*> words) {
    QVTextWnd* pText = TextIn(dialog);
    if (!Happened("an error is reported with its causes", pText != nullptr)) {
        return false;
    }
    const CString strText = TextOf(*pText);
    for (const char* pszWord : words) {
        if (!Happened(pszWord, strText.Find(pszWord) >= 0)) {
            return false;
        }
    }
    const bool bGood = Station(pszStation);
    Press(VK_ESCAPE);
    return bGood;
}

bool Walk::DamagedDatabase() {
    const CString strFile = m_strFolder + "\\damaged-status";
    std::ifstream from("Z:\\var\\lib\\dpkg\\status", std::ios::binary);
    std::ofstream to(strFile, std::ios::binary);
    int nLine = 0;
    for (std::string strLine; std::getline(from, strLine);) {
        to << (++nLine == kDamagedLine ? "a line without a colon" : strLine) << '\n';
    }
    to.close();
    if (nLine < kDamagedLine) {
        std::printf("walk: no package database to damage\n");
        return true;
    }
    const CString strShown = m_frame.Settings().Database();
    return InDialog(
               kReportTitle, [&] { m_frame.Open(strFile, true); },
               [this](CWnd& dialog) {
                   return ReadReport(dialog, "errors-1-damaged",
                                     {"The inventory could not be opened.",
                                      "damaged-status, line 1000", "The line is no field."});
               }) &&
           Happened("what was shown stays",
                    m_frame.Settings().Database() == strShown && List().GetItemCount() > 0);
}

bool Walk::LockedFile() {
    const CString strFile = m_strFolder + "\\locked-status";
    const HANDLE hFile =
        ::CreateFile(strFile, GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, 0, nullptr);
    const bool bGood = InDialog(
        kReportTitle, [&] { m_frame.Open(strFile, true); },
        [this](CWnd& dialog) {
            return ReadReport(dialog, "errors-2-held-open",
                              {"The inventory could not be opened.", "locked-status",
                               "The file cannot be opened.", "haring violation"});
        });
    ::CloseHandle(hFile);
    return bGood;
}

bool Walk::FullDisk() {
    if (!IsDevice(kFullDevice)) {
        std::printf("walk: no device that is always full\n");
        return true;
    }
    ClickTab(0);
    bool bReported = false;
    const auto read = [&](CWnd& dialog) {
        return bReported = ReadReport(dialog, "errors-3-full",
                                      {"The list could not be written.", "full", "(system)"});
    };
    return InDialog(
               "Export the list", [] { Press('E', VK_CONTROL); },
               [&](CWnd& dialog) {
                   dialog.SetDlgItemText(IDC_EXPORT_PATH, kFullDevice);
                   WhileUp(kReportTitle, read);
                   Press(VK_RETURN);
                   return true;
               }) &&
           Expect("a full disk is reported", [&] { return bReported; }) &&
           Happened("the device is still there", IsDevice(kFullDevice));
}

bool Walk::ErrorsInLog() {
    ClickTab(kPageLog);
    ClickOn(*m_frame.Log().GetDlgItem(ID_LOG_APPLICATION));
    QVTextWnd& text = m_frame.Log().Left().GetTextWnd();
    if (!Expect("a button shows the application's own log",
                [&] { return m_frame.Log().Left().Path() == ErrorLogPath(); })) {
        return false;
    }
    const CString strText = TextOf(text);
    return Happened("it has the errors",
                    strText.Find("line 1000") >= 0 && strText.Find("locked-status") >= 0) &&
           Station("errors-4-log");
}
