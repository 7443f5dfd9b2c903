#include "ocx/qvocx.h"

HRESULT QVRegisterControls() {
    return E_NOTIMPL;
}

void QVRevokeControls() {}
