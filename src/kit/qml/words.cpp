#include "words.h"

#include "kit/platformwords.h"

#include <QKeySequence>
#include <QRegularExpression>
#include <QTextOption>

namespace {

// In letters. Some web addresses come near it, no word of a language does.
constexpr qsizetype kLongestWord = 1000;

} // namespace

QString Words::localized(const QString &text) const
{
    return PlatformWords::localized(text);
}

QString Words::shortcutText(const QString &sequence) const
{
    return QKeySequence(sequence).toString(QKeySequence::NativeText);
}

QString Words::withoutMnemonic(const QString &text) const
{
    static const QRegularExpression mark(QStringLiteral("&(.)"));
    return QString(text).replace(mark, QStringLiteral("\\1"));
}

QString Words::withLiteralMarks(const QString &words) const
{
    return QString(words).replace(u'&', QStringLiteral("&&"));
}

int Words::wrapMode(const QString &text) const
{
    // Other letters are passed over: a line of Chinese may end nearly anywhere as it is.
    const auto isJoined = [](QChar letter) { return letter > u' ' && letter < u'\x7f'; };
    qsizetype length = 0;
    for (const QChar letter : text) {
        length = isJoined(letter) ? length + 1 : 0;
        if (length == kLongestWord)
            return QTextOption::WrapAnywhere;
    }
    return QTextOption::WrapAtWordBoundaryOrAnywhere;
}
