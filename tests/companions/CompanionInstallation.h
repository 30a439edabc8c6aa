#pragma once

#include <QString>
#include <QStringList>
#include <QTemporaryDir>
#include <QVariant>

// A host installation of a test's own, with the companions that the test chooses: a module
// folder holding the ExtCommands module and the chosen connector modules, a companion folder
// holding the chosen companion libraries (hard links of the stage's, or copies), and a registry
// stand-in file. Symbolic links would not do: a library's $ORIGIN is where a link points.
class CompanionInstallation
{
public:
    CompanionInstallation();

    // Companions by name: "TarnTaskPane", "QuillonQnMurmurConnector" (libraries),
    // "QuillonOmniplaneConnector", "QNTForgeportConnector" (modules).
    void install(const QString& companion);
    void installAll();
    static QStringList allCompanions();

    // Writes "OmniplaneCSEnable" into the registry stand-in, as an installer would.
    void setCollaborationEnabled(const QVariant& value) const;

    // quillon-host's options for this installation.
    QStringList hostArguments() const;

    QString moduleFolder() const;
    QString companionFolder() const;
    QString registryFile() const;

private:
    void place(const QString& file, const QString& folder) const;

    QTemporaryDir m_root;
};
