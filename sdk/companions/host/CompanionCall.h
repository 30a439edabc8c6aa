#pragma once

#include <QJsonArray>
#include <QString>

#include <OdEventLog.h>

// Every call into a reference companion is reported, so that the host shows what a module
// asked of its companions and in which order.
inline void reportCompanionCall(const QString& library, const QString& call,
                                const QJsonArray& args = {})
{
    OdEventLog::report(QStringLiteral("companion-call"), {{QStringLiteral("library"), library},
                                                          {QStringLiteral("call"), call},
                                                          {QStringLiteral("args"), args}});
}
