// Entries of the controls in the registry, under HKEY_CLASSES_ROOT: the user's or the machine's,
// as that key leads. An entry that names another file is never changed.

#pragma once

#include "ocx/class_factory.h"

#include <string>

namespace ocx {

/// Whose a class is by the registry.
enum class Owner {
    kNobody,
    kThisModule,  ///< its server is the file of this module
    kOthers       ///< another server, whether its file is there or not
};

Owner RegisteredOwner(const CLSID& clsid);

/// Writes the entries of a class. S_OK: they are there; S_FALSE: the class is another's, and stays
/// as it is; else why they could not be written, with nothing left of them.
HRESULT WriteEntries(const ClassFactory& control);

/// Takes them out. S_OK: there are none of this module's; S_FALSE: the class is another's, and
/// stays; else why they could not be removed.
HRESULT RemoveEntries(const ClassFactory& control);

}  // namespace ocx
