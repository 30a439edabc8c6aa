#include "ViewcastPublisher.h"

#include "ReferencedDrawingCopier.h"
#include "ViewerVersion.h"
#include "common/HeapText.h"
#include "common/SystemRegistry.h"

#include <QDir>
#include <QFileInfo>
#include <QObject>

#include <CFxCommand.h>
#include <CFxDocument.h>
#include <CFxSystemServices.h>
#include <OdDbDatabase.h>
#include <OdRxSystemServices.h>
#include <TarnTaskPane.h>
#include <VcModelViewerAutomation.h>

#include <utility>

namespace {
// The format version code of the drawings the host itself writes, so that the viewer reads
// the copy as it reads the host's own files.
constexpr int kDrawingVersionCode = 27;
constexpr int kDxfPrecision = 16;
} // namespace

ViewcastPublisher::ViewcastPublisher(std::unique_ptr<ViewerAutomation> automation)
    : m_automation(std::move(automation))
{}

int ViewcastPublisher::publish(OdRxObject*)
{
    const int newest = registeredVersion();
    if (newest < VcModelViewerAutomation::firstVersion || !findServer(newest)) {
        showViewerNotice();
        return RTNORM;
    }
    const QString folder = scratchFolder();
    // Held for the whole publishing, whatever happens to the document meanwhile.
    const OdDbDatabasePtr database = activeDatabase();
    const QFileInfo drawing(database ? toQString(database->getFilename()) : QString());
    const QString copyPath = folder + QLatin1Char('/') + drawing.fileName();
    if (!saveCopy(database.get(), copyPath)) {
        showError();
        return RTNORM;
    }
    copyAndOpen(database.get(), folder, copyPath, drawing.baseName() + heapText(".vcst"));
    return RTNORM;
}

OdDbDatabase* ViewcastPublisher::activeDatabase()
{
    const CFxDocument* document = ACTIVE_DOCUMENT;
    return document ? document->GetFxDatabase() : nullptr;
}

int ViewcastPublisher::registeredVersion()
{
    return viewerVersion(SystemRegistry::classesRootDefault(L"VcModelViewer.VcstViewer\\CurVer"));
}

bool ViewcastPublisher::findServer(int newest)
{
    for (int version = newest; version >= VcModelViewerAutomation::firstVersion; --version) {
        const QString identifier = VcModelViewerAutomation::serverIdentifier(version);
        if (m_automation->isCreatable(identifier)) {
            m_version = version;
            m_identifier = identifier;
            return true;
        }
    }
    return false;
}

QString ViewcastPublisher::scratchFolder()
{
    const QString name = heapText("temp_tarn");
    QDir home(QDir::homePath());
    // Only an empty folder goes; one that still holds files stays, with its files
    // (docs/lifecycle.md, row "Scratch folder").
    home.rmdir(name);
    home.mkdir(name);
    return QDir::homePath() + QLatin1Char('/') + name;
}

bool ViewcastPublisher::saveCopy(OdDbDatabase* database, const QString& path)
{
    if (!database)
        return false;
    try {
        OdStreamBufPtr stream = odSystemServices()->createFile(
            toOdString(path), Oda::kFileWrite, Oda::kShareDenyNo, Oda::kCreateAlways);
        database->writeFile(stream.get(), OdDb::kDwg,
                            static_cast<OdDb::DwgVersion>(kDrawingVersionCode), true,
                            kDxfPrecision);
    } catch (...) {
        return false;
    }
    return true;
}

void ViewcastPublisher::copyAndOpen(OdDbDatabase* database, const QString& folder,
                                    const QString& copyPath, const QString& viewerName)
{
    try {
        ReferencedDrawingCopier(folder).copyReferencesOf(database);
        openInViewer(openArguments(copyPath, viewerName));
    } catch (...) {
        showError();
    }
}

void ViewcastPublisher::openInViewer(const ViewerOpenArguments& arguments)
{
    const bool opened = m_version == VcModelViewerAutomation::firstVersion
                            ? m_automation->openThroughInterface(m_identifier, arguments)
                            : m_automation->openThroughDispatch(m_identifier, arguments);
    if (!opened)
        showViewerNotice();
}

ViewerOpenArguments ViewcastPublisher::openArguments(const QString& copyPath,
                                                     const QString& viewerName)
{
    // The viewer takes 8-bit text: Latin-1, so a character beyond it arrives as "?"
    // (docs/lifecycle.md, row "Viewer arguments"). The two texts stay empty and the two flags
    // set.
    ViewerOpenArguments arguments;
    arguments.path = QDir::toNativeSeparators(copyPath).toLatin1();
    arguments.viewerName = viewerName.toLatin1();
    return arguments;
}

void ViewcastPublisher::showViewerNotice()
{
    TarnTaskPane().showViewcastMeassage();
}

void ViewcastPublisher::showError()
{
    GetFxSystemServices()->FxMessageBox(
        CFxString(QObject::tr("Can not publish this document to Viewcast")),
        CFxString(QObject::tr("Error")), 0);
}
