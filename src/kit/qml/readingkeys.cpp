#include "readingkeys.h"

#include <QKeyEvent>

void ReadingKeys::setText(QQuickItem *text)
{
    if (m_text == text)
        return;
    if (m_text)
        m_text->removeEventFilter(this);
    m_text = text;
    if (m_text)
        m_text->installEventFilter(this);
    Q_EMIT textChanged();
}

bool ReadingKeys::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() != QEvent::ShortcutOverride)
        return QObject::eventFilter(watched, event);
    const auto *key = static_cast<QKeyEvent *>(event);
    event->setAccepted(key->matches(QKeySequence::Copy) || key->matches(QKeySequence::SelectAll));
    return true;
}
