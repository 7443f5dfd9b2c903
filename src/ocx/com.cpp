#include "ocx/com.h"

namespace ocx {

static volatile LONG s_nObjects = 0;

long ObjectCount() noexcept {
    return s_nObjects;
}

CountedObject::CountedObject() noexcept {
    ::InterlockedIncrement(&s_nObjects);
}

CountedObject::~CountedObject() {
    ::InterlockedDecrement(&s_nObjects);
}

Variant::Variant(const VARIANT& value, VARTYPE vt) : Variant() {
    // The platform's conversion reads through a null reference.
    if ((value.vt & VT_BYREF) != 0 && value.byref == nullptr) {
        throw Refusal{DISP_E_TYPEMISMATCH};
    }
    const HRESULT hr = ::VariantChangeType(&m_value, const_cast<VARIANT*>(&value), 0, vt);
    if (FAILED(hr)) {
        Clear();
        throw Refusal{hr == DISP_E_BADVARTYPE ? DISP_E_TYPEMISMATCH : hr};
    }
}

}  // namespace ocx

long QVOcxObjectCount() {
    return ocx::ObjectCount();
}
