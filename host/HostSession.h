#pragma once

#include "HostOptions.h"
#include "ViewerCallListener.h"

#include <QDir>
#include <QStringList>
#include <QUuid>

#include <functional>
#include <memory>

class HostWindow;
class TranslationObserver;
class UrlRecorder;

// The running host: its system services, its modules, its main window and its documents.
// Each operation is one thing a user (or a script) can do; a request that cannot be carried
// out throws HostError.
class HostSession
{
public:
    explicit HostSession(const HostOptions& options);
    ~HostSession();
    HostSession(const HostSession&) = delete;
    HostSession& operator=(const HostSession&) = delete;

    // Configures the kernel's services and the linker, listens for the viewers, and loads the
    // start modules.
    void start();
    // With handlers, the main window is shown: its user types command lines, and when it
    // goes (closed by its user or destroyed by a statement) `windowGone` is called. Without
    // them, the main window exists only for the modules.
    void setWindowHandlers(std::function<void(const QString&)> commandLine,
                           std::function<void()> windowGone);
    // Destroys the main window if there is one and unloads every module.
    void shutdown();

    void createMainFrame();
    void destroyMainFrame();
    void loadModule(const QString& name);
    void unloadModule(const QString& name);
    // Opens the file `path` as a document, with the drawing read from it; a file that is not a
    // readable drawing opens without one (a warning on standard error says why). An empty
    // path, and anything but a regular file that holds what it says it holds, is refused.
    void openDocument(const QString& path);
    void activateDocument(int index);
    void closeDocument(int index);
    void runCommandLine(const QString& name, const QStringList& answers);
    void reportUi();
    void reportCommands();
    // Lets queued events and the viewers' announcements arrive.
    void waitEvents();
    // Saves a picture of the main window as PNG.
    void screenshot(const QString& path);
    // Ends a statement: lets the linker carry out unload requests whose modules are no longer
    // referenced, reports how the application's language changed, and shows the window anew.
    void settle();

    HostWindow* mainFrame() const { return m_mainFrame.get(); }
    // Shows the model, the active document and the command names in the window now.
    void refreshWindow();
    // Asks for one refresh at the next turn of the event loop, however often it is asked for
    // before then: a module that updates the model many times costs one redraw.
    void scheduleRefresh();
    static QString programFolder();
    // What the window's command line completes: the statements and the commands' names.
    static QStringList completions();
    static QString defaultUiProfile();

private:
    void loadUiProfile();
    static QUuid installationId();

    const HostOptions m_options;
    std::unique_ptr<UrlRecorder> m_urls;
    std::unique_ptr<TranslationObserver> m_translations;
    struct WindowDeleter
    {
        void operator()(HostWindow* window) const;
    };
    std::unique_ptr<HostWindow, WindowDeleter> m_mainFrame;
    std::function<void(const QString&)> m_onCommandLine;
    std::function<void()> m_onClose;
    ViewerCallListener m_viewerCalls;
    bool m_refreshPending = false;
    std::shared_ptr<bool> m_alive = std::make_shared<bool>(true);
};
