#pragma once

#include "store/userstore.h"

#include <QObject>
#include <QPointer>
#include <QQuickTextDocument>
#include <QtQml/qqml.h>

/// The editor's working copy of AppModel's draft. The words are those of the text document that
/// the user types into.
class NoteEditing : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QQuickTextDocument *document READ document WRITE setDocument NOTIFY documentChanged
            REQUIRED)
    Q_PROPERTY(QString title READ title CONSTANT)
    Q_PROPERTY(QString target READ target CONSTANT)
    /// The words to begin with.
    Q_PROPERTY(QString body READ body CONSTANT)
    /// Why the note could not be saved the last time; empty before that.
    Q_PROPERTY(QString error READ error NOTIFY errorChanged)
public:
    explicit NoteEditing(QObject *parent = nullptr);

    [[nodiscard]] QQuickTextDocument *document() const { return m_document; }
    void setDocument(QQuickTextDocument *document);
    [[nodiscard]] QString title() const;
    [[nodiscard]] QString target() const;
    [[nodiscard]] QString body() const { return m_note.body; }
    [[nodiscard]] QString error() const { return m_error; }

    /// Returns whether the editor has nothing left to do: the note is in the store, or there is
    /// none. After a failure the words are as they were, and `error` says why.
    Q_INVOKABLE [[nodiscard]] bool save();

Q_SIGNALS:
    void documentChanged();
    void errorChanged();

private:
    [[nodiscard]] QString words() const;

    Note m_note;
    QPointer<QQuickTextDocument> m_document;
    QString m_error;
};
