#pragma once

#include "HostOptions.h"

#include <QDir>
#include <QStringList>
#include <QUuid>

#include <memory>

class QMainWindow;
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

    // Configures the kernel's services and the linker, and loads the start modules.
    void start();
    // Destroys the main window if there is one and unloads every module.
    void shutdown();

    void createMainFrame();
    void destroyMainFrame();
    void loadModule(const QString& name);
    void unloadModule(const QString& name);
    void openDocument(const QString& path);
    void activateDocument(int index);
    void closeDocument(int index);
    void runCommandLine(const QString& name, const QStringList& answers);
    void reportUi();
    void reportCommands();
    void waitEvents();
    // Ends a statement: lets the linker carry out unload requests whose modules are no longer
    // referenced, and reports how the application's language changed.
    void settle();

    static QString programFolder();
    static QString defaultUiProfile();

private:
    void loadUiProfile();
    static QUuid installationId();

    const HostOptions m_options;
    std::unique_ptr<UrlRecorder> m_urls;
    std::unique_ptr<TranslationObserver> m_translations;
    std::unique_ptr<QMainWindow> m_mainFrame;
};
