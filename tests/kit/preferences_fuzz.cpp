// The file of preferences, which its user may have edited by hand.

#include "kit/preferences.h"

#include "kit/themes.h"
#include "kit/windowframe.h"
#include "kit/zoom.h"
#include "support/fuzz.h"

#include <QFile>
#include <QTemporaryDir>

#include <cmath>

using namespace Qt::StringLiterals;
using Fuzz::expect;

namespace {

const QStringList kKeys{ u"crvn.theme"_s, u"crvn.zoom"_s, u"crvn.frame.main"_s };

void tryZoom(double stored)
{
    const double zoom = CNZoom::clamp(stored);
    expect(zoom >= CNZoom::min && zoom <= CNZoom::max, "the zoom has bounds");
}

void tryFrame(const QString &stored)
{
    const std::optional<WindowFrame> frame = WindowFrame::fromText(stored);
    if (!frame)
        return;
    expect(!frame->area.isEmpty(), "a frame has an area");
    expect(WindowFrame::fromText(frame->text()) == frame, "a frame reads as it is written");
    const QSize minimum(920, 648);
    const QRect screen(0, 32, 1600, 968);
    for (const QList<QRect> &screens : { QList<QRect>(), QList<QRect>{ screen },
             QList<QRect>{ { -1280, 0, 1280, 1024 }, screen } }) {
        const WindowPlace place = placeOn(screens, frame->area, minimum);
        expect(place.size.expandedTo(minimum) == place.size, "a window isn't too small");
        expect(!screens.isEmpty() || !place.position, "without a screen there is no place on it");
    }
}

} // namespace

void Fuzz::tryOut(QByteArrayView bytes)
{
    // Each time another file: what was read of a file is remembered by its name for a while.
    static qint64 number = 0;
    static const QTemporaryDir folder;
    const QString path = folder.filePath(QString::number(++number));
    {
        QFile file(path);
        expect(file.open(QIODevice::WriteOnly)
                && file.write(bytes.data(), bytes.size()) == bytes.size(),
            "the file can be written");
    }
    {
        Preferences preferences(path);
        for (const QString &key : kKeys) {
            const QString text = preferences.text(key);
            const double value = preferences.number(key);
            expect(preferences.contains(key) || (text.isEmpty() && value == 0),
                "what isn't there is empty");
            tryZoom(value);
            tryFrame(text);
        }
    }
    {
        Preferences preferences(path);
        preferences.set(u"crvn.theme"_s, u"brass"_s);
        preferences.set(u"crvn.zoom"_s, 1.25);
    }
    {
        const Preferences preferences(path);
        expect(preferences.text(u"crvn.theme"_s) == "brass"_L1
                && preferences.number(u"crvn.zoom"_s) == 1.25,
            "what was chosen is remembered whatever else is in the file");
    }
    QFile::remove(path);
}
