#include "simulator/lensthumbs.h"

#include "simulator/internal/renderqueue.h"
#include "simulator/previewrenderer.h"
#include "simulator/scenerenderer.h"

#include <QCoreApplication>
#include <QPointer>
#include <QThreadPool>

namespace {

// Adds the pictures of the settings to those of `thumbs`; one that can't be rendered goes missing.
QMap<double, QImage> rendered(const std::vector<SimSettings> &batch, QMap<double, QImage> thumbs)
{
    for (const SimSettings &settings : batch) {
        const QImage image = LensThumbs::renderer().render(settings);
        if (image.isNull())
            thumbs.remove(settings.aperture);
        else
            thumbs.insert(settings.aperture, image);
    }
    return thumbs;
}

} // namespace

LensThumbs::LensThumbs(QObject *parent)
    : QObject(parent)
{ }

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

    if (PreviewRenderer::isSynchronous()) {
        m_thumbs = rendered(batch, m_thumbs);
        Q_EMIT thumbsChanged();
        return;
    }
    thumbQueue().start([self = QPointer(this), batch = std::move(batch)] {
        const QMap<double, QImage> thumbs = rendered(batch, {});
        QMetaObject::invokeMethod(QCoreApplication::instance(), [self, thumbs] {
            if (!self)
                return;
            self->m_thumbs = thumbs;
            Q_EMIT self->thumbsChanged();
        });
    });
}
