// What assistive technology is told of a text; the rest is tested in QML.

#include <QAccessible>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickWindow>

#include <gtest/gtest.h>

#include <memory>

using namespace Qt::StringLiterals;

namespace {

// The first thing below `from` that has this role; null if there is none.
QAccessibleInterface *find(QAccessibleInterface *from, QAccessible::Role role)
{
    if (!from || from->role() == role)
        return from;
    for (int i = 0; i < from->childCount(); ++i) {
        if (QAccessibleInterface *found = find(from->child(i), role))
            return found;
    }
    return nullptr;
}

} // namespace

TEST(RichText, IsADocumentOfHeadingsListItemsAndParagraphs)
{
    QQmlEngine engine;
    engine.addImportPath(u":/qt/qml"_s);
    QQmlComponent component(&engine);
    component.setData(R"(
        import QtQuick
        import Halvorin.Camera
        import Halvorin.Screens
        Window {
            width: 500; height: 400; visible: true
            RichText {
                width: 400
                c: CameraPalette.current
                title: "A lesson"
                text: "## Title\nA paragraph.\n• one\n• two\n> careful"
            }
        })",
        QUrl());
    const std::unique_ptr<QObject> window(component.create());
    ASSERT_TRUE(window) << qPrintable(component.errorString());

    QAccessibleInterface *document
        = find(QAccessible::queryAccessibleInterface(window.get()), QAccessible::Document);
    ASSERT_NE(document, nullptr);
    EXPECT_EQ(document->text(QAccessible::Name), u"A lesson"_s);
    EXPECT_TRUE(document->state().readOnly);

    const QList<std::pair<QAccessible::Role, QString>> expected = {
        { QAccessible::Heading, u"Title"_s },
        { QAccessible::Paragraph, u"A paragraph."_s },
        { QAccessible::ListItem, u"one"_s },
        { QAccessible::ListItem, u"two"_s },
        { QAccessible::Paragraph, u"careful"_s },
    };
    ASSERT_EQ(document->childCount(), expected.size());
    for (int i = 0; i < expected.size(); ++i) {
        const QAccessibleInterface *block = document->child(i);
        EXPECT_EQ(block->role(), expected.at(i).first) << i;
        EXPECT_EQ(block->text(QAccessible::Name), expected.at(i).second) << i;
        EXPECT_FALSE(block->state().focusable) << i;
    }
}
