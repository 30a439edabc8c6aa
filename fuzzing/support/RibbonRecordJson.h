#pragma once

#include <QList>
#include <QString>

#include <ExtCommands/RibbonItem.h>

// Writes ribbon records as the JSON text that a sibling's record file holds: every field, in
// the record's order, however deeply the children nest (without recursion).
class RibbonRecordJson
{
public:
    static QString write(const QList<RibbonItem*>& records);

private:
    static void writeFields(const RibbonItem& record, QString& out);
    static void writeString(const QString& value, QString& out);
};
