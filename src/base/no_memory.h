// What says that memory ran out: std::bad_alloc, and whatever else the module is built with throws
// from new. The application's framework has an exception of its own for that, which is none of the
// language's.

#pragma once

namespace qv {

// Called first in catch (...): comes back if what is being handled says that memory ran out, and
// throws it on if not.
void ExpectNoMemory();

// Whether what is being handled says so; called in a catch block. Disposes of it then.
using SaysNoMemory = bool (*)();

// The other word, besides std::bad_alloc, for all of the module. Null: there is none.
void SetOtherWordForNoMemory(SaysNoMemory saysIt);

}  // namespace qv
