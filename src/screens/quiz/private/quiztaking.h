#pragma once

#include "screens/quiz/quizsheet.h"

#include "kit/rowmodel.h"

#include <QtQml/qqml.h>

/// The quiz of a module as the user takes it: a row for each question, with the roles
///   number        from 1
///   prompt
///   options       a list of texts
///   picked        the option picked, from 0; -1 without one
///   marks         for each option its `symbol`, its `ink` (the name of a color of the palette) and
///                 in the review a `verdict` in words
///   explanation   for the review
///   correct       whether the pick is the right one
/// What is picked belongs to the page and goes with it; only a score is stored.
class QuizTaking : public RowModel
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QString moduleID READ moduleID WRITE setModuleID NOTIFY moduleIDChanged)
    Q_PROPERTY(QString title READ title NOTIFY moduleIDChanged)
    Q_PROPERTY(QString subtitle READ subtitle NOTIFY moduleIDChanged)
    /// The latest five scores in a line; empty without any.
    Q_PROPERTY(QString scores READ scores NOTIFY scoresChanged)
    Q_PROPERTY(bool reviewed READ reviewed NOTIFY sheetChanged)
    Q_PROPERTY(int answered READ answered NOTIFY sheetChanged)
    Q_PROPERTY(bool complete READ complete NOTIFY sheetChanged)
    Q_PROPERTY(int right READ right NOTIFY sheetChanged)
public:
    explicit QuizTaking(QObject *parent = nullptr);

    [[nodiscard]] QString moduleID() const { return m_moduleID; }
    void setModuleID(const QString &id);
    [[nodiscard]] QString title() const;
    [[nodiscard]] QString subtitle() const;
    [[nodiscard]] QString scores() const;
    [[nodiscard]] bool reviewed() const { return m_sheet.isReviewed(); }
    [[nodiscard]] int answered() const { return m_sheet.pickCount(); }
    [[nodiscard]] bool complete() const { return m_sheet.pickCount() >= m_questions.size(); }
    [[nodiscard]] int right() const { return m_sheet.rightCount(m_questions); }

    /// The row of the first question without a pick; -1 if there is none.
    Q_INVOKABLE [[nodiscard]] int firstUnanswered() const;
    Q_INVOKABLE void pick(int row, int option);

    /// Stores the score and turns the page into its review. If the score can't be stored, the
    /// reason becomes the message and everything stays as it is.
    Q_INVOKABLE void check();
    Q_INVOKABLE void tryAgain();

Q_SIGNALS:
    void moduleIDChanged();
    void scoresChanged();
    void sheetChanged();

private:
    [[nodiscard]] QVariantList marks(const Question &question) const;
    [[nodiscard]] QString verdict(const Question &question, int option) const;
    void show();
    void changeSheet();

    QString m_moduleID;
    QList<Question> m_questions;
    QuizSheet m_sheet;
};
