#include "HostMainGroup.h"

#include <CFxUI.h>

#include <memory>

CFxUIGroup* HostMainGroup::find(const CFxUI* ui)
{
    if (!ui)
        return nullptr;
    const std::unique_ptr<CFxUIGroupIterator> groups(ui->NewGroupIterator());
    for (; !groups->Done(); groups->Next()) {
        CFxUIGroup* group = groups->Current();
        if (group && group->IsMainGroup())
            return group;
    }
    return nullptr;
}
