#include "screens/notes/private/keepsakes.h"

#include "screens/common/storefollower.h"
#include "screens/notes/private/noterow.h"

#include "shell/appmodel.h"

Keepsakes::Keepsakes(QObject *parent)
    : RowModel(parent)
{
    if (const UserStore *store = UserStore::shared()) {
        m_bookmarks = store->bookmarks();
        m_notes = store->notes();
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
    const qsizetype note = row - m_bookmarks.size() - 1;
    if (row >= 0 && row < m_bookmarks.size()) {
        const Bookmark &bookmark = m_bookmarks.at(row);
        AppModel::shared().openTarget(bookmark.targetType, bookmark.targetID);
    } else if (note >= 0 && note < m_notes.size()) {
        AppModel::shared().openTarget(m_notes.at(note).targetType, m_notes.at(note).targetID);
    }
}

void Keepsakes::read()
{
    const QList<Bookmark> bookmarks = UserStore::shared()->bookmarks();
    const QList<Note> notes = UserStore::shared()->notes();
    // A write about something else leaves the list where the user has scrolled it.
    if (bookmarks == m_bookmarks && notes == m_notes)
        return;
    m_bookmarks = bookmarks;
    m_notes = notes;
    show();
    Q_EMIT bookmarkCountChanged();
}

QString Keepsakes::title(Row row) const
{
    switch (row.kind) {
    case BookmarkRow:
        return targetTitle(
            m_bookmarks.at(row.place).targetType, m_bookmarks.at(row.place).targetID);
    case CaptionRow:
        return tr("ALL NOTES (%1)").arg(m_notes.size());
    case NoteRow:
        return targetTitle(m_notes.at(row.place).targetType, m_notes.at(row.place).targetID);
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
            return row.kind == NoteRow ? QString(text(m_notes.at(row.place))) : QString();
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
