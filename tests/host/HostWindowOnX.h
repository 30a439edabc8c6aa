#pragma once

#include "EventPrinter.h"
#include "EventRecorder.h"
#include "IsolatedHome.h"

#include <QStringList>

#include <gtest/gtest.h>

#include <cstdio>
#include <memory>

class CFxHostUI;
class HostSession;
class HostWindow;
class ScriptRunner;

// A host session in this process whose main window stands on the X server, with its window's
// command line wired to the script runner, as the window of quillon-host is.
class HostWindowOnX : public ::testing::Test
{
protected:
    HostWindowOnX();
    ~HostWindowOnX() override;

    void SetUp() override;
    void TearDown() override;

    // The modules loaded at start.
    virtual QStringList startModules() const;
    // Whether the window is the session's command line, shown at its creation; without it the
    // session runs a script, and the window shows when a statement needs it on screen.
    virtual bool windowIsTheCommandLine() const;

    HostWindow* window() const;
    const CFxHostUI& ui() const;
    // Runs a statement as the window's command line does, paths taken from the test's home.
    void run(const QString& statement);
    // The command lines that ran, known or not.
    QStringList commandLinesRun() const;

    IsolatedHome m_home;
    EventRecorder m_events;
    std::FILE* m_discarded = std::fopen("/dev/null", "w");
    EventPrinter m_printer{false, m_discarded};
    std::unique_ptr<HostSession> m_session;
    std::unique_ptr<ScriptRunner> m_runner;
    bool m_windowGone = false;
};
