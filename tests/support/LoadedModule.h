#pragma once

#include <QString>

class OdRxModule;

// A module loaded through the platform's dynamic linker for the length of a test, from the
// build's stage folder (modules as installed beside the program). The companion libraries that
// the module loads by file name come from the test program's library search path, which CTest
// starts with the stage folder.
class LoadedModule
{
public:
    explicit LoadedModule(const QString& name = QStringLiteral("ExtCommands"));
    ~LoadedModule();
    LoadedModule(const LoadedModule&) = delete;
    LoadedModule& operator=(const LoadedModule&) = delete;

    OdRxModule* module() const { return m_module; }
    QString path() const { return m_path; }
    // Unloads now (also done on destruction); returns whether the linker unloaded it.
    bool unload();

    // Points the dynamic linker at `folder` (default: the stage).
    static void useFolder(const QString& folder = QString());
    static QString stageFolder() { return QStringLiteral(EC_STAGE_DIR); }

private:
    QString m_name;
    QString m_path;
    OdRxModule* m_module = nullptr;
};
