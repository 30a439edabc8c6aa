#include "SampleLoadCommand.h"

#include "RibbonRecordFile.h"
#include "SampleRibbon.h"

SampleLoadCommand::SampleLoadCommand(SampleRibbon& ribbon)
    : SampleCommand(L"SAMPLELOAD"), m_ribbon(ribbon)
{}

int SampleLoadCommand::runCommand(OdEdCommandContext* context)
{
    const QString path = askString(context, L"JSON file of ribbon records");
    int position = 0;
    if (path.isEmpty()) {
        tell(context, QStringLiteral("no file given"));
    } else if (!askInt(context, L"Position", 0, position)) {
        tell(context, QStringLiteral("the position must be a whole number"));
    } else {
        RibbonRecordFile file;
        if (!file.read(path)) {
            tell(context, file.error());
            return RTNORM;
        }
        // The records stay ours: the call reads them and keeps nothing.
        for (RibbonItem* record : file.records())
            m_ribbon.load(record, position);
        tell(context, QStringLiteral("%1 records loaded").arg(file.records().size()));
    }
    return RTNORM;
}
