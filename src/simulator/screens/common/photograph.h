#pragma once

#include <QImage>
#include <QQuickItem>
#include <QtQml/qqml.h>

/// A photograph on its way through QML. Equal to another when it is the same, which isn't asked of
/// its pixels.
struct Photo {
    Q_GADGET
    QML_VALUE_TYPE(photo)
public:
    QImage image;

    friend bool operator==(const Photo &a, const Photo &b)
    {
        return a.image.cacheKey() == b.image.cacheKey();
    }
};

/// A picture stretched over the item; nothing while there is none.
class Photograph : public QQuickItem
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(Photo photo READ photo WRITE setPhoto NOTIFY photoChanged)
    Q_PROPERTY(bool empty READ isEmpty NOTIFY photoChanged)
public:
    explicit Photograph(QQuickItem *parent = nullptr);

    [[nodiscard]] const Photo &photo() const { return m_photo; }
    void setPhoto(const Photo &photo);
    [[nodiscard]] bool isEmpty() const { return m_photo.image.isNull(); }

Q_SIGNALS:
    void photoChanged();

protected:
    QSGNode *updatePaintNode(QSGNode *node, UpdatePaintNodeData *data) override;
    void geometryChange(const QRectF &newGeometry, const QRectF &oldGeometry) override;

private:
    Photo m_photo;
    bool m_isNew = false; ///< The scene graph hasn't been given it.
};
