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

void Keepsakes::show()
{
    QList<Row> rows(m_bookmarks.begin(), m_bookmarks.end());
    rows.reserve(m_bookmarks.size() + 1 + m_notes.size());
    rows.append(Caption{ .notes = m_notes.size() });
    for (const Note &note : m_notes)
        rows.append(note);

    showRows<Row>(rows,
        {
            { "kind", [](const Row &row) { return int(row.index()); } },
            { "title",
                [](const Row &row) {
                    if (const auto *bookmark = std::get_if<Bookmark>(&row))
                        return targetTitle(bookmark->targetType, bookmark->targetID);
                    if (const auto *note = std::get_if<Note>(&row))
                        return targetTitle(note->targetType, note->targetID);
                    return tr("ALL NOTES (%1)").arg(std::get<Caption>(row).notes);
                } },
            { "body",
                [](const Row &row) {
                    const auto *note = std::get_if<Note>(&row);
                    return note ? note->body : QString();
                } },
            { "changed",
                [](const Row &row) {
                    const auto *note = std::get_if<Note>(&row);
                    return note ? changedText(*note) : QString();
                } },
        });
}
