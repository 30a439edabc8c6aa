#pragma once

#include <QString>
#include <QTemporaryDir>

// A program folder of a test's own: quillon-host and the libraries beside it, taken from the
// stage, and a "messages" tree that the test fills as it likes. The host looks for its
// translations beside the program, so this is how a test chooses what it finds.
class ProgramFolderCopy
{
public:
    ProgramFolderCopy();

    QString program() const;
    QString messages() const;
    // Copies a catalogue of the stage's messages tree ("german/GCode.qm") to `target`, a path
    // below this folder's messages tree ("GCode.qm").
    void copyCatalogue(const QString& source, const QString& target) const;

private:
    QTemporaryDir m_folder;
};
