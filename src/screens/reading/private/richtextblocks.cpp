#include "screens/reading/private/richtextblocks.h"

#include "content/text.h"

namespace RichTextMarkup {

QList<Block> blocks(QStringView text)
{
    static constexpr struct {
        QStringView mark;
        Form form;
    } kMarks[] = {
        { u"## ", Form::Heading },
        { u"• ", Form::Bullet },
        { u"> ", Form::Callout },
    };

    QList<Block> result;
    for (const QStringView line : text.split(u'\n')) {
        const QStringView trimmed = Text::trimmedBlanks(line);
        if (trimmed.isEmpty())
            continue;
        Block block{ Form::Paragraph, {} };
        QStringView shown = trimmed;
        for (const auto &[mark, form] : kMarks) {
            if (trimmed.startsWith(mark)) {
                block.form = form;
                shown = trimmed.sliced(mark.size());
                break;
            }
        }
        block.text = shown.toString();
        result.append(std::move(block));
    }
    return result;
}

} // namespace RichTextMarkup
