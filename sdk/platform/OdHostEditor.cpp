#include "OdHostEditor.h"

#include "OdEventLog.h"

namespace {
void reportReactorEvent(const char* event, const OdEventFields& extra = {})
{
    OdEventFields fields{{QStringLiteral("kind"), QStringLiteral("editor")}};
    fields += extra;
    OdEventLog::report(QString::fromLatin1(event), fields);
}
} // namespace

OdHostEditor::OdHostEditor()
    : m_reactors([](OdEditorReactor*) {
          reportReactorEvent("reactor-removed",
                             {{QStringLiteral("cause"), QStringLiteral("destroyed")}});
      })
{}

OdHostEditor::~OdHostEditor() = default;

void OdHostEditor::addReactor(OdEditorReactor* reactor)
{
    if (!m_reactors.add(reactor))
        return;
    reactor->addRef();
    reportReactorEvent("reactor-added");
}

void OdHostEditor::removeReactor(OdEditorReactor* reactor)
{
    if (!m_reactors.remove(reactor))
        return;
    reactor->release();
    reportReactorEvent("reactor-removed");
}

bool OdHostEditor::hasReactor(const OdEditorReactor* reactor) const
{
    return m_reactors.contains(reactor);
}

std::size_t OdHostEditor::reactorCount() const
{
    return m_reactors.size();
}

void OdHostEditor::notify(const std::function<void(OdEditorReactor*)>& notification)
{
    m_reactors.notify(notification);
}

OdHostEditor* odedHostEditor()
{
    static OdHostEditor editor;
    return &editor;
}

OdEditor* odedEditor()
{
    return odedHostEditor();
}
