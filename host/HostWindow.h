#pragma once

#include <QHash>
#include <QMainWindow>

#include <functional>
#include <memory>

class CFxDocument;
class CFxHostUI;
class CommandLineEdit;
class DrawingCanvas;
class DrawingScene;
class QLabel;
class QPlainTextEdit;
class RibbonWidget;

// The host's main window: the menu bar of the pull-down menus, the ribbon, the drawing area
// showing the active document, a command line that takes command lines and script
// statements, the log of every event, and a status bar telling what of the drawing is drawn.
class HostWindow : public QMainWindow
{
    Q_OBJECT

public:
    explicit HostWindow(QWidget* parent = nullptr);
    ~HostWindow() override;

    // Shows the user-interface model as it is now; parts that did not change stay as they are.
    void showModel(const CFxHostUI& ui);
    // Shows the drawing of `document` (null: none). A document keeps its picture while it is
    // open, so switching back is immediate.
    void showDocument(const CFxDocument* document);
    // Where the command line takes the names it completes from, when the user types.
    void setCompletionSource(std::function<QStringList()> source);
    void appendLog(const QString& line);

    DrawingCanvas* canvas() const { return m_canvas; }

    // The command line that a menu or ribbon macro stands for ("^C^C_LINE" is "_LINE").
    static QString commandLineOf(const QString& macro);
    // What the status bar says of a drawing's scene.
    static QString sceneSummary(const DrawingScene& scene);

signals:
    void commandLineEntered(const QString& line);
    void closeRequested();

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    void buildMenuBar(const CFxHostUI& ui);

    RibbonWidget* m_ribbon;
    DrawingCanvas* m_canvas;
    CommandLineEdit* m_commandLine;
    QPlainTextEdit* m_log;
    QLabel* m_drawingStatus;
    QLabel* m_cursorStatus;
    quint64 m_menuBarSignature = 0;
    bool m_hasMenuBar = false;
    int m_shownDocument = 0;
    QHash<int, std::shared_ptr<const DrawingScene>> m_scenes; // by document number
};
