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
    Q_PROPERTY(QString text MEMBER m_text WRITE setText NOTIFY lookChanged)
    Q_PROPERTY(QFont font MEMBER m_font WRITE setFont NOTIFY lookChanged)
    Q_PROPERTY(QColor color MEMBER m_color WRITE setColor NOTIFY lookChanged)
    /// A horizontal Qt::Alignment.
    Q_PROPERTY(int alignment MEMBER m_alignment WRITE setAlignment NOTIFY lookChanged)
    Q_PROPERTY(qreal blur MEMBER m_blur WRITE setBlur NOTIFY lookChanged)
public:
    using PaintedItem::PaintedItem;

    void setText(const QString &text) { set(m_text, text); }
    void setFont(const QFont &font) { set(m_font, font); }
    void setColor(const QColor &color) { set(m_color, color); }
    void setAlignment(int alignment) { set(m_alignment, alignment); }
    void setBlur(qreal blur) { set(m_blur, blur); }

protected:
    [[nodiscard]] std::shared_future<QImage> paintAsync() override;

private:
    QString m_text;
    QFont m_font;
    QColor m_color = Qt::white;
    int m_alignment = Qt::AlignLeft;
    qreal m_blur = 0;
};
