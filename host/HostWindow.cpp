#include "HostWindow.h"

#include "CommandLineEdit.h"
#include "DrawingCanvas.h"
#include "DrawingScene.h"
#include "RibbonWidget.h"
#include "UiSignature.h"

#include <QCloseEvent>
#include <QDockWidget>
#include <QFileInfo>
#include <QFontDatabase>
#include <QLabel>
#include <QLocale>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QStatusBar>
#include <QVBoxLayout>

#include <CFxDocument.h>
#include <CFxHostDocumentManager.h>
#include <CFxHostServices.h>
#include <CFxHostUI.h>
#include <OdDbDxfDatabase.h>

HostWindow::HostWindow(QWidget* parent)
    : QMainWindow(parent), m_ribbon(new RibbonWidget), m_canvas(new DrawingCanvas),
      m_commandLine(new CommandLineEdit), m_log(new QPlainTextEdit), m_drawingStatus(new QLabel),
      m_cursorStatus(new QLabel)
{
    setWindowTitle(QStringLiteral("Quillon"));
    setObjectName(QStringLiteral("QuillonMainFrame"));
    resize(1100, 720);
    auto* central = new QWidget;
    auto* layout = new QVBoxLayout(central);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(m_ribbon);
    layout->addWidget(m_canvas, 1);
    setCentralWidget(central);

    m_log->setObjectName(QStringLiteral("CommandLog"));
    m_log->setReadOnly(true);
    m_log->setMaximumBlockCount(5000);
    m_log->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    m_commandLine->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    m_commandLine->setPlaceholderText(tr("Type a command (Tab completes, Up and Down recall)"));
    auto* console = new QWidget;
    auto* consoleLayout = new QVBoxLayout(console);
    consoleLayout->setContentsMargins(2, 2, 2, 2);
    consoleLayout->addWidget(m_log);
    consoleLayout->addWidget(m_commandLine);
    auto* dock = new QDockWidget(tr("Command line"));
    dock->setObjectName(QStringLiteral("CommandLineDock"));
    dock->setWidget(console);
    addDockWidget(Qt::BottomDockWidgetArea, dock);
    resizeDocks({dock}, {150}, Qt::Vertical);
    m_drawingStatus->setObjectName(QStringLiteral("DrawingStatus"));
    m_cursorStatus->setObjectName(QStringLiteral("CursorStatus"));
    m_cursorStatus->setMinimumWidth(180);
    statusBar()->addWidget(m_drawingStatus, 1);
    statusBar()->addPermanentWidget(m_cursorStatus);
    showDocument(nullptr);

    connect(m_commandLine, &CommandLineEdit::lineEntered, this, &HostWindow::commandLineEntered);
    connect(m_ribbon, &RibbonWidget::macroTriggered, this,
            [this](const QString& macro) { emit commandLineEntered(commandLineOf(macro)); });
    connect(m_canvas, &DrawingCanvas::cursorMoved, this, [this](const QPointF& point) {
        m_cursorStatus->setText(
            QStringLiteral("%1, %2").arg(point.x(), 0, 'f', 3).arg(point.y(), 0, 'f', 3));
    });
}

HostWindow::~HostWindow() = default;

void HostWindow::showModel(const CFxHostUI& ui)
{
    const quint64 signature = UiSignature::ofMenuBar(ui);
    if (!m_hasMenuBar || signature != m_menuBarSignature) {
        m_hasMenuBar = true;
        m_menuBarSignature = signature;
        buildMenuBar(ui);
    }
    m_ribbon->showModel(ui);
}

void HostWindow::showDocument(const CFxDocument* document)
{
    const int index = document ? document->GetIndex() : 0;
    for (auto at = m_scenes.begin(); at != m_scenes.end();) {
        if (GetFxHostServices()->GetDocumentManager()->GetDocument(at.key()))
            ++at;
        else
            at = m_scenes.erase(at);
    }
    if (index == m_shownDocument && (index == 0 || m_scenes.contains(index)))
        return;
    m_shownDocument = index;
    if (!document) {
        setWindowTitle(QStringLiteral("Quillon"));
        m_canvas->setScene(nullptr);
        m_drawingStatus->setText(tr("No drawing"));
        return;
    }
    const QString name = QFileInfo(document->GetPathName()).fileName();
    setWindowTitle(QStringLiteral("Quillon - [%1]").arg(name));
    std::shared_ptr<const DrawingScene>& scene = m_scenes[index];
    const OdDbDxfDatabasePtr database = OdDbDxfDatabase::cast(document->GetFxDatabase());
    if (!scene && database)
        scene = DrawingScene::of(*database);
    m_canvas->setScene(scene);
    m_drawingStatus->setText(scene ? name + QStringLiteral(": ") + sceneSummary(*scene)
                                   : tr("%1 is not a readable drawing").arg(name));
}

QString HostWindow::sceneSummary(const DrawingScene& scene)
{
    const QLocale locale;
    QString summary = tr("%1 entities drawn").arg(locale.toString(scene.drawnEntities()));
    if (!scene.placeholders().isEmpty())
        summary += tr("; %1 referenced drawing(s) not found").arg(scene.placeholders().size());
    QStringList undrawn;
    for (auto at = scene.undrawnKinds().begin(); at != scene.undrawnKinds().end(); ++at)
        undrawn << QStringLiteral("%1 %2").arg(locale.toString(at.value()), at.key());
    if (!undrawn.isEmpty())
        summary += tr("; not drawn: %1").arg(undrawn.join(QStringLiteral(", ")));
    return summary;
}

void HostWindow::setCompletionSource(std::function<QStringList()> source)
{
    m_commandLine->setCompletionSource(std::move(source));
}

void HostWindow::appendLog(const QString& line)
{
    m_log->appendPlainText(line);
}

QString HostWindow::commandLineOf(const QString& macro)
{
    QString line = macro.trimmed();
    while (line.startsWith(QLatin1String("^C"), Qt::CaseInsensitive))
        line = line.mid(2);
    return line.trimmed();
}

void HostWindow::closeEvent(QCloseEvent* event)
{
    // The host decides when its window goes: the reactors hear of it first.
    event->ignore();
    emit closeRequested();
}

void HostWindow::buildMenuBar(const CFxHostUI& ui)
{
    for (QMenu* old : menuBar()->findChildren<QMenu*>(QString(), Qt::FindDirectChildrenOnly))
        old->deleteLater();
    menuBar()->clear();
    for (const CFxUIGroup* group : ui.GetMenuGroups()) {
        if (group == ui.GetReferenceMenuGroup())
            continue;
        for (const CFxUIPullDownMenu* menu : group->GetPullDownMenus()) {
            QMenu* shown = menuBar()->addMenu(menu->GetText().toQString());
            shown->setObjectName(menu->GetIdentifier().toQString());
            for (const CFxUIMenuEntry* entry : menu->GetEntries()) {
                QAction* action = shown->addAction(entry->GetText().toQString());
                action->setObjectName(entry->GetIdentifier().toQString());
                if (const CFxUIMenuItem* item = entry->GetItem()) {
                    action->setStatusTip(item->GetStatusText().toQString());
                    const QString macro = item->GetMacro().toQString();
                    connect(action, &QAction::triggered, this,
                            [this, macro] { emit commandLineEntered(commandLineOf(macro)); });
                }
            }
        }
    }
}
