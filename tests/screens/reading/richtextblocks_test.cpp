#include "screens/reading/private/richtextblocks.h"

#include "kit/printing.h"

#include <gtest/gtest.h>

#include <ostream>

using namespace Qt::StringLiterals;
using RichTextMarkup::Block;
using RichTextMarkup::blocks;
using RichTextMarkup::Form;

namespace RichTextMarkup {

void PrintTo(const Block &block, std::ostream *out)
{
    static constexpr const char *kNames[] = { "heading", "bullet", "callout", "paragraph" };
    *out << kNames[int(block.form)] << " \"" << qPrintable(block.text) << '"';
}

} // namespace RichTextMarkup

namespace {

Block heading(const QString &text)
{
    return { Form::Heading, text };
}
Block bullet(const QString &text)
{
    return { Form::Bullet, text };
}
Block callout(const QString &text)
{
    return { Form::Callout, text };
}
Block paragraph(const QString &text)
{
    return { Form::Paragraph, text };
}

using Blocks = QList<Block>;

} // namespace

TEST(RichTextBlocks, OfAnEmptyTextAreNone)
{
    EXPECT_EQ(blocks(u""), Blocks());
    EXPECT_EQ(blocks({}), Blocks());
}

TEST(RichTextBlocks, HaveFourForms)
{
    EXPECT_EQ(blocks(u"## Title"), Blocks{ heading(u"Title"_s) });
    EXPECT_EQ(blocks(u"• item"), Blocks{ bullet(u"item"_s) });
    EXPECT_EQ(blocks(u"> careful"), Blocks{ callout(u"careful"_s) });
    EXPECT_EQ(blocks(u"text"), Blocks{ paragraph(u"text"_s) });
}

TEST(RichTextBlocks, AreOneForEachLineInItsOrder)
{
    EXPECT_EQ(blocks(u"## A\nb\n• c\n> d\ne"),
        Blocks({ heading(u"A"_s), paragraph(u"b"_s), bullet(u"c"_s), callout(u"d"_s),
            paragraph(u"e"_s) }));
}

TEST(RichTextBlocks, AreNoneForBlankLines)
{
    EXPECT_EQ(blocks(u"\n"), Blocks());
    EXPECT_EQ(blocks(u"\n\n\n"), Blocks());
    EXPECT_EQ(blocks(u"   \n\t\n \t \n\u00A0\n\u2003"), Blocks());
    EXPECT_EQ(blocks(u"a\n\n \t\nb\n"), Blocks({ paragraph(u"a"_s), paragraph(u"b"_s) }));
}

TEST(RichTextBlocks, LoseBlanksAndTabsAtBothEnds)
{
    EXPECT_EQ(blocks(u" \t text \t "), Blocks{ paragraph(u"text"_s) });
    EXPECT_EQ(blocks(u"  ## Title"), Blocks{ heading(u"Title"_s) });
    EXPECT_EQ(blocks(u"\t• item "), Blocks{ bullet(u"item"_s) });
    EXPECT_EQ(blocks(u"   > careful"), Blocks{ callout(u"careful"_s) });
}

TEST(RichTextBlocks, KeepBlanksBehindTheirMark)
{
    EXPECT_EQ(blocks(u"##   Title"), Blocks{ heading(u"  Title"_s) });
    EXPECT_EQ(blocks(u"•  item"), Blocks{ bullet(u" item"_s) });
    EXPECT_EQ(blocks(u"> \tcareful"), Blocks{ callout(u"\tcareful"_s) });
}

TEST(RichTextBlocks, KeepBlanksInsideTheLine)
{
    EXPECT_EQ(blocks(u"two  blanks\tand a tab"), Blocks{ paragraph(u"two  blanks\tand a tab"_s) });
}

