#include "ViewcastPublishEntry.h"

void ViewcastPublishEntry::add()
{
    // Comes with the publishing work: a separator and the entry "RSMI_PUBVIEWCAST" behind the
    // application menu's export entry, with its command "ID_PUBVIEWCAST".
}

void ViewcastPublishEntry::remove()
{
    // Comes with the publishing work: takes the separator and the entry out again.
}
