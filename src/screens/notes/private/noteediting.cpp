#include "screens/notes/private/noteediting.h"

#include "screens/notes/private/noterow.h"

#include "shell/appmodel.h"
#include "store/hverror.h"

#include <QTextDocument>

NoteEditing::NoteEditing(QObject *parent)
    : QObject(parent)
    , m_note(AppModel::shared().noteDraft().value_or(Note()))
{ }

void NoteEditing::setDocument(QQuickTextDocument *document)
{
    if (m_document == document)
        return;
    m_document = document;
    if (document) {
        connect(document->textDocument(), &QTextDocument::contentsChanged, this,
            [this] { AppModel::shared().setDraftIsUnsaved(words() != m_note.body); });
    }
    Q_EMIT documentChanged();
}

QString NoteEditing::title() const
{
    return m_note.id == 0 ? tr("New note") : tr("Edit note");
}

QString NoteEditing::target() const
{
    return targetTitle(m_note.targetType, m_note.targetID);
}

bool NoteEditing::save()
{
    UserStore *store = UserStore::shared();
    if (!store)
        return true;
    Note note = m_note;
    note.body = words();
    try {
        store->save(note);
        return true;
    } catch (const HVError &error) {
        // Told in the editor, not in a message over it: the words are still there to be saved.
        m_error = error.description();
        Q_EMIT errorChanged();
        return false;
    }
}

QString NoteEditing::words() const
{
    if (!m_document)
        return m_note.body;
    // Not the plain text, for which Qt turns no-break spaces into plain ones.
    QString words = m_document->textDocument()->toRawText();
    words.replace(QChar::ParagraphSeparator, QChar::LineFeed);
    words.replace(QChar::LineSeparator, QChar::LineFeed);
    // A pasted NUL can't be seen, and ends the text for most programs that read an export.
    words.remove(QChar::Null);
    return words;
}
