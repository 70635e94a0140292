// When an item prepares what it shows: together with all others, and never without need.

#include "kit/qml/prepareditem.h"

#include "kit/printing.h"

#include <QQuickWindow>
#include <QSGSimpleRectNode>

#include <gtest/gtest.h>

#include <memory>

using namespace Qt::StringLiterals;

namespace {

class LoggingItem : public PreparedItem
{
public:
    LoggingItem(QStringList &log, const QString &name, QQuickItem *parent)
        : PreparedItem(parent)
        , m_log(log)
        , m_name(name)
    {
        setSize({ 10, 10 });
    }

    using PreparedItem::repaint;

protected:
    void prepare() override { m_log.append("prepare "_L1 + m_name); }
    void settle() override { m_log.append("settle "_L1 + m_name); }
    QSGNode *updatePaintNode(QSGNode *old, UpdatePaintNodeData *) override
    {
        m_log.append("show "_L1 + m_name);
        return old ? old : new QSGSimpleRectNode;
    }

private:
    QStringList &m_log;
    QString m_name;
};

class PreparedItemTest : public ::testing::Test
{
protected:
    PreparedItemTest() { m_window.resize(100, 100); }

    std::unique_ptr<LoggingItem> make(const QString &name)
    {
        return std::make_unique<LoggingItem>(m_log, name, m_window.contentItem());
    }

    // What happens while one picture of the window is taken, in order.
    QStringList frame()
    {
        m_log.clear();
        EXPECT_FALSE(m_window.grabWindow().isNull());
        return m_log;
    }

private:
    QStringList m_log;
    QQuickWindow m_window;
};

} // namespace

TEST_F(PreparedItemTest, AllPrepareBeforeTheFirstIsShown)
{
    const auto one = make(u"one"_s);
    const auto other = make(u"other"_s);
    const QStringList log = frame();
    ASSERT_EQ(log.size(), 6);
    EXPECT_EQ(log.first(2), (QStringList{ u"prepare one"_s, u"prepare other"_s }));
    EXPECT_EQ(log.sliced(2, 2).filter(u"show"_s).size(), 2);
    EXPECT_EQ(log.last(2), (QStringList{ u"settle one"_s, u"settle other"_s }));
}

TEST_F(PreparedItemTest, PreparesOnceForAllThatHasChanged)
{
    const auto item = make(u"item"_s);
    EXPECT_EQ(frame().size(), 3);
    EXPECT_TRUE(frame().isEmpty());
    item->repaint();
    item->repaint();
    EXPECT_EQ(frame(), (QStringList{ u"prepare item"_s, u"show item"_s, u"settle item"_s }));
}

TEST_F(PreparedItemTest, PreparesNothingWhileItCannotBeSeen)
{
    const auto item = make(u"item"_s);
    item->setVisible(false);
    EXPECT_FALSE(frame().contains(u"prepare item"_s));
    item->repaint();
    EXPECT_FALSE(frame().contains(u"prepare item"_s));
    item->setVisible(true);
    EXPECT_TRUE(frame().contains(u"prepare item"_s));
}

TEST_F(PreparedItemTest, MayBeGoneBeforeItIsPrepared)
{
    auto item = make(u"item"_s);
    item->repaint();
    item.reset();
    EXPECT_TRUE(frame().isEmpty());
}

TEST_F(PreparedItemTest, PreparesForTheWindowThatItIsIn)
{
    const auto item = make(u"item"_s);
    QQuickWindow other;
    other.resize(100, 100);
    item->setParentItem(other.contentItem());
    EXPECT_TRUE(frame().isEmpty());
    EXPECT_FALSE(other.grabWindow().isNull());
    item->setParentItem(nullptr);
    item->repaint();
    EXPECT_FALSE(other.grabWindow().isNull());
}

TEST_F(PreparedItemTest, MayOutliveItsWindow)
{
    QStringList log;
    auto window = std::make_unique<QQuickWindow>();
    LoggingItem item(log, u"item"_s, nullptr);
    item.setParentItem(window->contentItem());
    item.repaint();
    window.reset();
    item.repaint();
    EXPECT_TRUE(log.isEmpty());
}
