#include "selfcheck/sheetfile.h"

#include "selfcheck/offscreen.h"
#include "selfcheck/standardoutput.h"
#include "shell/setup.h"

#include <QFileInfo>
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
    // Not through a link: the file behind it isn't the one that was named.
    if (QFileInfo(path).isSymbolicLink() || !sheet.save(path, "PNG")) {
        QTextStream(stderr) << "could not write "_L1 << path << Qt::endl;
        return 1;
    }
    printLine("wrote "_L1 + path + u' ' + QString::number(sheet.width()) + u'x'
        + QString::number(sheet.height()));
    return 0;
}
