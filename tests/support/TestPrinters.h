#pragma once

// How GoogleTest prints the project's string types in failure messages: as text, not bytes.
// Every test source that compares these types includes this header: GoogleTest makes one printer
// per type for the whole program, so a source without it would print them another way, and
// which of the two a failure shows would be up to the linker.
#include <QJsonDocument>
#include <QJsonObject>
#include <QString>
#include <QStringList>
#include <QVariant>

#include <OdString.h>

#include <ostream>

inline void PrintTo(const QString& text, std::ostream* out)
{
    *out << '"' << text.toStdString() << '"';
}

inline void PrintTo(const OdString& text, std::ostream* out)
{
    PrintTo(toQString(text), out);
}

inline void PrintTo(const QJsonObject& object, std::ostream* out)
{
    *out << QJsonDocument(object).toJson(QJsonDocument::Compact).toStdString();
}

inline void PrintTo(const QVariant& value, std::ostream* out)
{
    *out << value.typeName() << ' ';
    PrintTo(value.toString(), out);
}
