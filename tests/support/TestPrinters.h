#pragma once

// How GoogleTest prints the project's string types in failure messages: as text, not bytes.
// Every test source sees these first (ec_add_gtest includes this header), so that all of a
// program's sources print a type the same way.
#include <QJsonDocument>
#include <QJsonObject>
#include <QString>
#include <QStringList>

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
