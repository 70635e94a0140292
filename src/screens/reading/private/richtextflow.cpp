#include "screens/reading/private/richtextflow.h"

#include "camera/hvcolors.h"
#include "kit/fonts.h"
#include "screens/reading/private/richtextblocks.h"

#include <QAbstractTextDocumentLayout>
#include <QFontMetricsF>
#include <QGuiApplication>
#include <QMimeData>
#include <QRegularExpression>
#include <QScopedValueRollback>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextFrame>
#include <QTextLayout>

using namespace Qt::StringLiterals;

namespace {

using RichTextMarkup::Block;
using RichTextMarkup::Form;

// All in points.
constexpr double kBlockGap = 9;
constexpr double kHeadingExtraGap = 6;
constexpr double kParagraphLineSpacing = 3;
constexpr double kDot = 5;
constexpr double kDotLift = 2;
constexpr double kDotGap = 8;
constexpr double kPlatePadding = 10;
constexpr double kBar = 3;
constexpr double kBarGap = 10;

QTextCharFormat charFormat(Form form, double size, const QColor &glow)
{
    QTextCharFormat format;
    format.setForeground(form == Form::Heading ? glow : HVColors::oledTextRGB.color());
    switch (form) {
    case Form::Heading:
        format.setFont(Fonts::rounded(size + 2.5, QFont::ExtraBold));
        break;
    case Form::Callout:
        format.setFont(Fonts::rounded(size - 0.5, QFont::Medium));
        break;
    case Form::Bullet:
    case Form::Paragraph:
        format.setFont(Fonts::rounded(size));
        break;
    }
    return format;
}

// The space between a block and the one above it, if there is one. All of it is the lower block's
// top margin, because the layout would merge margins that meet.
double gapAbove(Form form, const std::optional<Form> &before)
{
    double gap = before ? kBlockGap : 0;
    if (before == Form::Callout)
        gap += kPlatePadding;
    // The line spacing also follows a paragraph's last line, where it belongs to the gap.
    if (before == Form::Paragraph)
        gap -= kParagraphLineSpacing;
    if (form == Form::Heading)
        gap += kHeadingExtraGap;
    if (form == Form::Callout)
        gap += kPlatePadding;
    return gap;
}

QTextBlockFormat blockFormat(Form form, const std::optional<Form> &before)
{
    QTextBlockFormat format;
    switch (form) {
    case Form::Heading:
        break;
    case Form::Bullet:
        format.setLeftMargin(kDot + kDotGap);
        break;
    case Form::Callout:
        format.setLeftMargin(kPlatePadding + kBar + kBarGap);
        format.setRightMargin(kPlatePadding);
        break;
    case Form::Paragraph:
        format.setLineHeight(kParagraphLineSpacing, QTextBlockFormat::LineDistanceHeight);
        break;
    }
    if (before)
        format.setTopMargin(gapAbove(form, before));
    return format;
}

// The layout passes over the margins above the first block and below the last one; the document's
// own margins stand in for them.
QTextFrameFormat pageFormat(QTextFrameFormat format, const QList<Block> &blocks)
{
    double above = 0;
    double below = 0;
    if (!blocks.isEmpty()) {
        above = gapAbove(blocks.first().form, std::nullopt);
        if (blocks.last().form == Form::Callout)
            below = kPlatePadding;
        // Nothing follows that the spacing of its last line would belong to.
        if (blocks.last().form == Form::Paragraph)
            below = -kParagraphLineSpacing;
    }
    format.setTopMargin(above);
    format.setBottomMargin(below);
    return format;
}

// Inserting one of these would split the block in two; a line separator looks the same. The last
// two are noncharacters by which documents mark their frames.
QString oneBlock(QString text)
{
    for (const QChar divider : { QChar(QChar::CarriageReturn), QChar(QChar::ParagraphSeparator),
             QChar(0xFDD0), QChar(0xFDD1) })
        text.replace(divider, QChar::LineSeparator);
    return text;
}

// The combining grapheme joiner: no line breaks behind it, it takes no room, and the cursor takes
// it and the letter before it for one.
constexpr QChar kJoiner(0x034F);

// Unicode lets a line end behind the slash of "f/2.8", though not behind that of "1/125".
QString unbreakable(QString text)
{
    static const QRegularExpression fNumber(u"\\bf/(?=\\d)"_s);
    return text.replace(fNumber, u"f/"_s + kJoiner);
}

// Some of a document's text as the course writes it.
QString written(QString text)
{
    return text.remove(kJoiner)
        .replace(QChar::ParagraphSeparator, u'\n')
        .replace(QChar::LineSeparator, u'\n');
}

QAccessible::Role accessibleRole(Form form)
{
    switch (form) {
    case Form::Heading:
        return QAccessible::Heading;
    case Form::Bullet:
        return QAccessible::ListItem;
    case Form::Callout:
    case Form::Paragraph:
        break;
    }
    return QAccessible::Paragraph;
}

} // namespace

