// The small pictures beside the rows of a lens comparison.
#pragma once

#include "simulator/lenslab.h"

#include <QImage>
#include <QMap>
#include <QObject>

class SceneRenderer;

/// Renders a picture for each row of a comparison. Lives on the main thread, where `thumbs` changes
/// in one step when all pictures of a run are there. Runs may overlap; the last to finish stays.
class LensThumbs : public QObject
{
    Q_OBJECT

public:
    explicit LensThumbs(QObject *parent = nullptr);

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
};
