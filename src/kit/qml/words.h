#pragma once

#include <QObject>
#include <QtQml/qqml.h>

/// What becomes of words on their way to the screen.
class Words : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
public:
    using QObject::QObject;

    /// `text` in the platform's own words, such as "Ctrl+[" for "⌘[".
    Q_INVOKABLE [[nodiscard]] QString localized(const QString &text) const;

    /// A key sequence such as "Ctrl+1" as the platform writes it.
    Q_INVOKABLE [[nodiscard]] QString shortcutText(const QString &sequence) const;

    /// A menu's text without the mark of its mnemonic: "&Go" gives "Go", "A && B" gives "A & B".
    Q_INVOKABLE [[nodiscard]] QString withoutMnemonic(const QString &text) const;

    /// The other way round: the text of a menu that shows `words` and has no mnemonic.
    Q_INVOKABLE [[nodiscard]] QString withLiteralMarks(const QString &words) const;

    /// How a text wraps that a user wrote, as TextEdit.wrapMode. For each line of a word that takes
    /// several, Qt measures all the rest of it, which takes seconds where somebody has pasted a
    /// picture as letters; such a text breaks anywhere.
    Q_INVOKABLE [[nodiscard]] int wrapMode(const QString &text) const;
};
