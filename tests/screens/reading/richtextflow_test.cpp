#include "screens/reading/private/richtextflow.h"

#include "camera/hvcolors.h"
#include "content/contentlibrary.h"
#include "content/installedcourse.h"
#include "kit/fonts.h"
#include "kit/printing.h"
#include "screens/reading/private/richtextblocks.h"

#include <QClipboard>
#include <QFontMetricsF>
#include <QGuiApplication>
#include <QMimeData>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickWindow>
#include <QRegularExpression>
#include <QTextBlock>
#include <QTextDocument>

#include <gtest/gtest.h>

#include <memory>

using namespace Qt::StringLiterals;

namespace {

// A text edit that shows a flow, as RichText has it.
class RichTextFlowTest : public ::testing::Test
{
protected:
    void SetUp() override
    {
        QQmlComponent component(&m_engine);
        component.setData("import QtQuick\n"
                          "TextEdit { width: 400; wrapMode: TextEdit.Wrap; readOnly: true }",
            QUrl());
        m_edit.reset(qobject_cast<QQuickItem *>(component.create()));
        ASSERT_TRUE(m_edit) << qPrintable(component.errorString());
        flow.setGlow(kGlow);
        flow.setDocument(m_edit->property("textDocument").value<QQuickTextDocument *>());
        flow.componentComplete();
    }

    [[nodiscard]] const QTextDocument &document() const { return *flow.document()->textDocument(); }
    [[nodiscard]] QTextBlock block(int index) const { return document().findBlockByNumber(index); }

    [[nodiscard]] QStringList texts() const
    {
        QStringList result;
        for (QTextBlock at = document().begin(); at.isValid(); at = at.next())
            result.append(at.text());
        return result;
    }

    // The format of a block's first letter.
    [[nodiscard]] QTextCharFormat letters(int index) const
    {
        return block(index).begin().fragment().charFormat();
    }

    // Upper edge of a block's first line and lower edge of its last one, as they are drawn; the
    // latter without the spacing that follows each line of a paragraph.
    [[nodiscard]] double top(int index) const
    {
        const QTextLayout *layout = block(index).layout();
        return layout->position().y() + layout->lineAt(0).y();
    }
    [[nodiscard]] double bottom(int index) const
    {
        const QTextLayout *layout = block(index).layout();
        const QTextLine line = layout->lineAt(layout->lineCount() - 1);
        return layout->position().y() + line.y() + line.height();
    }
    [[nodiscard]] int lineCount(int index) const { return block(index).layout()->lineCount(); }
    [[nodiscard]] double left(int index) const
    {
        return block(index).layout()->position().x() + block(index).layout()->lineAt(0).x();
    }

    void setWidth(double width) { m_edit->setWidth(width); }

    void showInAWindow()
    {
        m_window = std::make_unique<QQuickWindow>();
        m_edit->setParentItem(m_window->contentItem());
        m_window->show();
        m_window->requestActivate();
        while (!m_window->isActive())
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }

    // What is on the clipboard after all of the text has been copied.
    [[nodiscard]] QString copied()
    {
        m_edit->forceActiveFocus();
        QMetaObject::invokeMethod(m_edit.get(), "selectAll");
        QMetaObject::invokeMethod(m_edit.get(), "copy");
        return QGuiApplication::clipboard()->text();
    }

    static inline const QColor kGlow{ 200, 160, 90 };
    static inline const QString kLong = u"Light goes by area, and half the width is a quarter of "
                                        "the light. "_s.repeated(4);

    RichTextFlow flow;

private:
    QQmlEngine m_engine;
    std::unique_ptr<QQuickWindow> m_window;
    std::unique_ptr<QQuickItem> m_edit;
};

// All long texts of the course that the program ships with.
QStringList courseTexts()
{
    const ContentLibrary library(installedCourse());
    QStringList result;
    const auto append = [&result](const auto &records) {
        for (const auto &record : records)
            result.append(record.body);
    };
    append(library.lessons());
    append(library.gear());
    append(library.timeline());
    append(library.software());
    return result;
}

// Lines of text stand on whole pixels.
constexpr double kPixel = 1.01;

} // namespace

TEST_F(RichTextFlowTest, OfNoTextIsEmpty)
{
    flow.setText(u"x"_s);
    flow.setText({});
    EXPECT_EQ(document().toPlainText(), QString());
    EXPECT_TRUE(flow.dots().isEmpty());
    EXPECT_TRUE(flow.plates().isEmpty());
}

