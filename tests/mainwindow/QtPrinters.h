#pragma once

#include <QJsonDocument>
#include <QJsonObject>
#include <QString>

#include <ostream>

// Readable Qt values in the messages of failed checks.
inline void PrintTo(const QString& text, std::ostream* out)
{
    *out << '"' << text.toStdString() << '"';
}

inline void PrintTo(const QJsonObject& object, std::ostream* out)
{
    *out << QJsonDocument(object).toJson(QJsonDocument::Compact).toStdString();
}
