#include "selfcheck/diagramsheet.h"

#include "camera/hvcolors.h"
#include "diagrams/diagrampainter.h"
#include "kit/fonts.h"
#include "selfcheck/sheetfile.h"

#include <QImage>
#include <QPainter>

using namespace Qt::StringLiterals;

namespace {

// All in pixels. Of the longest callouts, those on the right need the most room.
constexpr int kColumns = 6;
constexpr QSize kCell(740, 320);
constexpr QRect kCanvas(150, 20, 400, 260);
constexpr int kLineHeight = 30;

QImage paintSheet()
{
    const HVColors colors;
    const int count = int(allDiagramKinds().size());
    const int rows = (count + kColumns - 1) / kColumns;
    QImage sheet(kColumns * kCell.width(), rows * kCell.height(), QImage::Format_RGB32);
    sheet.fill(colors.oled());

    QPainter painter(&sheet);
    painter.setFont(Fonts::monospaced(13));
    for (int i = 0; i < count; ++i) {
        const DiagramKind kind = allDiagramKinds()[i];
        painter.save();
        painter.translate(i % kColumns * kCell.width(), i / kColumns * kCell.height());
        painter.setClipRect(QRect({}, kCell));

        QColor frame = colors.glow();
        frame.setAlphaF(0.2F);
        painter.setPen(frame);
        painter.drawRect(kCanvas);
        painter.setPen(colors.oledDim());
        painter.drawText(QRect(kCanvas.left(), kCanvas.bottom(), kCanvas.width(), kLineHeight),
            Qt::AlignCenter, QString(rawValue(kind)));

        painter.translate(kCanvas.topLeft());
        const DiagramPainter diagram{
            .ctx = painter, .size = kCanvas.size(), .ink = colors.glow(), .text = colors.oledText()
        };
        diagram.draw(kind);
        painter.restore();
    }
    return sheet;
}

} // namespace

std::optional<int> HVDiagramSheet::handle(const QStringList &arguments)
{
    return handleSheet(arguments, "--diagram-sheet"_L1, paintSheet);
}
