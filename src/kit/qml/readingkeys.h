#pragma once

#include <QPointer>
#include <QQuickItem>
#include <QtQml/qqml.h>

class QFocusEvent;
class QKeyEvent;

/// The keyboard in a text that is read, not written; a TextEdit that can be selected by keyboard.
///
/// Reached by Tab, the text has a caret: arrows move it, with Shift they select, and the pane
/// follows. After a click the arrows scroll, as they do for who only reads; with Shift they select
/// from the place of the click.
///
/// A selection ends when the focus goes elsewhere, but not to a menu, whose business it is.
///
/// The program's shortcuts stay alive. Qt 6.4's TextEdit claims every shortcut for itself, also
/// when it is read-only and has no use for it: after a click into a lesson no key would turn the
/// dial. This lets it claim what a reader needs, copying and selecting, and nothing else.
class ReadingKeys : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QQuickItem *text READ text WRITE setText NOTIFY textChanged REQUIRED)
    /// Whether there is a caret to be shown.
    Q_PROPERTY(bool caret READ hasCaret NOTIFY caretChanged)
public:
    using QObject::QObject;

    [[nodiscard]] QQuickItem *text() const { return m_text; }
    void setText(QQuickItem *text);
    [[nodiscard]] bool hasCaret() const { return m_caret; }

    bool eventFilter(QObject *watched, QEvent *event) override;

Q_SIGNALS:
    void textChanged();
    void caretChanged();

private Q_SLOTS:
    void revealCaret();

private:
    void setCaret(bool caret);
    /// Whether the text has no use for the key now.
    [[nodiscard]] bool isForThePane(const QKeyEvent &key) const;
    void loseFocus();

    QPointer<QQuickItem> m_text;
    bool m_caret = false;
    bool m_selecting = false; ///< By key, so that the pane follows.
};
