// Keeps a picture of the scene up to date while its settings change.
#pragma once

#include "simulator/simsettings.h"

#include <QImage>
#include <QObject>

class SceneRenderer;

/// Renders in a thread of its own and shows the picture of the newest request.
///
/// A render takes longer than a step of a slider, so requests queue up. Each is rendered, in order,
/// until the application ends; a picture is shown only if nothing newer was asked for by the time
/// it reaches the main thread. Lives on the main thread; `image` changes there alone.
class PreviewRenderer : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QImage image READ image NOTIFY imageChanged)

public:
    explicit PreviewRenderer(QObject *parent = nullptr);

    /// The picture to show; null until the first is there, and after a render that failed.
    [[nodiscard]] QImage image() const { return m_image; }

    /// Asks for a picture. Without a renderer it comes from SceneRenderer::shared(), which is then
    /// made in the render thread; a renderer given must outlive its renders. Returns at once,
    /// unless work is synchronous.
    void update(const SimSettings &settings, const SceneRenderer *renderer = nullptr);

    /// While true, for the whole process, no work leaves the calling thread: a picture is there
    /// when update() returns. Pictures of screens are taken so. False at first.
    [[nodiscard]] static bool isSynchronous();
    static void setSynchronous(bool synchronous);

Q_SIGNALS:
    void imageChanged();

private:
    void setImage(const QImage &image);

    QImage m_image;
    quint64 m_generation = 0; // of the latest request
};
