#include "kit/qml/words.h"

#include "kit/printing.h"

#include <QTextOption>

#include <gtest/gtest.h>

TEST(TextsOfUsers, BreakBetweenWords)
{
    const Words words;
    for (const QString &text :
        QStringList{ QString(), QStringLiteral("Meter for the shadows.\n").repeated(900),
            QString(999, u'm') + u' ' + QString(999, u'm'), QString(20'000, u'写'),
            QString(20'000, u'\n') })
        EXPECT_EQ(words.wrapMode(text), QTextOption::WrapAtWordBoundaryOrAnywhere)
            << qPrintable(text.left(30));
}

TEST(TextsOfUsers, BreakAnywhereIfAWordTakesPages)
{
    const Words words;
    EXPECT_EQ(words.wrapMode(QString(1000, u'm')), QTextOption::WrapAnywhere);
    EXPECT_EQ(words.wrapMode(QStringLiteral("a picture: ") + QString(1000, u'/') + u'\n'),
        QTextOption::WrapAnywhere);
}
