#include "diagrams/diagramkind.h"

#include <QSet>
#include <QString>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

TEST(DiagramKind, HasEightySixCasesFromTheFirstBodyToThePrinter)
{
    EXPECT_EQ(allDiagramKinds().size(), 86u);
    EXPECT_EQ(allDiagramKinds().front(), DiagramKind::Dslr);
    EXPECT_EQ(allDiagramKinds().back(), DiagramKind::Printer);
}

TEST(DiagramKind, ListsItsCasesInTheirOrder)
{
    for (size_t i = 0; i < allDiagramKinds().size(); ++i)
        EXPECT_EQ(size_t(allDiagramKinds()[i]), i);
}

TEST(DiagramKind, GoesOnFromRingLightsToBackpacks)
{
    EXPECT_EQ(allDiagramKinds()[44], DiagramKind::RingLight);
    EXPECT_EQ(allDiagramKinds()[45], DiagramKind::Backpack);
}

TEST(DiagramKind, IsFoundAgainByItsId)
{
    for (const DiagramKind kind : allDiagramKinds())
        EXPECT_EQ(diagramKindNamed(QString(rawValue(kind))), kind) << rawValue(kind).latin1();
}

TEST(DiagramKind, HasAnIdOfItsOwn)
{
    QSet<QString> ids;
    for (const DiagramKind kind : allDiagramKinds())
        ids.insert(QString(rawValue(kind)));
    EXPECT_EQ(ids.size(), 86);
}

TEST(DiagramKind, WritesItsIdInLowerCaseWithHyphens)
{
    EXPECT_EQ(rawValue(DiagramKind::Dslr), "dslr"_L1);
    EXPECT_EQ(rawValue(DiagramKind::MediumFormat), "medium-format"_L1);
    EXPECT_EQ(rawValue(DiagramKind::LBracket), "l-bracket"_L1);
    EXPECT_EQ(rawValue(DiagramKind::Film35), "film-35"_L1);
    EXPECT_EQ(rawValue(DiagramKind::Film120), "film-120"_L1);
    EXPECT_EQ(rawValue(DiagramKind::Printer), "printer"_L1);
}

TEST(DiagramKind, IsNotFoundByATextThatIsNotExactlyItsId)
{
    for (const QString &text : { QString(), u""_s, u" "_s, u"no-such-thing"_s, u"Tripod"_s,
             u"TRIPOD"_s, u" tripod"_s, u"tripod "_s, u"tripo"_s, u"tripods"_s, u"ball head"_s,
             u"ballHead"_s, u"ball_head"_s, u"tripod\0"_s, u"trípod"_s, u"film–35"_s }) {
        EXPECT_EQ(diagramKindNamed(text), std::nullopt) << qPrintable(text);
    }
}
