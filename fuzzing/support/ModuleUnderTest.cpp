#include "ModuleUnderTest.h"

#include "FuzzFailure.h"

#include <QCoreApplication>
#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTranslator>
#include <QWidget>

#include <CFxHostServices.h>
#include <CFxHostUI.h>
#include <CFxUIJsonReader.h>
#include <OdHostDynamicLinker.h>
#include <private/qcoreapplication_p.h>

#include <memory>

namespace {
const wchar_t kModule[] = L"ExtCommands";
} // namespace

ModuleUnderTest::ModuleUnderTest() : m_mainFrameShown(false)
{
    auto ui = std::make_unique<CFxHostUI>();
    CFxUIJsonReader::read(defaultProfile(), *ui);
    GetFxHostServices()->SetUI(std::move(ui));
    loadModule();
    resolveEntries();
}

ModuleUnderTest::~ModuleUnderTest()
{
    if (m_mainFrameShown)
        mainFrameDestroyed();
    emptyLoadedItems();
    dropTranslators();
    GetFxHostServices()->SetUI(nullptr);
}

void ModuleUnderTest::loadModule()
{
    static bool loaded = false;
    if (loaded)
        return;
    // The companion libraries come from the library search path that ./fuzz gives the program.
    odrxHostDynamicLinker()->setSearchPath({toOdString(QStringLiteral(EC_STAGE_DIR))});
    odrxHostDynamicLinker()->loadModule(OdString(kModule), false);
    loaded = true;
}

const QJsonObject& ModuleUnderTest::defaultProfile()
{
    // Read from its file once; every input's UI is built afresh from what was read.
    static const QJsonObject profile = [] {
        const QString path = QStringLiteral(EC_SOURCE_DIR "/host/profiles/default.json");
        QFile file(path);
        if (!file.open(QIODevice::ReadOnly))
            FuzzFailure::report(path + QStringLiteral(": ") + file.errorString());
        return QJsonDocument::fromJson(file.readAll()).object();
    }();
    return profile;
}

QWidget* ModuleUnderTest::mainFrame()
{
    // One window for the process: the module takes the window it is told of as it is and keeps
    // nothing of it, so each creation may hand it the same one.
    static QWidget* const window = new QWidget;
    return window;
}

void ModuleUnderTest::emptyLoadedItems()
{
    // An unload clears an identifier's entry whenever the Add-Ins row is there, so a button of
    // the harness's own holds the row while the ordered identifiers, the only ones the table
    // places by, are unloaded; then it goes as well.
    RibbonItem holder;
    holder.id = holder.commandName = QStringLiteral("ID_FUZZ_HOLDER");
    holder.tabId = QStringLiteral("ID_RibbonAddInsTab");
    holder.panelId = QStringLiteral("ID_RibbonAddInsPanel");
    holder.rowId = QStringLiteral("ID_RibbonAddInsRow");
    holder.type = QStringLiteral("command");
    load(&holder, 0);
    for (const char* id :
         {"ID_DRAWCOMPARE_ITEM", "ID_GCODE_ITEM", "ID_VAULTLINE_ITEM", "ID_PK_PARTKIT"})
        unload(QString::fromLatin1(id));
    unload(holder.id);
}

void ModuleUnderTest::resolveEntries()
{
    static_cast<RibbonEntryPoints&>(*this) = RibbonEntryPoints::find(
        odrxHostDynamicLinker()->loadModule(OdString(kModule), false)->moduleName());
}

void ModuleUnderTest::mainFrameCreated()
{
    // The host tells its reactors of a second creation again, with the same window.
    m_mainFrameShown = true;
    GetFxHostServices()->MainFrameCreated(mainFrame());
}

void ModuleUnderTest::mainFrameDestroyed()
{
    GetFxHostServices()->MainFrameDestroyed(mainFrame());
    m_mainFrameShown = false;
}

void ModuleUnderTest::dropTranslators()
{
    // Each main window installs the module's translators for the rest of the process; a fuzz
    // run makes hundreds of thousands of windows, so they go with the module here.
    auto* application =
        static_cast<QCoreApplicationPrivate*>(QObjectPrivate::get(QCoreApplication::instance()));
    const QList<QTranslator*> translators = application->translators;
    for (QTranslator* translator : translators) {
        QCoreApplication::removeTranslator(translator);
        delete translator;
    }
}
