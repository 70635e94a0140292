#include "kit/textsettings.h"

#include <QIODevice>

using namespace Qt::StringLiterals;

namespace {

// The section of keys without one.
const QString kGeneral = u"General"_s;

// What follows a backslash, and the character that both stand for.
constexpr struct {
    char16_t letter;
    char16_t character;
} kEscapes[] = { { u'n', u'\n' }, { u'r', u'\r' }, { u't', u'\t' }, { u'0', u'\0' } };

QString unescaped(QStringView written)
{
    QString text;
    for (qsizetype i = 0; i < written.size(); ++i) {
        if (written[i] == u'"')
            continue;
        if (written[i] != u'\\' || i + 1 == written.size()) {
            text += written[i];
            continue;
        }
        QChar character = written[++i];
        for (const auto &[letter, meant] : kEscapes) {
            if (character == letter)
                character = meant;
        }
        text += character;
    }
    // A text that begins with this sign is written with two of them.
    return text.startsWith("@@"_L1) ? text.sliced(1) : text;
}

QString escaped(const QString &text)
{
    QString written = text.startsWith(u'@') ? u"@"_s : QString();
    for (const QChar character : text) {
        QChar letter = character == u'\\' || character == u'"' ? character : QChar();
        bool isEscaped = !letter.isNull();
        for (const auto &[escape, meant] : kEscapes) {
            if (character == meant) {
                letter = escape;
                isEscaped = true;
            }
        }
        if (isEscaped)
            written += u'\\';
        written += isEscaped ? letter : character;
    }
    const bool isBare = written.size() == text.size() && text.trimmed().size() == text.size()
        && !text.contains(u';') && !text.contains(u',') && !text.contains(u'=');
    return isBare ? written : u'"' + written + u'"';
}

bool read(QIODevice &device, QSettings::SettingsMap &values)
{
    QString section;
    for (const QString &line : QString::fromUtf8(device.readAll()).split(u'\n')) {
        const QString trimmed = line.trimmed();
        if (trimmed.startsWith(u'[') && trimmed.endsWith(u']')) {
            const QString name = trimmed.sliced(1).chopped(1);
            section = name == kGeneral ? QString() : name + u'/';
            continue;
        }
        const qsizetype sign = trimmed.indexOf(u'=');
        if (sign > 0 && !trimmed.startsWith(u';') && !trimmed.startsWith(u'#'))
            values.insert(section + trimmed.first(sign).trimmed(),
                unescaped(QStringView(trimmed).sliced(sign + 1).trimmed()));
    }
    return true;
}

bool write(QIODevice &device, const QSettings::SettingsMap &values)
{
    QMap<QString, QString> sections; // their lines; keys without a section come first
    for (auto value = values.cbegin(); value != values.cend(); ++value) {
        const qsizetype slash = value.key().indexOf(u'/');
        sections[value.key().first(qMax<qsizetype>(slash, 0))]
            += value.key().sliced(slash + 1) + u'=' + escaped(value->toString()) + u'\n';
    }
    QString text;
    for (auto section = sections.cbegin(); section != sections.cend(); ++section) {
        if (!text.isEmpty())
            text += u'\n';
        text += u'[' + (section.key().isEmpty() ? kGeneral : section.key()) + u"]\n" + *section;
    }
    const QByteArray bytes = text.toUtf8();
    return device.write(bytes) == bytes.size();
}

} // namespace

QSettings::Format TextSettings::format()
{
    static const QSettings::Format format
        = QSettings::registerFormat(u"conf"_s, read, write, Qt::CaseSensitive);
    return format;
}
