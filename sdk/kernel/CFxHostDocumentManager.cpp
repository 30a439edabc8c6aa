#include "CFxHostDocumentManager.h"

#include <OdEventLog.h>

#include <algorithm>
#include <utility>

namespace {
void reportReactorEvent(const char* event, const OdEventFields& extra = {})
{
    OdEventFields fields{{QStringLiteral("kind"), QStringLiteral("document-manager")}};
    fields += extra;
    OdEventLog::report(QString::fromLatin1(event), fields);
}

void reportDocumentEvent(const char* event, const CFxDocument* document)
{
    OdEventLog::report(QString::fromLatin1(event),
                       {{QStringLiteral("index"), document->GetIndex()},
                        {QStringLiteral("path"), document->GetPathName()}});
}
} // namespace

CFxHostDocumentManager::CFxHostDocumentManager()
    : m_reactors([](CFxDocumentManagerReactor*) {
          reportReactorEvent("reactor-removed",
                             {{QStringLiteral("cause"), QStringLiteral("destroyed")}});
      })
{}

CFxHostDocumentManager::~CFxHostDocumentManager() = default;

void CFxHostDocumentManager::AddReactor(CFxDocumentManagerReactor* reactor)
{
    if (m_reactors.add(reactor))
        reportReactorEvent("reactor-added");
}

void CFxHostDocumentManager::RemoveReactor(CFxDocumentManagerReactor* reactor)
{
    if (m_reactors.remove(reactor))
        reportReactorEvent("reactor-removed");
}

bool CFxHostDocumentManager::HasReactor(const CFxDocumentManagerReactor* reactor) const
{
    return m_reactors.contains(reactor);
}

CFxDocument* CFxHostDocumentManager::OpenDocument(const QString& pathName, OdDbDatabasePtr database)
{
    m_documents.push_back(std::unique_ptr<CFxDocument>(
        new CFxDocument(++m_lastIndex, pathName, std::move(database))));
    CFxDocument* document = m_documents.back().get();
    reportDocumentEvent("document-opened", document);
    m_reactors.notify(
        [document](CFxDocumentManagerReactor* reactor) { reactor->DocumentCreated(document); });
    activate(document);
    return document;
}

bool CFxHostDocumentManager::ActivateDocument(int index)
{
    CFxDocument* document = GetDocument(index);
    if (!document)
        return false;
    activate(document);
    return true;
}

bool CFxHostDocumentManager::CloseDocument(int index)
{
    const auto at =
        std::find_if(m_documents.begin(), m_documents.end(),
                     [index](const auto& document) { return document->GetIndex() == index; });
    if (at == m_documents.end())
        return false;
    CFxDocument* document = at->get();
    m_reactors.notify([document](CFxDocumentManagerReactor* reactor) {
        reactor->DocumentToBeDestroyed(document);
    });
    reportDocumentEvent("document-closed", document);
    const bool wasActive = document == m_active;
    std::unique_ptr<CFxDocument> closed = std::move(*at);
    m_documents.erase(at);
    if (!wasActive)
        return true;
    m_active = nullptr;
    if (!m_documents.empty())
        activate(m_documents.back().get());
    else
        m_reactors.notify([](CFxDocumentManagerReactor* reactor) { reactor->DocumentsClosed(); });
    return true;
}

void CFxHostDocumentManager::CloseAll()
{
    if (m_documents.empty())
        return;
    // Nothing is activated in between: the documents go one after the other, then none is left.
    m_active = nullptr;
    while (!m_documents.empty())
        CloseDocument(m_documents.back()->GetIndex());
    m_reactors.notify([](CFxDocumentManagerReactor* reactor) { reactor->DocumentsClosed(); });
}

CFxDocument* CFxHostDocumentManager::GetDocument(int index) const
{
    for (const auto& document : m_documents) {
        if (document->GetIndex() == index)
            return document.get();
    }
    return nullptr;
}

void CFxHostDocumentManager::activate(CFxDocument* document)
{
    m_active = document;
    reportDocumentEvent("document-activated", document);
    m_reactors.notify(
        [document](CFxDocumentManagerReactor* reactor) { reactor->DocumentActivated(document); });
}
