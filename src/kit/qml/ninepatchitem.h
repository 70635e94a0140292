#pragma once

#include "prepareditem.h"

#include "kit/ninepatch.h"

/// An item that is shown as a nine-patch: what it costs to show grows with its area, what it costs
/// to make and to keep doesn't.
class NinePatchItem : public PreparedItem
{
    Q_OBJECT
    QML_ANONYMOUS
public:
    using PreparedItem::PreparedItem;

protected:
    void prepare() override;
    void settle() override;
    QSGNode *updatePaintNode(QSGNode *node, UpdatePaintNodeData *data) override;

    /// Whether there is anything to show.
    [[nodiscard]] virtual bool isSeen() const;

    /// Starts to make what is shown.
    [[nodiscard]] virtual Painting::NinePatch patchAsync() const = 0;

    /// Device pixels by which it is larger than the item on each side.
    [[nodiscard]] virtual int reach() const { return 0; }

private:
    Painting::NinePatch m_patch; ///< With a picture until updatePaintNode() takes it.
};
