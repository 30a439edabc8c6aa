#pragma once

#include "CFxDocument.h"
#include "CFxDocumentManagerReactor.h"
#include "FxKernelExport.h"

#include <OdReactorList.h>

#include <memory>
#include <vector>

// The host's open documents and the reactors that follow them.
class FX_KERNEL_EXPORT CFxDocumentManager
{
public:
    CFxDocumentManager();
    ~CFxDocumentManager();
    CFxDocumentManager(const CFxDocumentManager&) = delete;
    CFxDocumentManager& operator=(const CFxDocumentManager&) = delete;

    void AddReactor(CFxDocumentManagerReactor* reactor);
    void RemoveReactor(CFxDocumentManagerReactor* reactor);
    bool HasReactor(const CFxDocumentManagerReactor* reactor) const;

    // Opens `pathName` as a new document, holding `database` (null for a file that is not a
    // drawing), and makes it the active one.
    CFxDocument* OpenDocument(const QString& pathName, OdDbDatabasePtr database = {});
    // Both return false when no open document has that number.
    bool ActivateDocument(int index);
    bool CloseDocument(int index);
    // Closes every document, the latest first.
    void CloseAll();

    CFxDocument* GetActiveDocument() const { return m_active; }
    CFxDocument* GetDocument(int index) const;
    int GetDocumentCount() const { return static_cast<int>(m_documents.size()); }

private:
    void activate(CFxDocument* document);

    OdReactorList<CFxDocumentManagerReactor> m_reactors;
    std::vector<std::unique_ptr<CFxDocument>> m_documents;
    CFxDocument* m_active = nullptr;
    int m_lastIndex = 0;
};
