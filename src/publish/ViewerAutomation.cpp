#include "ViewerAutomation.h"

#if defined(Q_OS_WIN)
#include "ComViewerAutomation.h"
#else
#include "DBusViewerAutomation.h"
#endif

std::unique_ptr<ViewerAutomation> ViewerAutomation::create()
{
#if defined(Q_OS_WIN)
    return std::make_unique<ComViewerAutomation>();
#else
    return std::make_unique<DBusViewerAutomation>();
#endif
}

ViewerAutomation::~ViewerAutomation() = default;
