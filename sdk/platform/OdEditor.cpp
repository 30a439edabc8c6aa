#include "OdEditor.h"

#include "OdEventLog.h"

namespace {
void reportReactorEvent(const char* event, const OdEventFields& extra = {})
{
    OdEventFields fields{{QStringLiteral("kind"), QStringLiteral("editor")}};
    fields += extra;
    OdEventLog::report(QString::fromLatin1(event), fields);
}
} // namespace

OdEditor::OdEditor()
    : m_reactors([](OdEditorReactor*) {
          reportReactorEvent("reactor-removed",
                             {{QStringLiteral("cause"), QStringLiteral("destroyed")}});
      })
{}

OdEditor::~OdEditor() = default;

void OdEditor::addReactor(OdEditorReactor* reactor)
{
    if (!m_reactors.add(reactor))
        return;
    reactor->addRef();
    reportReactorEvent("reactor-added");
}

void OdEditor::removeReactor(OdEditorReactor* reactor)
{
    if (!m_reactors.remove(reactor))
        return;
    reactor->release();
    reportReactorEvent("reactor-removed");
}

bool OdEditor::hasReactor(const OdEditorReactor* reactor) const
{
    return m_reactors.contains(reactor);
}

std::size_t OdEditor::reactorCount() const
{
    return m_reactors.size();
}

void OdEditor::notify(const std::function<void(OdEditorReactor*)>& notification)
{
    m_reactors.notify(notification);
}

OdEditor* odedEditor()
{
    static OdEditor editor;
    return &editor;
}
