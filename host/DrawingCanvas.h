#pragma once

#include <QPointF>
#include <QTransform>
#include <QWidget>

#include <memory>

class DrawingScene;

// The drawing area: draws a DrawingScene, fitted to the area when it is set (its extents
// centred, with a margin of kMargin of the area on each side). The wheel zooms about the
// cursor, the middle button pans, a middle-button double click fits the drawing again.
class DrawingCanvas : public QWidget
{
    Q_OBJECT

public:
    explicit DrawingCanvas(QWidget* parent = nullptr);

    static constexpr double kMargin = 0.05;
    static QColor background() { return QColor(33, 40, 48); }

    void setScene(std::shared_ptr<const DrawingScene> scene);
    const DrawingScene* scene() const { return m_scene.get(); }
    void fitToExtents();
    // Drawing coordinates (y up) to the widget's.
    QTransform viewTransform() const;
    void zoomAbout(const QPointF& widgetPoint, double factor);

signals:
    void cursorMoved(const QPointF& drawingPoint);

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;

private:
    void paintShapes(QPainter& painter, const QRectF& visible) const;
    void paintTexts(QPainter& painter) const;
    void paintPlaceholders(QPainter& painter) const;
    void paintHint(QPainter& painter) const;

    std::shared_ptr<const DrawingScene> m_scene;
    double m_scale = 1.0;
    QPointF m_offset;
    bool m_fitted = true; // the user has not zoomed or panned since the drawing was fitted
    bool m_panning = false;
    QPointF m_panFrom;
};
