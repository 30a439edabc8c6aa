#pragma once

#include "FxKernelExport.h"

#include <QJsonObject>

class CFxHostUI;

// Writes the whole user-interface model as JSON: every container in order, with identifiers,
// texts, flags and attached commands. A command that stands in its group's command list is
// named by its identifier; any other attached command is written out in full where it is
// attached. The format is the one CFxUIJsonReader reads (see docs/host.md).
class FX_KERNEL_EXPORT CFxUIJsonWriter
{
public:
    static QJsonObject write(const CFxHostUI& ui);
    // The same model as JSON text, byte for byte what QJsonDocument(write(ui)).toJson() gives,
    // compact or indented; written as the model is walked, without recursion, so that its
    // cost grows with the model's size however deeply split buttons nest.
    static QByteArray writeText(const CFxHostUI& ui, bool compact);
};
