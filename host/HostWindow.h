#pragma once

#include <QMainWindow>

class CFxUI;
class QLineEdit;
class QPlainTextEdit;
class RibbonWidget;

// The host's main window: the menu bar of the pull-down menus, the ribbon, a command line
// that takes command lines and script statements, and the log of every event.
class HostWindow : public QMainWindow
{
    Q_OBJECT

public:
    explicit HostWindow(QWidget* parent = nullptr);

    // Shows the user-interface model as it is now.
    void showModel(const CFxUI& ui);
    void appendLog(const QString& line);

    // The command line that a menu or ribbon macro stands for ("^C^C_LINE" is "_LINE").
    static QString commandLineOf(const QString& macro);

signals:
    void commandLineEntered(const QString& line);
    void closeRequested();

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    void buildMenuBar(const CFxUI& ui);

    RibbonWidget* m_ribbon;
    QLineEdit* m_commandLine;
    QPlainTextEdit* m_log;
};
