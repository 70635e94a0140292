#include "buttonbehavior.h"

#include <QCursor>
#include <QKeyEvent>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QUrl>

using namespace Qt::StringLiterals;

void ButtonBehavior::setShowsRing(bool shows)
{
    if (m_showsRing == shows)
        return;
    m_showsRing = shows;
    show(m_ring, shows, u"FocusRing.qml"_s);
    Q_EMIT showsRingChanged();
}

void ButtonBehavior::setShowsTip(bool shows)
{
    if (m_showsTip == shows)
        return;
    m_showsTip = shows;
    showTip();
    Q_EMIT showsTipChanged();
}

void ButtonBehavior::componentComplete()
{
    if (QQuickItem *item = button()) {
        item->setCursor(Qt::PointingHandCursor);
        item->installEventFilter(this);
        connect(item, &QQuickItem::windowChanged, this, &ButtonBehavior::showTip);
        // Sooner than QML hears of it: a ring without a button would ask nothing for its color.
        connect(item, &QObject::destroyed, this, [this] {
            m_ring.reset();
            m_tip.reset();
        });
    }
}

bool ButtonBehavior::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() != QEvent::KeyPress && event->type() != QEvent::KeyRelease)
        return QObject::eventFilter(watched, event);

    const auto *stroke = static_cast<QKeyEvent *>(event);
    switch (stroke->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        if (event->type() == QEvent::KeyPress && !stroke->isAutoRepeat())
            QMetaObject::invokeMethod(watched, "clicked");
        return true;
    case Qt::Key_Space:
        // The button clicks at the release. One that ends no press of its own comes from a key
        // that was held while the focus moved here.
        return stroke->isAutoRepeat()
            || (event->type() == QEvent::KeyRelease && !watched->property("pressed").toBool());
    default:
        return QObject::eventFilter(watched, event);
    }
}

void ButtonBehavior::showTip()
{
    show(m_tip, m_showsTip && button() && button()->window(), u"CNTip.qml"_s);
}

void ButtonBehavior::show(std::unique_ptr<QObject> &ornament, bool shows, const QString &file)
{
    ornament.reset();
    QQuickItem *item = button();
    if (!shows || !item)
        return;
    QQmlComponent component(qmlEngine(item), QUrl(u"qrc:/qt/qml/Halvorin/Kit/"_s + file));
    const QVariant place = QVariant::fromValue(item);
    ornament.reset(component.createWithInitialProperties(
        { { u"parent"_s, place }, { u"control"_s, place } }, qmlContext(item)));
}
