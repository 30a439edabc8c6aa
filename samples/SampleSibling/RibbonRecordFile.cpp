#include "RibbonRecordFile.h"

#include "RibbonRecordParser.h"

#include <QFile>

bool RibbonRecordFile::read(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        m_error = QStringLiteral("cannot read %1: %2").arg(path, file.errorString());
        return false;
    }
    RibbonRecordParser parser(QString::fromUtf8(file.readAll()));
    if (!parser.parse(m_owned, m_records)) {
        m_error =
            QStringLiteral("%1 is not a list of ribbon records: %2").arg(path, parser.error());
        return false;
    }
    return true;
}
