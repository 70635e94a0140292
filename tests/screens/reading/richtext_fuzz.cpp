// The mark-up of the course's long texts and that of the help.

#include "content/text.h"
#include "kit/help.h"
#include "screens/reading/private/richtextblocks.h"
#include "support/fuzz.h"

using namespace Qt::StringLiterals;
using Fuzz::expect;
using RichTextMarkup::Form;

namespace {

QString markOf(Form form)
{
    switch (form) {
    case Form::Heading:
        return u"## "_s;
    case Form::Bullet:
        return u"• "_s;
    case Form::Callout:
        return u"> "_s;
    case Form::Paragraph:
        break;
    }
    return {};
}

QString markOf(CRVNHelp::Block::Kind kind)
{
    switch (kind) {
    case CRVNHelp::Block::Kind::Heading:
        return u"## "_s;
    case CRVNHelp::Block::Kind::Bullet:
        return u"• "_s;
    case CRVNHelp::Block::Kind::Paragraph:
        break;
    }
    return {};
}

// Mark and text together are the line again, in the same order: nothing is lost, added or moved.
void tryCourseText(const QString &text)
{
    QStringList expected;
    for (const QString &line : text.split(u'\n')) {
        const QString trimmed = Text::trimmedBlanks(line).toString();
        if (!trimmed.isEmpty())
            expected.append(trimmed);
    }
    QStringList lines;
    for (const RichTextMarkup::Block &block : RichTextMarkup::blocks(text)) {
        expect(!block.text.isEmpty() && !block.text.contains(u'\n'), "a block is one line of text");
        if (block.form == Form::Paragraph) {
            for (const Form other : { Form::Heading, Form::Bullet, Form::Callout })
                expect(!block.text.startsWith(markOf(other)), "a mark is never shown");
        }
        lines.append(markOf(block.form) + block.text);
    }
    expect(lines == expected, "what is shown is the text without its marks");
}

void tryHelpText(const QString &text)
{
    QStringList lines;
    for (const CRVNHelp::Block &block : CRVNHelp::blocks(text))
        lines.append(markOf(block.kind) + block.text);
    expect(lines == text.split(u'\n', Qt::SkipEmptyParts),
        "what the help shows is the text without its marks");
}

void tryHelpSearch(const QString &query)
{
    for (const CRVNHelpTopic &topic : CRVNHelp::search(query))
        expect(CRVNHelp::topic(topic.id) == topic, "help finds topics that are there");
    if (Text::trimmedBlanksAndLines(query).isEmpty())
        expect(
            CRVNHelp::search(query) == CRVNHelp::allTopics(), "without words all topics are found");
}

} // namespace

void Fuzz::tryOut(QByteArrayView bytes)
{
    const QString text = QString::fromUtf8(bytes);
    tryCourseText(text);
    tryHelpText(text);
    tryHelpSearch(text);
}
