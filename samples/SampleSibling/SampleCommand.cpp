#include "SampleCommand.h"

#include <OdEdCommandContext.h>
#include <OdEdUserIO.h>
#include <OdError.h>

SampleCommand::SampleCommand(const wchar_t* localName) : m_localName(localName) {}

const OdString SampleCommand::groupName() const
{
    return OdString(L"SAMPLESIBLING");
}

const OdString SampleCommand::globalName() const
{
    return OdString(L"_") + m_localName;
}

const OdString SampleCommand::localName() const
{
    return m_localName;
}

QString SampleCommand::askString(OdEdCommandContext* context, const wchar_t* prompt)
{
    return toQString(context->userIO()->getString(OdString(prompt)));
}

bool SampleCommand::askInt(OdEdCommandContext* context, const wchar_t* prompt, int defaultValue,
                           int& value)
{
    try {
        value = context->userIO()->getInt(OdString(prompt), defaultValue);
        return true;
    } catch (const OdError&) {
        return false;
    }
}

void SampleCommand::tell(OdEdCommandContext* context, const QString& text) const
{
    const QString line = toQString(localName()) + QStringLiteral(": ") + text;
    context->userIO()->putString(toOdString(line));
}
