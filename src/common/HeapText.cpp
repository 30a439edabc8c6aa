#include "HeapText.h"

QString heapText(const char* latin1)
{
    return QString::fromLatin1(latin1);
}
