#pragma once

#include <QString>

// The crash-report companion (library "TarnCrashReportSendService"): finds crash reports that
// are waiting to be sent and asks the user about them, and remembers which version of the
// host last ran its installation check.
//
// Modules use the class. Its calls reach the library through the module's delay-load import,
// which resolves the C entry points below on first use; without the library installed, the
// checks do nothing and no version is recorded.
class TarnCrashReportSendService
{
public:
    // The version recorded by setRegVersion; false when none has been recorded yet.
    bool getRegVersion(QString& version);
    void setRegVersion(const QString& version);
    // The check on the first run of a newly installed version.
    void initialCheckOnInstall() const;
    // The check on every other run.
    void reminderCheck();
};

// The library's C entry points.
extern "C" {
using TarnCrashReportGetRegVersionFunction = bool (*)(QString* version);
using TarnCrashReportSetRegVersionFunction = void (*)(const QString* version);
using TarnCrashReportCheckFunction = void (*)();
}

namespace TarnCrashReportEntryPoints {
constexpr const char* library = "TarnCrashReportSendService";
constexpr const char* getRegVersion = "TarnCrashReportSendService_getRegVersion";
constexpr const char* setRegVersion = "TarnCrashReportSendService_setRegVersion";
constexpr const char* initialCheckOnInstall = "TarnCrashReportSendService_initialCheckOnInstall";
constexpr const char* reminderCheck = "TarnCrashReportSendService_reminderCheck";
} // namespace TarnCrashReportEntryPoints
