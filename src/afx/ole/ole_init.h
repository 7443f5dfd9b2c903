// OLE for the application's thread.
#pragma once

#include <afx.h>

/// Makes OLE ready for the calling thread, a single-threaded apartment; calls behind the first do
/// nothing. FALSE if there is no OLE here, or the thread is of another kind already. The program's
/// end takes it back for the thread that it ends in.
QVAFX_API BOOL AfxOleInit();

/// Takes AfxOleInit back, once the thread's objects of OLE are gone. With bJustRevoke nothing goes
/// yet.
QVAFX_API void AfxOleTerm(BOOL bJustRevoke = FALSE);
