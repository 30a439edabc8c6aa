#pragma once

#include "ViewerOpenArguments.h"

#include <QString>

#include <memory>

// The Viewcast viewer's automation servers, one per installed version, each known by its
// identifier ("VcModelViewer.VcstViewer.N"). COM on Windows; elsewhere D-Bus on the session
// bus, where starting a service stands for creating a COM object.
class ViewerAutomation
{
public:
    // The implementation of this system.
    static std::unique_ptr<ViewerAutomation> create();

    virtual ~ViewerAutomation();

    // Whether the server `identifier` can be created and gives its viewer application.
    virtual bool isCreatable(const QString& identifier) = 0;
    // Opens through the application's own interface (the way of version 9). False when the
    // application or the interface is not there.
    virtual bool openThroughInterface(const QString& identifier,
                                      const ViewerOpenArguments& arguments) = 0;
    // Opens through the application's dispatch interface (the way of every later version).
    // False when the server cannot be created or gives no application.
    virtual bool openThroughDispatch(const QString& identifier,
                                     const ViewerOpenArguments& arguments) = 0;
};
