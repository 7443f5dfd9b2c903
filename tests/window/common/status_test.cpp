// Statuses: what they are made from, chains, and a log that others write or hold.
#include "QVControls.h"
#include "support/temp_file.h"
#include "window/refusals.h"

#include <thread>

namespace {

TEST(QVStatus, DescribesExceptionsAndCodes) {
    CFileException denied(CFileException::accessDenied, ERROR_ACCESS_DENIED, "C:\\a.txt");
    CFileException wordy(CFileException::endOfFile, -1, CString('x', 2000));
    CUserException user(FALSE);
    CException silent(FALSE);
    const std::unique_ptr<const QVStatus> pSystem(QVStatus::FromSystem(QVStatus::cancelled));
    const QVStatus own[] = {QVStatus(&denied), QVStatus(&user), QVStatus(&silent), QVStatus(1001)};
    CString strAll;
    for (const QVStatus* pStatus : {&own[0], &own[1], &own[2], &own[3], pSystem.get()}) {
        CString str;
        QVStatusOutputGenerator(nullptr).AsCompactString(pStatus, str);
        strAll += str + "\n";
    }
    strAll.Replace(" is denied", " denied");
    EXPECT_STREQ(strAll,
                 "Access to C:\\a.txt was denied\nCause: Access denied.\n"
                 "The operation was cancelled.\nAn unknown error has occurred.\n"
                 "Error 1001\nError 263 (system)\n");
    EXPECT_NE(strstr(QVStatus(&wordy).Text(), "x was passed"), nullptr);
}

// So many that going deep for each would end the program.
TEST(QVStatus, OwnsItsCauses) {
    QVStatus status(1001);
    QVStatus* pLast = &status;
    for (int i = 0; i < 100000; ++i) {
        pLast->SetCause(new QVStatus(1002, "why"));
        pLast = pLast->Cause();
    }
    pLast->SetCause(&status);
    EXPECT_EQ(pLast->Cause(), nullptr) << "it would own itself";
    status.SetCause(status.Cause());
    status.SetCause(status.Cause()->Cause()->Cause());
    CString strEntry;
    QVStatusOutputGenerator("Me").LogStatus(&status, strEntry);
    EXPECT_EQ(strEntry.Replace("why", ""), 100000 - 2);
}

TEST(QVStatusLogText, WhatCannotBeWrittenIsThrown) {
    const TempFile file;
    const CFile held(file.Path(), CFile::modeReadWrite | CFile::shareExclusive);
    for (const char* pszPath : {file.Path(), "C:\\windows", "C:\\no such folder\\log", ""}) {
        EXPECT_EQ(Try([&] { QVStatusLogText(pszPath, 1000).Log(nullptr); }), Outcome::kOther);
    }
    ExpectFullDiskIsTold([](const char* pszPath) {
        QVStatusLogText(pszPath, 1000).Log(nullptr);
        return true;
    });
}

// Each entry opens and locks the file anew, so threads are to each other what processes are.
TEST(QVStatusLogText, TwoWritersLoseNothing) {
    const TempFile file;
    const auto logMany = [&](const char* pszText) {
        QVStatus status(1001, pszText);
        for (int i = 0; i < 300; ++i) {
            QVStatusLogText(file.Path(), 1000000).Log(&status);
        }
    };
    std::thread other(logMany, "other");
    logMany("our");
    other.join();
    CString strLog = file.Content().c_str();
    EXPECT_EQ(strLog.Replace("Error 1001\r\n    our\r\n", ""), 300);
    EXPECT_EQ(strLog.Replace("Error 1001\r\n    other\r\n", ""), 300);
}

}  // namespace