TEST_F(RichTextFlowTest, LaysNothingOutBeforeItHasAllItsProperties)
{
    RichTextFlow another;
    another.setDocument(flow.document());
    another.setText(u"Light goes by area."_s);
    another.setSize(12);
    EXPECT_EQ(texts(), QStringList(QString()));
    another.componentComplete();
    EXPECT_EQ(texts(), QStringList(u"Light goes by area."_s));
}

TEST_F(RichTextFlowTest, HasABlockForEachLineThatIsNotBlank)
{
    flow.setText(u"## Title\n\nA paragraph.\n \t\n• one\n• one\n> careful"_s);
    EXPECT_EQ(
        texts(), QStringList({ u"Title"_s, u"A paragraph."_s, u"one"_s, u"one"_s, u"careful"_s }));
}

TEST_F(RichTextFlowTest, ReplacesOneTextByTheNext)
{
    flow.setText(u"## Title\n• one\n> careful"_s);
    flow.setText(u"Another text."_s);
    EXPECT_EQ(texts(), QStringList(u"Another text."_s));
    EXPECT_TRUE(flow.dots().isEmpty());
    EXPECT_TRUE(flow.plates().isEmpty());
    EXPECT_EQ(letters(0).fontPointSize(), 14);
    EXPECT_EQ(letters(0).foreground().color(), HVColors::oledTextRGB.color());
}

TEST_F(RichTextFlowTest, ShowsMarkUpOfOthersLiterally)
{
    const QStringList lines = { u"**bold** _x_"_s, u"<b>x</b> & &lt;"_s, u"<img src=x>"_s,
        u"[label](target)"_s, u"https://example.org"_s };
    flow.setText(lines.join(u'\n'));
    EXPECT_EQ(texts(), lines);
    for (int i = 0; i < lines.size(); ++i) {
        EXPECT_FALSE(letters(i).isAnchor());
        EXPECT_EQ(letters(i).fontWeight(), int(QFont::Normal));
    }
}

TEST_F(RichTextFlowTest, KeepsACarriageReturnWithinItsBlock)
{
    flow.setText(u"first\r\n• second\r\nthird"_s);
    // A document can't hold the character itself; what it holds instead breaks the line as well.
    EXPECT_EQ(texts(), QStringList({ u"first\u2028"_s, u"second\u2028"_s, u"third"_s }));
    EXPECT_EQ(flow.dots().size(), 1);
}

TEST_F(RichTextFlowTest, KeepsEveryOtherLineSeparatorWithinItsBlock)
{
    for (const QChar separator :
        { u'\u000B', u'\u000C', u'\u0085', u'\u2028', u'\u2029', u'\uFDD0', u'\uFDD1' }) {
        flow.setText(u"• first"_s + separator + u"second\nthird"_s);
        EXPECT_EQ(document().blockCount(), 2) << int(separator.unicode());
        EXPECT_EQ(flow.dots().size(), 1) << int(separator.unicode());
    }
}

TEST_F(RichTextFlowTest, SetsEachFormInItsSizeAndWeight)
{
    flow.setText(u"## Title\nA paragraph.\n• one\n> careful"_s);
    EXPECT_EQ(letters(0).fontPointSize(), 16.5);
    EXPECT_EQ(letters(0).fontWeight(), int(QFont::ExtraBold));
    EXPECT_EQ(letters(1).fontPointSize(), 14);
    EXPECT_EQ(letters(1).fontWeight(), int(QFont::Normal));
    EXPECT_EQ(letters(2).fontPointSize(), 14);
    EXPECT_EQ(letters(2).fontWeight(), int(QFont::Normal));
    EXPECT_EQ(letters(3).fontPointSize(), 13.5);
    EXPECT_EQ(letters(3).fontWeight(), int(QFont::Medium));
    for (int i = 0; i < 4; ++i)
        EXPECT_EQ(letters(i).font().family(), Fonts::rounded(14).family());
}

TEST_F(RichTextFlowTest, DerivesItsSizesFromTheBaseSize)
{
    flow.setText(u"## Title\nA paragraph.\n> careful"_s);
    flow.setSize(12);
    EXPECT_EQ(letters(0).fontPointSize(), 14.5);
    EXPECT_EQ(letters(1).fontPointSize(), 12);
    EXPECT_EQ(letters(2).fontPointSize(), 11.5);
}

