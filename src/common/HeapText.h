#pragma once

#include <QString>

// Text for Qt, made at run time with its characters on the heap.
//
// A QStringLiteral, or any QString that only points at characters compiled into this library,
// lives in the module's read-only data, and the module can be unloaded while the process goes
// on. Qt keeps some of the texts it is given in process-wide caches that outlive the caller:
// the QRegExp pattern cache, QSettings' keys and file paths, Qt D-Bus's names and messages,
// QLibrary's list of libraries, and whatever QString or QVariant the host stores. A text held
// there that points into the module dangles once the module is gone. So every text of the
// module that may reach such a cache is made here, joined ones too: a literal joined with an
// empty text is still the literal. Qt may then keep it for as long as it likes.
QString heapText(const char* latin1);
