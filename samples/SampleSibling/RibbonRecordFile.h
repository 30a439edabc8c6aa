#pragma once

#include <QList>
#include <QString>

#include <ExtCommands/RibbonItem.h>

#include <memory>
#include <vector>

// The ribbon records of a JSON file: a list of objects whose keys are RibbonItem's field
// names ("text", "id", ..., "children", "type"). "children" is a list of such objects, every
// other value a string; a missing key leaves its field empty. The file owns every record it
// read, however deeply nested, and frees them all when it goes.
class RibbonRecordFile
{
public:
    // Reads the file at `path`; false, with error() telling why, when it cannot be read or
    // does not hold such a list.
    bool read(const QString& path);

    // The records of the list, in order (their children are reached through them).
    const QList<RibbonItem*>& records() const { return m_records; }
    QString error() const { return m_error; }

private:
    std::vector<std::unique_ptr<RibbonItem>> m_owned;
    QList<RibbonItem*> m_records;
    QString m_error;
};
