#include "OdHostCommandStack.h"

#include "OdError.h"
#include "OdEventLog.h"
#include "OdHostEditor.h"
#include "OdSharedLibrary.h"

#include <QFileInfo>
#include <QString>

#include <algorithm>
#include <typeinfo>

namespace {
void reportCommandEvent(const char* event, const OdEdCommand* command,
                        const OdEventFields& extra = {})
{
    OdEventFields fields{{QStringLiteral("name"), toQString(command->globalName())},
                         {QStringLiteral("local"), toQString(command->localName())}};
    fields += extra;
    OdEventLog::report(QString::fromLatin1(event), fields);
}

QString canonical(const OdString& path)
{
    return QFileInfo(toQString(path)).canonicalFilePath();
}

bool sameName(const OdString& a, const OdString& b)
{
    return a.iCompare(b) == 0;
}

bool matches(const OdEdCommand* command, const OdString& name, int flags)
{
    if ((flags & OdEdCommandStack::kGlobal) && sameName(command->globalName(), name))
        return true;
    return (flags & OdEdCommandStack::kLocal) && !command->isUndefined() &&
           sameName(command->localName(), name);
}
} // namespace

OdHostCommandStack::OdHostCommandStack() = default;

OdHostCommandStack::~OdHostCommandStack() = default;

void OdHostCommandStack::addCommand(OdEdCommand* command)
{
    if (!command)
        return;
    if (lookupCmd(command->globalName(), kGlobal, command->groupName()))
        throw OdError(OdString(L"duplicate command ") + command->globalName() +
                      OdString(L" in group ") + command->groupName());
    command->addRef();
    m_commands.push_back(command);
    reportCommandEvent("command-added", command);
    const auto reactors = m_reactors;
    for (OdEdCommandStackReactor* reactor : reactors)
        reactor->commandAdded(command);
}

void OdHostCommandStack::removeCmd(OdEdCommand* command)
{
    const auto at = std::find(m_commands.begin(), m_commands.end(), command);
    if (at == m_commands.end())
        return;
    const auto reactors = m_reactors;
    for (OdEdCommandStackReactor* reactor : reactors)
        reactor->commandWillBeRemoved(command);
    // A reactor may have removed the command itself meanwhile.
    const auto still = std::find(m_commands.begin(), m_commands.end(), command);
    if (still == m_commands.end())
        return;
    m_commands.erase(still);
    reportCommandEvent("command-removed", command);
    command->release();
}

void OdHostCommandStack::removeCmd(const OdString& groupName, const OdString& globalName)
{
    removeCmd(lookupCmd(globalName, kGlobal, groupName));
}

void OdHostCommandStack::removeCommandsDefinedIn(const OdString& libraryPath)
{
    const QString library = canonical(libraryPath);
    const std::vector<OdEdCommand*> commands = m_commands;
    for (OdEdCommand* command : commands) {
        // A class's type information lives in the library that defines the class.
        if (canonical(OdSharedLibrary::fileContaining(&typeid(*command))) != library)
            continue;
        m_commands.erase(std::find(m_commands.begin(), m_commands.end(), command));
        reportCommandEvent("command-removed", command,
                           {{QStringLiteral("cause"), QStringLiteral("module-unloaded")}});
        command->release();
    }
}

OdEdCommand* OdHostCommandStack::lookupCmd(const OdString& name, int flags,
                                           const OdString& groupName) const
{
    for (OdEdCommand* command : m_commands) {
        if (!groupName.isEmpty() && !sameName(command->groupName(), groupName))
            continue;
        if (matches(command, name, flags))
            return command;
    }
    return nullptr;
}

std::vector<OdEdCommand*> OdHostCommandStack::commands() const
{
    return m_commands;
}

bool OdHostCommandStack::executeCommand(const OdString& name, OdEdCommandContext* context)
{
    OdEdCommand* command = lookupCmd(name);
    if (!command)
        return false;
    const OdString globalName = command->globalName();
    odedHostEditor()->notify(
        [&](OdEditorReactor* reactor) { reactor->commandWillStart(globalName); });
    command->execute(context);
    odedHostEditor()->notify([&](OdEditorReactor* reactor) { reactor->commandEnded(globalName); });
    return true;
}

void OdHostCommandStack::addReactor(OdEdCommandStackReactor* reactor)
{
    if (reactor && std::find(m_reactors.begin(), m_reactors.end(), reactor) == m_reactors.end())
        m_reactors.push_back(reactor);
}

void OdHostCommandStack::removeReactor(OdEdCommandStackReactor* reactor)
{
    m_reactors.erase(std::remove(m_reactors.begin(), m_reactors.end(), reactor), m_reactors.end());
}

OdHostCommandStack* odedHostRegCmds()
{
    static OdHostCommandStack stack;
    return &stack;
}

OdEdCommandStack* odedRegCmds()
{
    return odedHostRegCmds();
}
