#pragma once

#include "FxKernelExport.h"

#include <QString>

// A drawing open in the host. Documents are numbered from 1 in the order they were opened;
// a number is never reused.
class FX_KERNEL_EXPORT CFxDocument
{
public:
    CFxDocument(int index, QString pathName);
    virtual ~CFxDocument();
    CFxDocument(const CFxDocument&) = delete;
    CFxDocument& operator=(const CFxDocument&) = delete;

    int GetIndex() const { return m_index; }
    QString GetPathName() const { return m_pathName; }

private:
    int m_index;
    QString m_pathName;
};

// The document the user works in, or null when none is open.
#define ACTIVE_DOCUMENT (GetFxSystemServices()->GetDocumentManager()->GetActiveDocument())
