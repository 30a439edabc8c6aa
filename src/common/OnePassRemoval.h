#pragma once

// How the module takes its own entries out of a list of the host's: one walk by index from the
// first entry, in which every entry that `matches` has the entry that `chosen` names for it
// removed. The index moves on after a removal too, so the entry that moves up into the freed
// place is not looked at: of two neighbours that both match, one pass takes one. Putting in
// adds one entry at a time, and taking out is not meant to clean up more than that; kept as it
// is (docs/lifecycle.md, row "One pass"). A null entry ends the walk.
template <class List, class Matches, class Chosen>
void removeInOnePass(List& list, Matches matches, Chosen chosen)
{
    for (int index = 0; index < list.GetCount(); ++index) {
        auto* entry = list.GetAt(index);
        if (!entry)
            return;
        if (matches(*entry))
            list.Remove(chosen(entry));
    }
}
