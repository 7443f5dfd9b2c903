#include "frame/expected_keys.h"

#include "common/process_text.h"
#include "frame/core/typed_search.h"

QVExpectedKeys::QVExpectedKeys() = default;

QVExpectedKeys::~QVExpectedKeys() = default;

void QVExpectedKeys::EnableExpectedKeys(BOOL bEnable) {
    m_bExpectedKeys = bEnable;
    if (m_pTyped != nullptr) {
        m_pTyped->Forget();  // it may be searching
    }
}

qv::TypedSearch& QVExpectedKeys::Typed() {
    if (m_pTyped == nullptr) {
        m_pTyped = std::make_unique<qv::TypedSearch>(qv::ProcessText());
    }
    return *m_pTyped;
}
