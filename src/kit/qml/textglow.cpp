#include "textglow.h"

#include "kit/picture.h"
#include "kit/softblur.h"

#include <QPainter>
#include <QTextLayout>

std::shared_future<QImage> TextGlow::paintAsync()
{
    // The item is the text's box with `blur` of margin, which softBlur() needs.
    QImage mask(textureSize(), QImage::Format_ARGB32_Premultiplied);
    mask.fill(Qt::transparent);
    const double scale = renderScale();

    QTextLayout layout(m_text, m_font);
    QTextOption option;
    option.setWrapMode(QTextOption::WordWrap);
    option.setAlignment(Qt::Alignment(m_alignment));
    layout.setTextOption(option);
    layout.beginLayout();
    double top = 0;
    for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
        line.setLineWidth(width() - 2 * m_blur);
        line.setPosition({ 0, top });
        top += line.height();
    }
    layout.endLayout();
    {
        QPainter ink(&mask);
        ink.scale(scale, scale); // not by a pixel ratio, which a painter ignores below 1
        ink.setPen(Qt::black);
        layout.draw(&ink, { m_blur, m_blur });
    }
    return Painting::runAsync([mask, radius = m_blur * scale, color = m_color] {
        return Painting::softBlur(mask, radius, color);
    });
}
