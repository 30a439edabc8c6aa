#pragma once

#include <QString>

#include <set>

class OdDbBlockTableRecord;
class OdDbDatabase;
class OdDbGraphNode;

// Copies the drawings that a drawing references, directly or through other references, into
// a folder, each under its own file name. A file that is already there is not overwritten,
// and a file that is missing, or is not a regular file (a pipe, a device), is left out.
class ReferencedDrawingCopier
{
public:
    explicit ReferencedDrawingCopier(QString folder);

    void copyReferencesOf(OdDbDatabase* database);

private:
    void copyFrom(const OdDbGraphNode* node);
    void copy(const OdDbGraphNode* node) const;
    // The referenced file: the record's path, taken from the folder of the drawing that holds
    // the record when it is relative.
    static QString referencedFile(const OdDbBlockTableRecord& record);

    QString m_folder;
    // A node is walked once, even in a graph with cycles.
    std::set<const OdDbGraphNode*> m_visited;
};
