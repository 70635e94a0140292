#include "simulator/previewrenderer.h"

#include "simulator/internal/renderqueue.h"
#include "simulator/scenerenderer.h"

#include <QCoreApplication>
#include <QPointer>
#include <QThreadPool>

#include <atomic>

namespace {

std::atomic<bool> synchronous = false;

const SceneRenderer &orShared(const SceneRenderer *renderer)
{
    return renderer != nullptr ? *renderer : SceneRenderer::shared();
}

} // namespace

PreviewRenderer::PreviewRenderer(QObject *parent)
    : QObject(parent)
{ }

void PreviewRenderer::update(const SimSettings &settings, const SceneRenderer *renderer)
{
    const quint64 generation = ++m_generation;
    if (synchronous) {
        setImage(orShared(renderer).render(settings));
        return;
    }
    Simulator::previewQueue().start([self = QPointer(this), generation, settings, renderer] {
        const QImage image = orShared(renderer).render(settings);
        QMetaObject::invokeMethod(QCoreApplication::instance(), [self, generation, image] {
            // Compared where the counter is also written, on the main thread: no lock is needed.
            if (self && self->m_generation == generation)
                self->setImage(image);
        });
    });
}

bool PreviewRenderer::isSynchronous()
{
    return synchronous;
}

void PreviewRenderer::setSynchronous(bool on)
{
    synchronous = on;
}

void PreviewRenderer::setImage(const QImage &image)
{
    m_image = image;
    Q_EMIT imageChanged();
}
