#pragma once

#include <QQmlParserStatus>
#include <QQuickItem>
#include <QString>
#include <QtQml/qqml.h>

#include <memory>

/// What a button does beside being pressed by mouse or Space: the pointer becomes a hand over it,
/// Return and Enter click it, a key that is held clicks it once, and it wears a focus ring and a
/// tip at the right moments. Stands in a Pressable.
///
/// In C++ because there are dozens on a screen: a handler, a key filter and two places for what
/// is hardly ever there, as objects of QML's, made up a fifth of what a start creates.
class ButtonBehavior : public QObject, public QQmlParserStatus
{
    Q_OBJECT
    QML_ELEMENT
    Q_INTERFACES(QQmlParserStatus)
    Q_PROPERTY(bool showsRing MEMBER m_showsRing WRITE setShowsRing NOTIFY showsRingChanged)
    Q_PROPERTY(bool showsTip MEMBER m_showsTip WRITE setShowsTip NOTIFY showsTipChanged)
public:
    using QObject::QObject;

    void setShowsRing(bool shows);
    void setShowsTip(bool shows);

    bool eventFilter(QObject *watched, QEvent *event) override;

Q_SIGNALS:
    void showsRingChanged();
    void showsTipChanged();

protected:
    void classBegin() override { }
    void componentComplete() override;

private:
    [[nodiscard]] QQuickItem *button() const { return qobject_cast<QQuickItem *>(parent()); }
    /// In the window that the button is in. A screen that is being left takes its buttons out of
    /// the window before they hear that the pointer is elsewhere.
    void showTip();
    /// Makes or takes away what the file of this name describes.
    void show(std::unique_ptr<QObject> &ornament, bool shows, const QString &file);

    bool m_showsRing = false;
    bool m_showsTip = false;
    std::unique_ptr<QObject> m_ring;
    std::unique_ptr<QObject> m_tip;
};