TEST_F(RichTextFlowTest, ColorsHeadingsByTheThemeAndNothingElse)
{
    flow.setText(u"## Title\nA paragraph.\n• one\n> careful"_s);
    const QColor words = QColor::fromRgbF(0.93f, 0.96f, 0.98f);
    EXPECT_EQ(letters(0).foreground().color(), kGlow);
    for (int i = 1; i < 4; ++i)
        EXPECT_EQ(letters(i).foreground().color(), words);

    flow.setGlow(Qt::cyan);
    EXPECT_EQ(letters(0).foreground().color(), QColor(Qt::cyan));
    for (int i = 1; i < 4; ++i)
        EXPECT_EQ(letters(i).foreground().color(), words);
}

TEST_F(RichTextFlowTest, PutsNinePointsBetweenBlocks)
{
    flow.setText(u"A paragraph.\nAnother.\n• one\n• two\nA last one."_s);
    for (int i = 0; i < 4; ++i)
        EXPECT_NEAR(top(i + 1) - bottom(i), 9, kPixel) << "below block " << i;
}

TEST_F(RichTextFlowTest, GivesABlankLineNoSpaceOfItsOwn)
{
    flow.setText(u"One.\nTwo."_s);
    const double tight = top(1);
    flow.setText(u"One.\n\n \n\nTwo."_s);
    EXPECT_EQ(top(1), tight);
}

TEST_F(RichTextFlowTest, PutsSixPointsMoreAboveAHeading)
{
    flow.setText(u"## First\nA paragraph.\n## Second\n• one\n## Third"_s);
    EXPECT_NEAR(top(0), 6, kPixel);
    EXPECT_NEAR(top(1) - bottom(0), 9, kPixel);
    EXPECT_NEAR(top(2) - bottom(1), 15, kPixel);
    EXPECT_NEAR(top(4) - bottom(3), 15, kPixel);
}

TEST_F(RichTextFlowTest, BeginsAndEndsWithoutAGap)
{
    for (const QString &text : { u"• one"_s, u"One."_s, kLong }) {
        flow.setText(text);
        EXPECT_NEAR(top(0), 0, kPixel) << qPrintable(text);
        EXPECT_NEAR(document().size().height(), bottom(0), kPixel) << qPrintable(text);
    }
}

TEST_F(RichTextFlowTest, SpacesTheLinesOfParagraphsAlone)
{
    // The same words in two forms of one size: what a paragraph is higher is its spacing.
    const auto step = [this] {
        const QTextLayout *layout = block(0).layout();
        return layout->lineAt(1).y() - layout->lineAt(0).y();
    };
    flow.setText(kLong);
    ASSERT_GT(lineCount(0), 2);
    const double paragraph = step();
    flow.setText(u"• "_s + kLong);
    const double bullet = step();
    EXPECT_NEAR(paragraph - bullet, 3, 0.01);
    flow.setText(u"> "_s + kLong);
    const QFontMetricsF callout(Fonts::rounded(13.5, QFont::Medium));
    EXPECT_NEAR(step(), callout.height(), kPixel);
}

TEST_F(RichTextFlowTest, WrapsLongTextsAndShowsAllOfThem)
{
    flow.setText(kLong + u'\n' + u"• "_s + kLong + u'\n' + u"> "_s + kLong);
    for (int i = 0; i < 3; ++i) {
        EXPECT_GT(lineCount(i), 2);
        int characters = 0;
        for (int line = 0; line < lineCount(i); ++line) {
            const QTextLine shown = block(i).layout()->lineAt(line);
            characters += shown.textLength();
            EXPECT_LE(left(i) + shown.naturalTextWidth(), 400);
        }
        EXPECT_EQ(characters, block(i).text().size());
    }
    const double narrow = document().size().height();
    setWidth(800);
    EXPECT_LT(document().size().height(), narrow);
}

TEST_F(RichTextFlowTest, BreaksAWordThatIsLongerThanTheLine)
{
    flow.setText(QString(200, u'm'));
    EXPECT_GT(lineCount(0), 2);
    EXPECT_LE(document().idealWidth(), 401);
}

