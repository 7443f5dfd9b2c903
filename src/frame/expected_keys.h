// The switch for keys that people expect of a control today, beside those that it has always had.
// Each class that derives from this one tells them at the head of its header. Off at first: the
// keys are then the platform's, or nobody's. None of them takes a key that the class gives a
// meaning of its own.

#pragma once

#include "frame/qv_api.h"

#include <afxwin.h>

#include <memory>

namespace qv {
class TypedSearch;
}

class QV_CONTROLS_API QVExpectedKeys {
public:
    // May be called at any time. What was typed to find a row is forgotten.
    void EnableExpectedKeys(BOOL bEnable = TRUE);
    BOOL AreExpectedKeysEnabled() const { return m_bExpectedKeys; }

protected:
    QVExpectedKeys();
    ~QVExpectedKeys();

    // What was typed to find a row, for the library's own classes. May throw std::bad_alloc.
    qv::TypedSearch& Typed();

private:
    BOOL m_bExpectedKeys = FALSE;
    std::unique_ptr<qv::TypedSearch> m_pTyped;
};
