#include "textmenu.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QRectF>
#include <QUrl>

using namespace Qt::StringLiterals;

TextMenu::TextMenu(QObject *parent)
    : QObject(parent)
{ }

TextMenu::~TextMenu() = default;

void TextMenu::componentComplete()
{
    QQuickItem *item = text();
    if (!item)
        return;
    // Otherwise the right button goes to what lies under the text.
    item->setAcceptedMouseButtons(item->acceptedMouseButtons() | Qt::RightButton);
    item->installEventFilter(this);
}

bool TextMenu::eventFilter(QObject *watched, QEvent *event)
{
    switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick: {
        // None of them reaches the text, which would give up its selection.
        const auto &click = static_cast<const QMouseEvent &>(*event);
        if (click.button() != Qt::RightButton)
            break;
        if (event->type() == QEvent::MouseButtonPress)
            open(click.position());
        return true;
    }
    case QEvent::KeyPress: {
        const auto &key = static_cast<const QKeyEvent &>(*event);
        const bool asks = key.key() == Qt::Key_Menu
            || (key.key() == Qt::Key_F10 && key.modifiers() == Qt::ShiftModifier);
        if (!asks)
            break;
        open(text()->property("cursorRectangle").toRectF().bottomLeft());
        return true;
    }
    default:
        break;
    }
    return QObject::eventFilter(watched, event);
}

void TextMenu::open(QPointF at)
{
    QQuickItem *item = text();
    item->forceActiveFocus(Qt::MouseFocusReason);
    if (!m_menu) {
        QQmlComponent component(
            qmlEngine(item), QUrl(u"qrc:/qt/qml/Halvorin/Kit/CNTextMenu.qml"_s));
        m_menu.reset(
            component.createWithInitialProperties({ { u"text"_s, QVariant::fromValue(item) },
                                                      { u"parent"_s, QVariant::fromValue(item) } },
                qmlContext(item)));
    }
    QMetaObject::invokeMethod(m_menu.get(), "openAt", Q_ARG(double, at.x()), Q_ARG(double, at.y()));
}
