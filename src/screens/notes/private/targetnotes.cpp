#include "screens/notes/private/targetnotes.h"

#include "screens/common/storefollower.h"
#include "screens/notes/private/noterow.h"

#include "shell/appmodel.h"

TargetNotes::TargetNotes(QObject *parent)
    : RowModel(parent)
{
    show();
    followStore(this, &TargetNotes::read);
}

void TargetNotes::setTargetType(const QString &type)
{
    change(m_targetType, type);
}

void TargetNotes::setTargetID(const QString &id)
{
    change(m_targetID, id);
}

void TargetNotes::change(QString &part, const QString &value)
{
    if (part == value)
        return;
    part = value;
    m_shown = pageSize;
    Q_EMIT targetChanged();
    read();
}

void TargetNotes::read()
{
    const UserStore *store = UserStore::shared();
    const bool isWhole = !m_targetType.isEmpty() && !m_targetID.isEmpty();
    const QList<Note> notes
        = store && isWhole ? store->notes(m_targetType, m_targetID) : QList<Note>();
    // Most writes to the store are about something else, and rows that stay keep their focus.
    if (notes == m_notes)
        return;
    m_notes = notes;
    show();
}

void TargetNotes::show()
{
    showRows<Note>(m_notes.mid(0, m_shown),
        { { "noteID", &Note::id }, { "body", &Note::body }, { "changed", &changedText } });
    Q_EMIT hiddenChanged();
}

void TargetNotes::showMore()
{
    m_shown += pageSize;
    show();
}

void TargetNotes::edit(int row)
{
    if (row >= 0 && row < m_notes.size())
        AppModel::shared().setNoteDraft(m_notes.at(row));
}

void TargetNotes::remove(qint64 noteID)
{
    if (UserStore *store = UserStore::shared())
        AppModel::shared().run([&] { store->deleteNote(noteID); });
}
