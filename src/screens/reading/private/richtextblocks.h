// The mark-up of the course's long texts: four kinds of line and nothing else.
//
// There are no inline forms. What looks like emphasis, a link or a numbered list is shown as it
// stands, character by character.
#pragma once

#include <QList>
#include <QString>
#include <QStringView>

namespace RichTextMarkup {

enum class Form {
    Heading,   ///< "## " before the text
    Bullet,    ///< "• "
    Callout,   ///< "> "
    Paragraph, ///< anything else
};

struct Block {
    Form form;
    QString text; ///< Without its mark; blanks behind the mark stay.

    friend bool operator==(const Block &, const Block &) = default;
};

/// The blocks of a text, one for each line (ended by U+000A alone) that holds more than blanks.
/// Blanks and tabs at both ends of a line don't count, so an indented heading is a heading and a
/// lone mark, having lost its blank, is a paragraph. Equal lines are separate blocks.
[[nodiscard]] QList<Block> blocks(QStringView text);

} // namespace RichTextMarkup
