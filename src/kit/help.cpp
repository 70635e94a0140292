#include "kit/help.h"

#include "kit/kit.h"
#include "kit/platformwords.h"
#include "kit/themes.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

CRVNHelp::Topics &topicSource()
{
    static CRVNHelp::Topics source;
    return source;
}

CRVNHelp::Opener &storedOpener()
{
    static CRVNHelp::Opener opener;
    return opener;
}

// The text without what tells two spellings of a word apart. Unlike a locale's own lower case it is
// the same everywhere: a Turkish I stays an I.
QString folded(const QString &text)
{
    QString result = text.normalized(QString::NormalizationForm_D);
    result.removeIf([](QChar character) { return character.isMark(); });
    return result.toCaseFolded();
}

QString haystack(const CRVNHelpTopic &topic)
{
    return topic.title + u'\n' + topic.body + u'\n' + topic.keywords.join(u' ');
}

// "A, B or C"
QString joinedByOr(QStringList names)
{
    const QString last = names.takeLast();
    return names.join(", "_L1) + " or "_L1 + last;
}

} // namespace

namespace CRVNHelp {

QList<CRVNHelpTopic> topics()
{
    return topicSource() ? topicSource()() : QList<CRVNHelpTopic>();
}
void setTopics(Topics source)
{
    topicSource() = std::move(source);
}

CRVNHelpTopic lookTopic()
{
    QStringList themes;
    for (const CRVNTheme &theme : CRVNThemes::builtIn())
        themes.append(theme.name);
    return {
        .id = u"look"_s,
        .title = u"Themes and interface zoom"_s,
        .body = PlatformWords::localized("Choose a color theme from the Theme menu: "_L1
            + joinedByOr(themes)
            + u". Some apps add more.\n"
              "The theme changes at once and is remembered.\n\n"
              "Make everything bigger or smaller, from 85% to 200%:\n"
              "• View → Zoom In (⌘+)\n"
              "• View → Zoom Out (⌘−)\n"
              "• View → Actual Size (100%) (⌘0)\n"
              "View → Zoom Level goes to a size in one step. The zoom is remembered too. Where "
              "the window is too small for what it holds, scroll bars appear; a wider window "
              "makes them go."_s),
        .keywords = { u"color"_s, u"colour"_s, u"theme"_s, u"zoom"_s, u"bigger"_s, u"smaller"_s,
            u"text size"_s, u"font size"_s, u"dark"_s },
    };
}

CRVNHelpTopic aboutTopic()
{
    return {
        .id = u"about"_s,
        .title = "About "_L1 + CRVNKitHost::creditName,
        .body = CRVNKitHost::appName()
            + " is made by Corvane (CRVN).\n\nWebsite, updates and support: "_L1
            + CRVNKitHost::creditURL().toString(),
        .keywords = {},
    };
}

QList<CRVNHelpTopic> allTopics()
{
    QList<CRVNHelpTopic> all = topics();
    for (const CRVNHelpTopic &own : { lookTopic(), aboutTopic() }) {
        if (std::ranges::find(all, own.id, &CRVNHelpTopic::id) == all.end())
            all.append(own);
    }
    return all;
}

CRVNHelpTopic topic(const std::optional<QString> &id)
{
    const QList<CRVNHelpTopic> all = allTopics();
    const auto found = std::ranges::find(all, id, &CRVNHelpTopic::id);
    return found != all.end() ? *found : all.first();
}

QList<CRVNHelpTopic> search(const QString &query)
{
    QStringList words = folded(query).simplified().split(u' ', Qt::SkipEmptyParts);
    words.removeDuplicates();
    const auto isIn = [](const QString &text) {
        return [&text](const QString &word) { return text.contains(word); };
    };

    QList<CRVNHelpTopic> byTitle;
    QList<CRVNHelpTopic> byText;
    for (const CRVNHelpTopic &candidate : allTopics()) {
        if (!std::ranges::all_of(words, isIn(folded(haystack(candidate)))))
            continue;
        const bool inTitle = std::ranges::any_of(words, isIn(folded(candidate.title)));
        (inTitle ? byTitle : byText).append(candidate);
    }
    return byTitle + byText;
}

void show(const std::optional<QString> &topicID)
{
    if (storedOpener())
        storedOpener()(topicID);
}
void setOpener(Opener opener)
{
    storedOpener() = std::move(opener);
}

QList<Block> blocks(const QString &text)
{
    QList<Block> result;
    for (const QString &line : text.split(u'\n', Qt::SkipEmptyParts)) {
        if (line.startsWith("## "_L1))
            result.append({ Block::Kind::Heading, line.mid(3) });
        else if (line.startsWith(u"• "))
            result.append({ Block::Kind::Bullet, line.mid(2) });
        else
            result.append({ Block::Kind::Paragraph, line });
    }
    return result;
}

} // namespace CRVNHelp