TEST_F(RichTextFlowTest, KeepsEveryFigureOfTheCourseOnOneLine)
{
    // An f-number, or a fraction such as a shutter time.
    static const QRegularExpression figure(u"\\b(f|\\d+)/\\x{034F}?\\d+(\\.\\d+)?"_s);
    int figures = 0;
    QStringList broken;
    for (const double width : { 560.0, 742.0 }) {
        setWidth(width);
        for (const QString &text : courseTexts()) {
            flow.setText(text);
            for (QTextBlock at = document().begin(); at.isValid(); at = at.next()) {
                for (auto found = figure.globalMatch(at.text()); found.hasNext();) {
                    const QRegularExpressionMatch match = found.next();
                    ++figures;
                    const QTextLine line = at.layout()->lineForTextPosition(match.capturedStart());
                    if (match.capturedEnd() > line.textStart() + line.textLength())
                        broken.append(match.captured());
                }
            }
        }
    }
    EXPECT_GT(figures, 1000);
    EXPECT_EQ(broken, QStringList()) << "of " << figures;
}

TEST_F(RichTextFlowTest, GivesAFigureNoMoreRoomThanItsLetters)
{
    for (const QString &figure : { u"f/4"_s, u"f/2.8"_s, u"f/11"_s }) {
        flow.setText(figure);
        const QTextLine line = block(0).layout()->lineAt(0);
        QTextLayout plain(figure, letters(0).font());
        plain.beginLayout();
        const QTextLine plainLine = plain.createLine();
        plain.endLayout();
        EXPECT_EQ(line.naturalTextWidth(), plainLine.naturalTextWidth()) << qPrintable(figure);
        EXPECT_EQ(line.ascent(), plainLine.ascent()) << qPrintable(figure);
        EXPECT_EQ(line.height(), plainLine.height()) << qPrintable(figure);
    }
}

TEST_F(RichTextFlowTest, IsCopiedAsItIsWritten)
{
    showInAWindow();
    for (const QString &text : courseTexts()) {
        QStringList written;
        for (const RichTextMarkup::Block &block : RichTextMarkup::blocks(text))
            written.append(block.text);
        flow.setText(text);
        EXPECT_EQ(copied(), written.join(u'\n'));
    }
}

TEST_F(RichTextFlowTest, IsCopiedWithoutTheColorsOfTheDisplay)
{
    showInAWindow();
    flow.setText(u"## Title\nA paragraph."_s);
    EXPECT_EQ(copied(), u"Title\nA paragraph."_s);
    EXPECT_FALSE(QGuiApplication::clipboard()->mimeData()->hasHtml());
}

TEST_F(RichTextFlowTest, LeavesWhatOthersCopyAsItIs)
{
    showInAWindow();
    flow.setText(u"A paragraph."_s);
    const QString foreign = u"f/\u034F2"_s;
    QGuiApplication::clipboard()->setText(foreign);
    EXPECT_EQ(QGuiApplication::clipboard()->text(), foreign);
}

TEST_F(RichTextFlowTest, PutsADotBeforeEachBullet)
{
    flow.setText(u"A paragraph.\n• one\n• "_s + kLong);
    ASSERT_EQ(flow.dots().size(), 2);
    for (int i = 0; i < 2; ++i) {
        const QRectF dot = flow.dots().at(i).toRectF();
        const QTextLayout *layout = block(i + 1).layout();
        const double baseline
            = layout->position().y() + layout->lineAt(0).y() + layout->lineAt(0).ascent();
        EXPECT_EQ(dot.size(), QSizeF(5, 5));
        EXPECT_EQ(dot.left(), 0);
        // It stood on the baseline before it was lifted by 2 points.
        EXPECT_NEAR(dot.bottom(), baseline - 2, 0.01);
        EXPECT_NEAR(left(i + 1) - dot.right(), 8, 0.01);
    }
}

TEST_F(RichTextFlowTest, KeepsTheLinesOfABulletRightOfItsDot)
{
    flow.setText(u"• "_s + kLong);
    const QTextLayout *layout = block(0).layout();
    ASSERT_GT(layout->lineCount(), 1);
    for (int line = 0; line < layout->lineCount(); ++line)
        EXPECT_NEAR(layout->position().x() + layout->lineAt(line).x(), 13, 0.01);
}

