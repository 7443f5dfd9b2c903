#include "dialogs/status_report.h"

#include "common/file_system.h"
#include "common/path.h"
#include "common/status.h"
#include "common/status_log_text.h"
#include "common/status_output.h"
#include "dialogs/dialog_ids.h"
#include "dialogs/text_dlg.h"
#include "frame/out_of_memory.h"

#include <memory>

namespace {

constexpr UINT kBoxCaption = 61488;          // a string of the application
constexpr unsigned long kLogLimit = 100000;  // bytes
constexpr int kLogFormat = 1;
constexpr size_t kUsualText = 512;

class ExceptionStatus : public QVStatus {
public:
    using QVStatus::QVStatus;
    ~ExceptionStatus() override = default;
};

// Ends at once if it has nothing to show.
class ReportDlg : public QVTextDlg {
public:
    using QVTextDlg::QVTextDlg;

protected:
    int OnInitDialog() override {
        QVTextDlg::OnInitDialog();
        if (!IsTextLoaded()) {
            EndDialog(-1);
        }
        return 1;
    }
};

// False if action says so or throws, whatever it is.
template <class Action>
bool Succeeds(Action action) {
    try {
        return action();
    } catch (CException* pException) {
        pException->Delete();
    } catch (QVStatus* pStatus) {
        delete pStatus;
    } catch (...) {
    }
    return false;
}

bool ShowInDialog(QVStatus* pStatus, CWnd* pParent) {
    QVPath path('\\');
    QVFileSystem files;
    ReportDlg dialog(pParent);
    files.CreateTempFile(path, "qv", ".tmp");
    QVStatusLogText(path.GetPath(), kLogLimit).Log(pStatus);
    dialog.SetFilePath(path.GetPath());
    dialog.SetTitle(QV_IDS_STATUS_TITLE);
    dialog.SetMessage(QV_IDS_STATUS_MESSAGE);
    if (dialog.DoModal() == -1) {
        return false;
    }
    files.DeleteFile(path);
    return true;
}

// The parent that has the window: the object may have gone with it while a dialog was there.
CWnd* ParentNow(HWND hParent) {
    CWnd* pParent = nullptr;
    if (::IsWindow(hParent)) {
        qv::MemorySuffices([&] { pParent = CWnd::FromHandle(hParent); });
    }
    return pParent;
}

void ShowBox(const char* pszText, CWnd* pParent) {
    if (pParent == nullptr) {
        AfxMessageBox(pszText, MB_ICONSTOP);
        return;
    }
    CString strCaption;
    qv::MemorySuffices([&] { strCaption.LoadString(kBoxCaption); });
    // Without a caption the box has the application's name.
    pParent->MessageBox(pszText, strCaption.IsEmpty() ? nullptr : strCaption.GetString(),
                        MB_ICONSTOP);
}

}  // namespace

QVStatusReport::QVStatusReport() = default;
QVStatusReport::~QVStatusReport() = default;

void QVStatusReport::Report(QVStatus* pStatus, CWnd* pParent, int bLogFormat) {
    const HWND hParent = pParent->GetSafeHwnd();
    if (Succeeds([&] { return ShowInDialog(pStatus, pParent); })) {
        delete pStatus;
    } else {
        AfxMsgBoxReport(pStatus, ParentNow(hParent), bLogFormat);
    }
}

void QVStatusReport::Report(CException* pException, CWnd* pParent) {
    QVStatus* pStatus = nullptr;
    if (Succeeds([&] {
            pStatus = new ExceptionStatus(pException);
            return true;
        })) {
        Report(pStatus, pParent, 0);
    } else {
        char szText[kUsualText] = {};
        Succeeds([&] {
            return pException != nullptr && pException->GetErrorMessage(szText, sizeof szText);
        });
        const QVStatus unknown(QVStatus::unknownError);
        ShowBox(szText[0] != 0 ? szText : unknown.Text(), pParent);
    }
    if (pException != nullptr) {
        pException->Delete();
    }
}

void QVStatusReport::AfxMsgBoxReport(QVStatus* pStatus, CWnd* pParent, int bLogFormat) {
    const std::unique_ptr<QVStatus> pOwner(pStatus);
    const QVStatus unknown(QVStatus::unknownError);
    const QVStatus& shown = pStatus != nullptr ? *pStatus : unknown;
    const QVStatusOutputGenerator generator(nullptr);
    CString strText;
    if (bLogFormat == kLogFormat) {
        generator.LogStatus(&shown, strText);
    } else {
        generator.AsCompactString(&shown, strText);
    }
    ShowBox(strText.IsEmpty() ? shown.Text() : strText.GetString(), pParent);
}
