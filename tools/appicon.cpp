// Writes the program's icon as desktops want it, into FOLDER: crvn-halvorin.svg, and PNG files of
// the usual sizes in icons/.
//
//     build/tools/appicon packaging
#include "camera/appicon.h"

#include <QDir>
#include <QFile>
#include <QImage>
#include <QPainter>
#include <QTextStream>

using namespace Qt::StringLiterals;

namespace {

constexpr int kSmallest = 0; // The quality of a PNG file is how little it is compressed.
constexpr int kSizes[] = { 16, 22, 24, 32, 48, 64, 128, 256, 512 };

QImage picture(int side)
{
    QImage image(side, side, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    AppIcon::paint(painter, side);
    return image;
}

bool writeFile(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size();
}

} // namespace

int main(int argc, char **argv)
{
    QTextStream err(stderr);
    if (argc != 2) {
        err << "Usage: appicon FOLDER\n";
        return 2;
    }
    const QDir folder(QString::fromLocal8Bit(argv[1]));
    bool written = folder.mkpath(u"icons"_s)
        && writeFile(folder.filePath(u"crvn-halvorin.svg"_s), AppIcon::svg());
    for (const int side : kSizes)
        written = written
            && picture(side).save(
                folder.filePath(u"icons/crvn-halvorin-%1.png"_s.arg(side)), "PNG", kSmallest);
    if (!written)
        err << "The icon can't be written to " << folder.path() << ".\n";
    return written ? 0 : 1;
}
