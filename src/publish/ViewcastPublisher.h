#pragma once

#include "ViewerAutomation.h"

#include <QString>

#include <memory>

class OdDbDatabase;
class OdRxObject;

// Publishes a drawing to the Viewcast viewer: finds the newest usable version of the viewer's
// automation server, saves a copy of the drawing and copies of the drawings it references
// into the scratch folder HOME/temp_tarn, and asks the viewer to open the copy. A missing or
// too old viewer is left to the task pane's notice; a copy that cannot be saved, or a failure
// while copying the references or driving the viewer, is told in an error box.
class ViewcastPublisher
{
public:
    explicit ViewcastPublisher(std::unique_ptr<ViewerAutomation> automation);

    // Publishes the active document's drawing; `commandObject` is the object that the host
    // hands to commands, and is not what is published. No active document, or one whose file
    // is not a drawing, counts as a drawing never saved. Always gives RTNORM.
    int publish(OdRxObject* commandObject);

private:
    // The active document's drawing, or null.
    static OdDbDatabase* activeDatabase();
    // The version that the registry names as the viewer's current one; 0 when none.
    static int registeredVersion();
    // Looks for a creatable server from `newest` down to the first version.
    bool findServer(int newest);
    static QString scratchFolder();
    static bool saveCopy(OdDbDatabase* database, const QString& path);
    void copyAndOpen(OdDbDatabase* database, const QString& folder, const QString& copyPath,
                     const QString& viewerName);
    void openInViewer(const ViewerOpenArguments& arguments);
    static ViewerOpenArguments openArguments(const QString& copyPath, const QString& viewerName);
    static void showViewerNotice();
    static void showError();

    std::unique_ptr<ViewerAutomation> m_automation;
    int m_version = 0;
    QString m_identifier;
};
