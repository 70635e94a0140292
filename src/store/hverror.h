// The one exception class of the program: what went wrong, as the sentence that the user reads.
#pragma once

#include <QByteArray>
#include <QString>

#include <exception>

/// A failure worth telling the user about. Thrown by value, caught by const reference.
class HVError : public std::exception
{
public:
    enum class Kind {
        Database,  ///< SQLite refused something; the payload is its own message.
        Invalid,   ///< What was asked for makes no sense; the payload is the whole sentence.
        BadBackup, ///< A file can't be restored; the payload says why.
        NotFound,  ///< The record has been deleted meanwhile; there is no payload.
    };

    /// `sqliteCode` is the primary result code where SQLite is the cause, and 0 otherwise. It is
    /// there for decisions of the program, such as to try again; the user never sees it.
    explicit HVError(Kind kind, const QString &payload = {}, int sqliteCode = 0);

    [[nodiscard]] Kind kind() const noexcept { return m_kind; }
    [[nodiscard]] int sqliteCode() const noexcept { return m_sqliteCode; }

    /// The sentence that any failure displays.
    [[nodiscard]] QString description() const;

    /// description() as UTF-8.
    [[nodiscard]] const char *what() const noexcept override { return m_what.constData(); }

    /// Equal by kind and payload: two failures that read alike are alike.
    friend bool operator==(const HVError &left, const HVError &right)
    {
        return left.m_kind == right.m_kind && left.m_payload == right.m_payload;
    }

private:
    Kind m_kind;
    QString m_payload;
    int m_sqliteCode;
    QByteArray m_what; // what() must not throw, so its text is made beforehand
};
