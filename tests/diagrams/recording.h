// A canvas that keeps what is painted on it as numbers instead of pixels.
#pragma once

#include <QBrush>
#include <QFont>
#include <QPaintDevice>
#include <QPaintEngine>
#include <QPainterPath>
#include <QPen>
#include <QString>

#include <vector>

/// One stroke, one fill or one text, in the order of painting.
struct Mark {
    enum class Kind { Fill, Stroke, Text };

    Kind kind;
    QPainterPath path; ///< Of a fill or a stroke.
    QPen pen;          ///< Of a stroke or a text.
    QBrush brush;      ///< Of a fill.
    QString text;
    QFont font;
    QPointF baseline; ///< Where the text begins.
    bool antialiased = false;
};

class RecordingCanvas : public QPaintDevice
{
public:
    [[nodiscard]] const std::vector<Mark> &marks() const { return m_engine.marks; }
    [[nodiscard]] std::vector<Mark> marks(Mark::Kind kind) const
    {
        std::vector<Mark> found;
        for (const Mark &mark : m_engine.marks) {
            if (mark.kind == kind)
                found.push_back(mark);
        }
        return found;
    }

    [[nodiscard]] QPaintEngine *paintEngine() const override { return &m_engine; }

protected:
    [[nodiscard]] int metric(PaintDeviceMetric metric) const override
    {
        switch (metric) {
        case PdmWidth:
        case PdmHeight:
            return 10000;
        case PdmDpiX:
        case PdmDpiY:
        case PdmPhysicalDpiX:
        case PdmPhysicalDpiY:
            return 72; // one design point is one logical pixel
        case PdmDevicePixelRatio:
            return 1;
        case PdmDevicePixelRatioScaled:
            return int(devicePixelRatioFScale());
        default:
            return 0;
        }
    }

private:
    class Engine : public QPaintEngine
    {
    public:
        Engine()
            : QPaintEngine(AllFeatures)
        { }
        bool begin(QPaintDevice *) override { return true; }
        bool end() override { return true; }
        [[nodiscard]] Type type() const override { return User; }
        void updateState(const QPaintEngineState &) override { }
        void drawPixmap(const QRectF &, const QPixmap &, const QRectF &) override { }

        void drawPath(const QPainterPath &path) override
        {
            const QPaintEngineState &now = *state;
            const bool antialiased = now.renderHints().testFlag(QPainter::Antialiasing);
            if (now.brush().style() != Qt::NoBrush) {
                marks.push_back({ .kind = Mark::Kind::Fill,
                    .path = path,
                    .brush = now.brush(),
                    .antialiased = antialiased });
            }
            if (now.pen().style() != Qt::NoPen) {
                marks.push_back({ .kind = Mark::Kind::Stroke,
                    .path = path,
                    .pen = now.pen(),
                    .antialiased = antialiased });
            }
        }
        void drawTextItem(const QPointF &baseline, const QTextItem &item) override
        {
            marks.push_back({ .kind = Mark::Kind::Text,
                .pen = state->pen(),
                .text = item.text(),
                .font = item.font(),
                .baseline = baseline });
        }

        std::vector<Mark> marks;
    };

    mutable Engine m_engine;
};
