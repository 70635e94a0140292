// Help: the list of topics, the search in it, and the marks that a topic's text may have.
//
// The application hands its topics over (CRVNKit::install); the kit adds one on themes and zoom and
// one on the maker. Topics are asked for anew at each use, so a text may follow what it tells of.
// The window that shows them registers itself with setOpener(). Main thread only.
#pragma once

#include <QList>
#include <QString>
#include <QStringList>

#include <functional>
#include <optional>

/// A page of the help. Equal when all four are equal.
struct CRVNHelpTopic {
    QString id;
    QString title;
    QString body; ///< Marked up as CRVNHelp::blocks() tells.
    QStringList keywords;

    friend bool operator==(const CRVNHelpTopic &, const CRVNHelpTopic &) = default;
};

namespace CRVNHelp {

using Topics = std::function<QList<CRVNHelpTopic>()>;
using Opener = std::function<void(const std::optional<QString> &topicID)>;

/// The application's own topics; none at first.
[[nodiscard]] QList<CRVNHelpTopic> topics();
void setTopics(Topics source);

/// The kit's own topics: "look" on themes and zoom, "about" on the application's maker.
[[nodiscard]] CRVNHelpTopic lookTopic();
[[nodiscard]] CRVNHelpTopic aboutTopic();

/// The application's topics, then the kit's two, unless the application has one of the same id.
[[nodiscard]] QList<CRVNHelpTopic> allTopics();

/// The topic with this id; the first of allTopics() if there is no such id or none is asked for.
[[nodiscard]] CRVNHelpTopic topic(const std::optional<QString> &id);

/// The topics that hold every word of the query in title, text or keywords, also inside a longer
/// word: first those with a word of the query in their titles, then the others, each group in the
/// order of allTopics(). Case and diacritics make no difference, under any locale: "NIEPCE" finds
/// "Niépce". A query without words finds all topics.
[[nodiscard]] QList<CRVNHelpTopic> search(const QString &query);

/// Has the help window shown at this topic, or at the first one. Does nothing until a window has
/// been registered.
void show(const std::optional<QString> &topicID = {});
void setOpener(Opener opener);

/// A piece of a topic's text as it is shown.
struct Block {
    enum class Kind { Heading, Bullet, Paragraph };

    Kind kind = Kind::Paragraph;
    QString text; ///< Without the mark.

    friend bool operator==(const Block &, const Block &) = default;
};

/// One block for each line that isn't empty. A line that begins with "## " is a heading, one that
/// begins with "• " a bullet, any other a paragraph, each as it stands.
[[nodiscard]] QList<Block> blocks(const QString &text);

} // namespace CRVNHelp
