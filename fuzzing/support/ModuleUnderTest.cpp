#include "ModuleUnderTest.h"

#include <QCoreApplication>
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

ModuleUnderTest::ModuleUnderTest() : m_mainFrame(nullptr)
{
    auto ui = std::make_unique<CFxHostUI>();
    CFxUIJsonReader::readFile(QStringLiteral(EC_SOURCE_DIR "/host/profiles/default.json"), *ui);
    GetFxHostServices()->SetUI(std::move(ui));
    loadModule();
    resolveEntries();
}

ModuleUnderTest::~ModuleUnderTest()
{
    if (m_mainFrame)
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
    if (!m_mainFrame)
        m_mainFrame = new QWidget;
    GetFxHostServices()->MainFrameCreated(m_mainFrame);
}

void ModuleUnderTest::mainFrameDestroyed()
{
    GetFxHostServices()->MainFrameDestroyed(m_mainFrame);
    delete m_mainFrame;
    m_mainFrame = nullptr;
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
