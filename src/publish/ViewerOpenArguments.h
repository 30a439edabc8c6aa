#pragma once

#include <QByteArray>

// What the viewer's open method is given, in its order: the drawing to open and the name of
// the viewer's output as 8-bit text, then two texts and two flags whose meaning is the
// viewer's; the module always passes the texts empty and the flags set.
struct ViewerOpenArguments
{
    QByteArray path;
    QByteArray viewerName;
    QByteArray reservedText1;
    QByteArray reservedText2;
    bool reservedFlag1 = true;
    bool reservedFlag2 = true;
};
