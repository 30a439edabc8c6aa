#pragma once

#include "TD_RootExport.h"

#include <QJsonValue>
#include <QPair>
#include <QString>
#include <QVector>

// The fields of one observable event, in the order in which they are written out.
using OdEventFields = QVector<QPair<QString, QJsonValue>>;

// Receives every observable effect of the platform, the host kernel and the companions:
// a module loaded, a command added, a reactor attached, a document activated, ...
class TD_ROOT_EXPORT OdEventSink
{
public:
    virtual ~OdEventSink();
    virtual void hostEvent(const QString& name, const OdEventFields& fields) = 0;
};
