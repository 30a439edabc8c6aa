#include "OdDxfWriter.h"

QByteArray OdDxfWriter::write(const std::vector<OdDxfGroup>& groups, const QByteArray& lineEnding)
{
    QByteArray content;
    for (const OdDxfGroup& group : groups) {
        content += QByteArray::number(group.code()).rightJustified(3, ' ');
        content += lineEnding;
        content += group.value();
        content += lineEnding;
    }
    return content;
}
