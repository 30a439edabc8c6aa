#include "RibbonWidget.h"

#include <QAction>
#include <QFrame>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QIcon>
#include <QMenu>
#include <QTabWidget>
#include <QToolButton>
#include <QVBoxLayout>

#include <CFxUI.h>

namespace {
bool hidden(const CFxString& text)
{
    return text.toQString().startsWith(QLatin1Char('~'));
}

const CFxUIGroup* mainGroup(const CFxUI& ui)
{
    for (const CFxUIGroup* group : ui.GetMenuGroups()) {
        if (group->IsMainGroup())
            return group;
    }
    return nullptr;
}

QIcon commandIcon(const CFxUICommand* command, bool large)
{
    if (!command)
        return QIcon();
    return QIcon((large ? command->GetLargeIcon() : command->GetSmallIcon()).toQString());
}
} // namespace

RibbonWidget::RibbonWidget(QWidget* parent)
    : QWidget(parent), m_applicationButton(new QToolButton(this)),
      m_systemButton(new QToolButton(this)), m_tabs(new QTabWidget(this))
{
    m_applicationButton->setText(QStringLiteral("Q"));
    m_applicationButton->setToolTip(tr("Application menu"));
    m_applicationButton->setPopupMode(QToolButton::InstantPopup);
    m_applicationButton->setMenu(new QMenu(m_applicationButton));
    m_systemButton->setText(QStringLiteral("?"));
    m_systemButton->setToolTip(tr("Help and information"));
    m_systemButton->setPopupMode(QToolButton::InstantPopup);
    m_systemButton->setMenu(new QMenu(m_systemButton));
    m_tabs->setCornerWidget(m_applicationButton, Qt::TopLeftCorner);
    m_tabs->setCornerWidget(m_systemButton, Qt::TopRightCorner);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_tabs);
}

void RibbonWidget::showModel(const CFxUI& ui)
{
    const int current = m_tabs->currentIndex();
    while (m_tabs->count() > 0) {
        QWidget* page = m_tabs->widget(0);
        m_tabs->removeTab(0);
        page->deleteLater();
    }
    if (const CFxUIWorkspace* workspace = ui.FindWorkspace(workspaceName())) {
        for (const CFxUIRibbonTab* tab : workspace->GetRibbonTabs()) {
            auto* page = new QWidget;
            auto* layout = new QHBoxLayout(page);
            for (const CFxUIRibbonPanel* panel : tab->GetPanels())
                layout->addWidget(panelWidget(*panel));
            layout->addStretch();
            m_tabs->addTab(page, tab->GetCaption().toQString());
        }
    }
    m_tabs->setCurrentIndex(qMax(0, qMin(current, m_tabs->count() - 1)));
    m_applicationButton->menu()->clear();
    if (const CFxUIGroup* group = mainGroup(ui)) {
        for (const CFxUIRibbonSystemMenuItem* item : group->GetApplicationMenu())
            fillMenu(m_applicationButton->menu(), *item);
    }
    m_systemButton->menu()->clear();
    fillMenu(m_systemButton->menu(), *ui.GetRibbonSystemMenu());
}

QWidget* RibbonWidget::panelWidget(const CFxUIRibbonPanel& panel)
{
    auto* box = new QGroupBox(panel.GetCaption().toQString());
    box->setAlignment(Qt::AlignHCenter);
    auto* rows = new QVBoxLayout(box);
    for (const CFxUIRibbonRow* row : panel.GetRows()) {
        auto* buttons = new QHBoxLayout;
        for (const CFxUIRibbonButton* button : row->GetButtons()) {
            if (button->GetKind() == CFxUIRibbonButton::kSeparator) {
                auto* line = new QFrame;
                line->setFrameShape(QFrame::VLine);
                buttons->addWidget(line);
            } else if (!hidden(button->GetText())) {
                buttons->addWidget(buttonWidget(*button));
            }
        }
        buttons->addStretch();
        rows->addLayout(buttons);
    }
    return box;
}

QToolButton* RibbonWidget::buttonWidget(const CFxUIRibbonButton& button)
{
    auto* widget = new QToolButton;
    widget->setObjectName(button.GetIdentifier().toQString());
    widget->setText(button.GetText().toQString());
    widget->setIcon(commandIcon(button.GetCommand(), true));
    widget->setIconSize(QSize(24, 24));
    widget->setToolButtonStyle(Qt::ToolButtonTextUnderIcon);
    if (const CFxUICommand* command = button.GetCommand())
        widget->setToolTip(command->GetDescription().toQString());
    if (button.GetKind() == CFxUIRibbonButton::kSplit) {
        auto* menu = new QMenu(widget);
        addSubButtons(menu, button);
        widget->setMenu(menu);
        widget->setPopupMode(QToolButton::MenuButtonPopup);
    }
    connectCommand(widget, button.GetCommand());
    return widget;
}

void RibbonWidget::addSubButtons(QMenu* menu, const CFxUIRibbonButton& button)
{
    for (const CFxUIRibbonButton* sub : button.GetSubButtons()) {
        if (sub->GetKind() == CFxUIRibbonButton::kSeparator) {
            menu->addSeparator();
        } else if (!hidden(sub->GetText())) {
            if (sub->GetKind() == CFxUIRibbonButton::kSplit) {
                addSubButtons(menu->addMenu(sub->GetText().toQString()), *sub);
                continue;
            }
            QAction* action =
                menu->addAction(commandIcon(sub->GetCommand(), false), sub->GetText().toQString());
            connectCommand(action, sub->GetCommand());
        }
    }
}

void RibbonWidget::fillMenu(QMenu* menu, const CFxUIRibbonSystemMenuItem& parent)
{
    for (const CFxUIRibbonSystemMenuItem* item : parent.GetSubItems()) {
        if (item->IsSeparator()) {
            menu->addSeparator();
        } else if (hidden(item->GetText())) {
            continue;
        } else if (item->GetSubItems().GetCount() > 0) {
            fillMenu(menu->addMenu(item->GetText().toQString()), *item);
        } else {
            QAction* action = menu->addAction(commandIcon(item->GetCommand(), false),
                                              item->GetText().toQString());
            connectCommand(action, item->GetCommand());
        }
    }
}

void RibbonWidget::connectCommand(QObject* trigger, const CFxUICommand* command)
{
    if (!command)
        return;
    const QString macro = command->GetMacro().toQString();
    auto emitMacro = [this, macro] { emit macroTriggered(macro); };
    if (auto* action = qobject_cast<QAction*>(trigger))
        connect(action, &QAction::triggered, this, emitMacro);
    else if (auto* button = qobject_cast<QToolButton*>(trigger))
        connect(button, &QToolButton::clicked, this, emitMacro);
}
