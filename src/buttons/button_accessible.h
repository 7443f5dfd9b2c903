// What the library's buttons tell a screen reader alike.

#pragma once

#include <afxwin.h>

namespace qv {

// STATE_SYSTEM_ bits: pressed, and the default button of its dialog.
long ButtonState(CButton& button);

// Clicks an enabled button as the mouse does, as soon as the thread looks at its messages: what the
// click leads to may take long, as a dialog does, and who asks for it must not wait.
BOOL PressButton(CButton& button);

}  // namespace qv
