#include "RibbonRecordFile.h"

#include "RibbonRecordParser.h"

#include <CFxTextFile.h>

bool RibbonRecordFile::read(const QString& path)
{
    QByteArray content;
    QString problem;
    if (!CFxTextFile::read(path, content, problem)) {
        m_error = QStringLiteral("cannot read %1: %2").arg(path, problem);
        return false;
    }
    RibbonRecordParser parser(QString::fromUtf8(content));
    if (!parser.parse(m_owned, m_records)) {
        m_error =
            QStringLiteral("%1 is not a list of ribbon records: %2").arg(path, parser.error());
        return false;
    }
    return true;
}
