#pragma once

#include "kit/qml/painteditem.h"

#include "diagrams/diagramkind.h"

#include <QColor>
#include <QSizeF>
#include <QString>
#include <QStringList>

/// One gear drawing as an item, as large as it fits in the item's size; without a height of its own
/// the item is as high as its width wants. An unknown kind shows the sensor: the report on the
/// course's content is the place for errors in it.
///
/// Painted when kind, colors or size change, and not when it is moved. A side of more than 4096
/// pixels is magnified instead, so that no size asks for more than 64 MB. Thumbnails, which have no
/// callouts, are kept: a list that scrolls shows them again and again.
class DiagramCanvas : public PaintedItem
{
    Q_OBJECT
    QML_ELEMENT
    /// The id as it stands in the gear entry.
    Q_PROPERTY(QString kind READ kind WRITE setKind NOTIFY lookChanged)
    /// The ink of all shapes.
    Q_PROPERTY(QColor glow READ glow WRITE setGlow NOTIFY lookChanged)
    /// The color of callouts and their leaders.
    Q_PROPERTY(QColor label READ label WRITE setLabel NOTIFY lookChanged)
    Q_PROPERTY(Layout layout READ layout WRITE setLayout NOTIFY lookChanged)
    /// The size of the drawing, in points, in the layout FixedSize.
    Q_PROPERTY(QSizeF drawing READ drawing WRITE setDrawing NOTIFY lookChanged)
    /// How much wider than `drawing` an item must be to show all callouts whole.
    Q_PROPERTY(qreal calloutReach READ calloutReach NOTIFY lookChanged)
    /// What the callouts say, in their order; known in every layout.
    Q_PROPERTY(QStringList calloutTexts READ calloutTexts NOTIFY lookChanged)
public:
    enum Layout {
        Fitted,    ///< As large as it fits; long callouts end at the edge of the drawing.
        Thumbnail, ///< The same without callouts.
        FixedSize, ///< In the size `drawing`, moved aside as far as callouts at the other side need
                   ///< the room; callouts end at the edge of the item.
        Whole,     ///< As large as it fits with all its callouts.
    };
    Q_ENUM(Layout)

    explicit DiagramCanvas(QQuickItem *parent = nullptr);

    [[nodiscard]] QString kind() const { return m_kind; }
    void setKind(const QString &kind) { set(m_kind, kind); }
    [[nodiscard]] QColor glow() const { return m_glow; }
    void setGlow(const QColor &color) { set(m_glow, color); }
    [[nodiscard]] QColor label() const { return m_label; }
    void setLabel(const QColor &color) { set(m_label, color); }
    [[nodiscard]] Layout layout() const { return m_layout; }
    void setLayout(Layout layout) { set(m_layout, layout); }
    [[nodiscard]] QSizeF drawing() const { return m_drawing; }
    void setDrawing(QSizeF size) { set(m_drawing, size); }
    [[nodiscard]] qreal calloutReach() const;
    [[nodiscard]] QStringList calloutTexts() const;

    void paint(QPainter *painter) override;

    /// Where the drawing's canvas lies in an item of this size.
    [[nodiscard]] QRectF canvasIn(QSizeF item) const;

protected:
    void geometryChange(const QRectF &newGeometry, const QRectF &oldGeometry) override;
    [[nodiscard]] std::shared_future<QImage> paintAsync() override;

private:
    [[nodiscard]] DiagramKind shownKind() const;

    QString m_kind;
    QColor m_glow = QColor::fromRgbF(0.55F, 0.85F, 1.0F);
    QColor m_label = QColor::fromRgbF(0.86F, 0.86F, 0.86F);
    Layout m_layout = Fitted;
    QSizeF m_drawing;
};