TEST(RichTextBlocks, OfALoneMarkAreParagraphs)
{
    for (const QString &line : { u"##"_s, u"•"_s, u">"_s })
        EXPECT_EQ(blocks(line), Blocks{ paragraph(line) });
    EXPECT_EQ(blocks(u"## "), Blocks{ paragraph(u"##"_s) });
    EXPECT_EQ(blocks(u"• \t"), Blocks{ paragraph(u"•"_s) });
    EXPECT_EQ(blocks(u" > "), Blocks{ paragraph(u">"_s) });
}

TEST(RichTextBlocks, OfAlmostAMarkAreParagraphsAsTheyStand)
{
    for (const QString &line :
        { u"##Title"_s, u"### Title"_s, u"# Title"_s, u"- item"_s, u"* item"_s, u"•item"_s,
            u"· item"_s, u">note"_s, u">> note"_s, u"»  note"_s, u"1. first"_s, u"##\tTitle"_s,
            u"•\u00A0item"_s, u">\tnote"_s, u"＃＃ Title"_s, u"a ## b"_s })
        EXPECT_EQ(blocks(line), Blocks{ paragraph(line) });
}

TEST(RichTextBlocks, TakeOneMarkOnly)
{
    EXPECT_EQ(blocks(u"## > Title"), Blocks{ heading(u"> Title"_s) });
    EXPECT_EQ(blocks(u"> > twice"), Blocks{ callout(u"> twice"_s) });
    EXPECT_EQ(blocks(u"• ## item"), Blocks{ bullet(u"## item"_s) });
}

TEST(RichTextBlocks, KnowNoFormsInsideALine)
{
    for (const QString &line :
        { u"**bold** and _x_"_s, u"[label](target)"_s, u"https://example.org/a?b=c"_s,
            u"<b>x</b> <img src=x>"_s, u"&lt;"_s, u"`code`"_s, u"![picture](x.png)"_s })
        EXPECT_EQ(blocks(line), Blocks{ paragraph(line) });
}

TEST(RichTextBlocks, KeepACarriageReturn)
{
    EXPECT_EQ(
        blocks(u"text\r\nmore\r"), Blocks({ paragraph(u"text\r"_s), paragraph(u"more\r"_s) }));
    EXPECT_EQ(blocks(u"## Title\r"), Blocks{ heading(u"Title\r"_s) });
    // Neither blank nor separator, so a line that holds nothing else is a paragraph too.
    EXPECT_EQ(blocks(u"\r"), Blocks{ paragraph(u"\r"_s) });
    EXPECT_EQ(blocks(u"a\rb"), Blocks{ paragraph(u"a\rb"_s) });
    // The blank before it isn't at the line's end, so the mark keeps it.
    EXPECT_EQ(blocks(u"## \r"), Blocks{ heading(u"\r"_s) });
}

TEST(RichTextBlocks, AreEndedByTheLineFeedAlone)
{
    for (const QChar character : { u'\u000B', u'\u000C', u'\u0085', u'\u2028', u'\u2029' }) {
        const QString line = u"a"_s + character + u'b';
        EXPECT_EQ(blocks(line), Blocks{ paragraph(line) }) << int(character.unicode());
    }
}

TEST(RichTextBlocks, OfEqualLinesAreSeparate)
{
    EXPECT_EQ(blocks(u"• one\n• one\n• one"),
        Blocks({ bullet(u"one"_s), bullet(u"one"_s), bullet(u"one"_s) }));
}

TEST(RichTextBlocks, HoldAnyCharacter)
{
    const QString line = u"naïve — 6×4.5 · 写真 📷 "_s + QChar(0) + u" x"_s;
    EXPECT_EQ(blocks(line), Blocks{ paragraph(line) });
}

TEST(RichTextBlocks, OutliveTheText)
{
    QList<Block> found;
    {
        const QString text = u"## Title"_s + u" of a text that goes"_s;
        found = blocks(text);
    }
    EXPECT_EQ(found, Blocks{ heading(u"Title of a text that goes"_s) });
}
