#include "virtual_printer.h"

#include "report_ppd.h"

#include <windows.h>

#include <cstring>
#include <string>
#include <vector>
#include <winspool.h>

namespace {

char szDriverName[] = "PS Driver";
char szDriverFile[] = "wineps.drv";
constexpr DWORD kDriverVersion = 3;  // drivers of user mode, for Windows 2000 and later

class PrinterHandle {
public:
    explicit PrinterHandle(HANDLE hPrinter = nullptr) : m_hPrinter(hPrinter) {}
    ~PrinterHandle() {
        if (m_hPrinter != nullptr) {
            ::ClosePrinter(m_hPrinter);
        }
    }
    PrinterHandle(const PrinterHandle&) = delete;
    PrinterHandle& operator=(const PrinterHandle&) = delete;
    HANDLE Get() const { return m_hPrinter; }

private:
    HANDLE m_hPrinter;
};

bool PrinterExists(const char* pszName) {
    HANDLE hPrinter = nullptr;
    return ::OpenPrinterA(const_cast<char*>(pszName), &hPrinter, nullptr) &&
           PrinterHandle(hPrinter).Get() != nullptr;
}

/// A default printer may also be the name of one that was deleted since.
bool DefaultPrinterExists() {
    DWORD nBytes = 0;
    ::GetDefaultPrinterA(nullptr, &nBytes);
    std::vector<char> name(nBytes + 1);
    return ::GetDefaultPrinterA(name.data(), &nBytes) && PrinterExists(name.data());
}

bool Failed(const char* pszWhat, std::string& strError) {
    strError = std::string(pszWhat) + " fails with error " + std::to_string(::GetLastError());
    return false;
}

/// The folder where the system keeps drivers of this version, with a backslash at the end.
bool FindDriverFolder(std::string& strFolder, std::string& strError) {
    char szFolder[MAX_PATH];
    DWORD nBytes = 0;
    if (!::GetPrinterDriverDirectoryA(nullptr, nullptr, 1, reinterpret_cast<BYTE*>(szFolder),
                                      sizeof szFolder, &nBytes)) {
        return Failed("Finding the folder of printer drivers", strError);
    }
    strFolder = std::string(szFolder) + '\\' + std::to_string(kDriverVersion) + '\\';
    return true;
}

bool WriteDescription(const std::string& strPath, std::string& strError) {
    HANDLE hFile = ::CreateFileA(strPath.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS,
                                 FILE_ATTRIBUTE_NORMAL, nullptr);
    if (hFile == INVALID_HANDLE_VALUE) {
        return Failed("Writing the printer description", strError);
    }
    const auto nBytes = static_cast<DWORD>(std::strlen(kReportPpd));
    DWORD nWritten = 0;
    const bool bDone =
        ::WriteFile(hFile, kReportPpd, nBytes, &nWritten, nullptr) && nWritten == nBytes;
    if (!bDone) {
        Failed("Writing the printer description", strError);
    }
    ::CloseHandle(hFile);
    return bDone;
}

bool AddDriver(std::string strDescription, std::string& strError) {
    DRIVER_INFO_3A driver{};
    driver.cVersion = kDriverVersion;
    driver.pName = szDriverName;
    driver.pDriverPath = szDriverFile;
    driver.pConfigFile = szDriverFile;
    driver.pDataFile = strDescription.data();
    if (!::AddPrinterDriverA(nullptr, 3, reinterpret_cast<BYTE*>(&driver)) &&
        ::GetLastError() != ERROR_PRINTER_DRIVER_ALREADY_INSTALLED) {
        return Failed("Adding the printer driver", strError);
    }
    return true;
}

bool AddReportPrinter(std::string& strError) {
    char szName[sizeof kVirtualPrinterName];
    std::memcpy(szName, kVirtualPrinterName, sizeof szName);
    char szPort[] = "FILE:";
    char szProcessor[] = "WinPrint";
    char szDataType[] = "RAW";
    PRINTER_INFO_2A printer{};
    printer.pPrinterName = szName;
    printer.pDriverName = szDriverName;
    printer.pPortName = szPort;
    printer.pPrintProcessor = szProcessor;
    printer.pDatatype = szDataType;
    const PrinterHandle added(::AddPrinterA(nullptr, 2, reinterpret_cast<BYTE*>(&printer)));
    if (added.Get() == nullptr && ::GetLastError() != ERROR_PRINTER_ALREADY_EXISTS) {
        return Failed("Adding the printer", strError);
    }
    return true;
}

}  // namespace

bool CanMakeVirtualPrinter() {
    std::string strFolder;
    std::string strError;
    return FindDriverFolder(strFolder, strError) &&
           ::GetFileAttributesA((strFolder + szDriverFile).c_str()) != INVALID_FILE_ATTRIBUTES;
}

bool EnsureVirtualPrinter(std::string& strError) {
    if (DefaultPrinterExists()) {
        return true;
    }
    if (!PrinterExists(kVirtualPrinterName)) {
        std::string strFolder;
        if (!FindDriverFolder(strFolder, strError)) {
            return false;
        }
        const std::string strDescription = strFolder + "report.ppd";
        if (!WriteDescription(strDescription, strError) || !AddDriver(strDescription, strError) ||
            !AddReportPrinter(strError)) {
            return false;
        }
    }
    return ::SetDefaultPrinterA(kVirtualPrinterName) ||
           Failed("Making the printer the default", strError);
}
