#pragma once

#include <QMatrix4x4>
#include <QRectF>
#include <QSGTransformNode>

/// What stands below it counts in the pixels of a picture. In an item's own units edges would fall
/// between pixels at most zooms, and where two of them meet it would be seen.
///
/// The software scene graph wants a node with a place of its own here: what is added below a plain
/// one later than that itself is shown at the window's origin.
class PixelNode : public QSGTransformNode
{
public:
    /// Where the first pixel is in the item's coordinates.
    void setUnit(const QRectF &pixel)
    {
        QMatrix4x4 matrix;
        matrix.translate(float(pixel.x()), float(pixel.y()));
        matrix.scale(float(pixel.width()), float(pixel.height()));
        if (matrix != this->matrix())
            setMatrix(matrix);
    }
};
