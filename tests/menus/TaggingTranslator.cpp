#include "TaggingTranslator.h"

QString TaggingTranslator::translate(const char* context, const char* sourceText, const char*,
                                     int) const
{
    return QStringLiteral("%1: %2").arg(QString::fromUtf8(context), QString::fromUtf8(sourceText));
}
