#include "DrawingSceneBuilder.h"

#include <QFileInfo>
#include <QRegularExpression>
#include <QtMath>

#include <OdDbDxfDatabase.h>
#include <OdDxfGroup.h>
#include <OdError.h>

#include <algorithm>
#include <cmath>

namespace {
double number(const OdDxfGroup& group)
{
    return group.value().trimmed().toDouble();
}

QString lower(const QString& text)
{
    return text.toLower();
}

} // namespace

// The groups of one entity: from its (0, TYPE) group to the next group of code 0.
struct DrawingSceneBuilder::EntityGroups
{
    const OdDxfGroup* begin;
    const OdDxfGroup* end;

    double value(int code, double fallback = 0.0) const
    {
        for (const OdDxfGroup* at = begin + 1; at != end; ++at) {
            if (at->code() == code)
                return number(*at);
        }
        return fallback;
    }
    QString text(int code) const
    {
        for (const OdDxfGroup* at = begin + 1; at != end; ++at) {
            if (at->code() == code)
                return at->text();
        }
        return QString();
    }
    // Every (10, 20) pair, in order.
    QPolygonF points() const
    {
        QPolygonF points;
        for (const OdDxfGroup* at = begin + 1; at != end; ++at) {
            if (at->code() == 10)
                points.append(QPointF(number(*at), 0.0));
            else if (at->code() == 20 && !points.isEmpty())
                points.last().setY(number(*at));
        }
        return points;
    }
    QPointF point(int xCode) const { return QPointF(value(xCode), value(xCode + 10)); }
};

namespace {
// The plain text of an MTEXT value: formatting codes out, paragraph breaks as blanks.
QString plainMText(QString text)
{
    text.replace(QLatin1String("\\P"), QLatin1String(" "));
    static const QRegularExpression codes(QStringLiteral("\\\\[A-Za-z][^;\\\\{}]*;|[{}]"));
    return text.remove(codes);
}
} // namespace

DrawingSceneBuilder::DrawingSceneBuilder(const OdDbDxfDatabase& database)
{
    m_main.folder = QFileInfo(toQString(database.getFilename())).absoluteDir();
    m_main.readable = true;
    m_result = std::make_shared<DrawingScene>();
    parse(database.groups(), m_main, m_result->m_undrawn, &m_result->m_drawnEntities);
}

std::shared_ptr<const DrawingScene> DrawingSceneBuilder::build()
{
    std::vector<Pending> pending{{&m_main, &m_main.model, QTransform(), 0}};
    while (!pending.empty()) {
        const Pending item = pending.back();
        pending.pop_back();
        place(item, *m_result, pending);
    }
    if (m_skippedReferences > 0)
        m_result->m_undrawn[QStringLiteral("INSERT (nested too deep or too many)")] +=
            m_skippedReferences;
    if (m_missingBlocks > 0)
        m_result->m_undrawn[QStringLiteral("INSERT (no such block)")] += m_missingBlocks;
    frameReferences(*m_result);
    return m_result;
}

void DrawingSceneBuilder::parse(const std::vector<OdDxfGroup>& groups, Drawing& drawing,
                                QMap<QString, int>& undrawn, int* drawn)
{
    const OdDxfGroup* all = groups.data();
    const std::size_t count = groups.size();
    QByteArray section;
    Content* target = nullptr;
    bool inModel = false;
    std::size_t at = 0;
    while (at < count) {
        std::size_t end = at + 1;
        while (end < count && all[end].code() != 0)
            ++end;
        if (all[at].code() != 0) {
            at = end;
            continue;
        }
        const QByteArray type = all[at].value().trimmed();
        const EntityGroups entity{all + at, all + end};
        if (type == "SECTION") {
            section = entity.text(2).toLatin1();
            inModel = section == "ENTITIES";
            target = inModel ? &drawing.model : nullptr;
        } else if (type == "ENDSEC") {
            target = nullptr;
            inModel = false;
        } else if (section == "BLOCKS" && type == "BLOCK") {
            Block& block = drawing.blocks[lower(entity.text(2))];
            block = Block();
            block.base = entity.point(10);
            if (static_cast<int>(entity.value(70)) & 4)
                block.path = entity.text(1);
            target = &block.content;
        } else if (type == "ENDBLK") {
            target = nullptr;
        } else if (target) {
            if (type == "POLYLINE") {
                // The vertices follow as entities of their own, up to SEQEND.
                QPolygonF points;
                while (end < count && all[end].code() == 0 && !all[end].isStart("SEQEND")) {
                    std::size_t next = end + 1;
                    while (next < count && all[next].code() != 0)
                        ++next;
                    if (all[end].isStart("VERTEX"))
                        points.append(EntityGroups{all + end, all + next}.point(10));
                    end = next;
                }
                if (end < count && all[end].isStart("SEQEND")) {
                    ++end;
                    while (end < count && all[end].code() != 0)
                        ++end;
                }
                const int flags = static_cast<int>(entity.value(70));
                if (flags & (8 | 16 | 64)) {
                    ++undrawn[QStringLiteral("POLYLINE (3D or mesh)")];
                } else {
                    if ((flags & 1) && !points.isEmpty())
                        points.append(points.first());
                    target->shapes.m_polylines.append(points);
                    if (inModel && drawn)
                        ++*drawn;
                }
            } else if (inModel && static_cast<int>(entity.value(67)) == 1) {
                ++undrawn[QString::fromLatin1(type) + QStringLiteral(" (paper space)")];
            } else if (parseEntity(type, entity, *target)) {
                if (inModel && drawn)
                    ++*drawn;
            } else {
                ++undrawn[QString::fromLatin1(type)];
            }
        }
        at = end;
    }
}

