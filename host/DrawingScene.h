#pragma once

#include <QHash>
#include <QLineF>
#include <QMap>
#include <QPolygonF>
#include <QRectF>
#include <QString>
#include <QVector>

#include <memory>

class OdDbDxfDatabase;

// What the canvas draws of a drawing, in the drawing's own coordinates (y up): its lines,
// polylines, circles, arcs and texts, with the block references drawn out, referenced
// drawings read from their files, and a named placeholder for each referenced drawing that
// cannot be read. Entities of other kinds are counted by kind, not drawn.
class DrawingScene
{
public:
    struct Circle
    {
        QPointF center;
        double radius;
    };
    struct Arc
    {
        QPointF center;
        double radius;
        double startDegrees; // counter-clockwise from the x axis
        double spanDegrees;  // counter-clockwise, positive
    };
    struct Text
    {
        QPointF position; // the left end of the base line
        double height;
        double degrees;
        QString text;
    };
    // A referenced drawing that could not be read: a frame whose lower left corner is where
    // it is inserted, with the reference's name.
    struct Placeholder
    {
        QRectF frame; // y up: top() is the lower edge
        QString name;
    };

    // The scene of `database`; referenced drawings are looked for beside it.
    static std::shared_ptr<const DrawingScene> of(const OdDbDxfDatabase& database);

    const QVector<QLineF>& lines() const { return m_lines; }
    const QVector<QPolygonF>& polylines() const { return m_polylines; }
    const QVector<Circle>& circles() const { return m_circles; }
    const QVector<Arc>& arcs() const { return m_arcs; }
    const QVector<Text>& texts() const { return m_texts; }
    const QVector<Placeholder>& placeholders() const { return m_placeholders; }
    // Entities of the drawing (not of its blocks) that are drawn, and the kinds not drawn
    // with how many of each.
    int drawnEntities() const { return m_drawnEntities; }
    const QMap<QString, int>& undrawnKinds() const { return m_undrawn; }
    // The smallest rectangle holding everything drawn; null for an empty scene.
    QRectF extents() const { return m_extents; }

private:
    friend class DrawingSceneBuilder;

    QVector<QLineF> m_lines;
    QVector<QPolygonF> m_polylines;
    QVector<Circle> m_circles;
    QVector<Arc> m_arcs;
    QVector<Text> m_texts;
    QVector<Placeholder> m_placeholders;
    int m_drawnEntities = 0;
    QMap<QString, int> m_undrawn;
    QRectF m_extents;
};
