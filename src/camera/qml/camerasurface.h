#pragma once

#include "kit/qml/painteditem.h"

#include "camera/hvcolors.h"

/// A surface that is painted in the colors of the palette `c`.
class CameraSurface : public PaintedItem
{
    Q_OBJECT
    QML_ANONYMOUS
    Q_PROPERTY(HVColors c READ c WRITE setC NOTIFY lookChanged REQUIRED)
public:
    using PaintedItem::PaintedItem;

    [[nodiscard]] const HVColors &c() const { return m_c; }
    // Themes count as equal by their id alone, which is what tells two palettes apart.
    void setC(const HVColors &colors) { set(m_c, colors); }

private:
    HVColors m_c;
};
