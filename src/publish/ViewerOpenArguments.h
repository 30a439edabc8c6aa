#pragma once

#include <QByteArray>

// What the viewer's open method is given, in its order: the drawing to open and the name of
// the viewer's output as 8-bit text, two texts that are always empty, and two flags that are
// always set.
struct ViewerOpenArguments
{
    QByteArray path;
    QByteArray viewerName;
    QByteArray firstText;
    QByteArray secondText;
    bool firstFlag = true;
    bool secondFlag = true;
};
