#include "svg_strokes.h"

#include <QImage>
#include <QPaintEngine>
#include <QPainter>
#include <QSvgRenderer>

namespace quillon {

namespace {

/// Writes down what is painted instead of painting it.
class StrokeRecorder : public QPaintEngine {
  public:
    explicit StrokeRecorder(std::vector<SvgStroke>& strokes)
        : QPaintEngine(AllFeatures), m_strokes(strokes) {}

    bool begin(QPaintDevice*) override { return true; }
    bool end() override { return true; }
    Type type() const override { return User; }

    void updateState(const QPaintEngineState& now) override {
        if (now.state() & DirtyPen)
            m_pen = now.pen();
        if (now.state() & DirtyBrush)
            m_brush = now.brush();
        if (now.state() & DirtyTransform)
            m_transform = now.transform();
    }
    void drawPath(const QPainterPath& path) override {
        const QPainterPath placed = m_transform.map(path);
        if (m_brush.style() != Qt::NoBrush)
            m_strokes.push_back({placed, 0});
        if (m_pen.style() != Qt::NoPen)
            m_strokes.push_back({placed, m_pen.widthF() * m_transform.m11()});
    }
    void drawPixmap(const QRectF&, const QPixmap&, const QRectF&) override {}

  private:
    std::vector<SvgStroke>& m_strokes;
    QPen m_pen;
    QBrush m_brush;
    QTransform m_transform;
};

/// Has the measures of an image, and whatever is painted on it written down.
class RecordedImage : public QImage {
  public:
    RecordedImage(StrokeRecorder& recorder, int size)
        : QImage(size, size, QImage::Format_RGB32), m_recorder(recorder) {}

    QPaintEngine* paintEngine() const override { return &m_recorder; }

  private:
    StrokeRecorder& m_recorder;
};

} // namespace

std::vector<SvgStroke> svgStrokes(const QString& file, int units) {
    std::vector<SvgStroke> strokes;
    StrokeRecorder recorder(strokes);
    RecordedImage image(recorder, units);
    QPainter painter(&image);
    QSvgRenderer(file).render(&painter, QRectF(0, 0, units, units));
    painter.end();
    return strokes;
}

} // namespace quillon
