#include "simulator/lensthumbs.h"

#include "simulator/internal/renderqueue.h"
#include "simulator/previewrenderer.h"
#include "simulator/scenerenderer.h"

#include <QCoreApplication>
#include <QPointer>
#include <QThreadPool>

namespace {

// One that can't be rendered goes missing.
void addPicture(QMap<double, QImage> &thumbs, const SimSettings &settings)
{
    const QImage image = LensThumbs::renderer().render(settings);
    if (image.isNull())
        thumbs.remove(settings.aperture);
    else
        thumbs.insert(settings.aperture, image);
}

} // namespace

LensThumbs::LensThumbs(QObject *parent)
    : QObject(parent)
{ }

LensThumbs::~LensThumbs()
{
    *m_latest = 0;
}

const SceneRenderer &LensThumbs::renderer()
{
    static const SceneRenderer renderer(QSize(360, 225));
    return renderer;
}

void LensThumbs::renderThumbs(
    const std::vector<LensLabRow> &rows, const LensLab::Conditions &conditions)
{
    std::vector<SimSettings> batch;
    batch.reserve(rows.size());
    for (const LensLabRow &row : rows)
        batch.push_back(LensLab::settings(row, conditions));

    const quint64 number = ++*m_latest;
    if (PreviewRenderer::isSynchronous()) {
        for (const SimSettings &settings : batch)
            addPicture(m_thumbs, settings);
        Q_EMIT thumbsChanged();
        return;
    }
    Simulator::thumbQueue().start(
        [self = QPointer(this), latest = m_latest, number, batch = std::move(batch)] {
            QMap<double, QImage> thumbs;
            for (const SimSettings &settings : batch) {
                if (*latest != number)
                    return;
                addPicture(thumbs, settings);
            }
            QMetaObject::invokeMethod(QCoreApplication::instance(), [self, number, thumbs] {
                // Compared once more where the number is also written: now it can't change.
                if (!self || *self->m_latest != number)
                    return;
                self->m_thumbs = thumbs;
                Q_EMIT self->thumbsChanged();
            });
        });
}
