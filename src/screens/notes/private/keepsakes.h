#pragma once

#include "kit/rowmodel.h"
#include "store/userstore.h"

#include <QtQml/qqml.h>

/// All that the user has kept, as one long list: the bookmarks, the newest first, a caption, and
/// the notes, the last changed first. Roles `kind`, `title`, `body` and `changed`; a bookmark has a
/// title, and the caption is one.
///
/// One list, because there may be thousands of either, and a list makes only what is in sight. For
/// the same reason a note is read when its row is shown.
class Keepsakes : public RowModel
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QString bookmarksCaption READ bookmarksCaption NOTIFY bookmarkCountChanged)
    Q_PROPERTY(int bookmarkCount READ bookmarkCount NOTIFY bookmarkCountChanged)
public:
    enum Kind { BookmarkRow, CaptionRow, NoteRow };
    Q_ENUM(Kind)

    explicit Keepsakes(QObject *parent = nullptr);

    [[nodiscard]] int bookmarkCount() const { return int(m_bookmarks.size()); }
    [[nodiscard]] QString bookmarksCaption() const;

    /// Whether a row is a bookmark or a note.
    Q_INVOKABLE [[nodiscard]] bool canBeOpened(int row) const
    {
        return row >= 0 && row < count() && row != bookmarkCount();
    }

    /// Goes to what the bookmark or note in this row is tied to.
    Q_INVOKABLE void open(int row) const;

Q_SIGNALS:
    void bookmarkCountChanged();

private:
    /// A row's kind and its place among those of its kind.
    struct Row {
        Kind kind = CaptionRow;
        qsizetype place = 0;
    };

    /// A note that is gone by now, or can't be read, has nothing to show.
    [[nodiscard]] Note note(qsizetype place) const;
    [[nodiscard]] QString title(Row row) const;
    void read();
    void show();

    QList<Bookmark> m_bookmarks;
    QList<NoteStamp> m_notes;
};
