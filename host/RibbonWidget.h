#pragma once

#include <QWidget>

class CFxUI;
class CFxUICommand;
class CFxUIRibbonButton;
class CFxUIRibbonPanel;
class CFxUIRibbonSystemMenuItem;
class QMenu;
class QTabWidget;
class QToolButton;

// The host window's ribbon: the application button with the application menu, the tabs of
// the current workspace with their panels, rows and buttons, and the system menu at the right.
// Entries whose text starts with "~" are hidden, as the host's ribbon hides them.
class RibbonWidget : public QWidget
{
    Q_OBJECT

public:
    explicit RibbonWidget(QWidget* parent = nullptr);

    void showModel(const CFxUI& ui);

    // The workspace whose tabs are shown.
    static const char* workspaceName() { return "Drafting and Annotation"; }

signals:
    void macroTriggered(const QString& macro);

private:
    QWidget* panelWidget(const CFxUIRibbonPanel& panel);
    QToolButton* buttonWidget(const CFxUIRibbonButton& button);
    void fillMenu(QMenu* menu, const CFxUIRibbonSystemMenuItem& parent);
    void addSubButtons(QMenu* menu, const CFxUIRibbonButton& button);
    void connectCommand(QObject* trigger, const CFxUICommand* command);

    QToolButton* m_applicationButton;
    QToolButton* m_systemButton;
    QTabWidget* m_tabs;
};
