#include "DrawingCanvas.h"

#include "DrawingScene.h"

#include <QFontMetrics>
#include <QMouseEvent>
#include <QPainter>
#include <QWheelEvent>

#include <algorithm>
#include <cmath>

namespace {
QColor lineColor()
{
    return QColor(232, 232, 232);
}

QColor textColor()
{
    return QColor(120, 200, 255);
}

QColor placeholderColor()
{
    return QColor(255, 176, 64);
}

// Below this many shapes the lines are smoothed; above it speed comes first.
constexpr int kSmoothLimit = 20000;
} // namespace

DrawingCanvas::DrawingCanvas(QWidget* parent) : QWidget(parent)
{
    setObjectName(QStringLiteral("DrawingCanvas"));
    setAttribute(Qt::WA_OpaquePaintEvent);
    setMouseTracking(true);
    setMinimumSize(200, 150);
    setCursor(Qt::CrossCursor);
}

void DrawingCanvas::setScene(std::shared_ptr<const DrawingScene> scene)
{
    m_scene = std::move(scene);
    fitToExtents();
}

void DrawingCanvas::fitToExtents()
{
    m_fitted = true;
    const QRectF extents = m_scene ? m_scene->extents() : QRectF();
    const double width = std::max(1, this->width());
    const double height = std::max(1, this->height());
    const double usable = 1.0 - 2 * kMargin;
    if (extents.width() > 0 && extents.height() > 0)
        m_scale = std::min(width * usable / extents.width(), height * usable / extents.height());
    else if (extents.width() > 0)
        m_scale = width * usable / extents.width();
    else if (extents.height() > 0)
        m_scale = height * usable / extents.height();
    else
        m_scale = 1.0;
    const QPointF center = extents.center();
    m_offset = QPointF(width / 2 - center.x() * m_scale, height / 2 + center.y() * m_scale);
    update();
}

QTransform DrawingCanvas::viewTransform() const
{
    return QTransform(m_scale, 0, 0, -m_scale, m_offset.x(), m_offset.y());
}

void DrawingCanvas::zoomAbout(const QPointF& widgetPoint, double factor)
{
    const QPointF fixed = viewTransform().inverted().map(widgetPoint);
    m_scale = std::clamp(m_scale * factor, 1e-12, 1e12);
    m_offset =
        QPointF(widgetPoint.x() - fixed.x() * m_scale, widgetPoint.y() + fixed.y() * m_scale);
    m_fitted = false;
    update();
}

void DrawingCanvas::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.fillRect(rect(), background());
    if (!m_scene) {
        paintHint(painter);
        return;
    }
    const QRectF visible = viewTransform().inverted().mapRect(QRectF(rect()));
    paintShapes(painter, visible);
    paintTexts(painter);
    paintPlaceholders(painter);
}

void DrawingCanvas::paintShapes(QPainter& painter, const QRectF& visible) const
{
    const DrawingScene& scene = *m_scene;
    const int count = scene.lines().size() + scene.polylines().size() + scene.circles().size() +
                      scene.arcs().size();
    painter.setRenderHint(QPainter::Antialiasing, count < kSmoothLimit);
    painter.setTransform(viewTransform());
    QPen pen(lineColor(), 0);
    pen.setCosmetic(true);
    painter.setPen(pen);
    painter.setBrush(Qt::NoBrush);
    painter.drawLines(scene.lines());
    for (const QPolygonF& polyline : scene.polylines()) {
        if (polyline.boundingRect().intersects(visible) || polyline.size() < 2)
            painter.drawPolyline(polyline);
    }
    for (const DrawingScene::Circle& circle : scene.circles()) {
        const QRectF box(circle.center.x() - circle.radius, circle.center.y() - circle.radius,
                         2 * circle.radius, 2 * circle.radius);
        if (box.intersects(visible))
            painter.drawEllipse(box);
    }
    // Arc angles turn the other way once y points up.
    for (const DrawingScene::Arc& arc : scene.arcs()) {
        const QRectF box(arc.center.x() - arc.radius, arc.center.y() - arc.radius, 2 * arc.radius,
                         2 * arc.radius);
        if (box.intersects(visible))
            painter.drawArc(box, qRound(-arc.startDegrees * 16), qRound(-arc.spanDegrees * 16));
    }
    painter.resetTransform();
}

void DrawingCanvas::paintTexts(QPainter& painter) const
{
    painter.setPen(textColor());
    QFont font = this->font();
    const QTransform view = viewTransform();
    const QRectF area = QRectF(rect()).adjusted(-200, -200, 200, 200);
    for (const DrawingScene::Text& text : m_scene->texts()) {
        const double pixels = text.height * m_scale;
        const QPointF at = view.map(text.position);
        if (pixels < 3 || pixels > 4000 || !area.contains(at) || text.text.isEmpty())
            continue;
        font.setPixelSize(std::max(1, static_cast<int>(std::lround(pixels))));
        painter.setFont(font);
        painter.save();
        painter.translate(at);
        painter.rotate(-text.degrees);
        painter.drawText(QPointF(), text.text);
        painter.restore();
    }
}

void DrawingCanvas::paintPlaceholders(QPainter& painter) const
{
    const QTransform view = viewTransform();
    QPen frame(placeholderColor(), 1, Qt::DashLine);
    QFont font = this->font();
    for (const DrawingScene::Placeholder& placeholder : m_scene->placeholders()) {
        const QRectF box = view.mapRect(placeholder.frame);
        painter.setPen(frame);
        painter.drawRect(box);
        const int pixels = static_cast<int>(std::min(box.height() / 3, box.width() / 8));
        if (pixels < 4)
            continue;
        font.setPixelSize(pixels);
        painter.setFont(font);
        painter.setPen(placeholderColor());
        painter.drawText(box, Qt::AlignCenter | Qt::TextWrapAnywhere, placeholder.name);
    }
}

void DrawingCanvas::paintHint(QPainter& painter) const
{
    painter.setPen(QColor(140, 150, 160));
    painter.drawText(rect(), Qt::AlignCenter, tr("No drawing is open. Type \"open FILE\" below."));
}

void DrawingCanvas::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    if (m_fitted)
        fitToExtents();
}

void DrawingCanvas::wheelEvent(QWheelEvent* event)
{
    const double steps = event->angleDelta().y() / 120.0;
    if (steps != 0)
        zoomAbout(event->position(), std::pow(1.25, steps));
    event->accept();
}

void DrawingCanvas::mousePressEvent(QMouseEvent* event)
{
    if (event->button() != Qt::MiddleButton)
        return QWidget::mousePressEvent(event);
    m_panning = true;
    m_panFrom = event->localPos();
    setCursor(Qt::ClosedHandCursor);
}

void DrawingCanvas::mouseMoveEvent(QMouseEvent* event)
{
    if (m_panning) {
        m_offset += event->localPos() - m_panFrom;
        m_panFrom = event->localPos();
        m_fitted = false;
        update();
    }
    emit cursorMoved(viewTransform().inverted().map(event->localPos()));
}

void DrawingCanvas::mouseReleaseEvent(QMouseEvent* event)
{
    if (event->button() != Qt::MiddleButton || !m_panning)
        return QWidget::mouseReleaseEvent(event);
    m_panning = false;
    setCursor(Qt::CrossCursor);
}

void DrawingCanvas::mouseDoubleClickEvent(QMouseEvent* event)
{
    if (event->button() == Qt::MiddleButton)
        fitToExtents();
    else
        QWidget::mouseDoubleClickEvent(event);
}
