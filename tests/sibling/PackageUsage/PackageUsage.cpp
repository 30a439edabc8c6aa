// Code that builds only with what the package carries: the kernel's list, which needs C++17, the
// module's public headers, and an exported inline function keeping a static.
#include <CFxUIList.h>
#include <CFxUIRibbonButton.h>
#include <ExtCommands/CDontShowAgainMessageBox.h>
#include <ExtCommands/RibbonMenuItemWrapper.h>

#define PACKAGE_USAGE_EXPORT __attribute__((visibility("default")))

PACKAGE_USAGE_EXPORT inline int& packageUsageCalls()
{
    static int calls = 0;
    return calls;
}

extern "C" PACKAGE_USAGE_EXPORT int packageUsageButtons(CFxUIList<CFxUIRibbonButton>& buttons,
                                                        CFxUIRibbonButton* button)
{
    ++packageUsageCalls();
    buttons.InsertAt(-1, button);
    return buttons.GetCount();
}
