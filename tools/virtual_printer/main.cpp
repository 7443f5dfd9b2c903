// Sets up the virtual printer and names the default printer.
#include "virtual_printer.h"

#include <windows.h>

#include <cstdio>
#include <winspool.h>

int main() {
    std::string strError;
    if (!EnsureVirtualPrinter(strError)) {
        std::fprintf(stderr, "virtual_printer: %s\n", strError.c_str());
        return 1;
    }
    char szName[256] = "";
    DWORD nBytes = sizeof szName;
    ::GetDefaultPrinterA(szName, &nBytes);
    std::printf("default printer: %s\n", szName);
    return 0;
}
