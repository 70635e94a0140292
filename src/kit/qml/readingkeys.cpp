#include "readingkeys.h"

#include "scrollbehavior.h"

#include <QFocusEvent>
#include <QKeyEvent>
#include <QQuickWindow>

namespace {

bool isInMenu(const QQuickItem *item)
{
    for (; item; item = item->parentItem()) {
        if (item->inherits("QQuickOverlay") || item->inherits("QQuickMenuBar"))
            return true;
    }
    return false;
}

bool moves(const QKeyEvent &key)
{
    switch (key.key()) {
    case Qt::Key_Left:
    case Qt::Key_Right:
    case Qt::Key_Up:
    case Qt::Key_Down:
    case Qt::Key_Home:
    case Qt::Key_End:
    case Qt::Key_PageUp:
    case Qt::Key_PageDown:
        return true;
    default:
        return false;
    }
}

bool selects(const QKeyEvent &key)
{
    return moves(key) && key.modifiers().testFlag(Qt::ShiftModifier);
}

} // namespace

void ReadingKeys::setText(QQuickItem *text)
{
    if (m_text == text)
        return;
    if (m_text) {
        m_text->removeEventFilter(this);
        m_text->disconnect(this);
    }
    m_text = text;
    if (m_text) {
        m_text->installEventFilter(this);
        // The class is Qt's own, so its signal has to be named.
        connect(m_text, SIGNAL(cursorRectangleChanged()), this, SLOT(revealCaret()));
    }
    Q_EMIT textChanged();
}

void ReadingKeys::setCaret(bool caret)
{
    if (m_caret == caret)
        return;
    m_caret = caret;
    Q_EMIT caretChanged();
}

bool ReadingKeys::isForThePane(const QKeyEvent &key) const
{
    return moves(key) && !selects(key) && !m_caret;
}

bool ReadingKeys::eventFilter(QObject *watched, QEvent *event)
{
    switch (event->type()) {
    case QEvent::ShortcutOverride: {
        const auto &key = static_cast<const QKeyEvent &>(*event);
        event->setAccepted(key.matches(QKeySequence::Copy) || key.matches(QKeySequence::SelectAll)
            || selects(key));
        return true;
    }
    case QEvent::KeyPress: {
        const auto &key = static_cast<const QKeyEvent &>(*event);
        if (isForThePane(key)) {
            event->ignore();
            return true;
        }
        m_selecting = moves(key);
        break;
    }
    case QEvent::MouseButtonPress:
        m_selecting = false;
        setCaret(false);
        break;
    case QEvent::FocusIn: {
        const Qt::FocusReason reason = static_cast<const QFocusEvent &>(*event).reason();
        setCaret(reason == Qt::TabFocusReason || reason == Qt::BacktabFocusReason);
        break;
    }
    case QEvent::FocusOut:
        // Who has the focus next is known a little later.
        QMetaObject::invokeMethod(this, &ReadingKeys::loseFocus, Qt::QueuedConnection);
        break;
    default:
        break;
    }
    return QObject::eventFilter(watched, event);
}

void ReadingKeys::loseFocus()
{
    const QQuickWindow *window = m_text ? m_text->window() : nullptr;
    const QQuickItem *focused = window ? window->activeFocusItem() : nullptr;
    if (!focused || focused == m_text || isInMenu(focused))
        return;
    setCaret(false);
    QMetaObject::invokeMethod(m_text, "deselect");
}

void ReadingKeys::revealCaret()
{
    if (m_selecting && m_text->hasActiveFocus())
        ScrollBehavior::revealAround(*m_text, m_text->property("cursorRectangle").toRectF());
}
