#pragma once

#include "OdEventSink.h"
#include "TD_RootExport.h"

// Where the platform, the kernel and the companions report what they do. The host installs
// one sink; without a sink the events go nowhere.
class TD_ROOT_EXPORT OdEventLog
{
public:
    // Installs `sink` and returns the one it replaces, so that a scope can restore it.
    static OdEventSink* setSink(OdEventSink* sink);
    static OdEventSink* sink();
    static void report(const QString& name, const OdEventFields& fields = {});
    // An event whose last field, `field`, is an object written only as text (see OdJsonText).
    static void report(const QString& name, const OdEventFields& fields, const QString& field,
                       const OdJsonText& text);
};
