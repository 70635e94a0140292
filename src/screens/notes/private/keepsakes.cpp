#include "screens/notes/private/keepsakes.h"

#include "screens/common/storefollower.h"
#include "screens/notes/private/noterow.h"

#include "shell/appmodel.h"

Keepsakes::Keepsakes(QObject *parent)
    : RowModel(parent)
{
    if (const UserStore *store = UserStore::shared()) {
        m_bookmarks = store->bookmarks();
        m_notes = store->noteStamps();
    }
    show();
    followStore(this, &Keepsakes::read);
}

QString Keepsakes::bookmarksCaption() const
{
    return tr("BOOKMARKS (%1)").arg(m_bookmarks.size());
}

void Keepsakes::open(int row) const
{
    const qsizetype place = row - m_bookmarks.size() - 1;
    if (row >= 0 && row < m_bookmarks.size()) {
        const Bookmark &bookmark = m_bookmarks.at(row);
        AppModel::shared().openTarget(bookmark.targetType, bookmark.targetID);
    } else if (place >= 0 && place < m_notes.size()) {
        const Note target = note(place);
        AppModel::shared().openTarget(target.targetType, target.targetID);
    }
}

void Keepsakes::read()
{
    const QList<Bookmark> bookmarks = UserStore::shared()->bookmarks();
    const QList<NoteStamp> notes = UserStore::shared()->noteStamps();
    // A write about something else leaves the list where the user has scrolled it.
    if (bookmarks == m_bookmarks && notes == m_notes)
        return;
    m_bookmarks = bookmarks;
    m_notes = notes;
    show();
    Q_EMIT bookmarkCountChanged();
}

Note Keepsakes::note(qsizetype place) const
{
    const UserStore *store = UserStore::shared();
    return store ? store->note(m_notes.at(place).id).value_or(Note()) : Note();
}

QString Keepsakes::title(Row row) const
{
    switch (row.kind) {
    case BookmarkRow:
        return targetTitle(
            m_bookmarks.at(row.place).targetType, m_bookmarks.at(row.place).targetID);
    case CaptionRow:
        return tr("ALL NOTES (%1)").arg(m_notes.size());
    case NoteRow: {
        const Note target = note(row.place);
        return targetTitle(target.targetType, target.targetID);
    }
    }
    Q_UNREACHABLE();
}

void Keepsakes::show()
{
    QList<Row> rows;
    rows.reserve(m_bookmarks.size() + 1 + m_notes.size());
    for (qsizetype i = 0; i < m_bookmarks.size(); ++i)
        rows.append({ BookmarkRow, i });
    rows.append({ CaptionRow, 0 });
    for (qsizetype i = 0; i < m_notes.size(); ++i)
        rows.append({ NoteRow, i });

    const auto ofNote = [this](const auto &text) {
        return [this, text](const Row &row) {
            return row.kind == NoteRow ? QString(text(note(row.place))) : QString();
        };
    };
    showRows<Row>(rows,
        {
            { "kind", [](const Row &row) { return int(row.kind); } },
            { "title", [this](const Row &row) { return title(row); } },
            { "body", ofNote([](const Note &note) { return note.body; }) },
            { "changed", ofNote(&changedText) },
        });
}