RichTextFlow::RichTextFlow(QObject *parent)
    : QObject(parent)
{
    connect(QGuiApplication::clipboard(), &QClipboard::changed, this, &RichTextFlow::copyPlainly);
}

void RichTextFlow::setDocument(QQuickTextDocument *document)
{
    if (m_document == document)
        return;
    m_document = document;
    if (document) {
        QAbstractTextDocumentLayout *layout = document->textDocument()->documentLayout();
        connect(layout, &QAbstractTextDocumentLayout::update, this, &RichTextFlow::place);
        connect(
            layout, &QAbstractTextDocumentLayout::documentSizeChanged, this, &RichTextFlow::place);
    }
    Q_EMIT documentChanged();
    fill();
}

void RichTextFlow::setText(const QString &text)
{
    if (m_text == text)
        return;
    m_text = text;
    Q_EMIT textChanged();
    fill();
}

void RichTextFlow::setGlow(const QColor &glow)
{
    if (m_glow == glow)
        return;
    m_glow = glow;
    Q_EMIT glowChanged();
    fill();
}

void RichTextFlow::setSize(qreal size)
{
    if (m_size == size)
        return;
    m_size = size;
    Q_EMIT sizeChanged();
    fill();
}

void RichTextFlow::componentComplete()
{
    m_isComplete = true;
    fill();
}

void RichTextFlow::fill()
{
    if (!m_document || !m_isComplete)
        return;
    {
        const QScopedValueRollback filling(m_filling, true);
        QTextDocument *document = m_document->textDocument();
        document->setUndoRedoEnabled(false);
        QTextCursor cursor(document);
        cursor.beginEditBlock();
        cursor.select(QTextCursor::Document);
        cursor.removeSelectedText();
        const QList<Block> blocks = RichTextMarkup::blocks(m_text);
        std::optional<Form> before;
        for (const Block &block : blocks) {
            const QTextBlockFormat shape = blockFormat(block.form, before);
            const QTextCharFormat letters = charFormat(block.form, m_size, m_glow);
            if (before)
                cursor.insertBlock(shape, letters);
            else
                cursor.setBlockFormat(shape);
            cursor.insertText(unbreakable(oneBlock(block.text)), letters);
            cursor.block().setUserState(int(block.form));
            before = block.form;
        }
        QTextFrame *page = document->rootFrame();
        page->setFrameFormat(pageFormat(page->frameFormat(), blocks));
        cursor.endEditBlock();
    }
    place();
}

void RichTextFlow::place()
{
    // While the text is being filled in, every step reports a new layout.
    if (m_filling || !m_document)
        return;

    QVariantList dots;
    QVariantList plates;
    QVariantList bars;
    QVariantList blocks;
    const QTextDocument *document = m_document->textDocument();
    for (QTextBlock block = document->begin(); block.isValid(); block = block.next()) {
        const QTextLayout *layout = block.layout();
        if (!layout || layout->lineCount() == 0)
            continue;
        // blockBoundingRect() begins at the block's margin; lines count from the layout's place.
        const double top = layout->position().y();
        const QTextLine firstLine = layout->lineAt(0);
        const QTextLine lastLine = layout->lineAt(layout->lineCount() - 1);
        const double left = layout->position().x() + firstLine.x();
        const double height = lastLine.y() + lastLine.height();
        const auto form = Form(block.userState());
        switch (form) {
        case Form::Bullet: {
            const double baseline = top + firstLine.y() + firstLine.ascent();
            dots.append(QRectF(0, baseline - kDotLift - kDot, kDot, kDot));
            break;
        }
        case Form::Callout:
            plates.append(
                QRectF(0, top - kPlatePadding, document->textWidth(), height + 2 * kPlatePadding));
            bars.append(QRectF(kPlatePadding, top, kBar, height));
            break;
        case Form::Heading:
        case Form::Paragraph:
            break;
        }
        blocks.append(QVariant::fromValue(ReadableBlock{
            .role = accessibleRole(form),
            .text = written(block.text()),
            .area = QRectF(left, top, document->textWidth() - left, height),
        }));
    }
    if (m_dots != dots || m_plates != plates) {
        m_dots = dots;
        m_plates = plates;
        m_bars = bars;
        Q_EMIT ornamentsChanged();
    }
    if (m_blocks != blocks) {
        m_blocks = blocks;
        Q_EMIT blocksChanged();
    }
}

void RichTextFlow::copyPlainly(QClipboard::Mode mode)
{
    // A TextEdit offers what it copies as HTML too, in the display's light colors, which nobody
    // could read on paper. While it has the focus nobody else copies.
    QClipboard &clipboard = *QGuiApplication::clipboard();
    const QObject *edit = m_document ? m_document->parent() : nullptr;
    if (!edit || !edit->property("activeFocus").toBool())
        return;
    const QMimeData *offered = clipboard.mimeData(mode);
    if (!offered || !offered->hasHtml())
        return;
    clipboard.setText(written(edit->property("selectedText").toString()), mode);
}
