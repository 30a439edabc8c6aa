#include "HostWindow.h"

#include "RibbonWidget.h"

#include <QCloseEvent>
#include <QDockWidget>
#include <QFontDatabase>
#include <QLineEdit>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QStatusBar>
#include <QVBoxLayout>

#include <CFxUI.h>

HostWindow::HostWindow(QWidget* parent)
    : QMainWindow(parent), m_ribbon(new RibbonWidget), m_commandLine(new QLineEdit),
      m_log(new QPlainTextEdit)
{
    setWindowTitle(QStringLiteral("Quillon"));
    setObjectName(QStringLiteral("QuillonMainFrame"));
    resize(1100, 720);
    auto* central = new QWidget;
    auto* layout = new QVBoxLayout(central);
    layout->addWidget(m_ribbon);
    auto* drawingArea = new QWidget;
    drawingArea->setAutoFillBackground(true);
    drawingArea->setPalette(QPalette(QColor(33, 40, 48)));
    layout->addWidget(drawingArea, 1);
    setCentralWidget(central);

    m_log->setReadOnly(true);
    m_log->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    m_commandLine->setPlaceholderText(tr("Type a command"));
    auto* console = new QWidget;
    auto* consoleLayout = new QVBoxLayout(console);
    consoleLayout->addWidget(m_log);
    consoleLayout->addWidget(m_commandLine);
    auto* dock = new QDockWidget(tr("Command line"));
    dock->setObjectName(QStringLiteral("CommandLineDock"));
    dock->setWidget(console);
    addDockWidget(Qt::BottomDockWidgetArea, dock);
    statusBar();

    connect(m_commandLine, &QLineEdit::returnPressed, this, [this] {
        const QString line = m_commandLine->text().trimmed();
        m_commandLine->clear();
        if (!line.isEmpty())
            emit commandLineEntered(line);
    });
    connect(m_ribbon, &RibbonWidget::macroTriggered, this,
            [this](const QString& macro) { emit commandLineEntered(commandLineOf(macro)); });
}

void HostWindow::showModel(const CFxUI& ui)
{
    buildMenuBar(ui);
    m_ribbon->showModel(ui);
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

void HostWindow::buildMenuBar(const CFxUI& ui)
{
    menuBar()->clear();
    for (const CFxUIGroup* group : ui.GetMenuGroups()) {
        if (group == ui.GetReferenceMenuGroup())
            continue;
        for (const CFxUIPullDownMenu* menu : group->GetPullDownMenus()) {
            QMenu* shown = menuBar()->addMenu(menu->GetText().toQString());
            for (const CFxUIMenuEntry* entry : menu->GetEntries()) {
                QAction* action = shown->addAction(entry->GetText().toQString());
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
