#pragma once

#include <QPointer>
#include <QQuickItem>
#include <QQuickWindow>
#include <QtQml/qqml.h>

/// What can be done to the text that is being edited or read: the sense of an Edit menu. `text` is
/// a TextInput or TextEdit, or nothing; given a `window`, it is the one that has the focus there. A
/// menu takes the focus for as long as it is open, and its entries are still about the text that
/// had it before.
class TextEditing : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QQuickItem *text READ text WRITE setText NOTIFY changed)
    Q_PROPERTY(QQuickWindow *window READ window WRITE setWindow NOTIFY windowChanged)
    Q_PROPERTY(bool canUndo READ canUndo NOTIFY changed)
    Q_PROPERTY(bool canRedo READ canRedo NOTIFY changed)
    Q_PROPERTY(bool canCut READ canCut NOTIFY changed)
    Q_PROPERTY(bool canCopy READ canCopy NOTIFY changed)
    Q_PROPERTY(bool canPaste READ canPaste NOTIFY changed)
    Q_PROPERTY(bool canSelectAll READ canSelectAll NOTIFY changed)
    /// Whether the text can be changed at all, or only read.
    Q_PROPERTY(bool editable READ isEditable NOTIFY changed)
public:
    using QObject::QObject;

    [[nodiscard]] QQuickItem *text() const { return m_text; }
    void setText(QQuickItem *text);
    [[nodiscard]] QQuickWindow *window() const { return m_window; }
    void setWindow(QQuickWindow *window);

    [[nodiscard]] bool canUndo() const { return is("canUndo"); }
    [[nodiscard]] bool canRedo() const { return is("canRedo"); }
    [[nodiscard]] bool canCut() const { return canCopy() && isEditable(); }
    [[nodiscard]] bool canCopy() const;
    [[nodiscard]] bool canPaste() const { return is("canPaste"); }
    [[nodiscard]] bool canSelectAll() const;
    [[nodiscard]] bool isEditable() const { return m_text && !is("readOnly"); }

    Q_INVOKABLE void undo() { tell("undo"); }
    Q_INVOKABLE void redo() { tell("redo"); }
    Q_INVOKABLE void cut() { tell("cut"); }
    Q_INVOKABLE void copy() { tell("copy"); }
    Q_INVOKABLE void paste() { tell("paste"); }
    Q_INVOKABLE void selectAll() { tell("selectAll"); }

    [[nodiscard]] static bool isText(const QQuickItem *item);

Q_SIGNALS:
    void changed();
    void windowChanged();

private:
    [[nodiscard]] bool is(const char *property) const;
    void tell(const char *method);
    void followFocus();

    QPointer<QQuickItem> m_text;
    QPointer<QQuickWindow> m_window;
};
