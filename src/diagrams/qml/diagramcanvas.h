#pragma once

#include "kit/qml/painteditem.h"

#include <QColor>
#include <QString>

/// One gear drawing as an item, as large as it fits in the item's size; without a height of its own
/// the item is as high as its width wants. An unknown kind shows the sensor: the report on the
/// course's content is the place for errors in it.
///
/// Painted when kind, colors or size change, and not when it is moved. A side of more than 4096
/// pixels is magnified instead, so that no size asks for more than 64 MB.
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
public:
    explicit DiagramCanvas(QQuickItem *parent = nullptr);

    [[nodiscard]] QString kind() const { return m_kind; }
    void setKind(const QString &kind) { set(m_kind, kind); }
    [[nodiscard]] QColor glow() const { return m_glow; }
    void setGlow(const QColor &color) { set(m_glow, color); }
    [[nodiscard]] QColor label() const { return m_label; }
    void setLabel(const QColor &color) { set(m_label, color); }

    void paint(QPainter *painter) override;

protected:
    void geometryChange(const QRectF &newGeometry, const QRectF &oldGeometry) override;

private:
    QString m_kind;
    QColor m_glow = QColor::fromRgbF(0.55F, 0.85F, 1.0F);
    QColor m_label = QColor::fromRgbF(0.86F, 0.86F, 0.86F);
};
