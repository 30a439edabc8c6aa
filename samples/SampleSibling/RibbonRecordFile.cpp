#include "RibbonRecordFile.h"

#include "RibbonRecordParser.h"
#include "SampleTextFile.h"

bool RibbonRecordFile::read(const QString& path)
{
    SampleTextFile file;
    if (!file.read(path)) {
        m_error = QStringLiteral("cannot read %1: %2").arg(path, file.error());
        return false;
    }
    RibbonRecordParser parser(QString::fromUtf8(file.content()));
    if (!parser.parse(m_owned, m_records)) {
        m_error =
            QStringLiteral("%1 is not a list of ribbon records: %2").arg(path, parser.error());
        return false;
    }
    return true;
}
