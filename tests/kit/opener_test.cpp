#include "kit/opener.h"

#include "kit/printing.h"

#include <QStringList>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

class OpenerTest : public testing::Test
{
protected:
    OpenerTest()
    {
        Opener::setAction([this](const QUrl &address) { opened.append(address.toString()); });
    }
    ~OpenerTest() override { Opener::setAction({}); }

    QStringList opened;
};

} // namespace

TEST_F(OpenerTest, HandsOverWebAddresses)
{
    Opener::open(u"https://example.org/tripods?legs=3#top"_s);
    Opener::open(QUrl(u"http://example.org/"_s));
    EXPECT_EQ(opened,
        QStringList({ u"https://example.org/tripods?legs=3#top"_s, u"http://example.org/"_s }));
}

TEST_F(OpenerTest, KeepsEverythingElse)
{
    for (const char *address : { "", "no address", "tripod", "file:///etc/passwd", "mailto:a@b.c",
             "javascript:alert(1)", "https://", "http:path", "https://exa mple.org",
             "//example.org", "ftp://example.org", "https://[broken" })
        Opener::open(QString::fromUtf8(address));
    EXPECT_EQ(opened, QStringList());
}

TEST_F(OpenerTest, TellsTheHostOfWhatLeaves)
{
    EXPECT_EQ(Opener::destination(u"https://www.example.org:8080/tripods?legs=3"_s),
        u"www.example.org"_s);
    for (const char *address : { "", "no address", "file:///etc/passwd", "javascript:alert(1)",
             "https://", "https://exa mple.org" })
        EXPECT_EQ(Opener::destination(QString::fromUtf8(address)), QString());
    EXPECT_EQ(opened, QStringList());
}
