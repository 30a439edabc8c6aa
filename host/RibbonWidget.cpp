#include "RibbonWidget.h"

#include "UiSignature.h"

#include <QAction>
#include <QFrame>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QIcon>
#include <QMenu>
#include <QSet>
#include <QTabWidget>
#include <QToolButton>
#include <QVBoxLayout>

#include <CFxHostUI.h>

namespace {
bool hidden(const CFxString& text)
{
    return text.toQString().startsWith(QLatin1Char('~'));
}

const CFxUIGroup* mainGroup(const CFxHostUI& ui)
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

// Runs `fill` the first time `menu` is about to open.
template <class Fill>
void onFirstShow(QObject* context, QMenu* menu, Fill fill)
{
    QObject::connect(menu, &QMenu::aboutToShow, context, [menu, fill] {
        if (menu->property("filled").toBool())
            return;
        menu->setProperty("filled", true);
        fill();
    });
}

// The tab that the ribbon holds under `identifier`: the main group's, else the first other
// group's (the reference group is a copy the ribbon never shows); null when no group holds
// one, as for a tab that lost its last panel.
const CFxUIRibbonTab* heldTab(const CFxHostUI& ui, const CFxUIGroup* main,
                              const CFxString& identifier)
{
    if (main) {
        if (const CFxUIRibbonTab* tab = main->GetRibbonTabs().FindFirst(identifier))
            return tab;
    }
    for (const CFxUIGroup* group : ui.GetMenuGroups()) {
        if (group == main || group == ui.GetReferenceMenuGroup())
            continue;
        if (const CFxUIRibbonTab* tab = group->GetRibbonTabs().FindFirst(identifier))
            return tab;
    }
    return nullptr;
}

// The content of a tab's page, replaced as a whole when the tab changes.
const char* const kPageContent = "ribbonPageContent";
} // namespace

RibbonWidget::RibbonWidget(QWidget* parent)
    : QWidget(parent), m_applicationButton(new QToolButton(this)),
      m_systemButton(new QToolButton(this)), m_tabs(new QTabWidget(this))
{
    m_applicationButton->setObjectName(QStringLiteral("ApplicationButton"));
    m_applicationButton->setText(QStringLiteral("Q"));
    m_applicationButton->setToolTip(tr("Application menu"));
    m_applicationButton->setPopupMode(QToolButton::InstantPopup);
    m_systemButton->setObjectName(QStringLiteral("SystemButton"));
    m_systemButton->setText(QStringLiteral("?"));
    m_systemButton->setToolTip(tr("Help and information"));
    m_systemButton->setPopupMode(QToolButton::InstantPopup);
    m_tabs->setObjectName(QStringLiteral("RibbonTabs"));
    m_tabs->setCornerWidget(m_applicationButton, Qt::TopLeftCorner);
    m_tabs->setCornerWidget(m_systemButton, Qt::TopRightCorner);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_tabs);
    connect(m_tabs, &QTabWidget::currentChanged, this, [this](int index) {
        if (index >= 0 && index < static_cast<int>(m_shown.size()))
            showPage(index);
    });
}

std::vector<const CFxUIRibbonTab*> RibbonWidget::shownTabs(const CFxHostUI& ui)
{
    std::vector<const CFxUIRibbonTab*> tabs;
    const CFxUIWorkspace* workspace = ui.FindWorkspace(workspaceName());
    if (!workspace)
        return tabs;
    const CFxUIGroup* main = mainGroup(ui);
    // Every listing of one identifier, in any letter case, leads to the same held tab.
    QSet<const CFxUIRibbonTab*> seen;
    for (const CFxUIRibbonTab* listed : workspace->GetRibbonTabs()) {
        const CFxUIRibbonTab* held = heldTab(ui, main, listed->GetIdentifier());
        if (!held || seen.contains(held))
            continue;
        seen.insert(held);
        tabs.push_back(held);
    }
    return tabs;
}

void RibbonWidget::showModel(const CFxHostUI& ui)
{
    showTabs(ui);
    resetSystemMenus(ui);
}

void RibbonWidget::showTabs(const CFxHostUI& ui)
{
    const std::vector<const CFxUIRibbonTab*> tabs = shownTabs(ui);
    bool sameTabs = tabs.size() == m_shown.size();
    for (std::size_t at = 0; sameTabs && at < tabs.size(); ++at)
        sameTabs = tabs[at] == m_shown[at].tab;
    if (sameTabs) {
        for (std::size_t at = 0; at < tabs.size(); ++at) {
            const QString caption = tabs[at]->GetCaption().toQString();
            if (m_tabs->tabText(static_cast<int>(at)) != caption)
                m_tabs->setTabText(static_cast<int>(at), caption);
        }
        // Only the tab in front is compared now; the others when they are next shown.
        if (m_tabs->currentIndex() >= 0)
            showPage(m_tabs->currentIndex());
        return;
    }
    const QString current = m_tabs->currentIndex() >= 0 && !m_shown.empty()
                                ? m_shown[m_tabs->currentIndex()].tab->GetIdentifier().toQString()
                                : QString();
    // A hidden tab bar defers its layout: adding many tabs stays linear.
    const bool visible = m_tabs->isVisibleTo(this);
    m_tabs->hide();
    m_shown.clear();
    const QSignalBlocker blocker(m_tabs);
    while (m_tabs->count() > 0) {
        QWidget* page = m_tabs->widget(m_tabs->count() - 1);
        m_tabs->removeTab(m_tabs->count() - 1);
        page->hide();
        page->deleteLater();
    }
    int currentIndex = 0;
    for (const CFxUIRibbonTab* tab : tabs) {
        if (tab->GetIdentifier().toQString().compare(current, Qt::CaseInsensitive) == 0)
            currentIndex = static_cast<int>(m_shown.size());
        m_shown.push_back({tab, 0, false});
        auto* page = new QWidget;
        new QHBoxLayout(page);
        m_tabs->addTab(page, tab->GetCaption().toQString());
    }
    if (!m_shown.empty()) {
        m_tabs->setCurrentIndex(currentIndex);
        buildPage(currentIndex);
    }
    m_tabs->setVisible(visible);
}

