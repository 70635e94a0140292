// A quiz that is being taken: what is picked, and what each option of each question shows.
#pragma once

#include "content/records.h"

#include <QHash>
#include <QString>

/// The answer sheet of a quiz. Picks are kept by question, so that a sheet that is handed another
/// module's questions shows none of them, but still counts them.
///
/// While answering, a pick can be replaced and not taken back. In the review nothing changes.
class QuizSheet
{
public:
    /// What an option shows: its symbol by name, and in which of the palette's colors.
    struct Mark {
        enum class Ink { Dim, Glow, Good, Bad };

        QString symbol;
        Ink ink = Ink::Dim;

        friend bool operator==(const Mark &, const Mark &) = default;
    };

    [[nodiscard]] bool isReviewed() const { return m_isReviewed; }

    /// The option picked for a question, from 0; -1 without one.
    [[nodiscard]] int picked(const QString &questionID) const
    {
        return m_picks.value(questionID, -1);
    }

    /// How many questions have a pick, of whatever module.
    [[nodiscard]] int pickCount() const { return int(m_picks.size()); }

    /// Returns whether anything has changed.
    bool pick(const QString &questionID, int option);

    /// How many of these questions have the right pick.
    [[nodiscard]] int rightCount(const QList<Question> &questions) const;

    [[nodiscard]] bool isRight(const Question &question) const;
    [[nodiscard]] Mark mark(const Question &question, int option) const;

    void review() { m_isReviewed = true; }

    /// Takes all picks away and begins anew.
    void clear();

private:
    QHash<QString, int> m_picks;
    bool m_isReviewed = false;
};
