#pragma once

#include "CFxDocument.h"
#include "CFxDocumentManager.h"
#include "CFxDocumentManagerReactor.h"
#include "FxKernelExport.h"

#include <QString>

#include <OdReactorList.h>

#include <memory>
#include <vector>

// The host's side of the document manager that modules see as CFxDocumentManager: the host
// opens, activates and closes documents here, and the attached reactors hear of each step.
class FX_KERNEL_EXPORT CFxHostDocumentManager final : public CFxDocumentManager
{
public:
    CFxHostDocumentManager();
    ~CFxHostDocumentManager() override;

    void AddReactor(CFxDocumentManagerReactor* reactor) override;
    void RemoveReactor(CFxDocumentManagerReactor* reactor) override;
    bool HasReactor(const CFxDocumentManagerReactor* reactor) const;

    // Opens `pathName` as a new document, holding `database` (null for a file that is not a
    // drawing), and makes it the active one.
    CFxDocument* OpenDocument(const QString& pathName, OdDbDatabasePtr database = {});
    // Both return false when no open document has that number.
    bool ActivateDocument(int index);
    bool CloseDocument(int index);
    // Closes every document, the latest first.
    void CloseAll();

    CFxDocument* GetActiveDocument() const override { return m_active; }
    CFxDocument* GetDocument(int index) const;
    int GetDocumentCount() const { return static_cast<int>(m_documents.size()); }

private:
    void activate(CFxDocument* document);

    OdReactorList<CFxDocumentManagerReactor> m_reactors;
    std::vector<std::unique_ptr<CFxDocument>> m_documents;
    CFxDocument* m_active = nullptr;
    int m_lastIndex = 0;
};
