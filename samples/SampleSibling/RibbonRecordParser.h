#pragma once

#include <QList>
#include <QString>

#include <ExtCommands/RibbonItem.h>

#include <memory>
#include <vector>

// Reads the JSON text of a list of ribbon records (see RibbonRecordFile). Records may nest
// thousands deep, deeper than Qt's JSON reader goes and than a recursive reader's stack
// would, so this one keeps the records being read on a list of its own.
class RibbonRecordParser
{
public:
    explicit RibbonRecordParser(QString text);

    // Reads the whole text. Every record made goes into `owned`; the records of the list also
    // into `records`. False, with error() telling where and why, for a text of another form.
    bool parse(std::vector<std::unique_ptr<RibbonItem>>& owned, QList<RibbonItem*>& records);
    QString error() const { return m_error; }

private:
    // A list or a record being read: exactly one of `list` and `record` is set.
    struct Level
    {
        QList<RibbonItem*>* list;
        RibbonItem* record;
        bool first;
    };

    // Reads the next element of the innermost list or record, or its end.
    bool step(std::vector<Level>& levels, std::vector<std::unique_ptr<RibbonItem>>& owned);
    bool readRecordStart(std::vector<Level>& levels,
                         std::vector<std::unique_ptr<RibbonItem>>& owned);
    bool readField(std::vector<Level>& levels);
    bool readString(QString& value);
    bool readEscape(QString& value);
    bool expect(char wanted);
    QChar peek() const;
    void skipSpace();
    bool fail(const QString& problem);

    const QString m_text;
    int m_at = 0;
    QString m_error;
};
