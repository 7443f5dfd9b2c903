#include "afx/ole/ole_init.h"

#include <ole2.h>

namespace {

bool& OleIsReady() {
    static thread_local bool bReady = false;
    return bReady;
}

}  // namespace

BOOL AfxOleInit() {
    bool& bReady = OleIsReady();
    if (!bReady) {
        bReady = SUCCEEDED(::OleInitialize(nullptr));
    }
    return bReady;
}

void AfxOleTerm(BOOL bJustRevoke) {
    bool& bReady = OleIsReady();
    if (bReady && !bJustRevoke) {
        bReady = false;
        ::OleUninitialize();
    }
}