TEST_F(RichTextFlowTest, PutsAPlateUnderEachCallout)
{
    flow.setText(u"A paragraph.\n> careful\nText.\n> "_s + kLong);
    ASSERT_EQ(flow.plates().size(), 2);
    for (const int index : { 1, 3 }) {
        const QRectF plate = flow.plates().at(index / 2).toRectF();
        EXPECT_EQ(plate.left(), 0);
        EXPECT_EQ(plate.width(), 400);
        EXPECT_NEAR(top(index) - plate.top(), 10, 0.01);
        EXPECT_NEAR(plate.bottom() - bottom(index), 10, 0.01);
        // Padding, the bar and the gap behind the bar.
        EXPECT_NEAR(left(index), 10 + 3 + 10, 0.01);
    }
}

TEST_F(RichTextFlowTest, PutsNinePointsAroundAPlate)
{
    flow.setText(u"A paragraph.\n> careful\n> again\n• one\n> third\n## Title"_s);
    const auto plate = [this](int index) { return flow.plates().at(index).toRectF(); };
    ASSERT_EQ(flow.plates().size(), 3);
    EXPECT_NEAR(plate(0).top() - bottom(0), 9, kPixel);
    EXPECT_NEAR(plate(1).top() - plate(0).bottom(), 9, kPixel);
    EXPECT_NEAR(top(3) - plate(1).bottom(), 9, kPixel);
    EXPECT_NEAR(plate(2).top() - bottom(3), 9, kPixel);
    EXPECT_NEAR(top(5) - plate(2).bottom(), 15, kPixel);
}

TEST_F(RichTextFlowTest, HasRoomForAPlateAtBothEnds)
{
    flow.setText(u"> careful"_s);
    const QRectF plate = flow.plates().constFirst().toRectF();
    EXPECT_NEAR(plate.top(), 0, 0.01);
    EXPECT_NEAR(document().size().height(), plate.bottom(), kPixel);
}

TEST_F(RichTextFlowTest, MovesItsOrnamentsWithTheLines)
{
    flow.setText(kLong + u"\n• one\n> "_s + kLong);
    const QRectF dot = flow.dots().constFirst().toRectF();
    const QRectF plate = flow.plates().constFirst().toRectF();
    setWidth(800);
    EXPECT_LT(flow.dots().constFirst().toRectF().top(), dot.top());
    EXPECT_EQ(flow.plates().constFirst().toRectF().width(), 800);
    EXPECT_LT(flow.plates().constFirst().toRectF().height(), plate.height());
    setWidth(400);
    EXPECT_EQ(flow.dots().constFirst().toRectF(), dot);
    EXPECT_EQ(flow.plates().constFirst().toRectF(), plate);
}

TEST_F(RichTextFlowTest, SignalsOrnamentsOnlyIfTheyChange)
{
    flow.setText(u"• one\n> careful"_s);
    int changes = 0;
    QObject::connect(&flow, &RichTextFlow::ornamentsChanged, &flow, [&] { ++changes; });
    flow.setText(u"• two\n> careful"_s);
    EXPECT_EQ(changes, 0);
    flow.setText(u"• two"_s);
    EXPECT_EQ(changes, 1);
}

TEST_F(RichTextFlowTest, CanNotBeUndone)
{
    flow.setText(u"first"_s);
    flow.setText(u"second"_s);
    EXPECT_FALSE(document().isUndoAvailable());
}

TEST(RichTextFlowAlone, WaitsForItsDocument)
{
    RichTextFlow flow;
    flow.setText(u"• one\n> careful"_s);
    flow.componentComplete();
    EXPECT_EQ(flow.size(), 14);
    EXPECT_TRUE(flow.dots().isEmpty());
    EXPECT_TRUE(flow.plates().isEmpty());
    flow.setDocument(nullptr);
    EXPECT_EQ(flow.document(), nullptr);
}

TEST(RichTextFlowAlone, OutlivesItsDocument)
{
    QQmlEngine engine;
    QQmlComponent component(&engine);
    component.setData("import QtQuick\nTextEdit { width: 400 }", QUrl());
    std::unique_ptr<QObject> edit(component.create());
    ASSERT_TRUE(edit);
    RichTextFlow flow;
    flow.setDocument(edit->property("textDocument").value<QQuickTextDocument *>());
    flow.setText(u"• one"_s);
    flow.componentComplete();
    ASSERT_EQ(flow.dots().size(), 1);
    edit.reset();
    EXPECT_EQ(flow.document(), nullptr);
    flow.setText(u"• two"_s);
    EXPECT_EQ(flow.text(), u"• two"_s);
}
