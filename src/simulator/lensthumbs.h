// The small pictures beside the rows of a lens comparison.
#pragma once

#include "simulator/lenslab.h"

#include <QImage>
#include <QMap>
#include <QObject>

#include <atomic>
#include <memory>

class SceneRenderer;

/// Renders a picture for each row of a comparison. Lives on the main thread, where `thumbs` changes
/// in one step when all pictures of a set are there. Only the set that was asked for last is shown;
/// those before it are left out, or left unfinished.
class LensThumbs : public QObject
{
    Q_OBJECT

public:
    explicit LensThumbs(QObject *parent = nullptr);
    ~LensThumbs() override;

    /// Pictures by f-number.
    [[nodiscard]] const QMap<double, QImage> &thumbs() const { return m_thumbs; }

    /// Renders the rows, in another thread unless PreviewRenderer works synchronously; then the
    /// pictures join those that are there.
    void renderThumbs(const std::vector<LensLabRow> &rows, const LensLab::Conditions &conditions);

    /// The renderer of all of them, 360 × 225, made on first use.
    [[nodiscard]] static const SceneRenderer &renderer();

Q_SIGNALS:
    void thumbsChanged();

private:
    QMap<double, QImage> m_thumbs;

    // The number of the last set asked for, from 1; 0 when nobody waits. Written on the main
    // thread, read in the render thread too.
    std::shared_ptr<std::atomic<quint64>> m_latest = std::make_shared<std::atomic<quint64>>(0);
};