bool DrawingSceneBuilder::parseEntity(const QByteArray& type, const EntityGroups& entity,
                                      Content& content)
{
    DrawingScene& shapes = content.shapes;
    if (type == "LINE") {
        shapes.m_lines.append(QLineF(entity.point(10), entity.point(11)));
    } else if (type == "LWPOLYLINE") {
        QPolygonF points = entity.points();
        if ((static_cast<int>(entity.value(70)) & 1) && !points.isEmpty())
            points.append(points.first());
        shapes.m_polylines.append(points);
    } else if (type == "CIRCLE") {
        shapes.m_circles.append({entity.point(10), entity.value(40)});
    } else if (type == "ARC") {
        const double start = entity.value(50);
        double span = entity.value(51) - start;
        while (span <= 0.0)
            span += 360.0;
        shapes.m_arcs.append({entity.point(10), entity.value(40), start, span});
    } else if (type == "TEXT") {
        shapes.m_texts.append(
            {entity.point(10), entity.value(40, 1.0), entity.value(50), entity.text(1)});
    } else if (type == "MTEXT") {
        shapes.m_texts.append({entity.point(10), entity.value(40, 1.0), entity.value(50),
                               plainMText(entity.text(1))});
    } else if (type == "SOLID" || type == "TRACE") {
        // The third and fourth corners are stored the other way round.
        shapes.m_polylines.append(
            QPolygonF(QVector<QPointF>{entity.point(10), entity.point(11), entity.point(13),
                                       entity.point(12), entity.point(10)}));
    } else if (type == "DIMENSION") {
        // A dimension is drawn as the block that holds its picture.
        content.inserts.push_back({entity.text(2), QTransform()});
    } else if (type == "INSERT") {
        QTransform placement;
        placement.translate(entity.value(10), entity.value(20));
        placement.rotate(entity.value(50));
        placement.scale(entity.value(41, 1.0), entity.value(42, 1.0));
        content.inserts.push_back({entity.text(2), placement});
    } else {
        return false;
    }
    return true;
}

void DrawingSceneBuilder::place(const Pending& item, DrawingScene& scene,
                                std::vector<Pending>& pending)
{
    const int shapes = scene.m_lines.size() + scene.m_polylines.size() + scene.m_circles.size() +
                       scene.m_arcs.size() + scene.m_texts.size();
    if (shapes > kMaxShapes) {
        m_skippedReferences += static_cast<int>(item.content->inserts.size()) + 1;
        return;
    }
    append(item.content->shapes, item.toWorld, scene);
    for (const Insert& insert : item.content->inserts) {
        const QTransform placed = insert.placement * item.toWorld;
        if (item.depth >= kMaxDepth) {
            ++m_skippedReferences;
            continue;
        }
        const auto found = item.drawing->blocks.constFind(lower(insert.block));
        if (found == item.drawing->blocks.constEnd()) {
            ++m_missingBlocks;
            continue;
        }
        const Block& block = found.value();
        if (block.path.isEmpty()) {
            pending.push_back({item.drawing, &block.content,
                               QTransform::fromTranslate(-block.base.x(), -block.base.y()) * placed,
                               item.depth + 1});
        } else if (const Drawing* drawing = referenced(*item.drawing, block.path)) {
            pending.push_back({drawing, &drawing->model, placed, item.depth + 1});
        } else {
            scene.m_placeholders.append({QRectF(placed.map(QPointF()), QSizeF()), insert.block});
        }
    }
}

const DrawingSceneBuilder::Drawing* DrawingSceneBuilder::referenced(const Drawing& from,
                                                                    const QString& path)
{
    const QString key = from.folder.absolutePath() + QLatin1Char('\n') + path;
    const auto known = m_resolved.constFind(key);
    if (known != m_resolved.constEnd())
        return known.value();
    QString written = path;
    written.replace(QLatin1Char('\\'), QLatin1Char('/'));
    // As written (absolute, or from the referring drawing's folder), then beside it.
    const Drawing* drawing = nullptr;
    for (const QString& candidate : {from.folder.absoluteFilePath(written),
                                     from.folder.absoluteFilePath(QFileInfo(written).fileName())}) {
        const QFileInfo file(candidate);
        if (file.isFile() && (drawing = read(file.absoluteFilePath())))
            break;
    }
    m_resolved.insert(key, drawing);
    return drawing;
}

