#pragma once

#include "DrawingScene.h"

#include <QDir>
#include <QHash>
#include <QTransform>

#include <map>
#include <memory>
#include <vector>

class OdDxfGroup;

// Builds a DrawingScene from a drawing's DXF groups. Block references are drawn out with an
// explicit stack, to a bounded depth, so neither deep nesting nor a reference cycle can
// exhaust the stack; each referenced drawing is read once.
class DrawingSceneBuilder
{
public:
    explicit DrawingSceneBuilder(const OdDbDxfDatabase& database);

    std::shared_ptr<const DrawingScene> build();

    // How deep block references are followed.
    static constexpr int kMaxDepth = 16;
    // What a scene holds at most once its block references are drawn out.
    static constexpr int kMaxShapes = 4'000'000;

private:
    struct EntityGroups;
    struct Insert
    {
        QString block;
        QTransform placement; // scale, rotation and insertion point
    };
    // Model space or one block definition: shapes in its own coordinates, and references.
    struct Content
    {
        DrawingScene shapes;
        std::vector<Insert> inserts;
    };
    struct Block
    {
        Content content;
        QPointF base;
        QString path; // a referenced drawing's path, empty for other blocks
    };
    struct Drawing
    {
        QDir folder;
        Content model;
        QHash<QString, Block> blocks; // by name in lower case
        bool readable = false;
    };
    struct Pending
    {
        const Drawing* drawing;
        const Content* content;
        QTransform toWorld;
        int depth;
    };

    static void parse(const std::vector<OdDxfGroup>& groups, Drawing& drawing,
                      QMap<QString, int>& undrawn, int* drawn);
    static bool parseEntity(const QByteArray& type, const EntityGroups& entity, Content& content);
    const Drawing* read(const QString& absolutePath);
    const Drawing* referenced(const Drawing& from, const QString& path);
    void place(const Pending& item, DrawingScene& scene, std::vector<Pending>& pending);
    static void append(const DrawingScene& shapes, const QTransform& toWorld, DrawingScene& scene);
    static QRectF extentsOf(const DrawingScene& scene);
    static void frameReferences(DrawingScene& scene);

    std::shared_ptr<DrawingScene> m_result;
    Drawing m_main;
    std::map<QString, std::unique_ptr<Drawing>> m_referenced; // by absolute path, or null
    QHash<QString, const Drawing*> m_resolved;                // by folder and path as written
    int m_skippedReferences = 0;
    int m_missingBlocks = 0;
};
