#include "selfcheck/sheetfile.h"

#include "selfcheck/offscreen.h"
#include "shell/setup.h"

#include <QTextStream>

using namespace Qt::StringLiterals;

std::optional<int> handleSheet(
    const QStringList &arguments, QLatin1StringView option, const std::function<QImage()> &paint)
{
    const qsizetype at = arguments.indexOf(option);
    if (at < 0)
        return std::nullopt;
    if (at + 1 == arguments.size()) {
        QTextStream(stderr) << "Usage: halvorin "_L1 << option << " FILE"_L1 << Qt::endl;
        return 2;
    }
    const QString path = arguments.at(at + 1);

    const OffscreenApplication application;
    HVSetup::configure();
    const QImage sheet = paint();
    if (!sheet.save(path, "PNG")) {
        QTextStream(stderr) << "could not write "_L1 << path << Qt::endl;
        return 1;
    }
    QTextStream(stdout) << "wrote "_L1 << path << ' ' << sheet.width() << 'x' << sheet.height()
                        << Qt::endl;
    return 0;
}
