#pragma once

#include "ViewerAutomation.h"

// The viewer's automation servers as COM objects: created from their identifier (a ProgID)
// for every kind of server, driven through ActiveQt for version 9 and through IDispatch for
// the later ones.
class ComViewerAutomation : public ViewerAutomation
{
public:
    bool isCreatable(const QString& identifier) override;
    bool openThroughInterface(const QString& identifier,
                              const ViewerOpenArguments& arguments) override;
    bool openThroughDispatch(const QString& identifier,
                             const ViewerOpenArguments& arguments) override;
};
