#pragma once

#include "HostProcess.h"

#include <QJsonArray>
#include <QJsonObject>
#include <QStringList>
#include <QVector>

#include <gtest/gtest.h>

// What a sibling's run in quillon-host left: how the run ended, and the user-interface models
// that its "ui" statements wrote.

inline const QString kAddInsTab = QStringLiteral("ID_RibbonAddInsTab");

// Whether the host ran the whole script and ended well, with no complaint of a sanitizer.
testing::AssertionResult ranCleanly(const HostResult& result);

// The first object of the JSON list whose "id" is `id` (an empty object when none is).
QJsonObject firstWithId(const QJsonValue& list, const QString& id);
// The values of `field` of the objects of the JSON list, in order.
QStringList ids(const QJsonValue& list, const QString& field = QStringLiteral("id"));
// The main group of each model that the script's "ui" statements wrote, in order.
QVector<QJsonObject> models(const HostResult& result);
// The buttons of a row of the group's tabs (the Add-Ins row unless named).
QJsonArray rowButtons(const QJsonObject& group, const QString& tab = kAddInsTab,
                      const QString& panel = QStringLiteral("ID_RibbonAddInsPanel"),
                      const QString& row = QStringLiteral("ID_RibbonAddInsRow"));
