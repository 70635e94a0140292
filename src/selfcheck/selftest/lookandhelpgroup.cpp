#include "camera/hvcolors.h"
#include "content/contentlibrary.h"
#include "kit/help.h"
#include "kit/kit.h"
#include "kit/zoom.h"
#include "selfcheck/selftest/groups.h"
#include "shell/info.h"
#include "shell/screen.h"
#include "simulator/numbertext.h"

#include <algorithm>

using namespace Qt::StringLiterals;
using RGB = CRVNTheme::RGB;
using Family = CRVNTheme::Family;

namespace {

constexpr double kReading = 7;    // contrast that body text needs
constexpr double kGlancing = 4.5; // contrast that everything else needs
constexpr qsizetype kTopics = 20;

const RGB kWhite(1, 1, 1);

qsizetype countOf(Family family)
{
    return std::ranges::count(CRVNThemes::builtIn(), family, &CRVNTheme::family);
}

bool isEasyToRead(const CRVNTheme &theme)
{
    return RGB::contrast(theme.text, theme.bg) >= kReading
        && RGB::contrast(theme.dim, theme.panelBottom) >= kGlancing
        && RGB::contrast(kWhite, theme.accent) >= kGlancing;
}

// The zoom that is kept when this one is asked for.
double keptZoom(double asked)
{
    CNZoom::setValue(asked);
    return CNZoom::value();
}

bool namesEverySource(const QString &credits, const ContentLibrary &course)
{
    return std::ranges::all_of(course.timeline(), [&](const TimelineEvent &event) {
        return std::ranges::all_of(event.sources, [&](const Citation &source) {
            return credits.contains(source.title) && credits.contains(source.url);
        });
    });
}

void checkThemes(HVTestRun &run)
{
    const QList<CRVNTheme> themes = CRVNThemes::all();
    QStringList names;
    for (const CRVNTheme &theme : themes)
        names.append(theme.name);
    run.check(CRVNThemes::builtIn().size() == 6 && themes.size() == 7,
        u"Student's 6 themes plus Medium Format Black & Brass: "_s + names.join(", "_L1));
    run.check(countOf(Family::masculine) == 2 && countOf(Family::feminine) == 2
            && countOf(Family::black) == 1 && countOf(Family::gray) == 1,
        u"2 masculine, 2 feminine, black and gray"_s);

    for (const CRVNTheme &theme : HVThemes::extras())
        run.check(isEasyToRead(theme), theme.name + ": text and buttons easy to read"_L1);

    for (const CRVNTheme &theme : themes) {
        CRVNThemes::setCurrentID(theme.id);
        const RGB glow = HVColors().glowRGB();
        const double onScreen = RGB::contrast(glow, HVColors::oledRGB);
        run.check(CRVNThemes::current().id == theme.id && onScreen >= kGlancing
                && RGB::contrast(glow, HVColors::oledCardRGB) >= kGlancing,
            "theme "_L1 + theme.name
                + ": switches, and its glow color reads on the OLED screen ("_L1
                + NumberText::fixed(onScreen, 1) + ":1)"_L1);
    }
    run.check(RGB::contrast(HVColors::oledDimRGB, HVColors::oledRGB) >= kGlancing
            && RGB::contrast(HVColors::oledTextRGB, HVColors::oledRGB) >= kReading,
        u"screen text and secondary text readable on the OLED screen"_s);
}

void checkZoom(HVTestRun &run)
{
    const double large = keptZoom(3);
    const double small = keptZoom(0.5);
    const double between = keptZoom(1.3);
    run.check(large == 2.0 && small == 0.85 && between == 1.3,
        u"interface zoom 85%–200% (asked 300% → %1%, 50% → %2%), saved between launches"_s
            .arg(qRound(large * 100))
            .arg(qRound(small * 100)));
}

void checkHelp(HVTestRun &run, const QString &website)
{
    const QList<CRVNHelpTopic> topics = CRVNHelp::allTopics();
    run.check(topics.size() >= kTopics,
        QString::number(topics.size()) + " help topics in the Help menu"_L1);
    for (const ScreenInfo &screen : allScreens())
        run.check(!CRVNHelp::search(screen.title).isEmpty(), "help covers "_L1 + screen.title);

    const QList<CRVNHelpTopic> found = CRVNHelp::search(u"credits"_s);
    const auto credits = std::ranges::find(found, "credits"_L1, &CRVNHelpTopic::id);
    const QString creditsBody = credits != found.end() ? credits->body : QString();
    run.check(credits != found.end() && namesEverySource(creditsBody, ContentLibrary::shared()),
        u"Help → Credits lists every source"_s);
    run.check(creditsBody.contains("YouTube"_L1), u"credits name the video channels"_s);
    run.check(creditsBody.contains("No photographs are bundled"_L1),
        u"credits say no copyrighted photos are bundled"_s);
    run.check(std::ranges::any_of(
                  topics, [&](const CRVNHelpTopic &topic) { return topic.body.contains(website); }),
        "Help links to "_L1 + website);
    const auto about = std::ranges::find(topics, "about"_L1, &CRVNHelpTopic::id);
    run.check(about != topics.end() && about->body.contains(HVInfo::creditLine)
            && about->body.contains(website),
        u"About credits Corvane with the link"_s);
}

} // namespace

void HVSelfTest::lookAndHelpTests(HVTestRun &run)
{
    run.begin(u"Look: themes and zoom; Help; credits"_s);
    checkThemes(run);
    checkZoom(run);
    run.check(CRVNThemes::defaultID() == HVThemes::brassID,
        u"Medium Format Black & Brass is the default look"_s);
    checkHelp(run, HVInfo::website().toString());
    run.check(CRVNKitHost::appName() == "CRVN Halvorin"_L1, u"the app name shows CRVN"_s);
}
