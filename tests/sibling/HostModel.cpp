#include "HostModel.h"

testing::AssertionResult ranCleanly(const HostResult& result)
{
    for (const char* alarm : {"AddressSanitizer", "LeakSanitizer", "runtime error:"}) {
        if (result.standardError.contains(QLatin1String(alarm)))
            return testing::AssertionFailure() << result.standardError.toStdString();
    }
    if (result.exitCode != 0 || result.events.count(QStringLiteral("error")) != 0)
        return testing::AssertionFailure()
               << "exit code " << result.exitCode << ": "
               << result.events.values("error", "message").join(", ").toStdString();
    return testing::AssertionSuccess();
}

QJsonObject firstWithId(const QJsonValue& list, const QString& id)
{
    for (const QJsonValue item : list.toArray()) {
        if (item["id"].toString() == id)
            return item.toObject();
    }
    return {};
}

QStringList ids(const QJsonValue& list, const QString& field)
{
    QStringList result;
    for (const QJsonValue item : list.toArray())
        result << item[field].toString();
    return result;
}

QVector<QJsonObject> models(const HostResult& result)
{
    QVector<QJsonObject> found;
    for (const RecordedEvent& event : result.events.named("ui"))
        found << firstWithId(event.fields["model"]["groups"], QStringLiteral("QUILLON"));
    return found;
}

QJsonArray rowButtons(const QJsonObject& group, const QString& tab, const QString& panel,
                      const QString& row)
{
    return firstWithId(firstWithId(firstWithId(group["tabs"], tab)["panels"], panel)["rows"], row)
        .value("buttons")
        .toArray();
}
