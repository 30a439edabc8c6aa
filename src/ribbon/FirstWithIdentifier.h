#pragma once

#include <CFxString.h>
#include <CFxUIList.h>

// The first object of `list` whose identifier is `identifier` in any letter case, or null.
// The host's lists hold no null entries.
template <class T>
T* firstWithIdentifier(const CFxUIList<T>& list, const CFxString& identifier)
{
    return list.FindFirst(identifier);
}