const DrawingSceneBuilder::Drawing* DrawingSceneBuilder::read(const QString& absolutePath)
{
    const auto known = m_referenced.find(absolutePath);
    if (known != m_referenced.end())
        return known->second.get();
    std::unique_ptr<Drawing> drawing;
    try {
        const OdDbDxfDatabasePtr database = OdDbDxfDatabase::readFile(toOdString(absolutePath));
        drawing = std::make_unique<Drawing>();
        drawing->folder = QFileInfo(absolutePath).absoluteDir();
        drawing->readable = true;
        parse(database->groups(), *drawing, m_result->m_undrawn, nullptr);
    } catch (const OdError&) {
        drawing.reset();
    }
    const Drawing* result = drawing.get();
    m_referenced.emplace(absolutePath, std::move(drawing));
    return result;
}

void DrawingSceneBuilder::append(const DrawingScene& shapes, const QTransform& toWorld,
                                 DrawingScene& scene)
{
    if (toWorld.isIdentity()) {
        scene.m_lines += shapes.m_lines;
        scene.m_polylines += shapes.m_polylines;
        scene.m_circles += shapes.m_circles;
        scene.m_arcs += shapes.m_arcs;
        scene.m_texts += shapes.m_texts;
        return;
    }
    const double scale = std::sqrt(std::abs(toWorld.determinant()));
    const double turn = qRadiansToDegrees(std::atan2(toWorld.m12(), toWorld.m11()));
    const bool mirrored = toWorld.determinant() < 0.0;
    for (const QLineF& line : shapes.m_lines)
        scene.m_lines.append(toWorld.map(line));
    for (const QPolygonF& polyline : shapes.m_polylines)
        scene.m_polylines.append(toWorld.map(polyline));
    for (const DrawingScene::Circle& circle : shapes.m_circles)
        scene.m_circles.append({toWorld.map(circle.center), circle.radius * scale});
    for (const DrawingScene::Arc& arc : shapes.m_arcs) {
        const double start =
            mirrored ? turn - (arc.startDegrees + arc.spanDegrees) : turn + arc.startDegrees;
        scene.m_arcs.append({toWorld.map(arc.center), arc.radius * scale, start, arc.spanDegrees});
    }
    for (const DrawingScene::Text& text : shapes.m_texts)
        scene.m_texts.append(
            {toWorld.map(text.position), text.height * scale, text.degrees + turn, text.text});
}

QRectF DrawingSceneBuilder::extentsOf(const DrawingScene& scene)
{
    double left = qInf(), bottom = qInf(), right = -qInf(), top = -qInf();
    auto take = [&](double x0, double y0, double x1, double y1) {
        left = std::min(left, x0);
        bottom = std::min(bottom, y0);
        right = std::max(right, x1);
        top = std::max(top, y1);
    };
    for (const QLineF& line : scene.m_lines)
        take(std::min(line.x1(), line.x2()), std::min(line.y1(), line.y2()),
             std::max(line.x1(), line.x2()), std::max(line.y1(), line.y2()));
    for (const QPolygonF& polyline : scene.m_polylines) {
        for (const QPointF& point : polyline)
            take(point.x(), point.y(), point.x(), point.y());
    }
    for (const DrawingScene::Circle& circle : scene.m_circles)
        take(circle.center.x() - circle.radius, circle.center.y() - circle.radius,
             circle.center.x() + circle.radius, circle.center.y() + circle.radius);
    for (const DrawingScene::Arc& arc : scene.m_arcs)
        take(arc.center.x() - arc.radius, arc.center.y() - arc.radius, arc.center.x() + arc.radius,
             arc.center.y() + arc.radius);
    for (const DrawingScene::Text& text : scene.m_texts)
        take(text.position.x(), text.position.y(),
             text.position.x() + text.height * 0.6 * text.text.size(),
             text.position.y() + text.height);
    if (left > right || bottom > top)
        return QRectF();
    return QRectF(QPointF(left, bottom), QPointF(right, top));
}

void DrawingSceneBuilder::frameReferences(DrawingScene& scene)
{
    // A referenced drawing that cannot be read has no size of its own: its frame takes a
    // size from the rest of the drawing, so that it reads at any zoom as the drawing does.
    QRectF extents = extentsOf(scene);
    const double side = extents.isEmpty() ? 1.0 : std::max(extents.width(), extents.height()) / 8;
    for (DrawingScene::Placeholder& placeholder : scene.m_placeholders) {
        placeholder.frame = QRectF(placeholder.frame.topLeft(), QSizeF(2 * side, side));
        extents = extents.isNull() ? placeholder.frame : extents.united(placeholder.frame);
    }
    scene.m_extents = extents;
}
