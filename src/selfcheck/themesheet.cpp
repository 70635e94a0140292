#include "selfcheck/themesheet.h"

#include "camera/geometry.h"
#include "kit/fonts.h"
#include "kit/preferences.h"
#include "kit/snapshotmode.h"
#include "kit/themes.h"
#include "selfcheck/scenecamera.h"
#include "selfcheck/sheetfile.h"

#include <QPainter>
#include <QQmlEngine>

using namespace Qt::StringLiterals;

namespace {

// In pixels.
constexpr int kColumns = 2;
constexpr int kMargin = 20;
constexpr int kLineHeight = 30;

QImage paintSheet()
{
    Preferences::shared().keepInMemory();
    SnapshotMode::enable();
    QQmlEngine engine;
    engine.addImportPath(u":/qt/qml"_s);
    SceneCamera camera(engine, QUrl(u"qrc:/qt/qml/Halvorin/Selfcheck/CameraScene.qml"_s));

    const QSize picture = Geometry::usualWindow.toSize();
    const QSize half = picture / 2;
    const QSize cell(half.width() + kMargin, half.height() + kLineHeight + kMargin);
    const QList<CRVNTheme> themes = CRVNThemes::all();
    const int rows = (int(themes.size()) + kColumns - 1) / kColumns;
    QImage sheet(
        kColumns * cell.width() + kMargin, rows * cell.height() + kMargin, QImage::Format_RGB32);
    sheet.fill(Qt::black);

    QPainter painter(&sheet);
    painter.setFont(Fonts::rounded(15, QFont::Bold));
    painter.setPen(Qt::white);
    for (int i = 0; i < int(themes.size()); ++i) {
        CRVNThemes::setCurrentID(themes[i].id);
        const QPoint corner(
            kMargin + i % kColumns * cell.width(), kMargin + i / kColumns * cell.height());
        painter.drawImage(corner,
            camera.take(picture).scaled(half, Qt::IgnoreAspectRatio, Qt::SmoothTransformation));
        painter.drawText(QRect(corner + QPoint(0, half.height()), QSize(half.width(), kLineHeight)),
            Qt::AlignCenter, themes[i].name);
    }
    return sheet;
}

} // namespace

std::optional<int> HVThemeSheet::handle(const QStringList &arguments)
{
    return handleSheet(arguments, "--theme-sheet"_L1, paintSheet);
}
