#pragma once

#include "TD_RootExport.h"

#include <QByteArray>
#include <QJsonValue>
#include <QPair>
#include <QString>
#include <QVector>

#include <functional>

// The fields of one observable event, in the order in which they are written out.
using OdEventFields = QVector<QPair<QString, QJsonValue>>;

// A JSON object that is written out as text rather than built as a QJsonValue (a model too
// large or too deeply nested for that): the text compact (true) or indented (false), as
// QJsonDocument::toJson would write it.
using OdJsonText = std::function<QByteArray(bool compact)>;

// Receives every observable effect of the platform, the host kernel and the companions:
// a module loaded, a command added, a reactor attached, a document activated, ...
class TD_ROOT_EXPORT OdEventSink
{
public:
    virtual ~OdEventSink();
    virtual void hostEvent(const QString& name, const OdEventFields& fields) = 0;
    // An event whose last field, `field`, is an object given as text. By default the text is
    // read back and the event handed to hostEvent (a text nested deeper than Qt reads gives an
    // empty object).
    virtual void hostTextEvent(const QString& name, const OdEventFields& fields,
                               const QString& field, const OdJsonText& text);
};
