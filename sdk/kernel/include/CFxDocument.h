#pragma once

#include "FxKernelExport.h"

#include <QString>

#include <OdDbDatabase.h>

// A drawing open in the host. Documents are numbered from 1 in the order they were opened;
// a number is never reused. A document holds the drawing's database when its file could be
// read as a drawing; a document without one stands for a drawing that was never saved.
class FX_KERNEL_EXPORT CFxDocument
{
public:
    virtual ~CFxDocument();
    CFxDocument(const CFxDocument&) = delete;
    CFxDocument& operator=(const CFxDocument&) = delete;

    int GetIndex() const { return m_index; }
    QString GetPathName() const { return m_pathName; }
    // The drawing's database, or null.
    OdDbDatabase* GetFxDatabase() const { return m_database.get(); }

private:
    // Documents come into being as the host opens them.
    friend class CFxHostDocumentManager;
    CFxDocument(int index, QString pathName, OdDbDatabasePtr database);

    int m_index;
    QString m_pathName;
    OdDbDatabasePtr m_database;
};

// The document the user works in, or null when none is open.
#define ACTIVE_DOCUMENT (GetFxSystemServices()->GetDocumentManager()->GetActiveDocument())
