#pragma once

#include <QWidget>

#include <vector>

class CFxHostUI;
class CFxUICommand;
class CFxUIRibbonButton;
class CFxUIRibbonPanel;
class CFxUIRibbonSystemMenuItem;
class CFxUIRibbonTab;
class QMenu;
class QTabWidget;
class QToolButton;

// The host window's ribbon: the application button with the application menu, the tabs of
// the current workspace with their panels, rows and buttons, and the system menu at the right.
// Entries whose text starts with "~" are hidden, as the host's ribbon hides them.
//
// The ribbon follows the model by the change: a tab's page is built when it is first shown
// and built again only when what it shows changed (compared when the page is in front at a
// redraw, or when it comes to the front); the lists of split buttons and the
// sub-menus of the application and system menus are filled when they open, one level at a
// time, so entries nested to any depth cost only what the user opens.
class RibbonWidget : public QWidget
{
    Q_OBJECT

public:
    explicit RibbonWidget(QWidget* parent = nullptr);

    void showModel(const CFxHostUI& ui);

    // The workspace whose tabs are shown.
    static const char* workspaceName() { return "Drafting and Annotation"; }
    // The tabs shown for the workspace: each identifier it lists once (letter case does not
    // matter), where it is first listed, as the tab that the main group holds under it (else
    // another group than the reference group); an identifier no group holds is left out.
    static std::vector<const CFxUIRibbonTab*> shownTabs(const CFxHostUI& ui);

signals:
    void macroTriggered(const QString& macro);

private:
    struct ShownTab
    {
        const CFxUIRibbonTab* tab;
        quint64 signature;
        bool built;
    };

    void showTabs(const CFxHostUI& ui);
    // Builds the page of the tab at `index` when it was never built or its tab changed.
    void showPage(int index);
    void buildPage(int index);
    QWidget* panelWidget(const CFxUIRibbonPanel& panel);
    QToolButton* buttonWidget(const CFxUIRibbonButton& button);
    void fillSplitMenuOnShow(QMenu* menu, const CFxUIRibbonButton& button);
    void fillSplitMenu(QMenu* menu, const CFxUIRibbonButton& button);
    void fillSystemMenuOnShow(QMenu* menu, const CFxUIRibbonSystemMenuItem& parent);
    void fillSystemMenu(QMenu* menu, const CFxUIRibbonSystemMenuItem& parent);
    void resetSystemMenus(const CFxHostUI& ui);
    void connectCommand(QObject* trigger, const CFxUICommand* command);

    QToolButton* m_applicationButton;
    QToolButton* m_systemButton;
    QTabWidget* m_tabs;
    std::vector<ShownTab> m_shown;
    quint64 m_systemMenusSignature = 0;
    bool m_hasSystemMenus = false;
};
