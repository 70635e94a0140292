#pragma once

#include "painteditem.h"

#include <QColor>
#include <QFont>

/// The glow behind a text: the same words, blurred. Stands under an HvText of the same text, font
/// and width; it spreads `blur` beyond the item on all sides.
class TextGlow : public PaintedItem
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QString text READ text WRITE setText NOTIFY lookChanged)
    Q_PROPERTY(QFont font READ font WRITE setFont NOTIFY lookChanged)
    Q_PROPERTY(QColor color READ color WRITE setColor NOTIFY lookChanged)
    /// A horizontal Qt::Alignment.
    Q_PROPERTY(int alignment READ alignment WRITE setAlignment NOTIFY lookChanged)
    Q_PROPERTY(qreal blur READ blur WRITE setBlur NOTIFY lookChanged)
public:
    using PaintedItem::PaintedItem;

    [[nodiscard]] QString text() const { return m_text; }
    void setText(const QString &text);
    [[nodiscard]] QFont font() const { return m_font; }
    void setFont(const QFont &font);
    [[nodiscard]] QColor color() const { return m_color; }
    void setColor(const QColor &color);
    [[nodiscard]] int alignment() const { return m_alignment; }
    void setAlignment(int alignment);
    [[nodiscard]] qreal blur() const { return m_blur; }
    void setBlur(qreal blur);

Q_SIGNALS:
    void lookChanged();

protected:
    [[nodiscard]] std::shared_future<QImage> startedPicture() override;

private:
    QString m_text;
    QFont m_font;
    QColor m_color = Qt::white;
    int m_alignment = Qt::AlignLeft;
    qreal m_blur = 0;
};
