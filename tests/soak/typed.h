// What the monkey has typed, against what the progress file holds in the end.
#pragma once

#include <QHash>
#include <QString>
#include <QStringList>

class ContentLibrary;
class UserStore;

/// The letters that were typed, however they were moved about, cut and undone since.
class Typed
{
public:
    /// What the clipboard holds before each action, so that whatever is pasted can be told from
    /// what was typed.
    static inline const QString kPasted = QStringLiteral("⁂");

    void add(const QString &text);

    /// What stands in the file and can't be there: notes with more of a letter than was typed,
    /// and marks or scores of what the course doesn't have.
    [[nodiscard]] QStringList objectionsTo(
        const UserStore &store, const ContentLibrary &course) const;

private:
    QHash<QChar, qsizetype> m_counts;
};
