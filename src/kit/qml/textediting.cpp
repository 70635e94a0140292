#include "textediting.h"

bool TextEditing::isText(const QQuickItem *item)
{
    return item && (item->inherits("QQuickTextInput") || item->inherits("QQuickTextEdit"));
}

void TextEditing::setText(QQuickItem *text)
{
    if (m_text == text)
        return;
    if (m_text)
        m_text->disconnect(this);
    m_text = text;
    if (m_text) {
        // The classes are Qt's own, so their signals have to be named.
        for (const char *signal :
            { SIGNAL(selectionStartChanged()), SIGNAL(selectionEndChanged()), SIGNAL(textChanged()),
                SIGNAL(canUndoChanged()), SIGNAL(canRedoChanged()), SIGNAL(canPasteChanged()) })
            connect(m_text, signal, this, SIGNAL(changed()));
        connect(m_text, &QObject::destroyed, this, &TextEditing::changed);
    }
    Q_EMIT changed();
}

void TextEditing::setWindow(QQuickWindow *window)
{
    if (m_window == window)
        return;
    if (m_window)
        m_window->disconnect(this);
    m_window = window;
    if (m_window) {
        connect(m_window, &QQuickWindow::activeFocusItemChanged, this, &TextEditing::followFocus);
        followFocus();
    }
    Q_EMIT windowChanged();
}

void TextEditing::followFocus()
{
    QQuickItem *item = m_window->activeFocusItem();
    if (isText(item))
        return setText(item);
    // An application's window tells what its content is; menus lie outside.
    const auto *content = m_window->property("contentItem").value<QQuickItem *>();
    if (item && content && content->isAncestorOf(item))
        setText(nullptr);
}

// canUndoChanged() comes in the middle of an edit, when the selection may reach beyond what is left
// of the text. To ask a TextEdit for the selected text then never returns; where the selection
// begins and ends can always be asked.
bool TextEditing::canCopy() const
{
    return m_text && m_text->property("selectionStart") != m_text->property("selectionEnd");
}

bool TextEditing::canSelectAll() const
{
    return m_text && m_text->property("length").toInt() > 0;
}

bool TextEditing::is(const char *property) const
{
    return m_text && m_text->property(property).toBool();
}

void TextEditing::tell(const char *method)
{
    if (m_text)
        QMetaObject::invokeMethod(m_text, method);
}