void RibbonWidget::showPage(int index)
{
    ShownTab& shown = m_shown[index];
    if (!shown.built || UiSignature::ofTab(*shown.tab) != shown.signature)
        buildPage(index);
}

void RibbonWidget::buildPage(int index)
{
    QWidget* page = m_tabs->widget(index);
    auto* layout = static_cast<QHBoxLayout*>(page->layout());
    if (auto* old =
            page->findChild<QWidget*>(QLatin1String(kPageContent), Qt::FindDirectChildrenOnly)) {
        // A button of the old content may be the one whose click is being handled.
        old->hide();
        old->setObjectName(QString());
        layout->removeWidget(old);
        old->deleteLater();
    }
    auto* content = new QWidget(page);
    content->setObjectName(QLatin1String(kPageContent));
    auto* panels = new QHBoxLayout(content);
    panels->setContentsMargins(0, 0, 0, 0);
    for (const CFxUIRibbonPanel* panel : m_shown[index].tab->GetPanels())
        panels->addWidget(panelWidget(*panel));
    panels->addStretch();
    layout->addWidget(content);
    m_shown[index].built = true;
    m_shown[index].signature = UiSignature::ofTab(*m_shown[index].tab);
}

QWidget* RibbonWidget::panelWidget(const CFxUIRibbonPanel& panel)
{
    auto* box = new QGroupBox(panel.GetCaption().toQString());
    box->setObjectName(panel.GetIdentifier().toQString());
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
    widget->setAutoRaise(true);
    if (const CFxUICommand* command = button.GetCommand())
        widget->setToolTip(command->GetDescription().toQString());
    if (button.GetKind() == CFxUIRibbonButton::kSplit) {
        auto* menu = new QMenu(widget);
        fillSplitMenuOnShow(menu, button);
        widget->setMenu(menu);
        widget->setPopupMode(QToolButton::MenuButtonPopup);
    }
    connectCommand(widget, button.GetCommand());
    return widget;
}

void RibbonWidget::fillSplitMenuOnShow(QMenu* menu, const CFxUIRibbonButton& button)
{
    onFirstShow(this, menu, [this, menu, &button] { fillSplitMenu(menu, button); });
}

void RibbonWidget::fillSplitMenu(QMenu* menu, const CFxUIRibbonButton& button)
{
    for (const CFxUIRibbonButton* sub : button.GetSubButtons()) {
        if (sub->GetKind() == CFxUIRibbonButton::kSeparator) {
            menu->addSeparator();
        } else if (hidden(sub->GetText())) {
            continue;
        } else if (sub->GetKind() == CFxUIRibbonButton::kSplit) {
            QMenu* subMenu = menu->addMenu(sub->GetText().toQString());
            subMenu->setObjectName(sub->GetIdentifier().toQString());
            fillSplitMenuOnShow(subMenu, *sub);
        } else {
            QAction* action =
                menu->addAction(commandIcon(sub->GetCommand(), false), sub->GetText().toQString());
            action->setObjectName(sub->GetIdentifier().toQString());
            connectCommand(action, sub->GetCommand());
        }
    }
}

void RibbonWidget::resetSystemMenus(const CFxHostUI& ui)
{
    const quint64 signature = UiSignature::ofSystemMenus(ui);
    if (m_hasSystemMenus && signature == m_systemMenusSignature)
        return;
    m_hasSystemMenus = true;
    m_systemMenusSignature = signature;
    for (QToolButton* button : {m_applicationButton, m_systemButton}) {
        if (QMenu* old = button->menu())
            old->deleteLater();
        button->setMenu(new QMenu(button));
    }
    std::vector<const CFxUIRibbonSystemMenuItem*> roots;
    if (const CFxUIGroup* group = mainGroup(ui)) {
        for (const CFxUIRibbonSystemMenuItem* item : group->GetApplicationMenu())
            roots.push_back(item);
    }
    QMenu* application = m_applicationButton->menu();
    onFirstShow(this, application, [this, application, roots] {
        for (const CFxUIRibbonSystemMenuItem* root : roots)
            fillSystemMenu(application, *root);
    });
    fillSystemMenuOnShow(m_systemButton->menu(), *ui.GetRibbonSystemMenu());
}

void RibbonWidget::fillSystemMenuOnShow(QMenu* menu, const CFxUIRibbonSystemMenuItem& parent)
{
    onFirstShow(this, menu, [this, menu, &parent] { fillSystemMenu(menu, parent); });
}

void RibbonWidget::fillSystemMenu(QMenu* menu, const CFxUIRibbonSystemMenuItem& parent)
{
    for (const CFxUIRibbonSystemMenuItem* item : parent.GetSubItems()) {
        if (item->IsSeparator()) {
            menu->addSeparator();
        } else if (hidden(item->GetText())) {
            continue;
        } else if (item->GetSubItems().GetCount() > 0) {
            QMenu* subMenu = menu->addMenu(item->GetText().toQString());
            subMenu->setObjectName(item->GetIdentifier().toQString());
            fillSystemMenuOnShow(subMenu, *item);
        } else {
            QAction* action = menu->addAction(commandIcon(item->GetCommand(), false),
                                              item->GetText().toQString());
            action->setObjectName(item->GetIdentifier().toQString());
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
