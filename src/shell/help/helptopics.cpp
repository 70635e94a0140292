#include "shell/help/helptopics.h"

#include "content/contentlibrary.h"
#include "content/contentparser.h"
#include "kit/platformwords.h"
#include "shell/info.h"
#include "shell/screen.h"

#include <QFile>
#include <QHash>

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace {

// The texts as they were written, in the words of the platform. What the course says isn't put into
// these; it comes later. They are part of the program, so they are there.
const QList<ContentRecord> &writtenTopics()
{
    static const QList<ContentRecord> records = [] {
        QFile file(u":/help/topics.txt"_s);
        if (!file.open(QIODevice::ReadOnly))
            qFatal("The help texts are missing from the program.");
        return ContentParser::parse(PlatformWords::localized(QString::fromUtf8(file.readAll())));
    }();
    return records;
}

QString numberInWords(qsizetype number)
{
    static const std::array words{ u"no"_s, u"one"_s, u"two"_s, u"three"_s, u"four"_s, u"five"_s,
        u"six"_s, u"seven"_s, u"eight"_s, u"nine"_s, u"ten"_s, u"eleven"_s, u"twelve"_s };
    return number < qsizetype(words.size()) ? words[size_t(number)] : QString::number(number);
}

// "twelve modules", "one module", "no modules"
QString counted(qsizetype number, const QString &one, const QString &several)
{
    return numberInWords(number) + u' ' + (number == 1 ? one : several);
}

// The host of an address as the address writes it, capitals included; empty if it has none.
QString hostOf(const QString &address)
{
    const qsizetype scheme = address.indexOf("://"_L1);
    if (scheme < 0)
        return {};
    QStringView rest = QStringView(address).sliced(scheme + 3);
    const auto isEnd = [](QChar c) { return c == u'/' || c == u'?' || c == u'#'; };
    rest = rest.first(std::ranges::find_if(rest, isEnd) - rest.begin());
    rest = rest.sliced(rest.lastIndexOf(u'@') + 1);
    // Colons inside brackets belong to an address in numbers.
    const qsizetype port = rest.indexOf(u':', qMax<qsizetype>(0, rest.indexOf(u']')));
    return rest.first(port < 0 ? rest.size() : port).toString();
}

// Whether an address leads to a site and to no page of it.
bool isFrontPage(const QString &address)
{
    const QString host = hostOf(address);
    const QStringView rest = QStringView(address).sliced(address.indexOf(host) + host.size());
    return !host.isEmpty() && (rest.isEmpty() || rest == u"/");
}

// How often each name occurs, by name without regard to case; of names that differ in nothing else,
// the first to occur stands first.
QList<std::pair<QString, int>> tally(const QStringList &names)
{
    QList<std::pair<QString, int>> counts;
    QHash<QString, qsizetype> places;
    for (const QString &name : names) {
        const auto place = places.constFind(name);
        if (place != places.cend()) {
            ++counts[*place].second;
        } else {
            places.insert(name, counts.size());
            counts.append({ name, 1 });
        }
    }
    std::ranges::stable_sort(counts, {}, [](const auto &entry) { return entry.first.toLower(); });
    return counts;
}

QString bullet(const QString &line)
{
    return u"\n• "_s + line;
}

// What is there of a record's fields, as one line.
QString joined(QStringList fields)
{
    fields.removeAll(QString());
    return fields.join(u" — "_s);
}

QString listOfModules(const ContentLibrary &course)
{
    const qsizetype count = course.modules().size();
    if (count == 0)
        return {};
    QString list = "\n## The "_L1 + counted(count, u"module"_s, u"modules"_s);
    for (const Module &module : course.modules())
        list += bullet(module.title);
    return list;
}

QString screenTitles()
{
    QStringList titles;
    for (const ScreenInfo &info : allScreens())
        titles.append(info.title);
    const QString last = titles.takeLast();
    return titles.join(", "_L1) + " and "_L1 + last;
}

QString frontDoors(const ContentLibrary &course)
{
    const QList<GearModel> models = course.namedModels();
    const auto count = std::ranges::count_if(models, isFrontPage, &GearModel::url);
    return QString::number(count) + " of the "_L1 + QString::number(models.size()) + " links"_L1;
}

// What the texts have in braces.
QHash<QString, QString> valuesFor(const ContentLibrary &course)
{
    return {
        { u"modules"_s, counted(course.modules().size(), u"module"_s, u"modules"_s) },
        { u"lessons"_s, counted(course.lessons().size(), u"lesson"_s, u"lessons"_s) },
        { u"questions"_s, counted(course.questions().size(), u"question"_s, u"questions"_s) },
        { u"entries"_s, counted(course.gear().size(), u"entry"_s, u"entries"_s) },
        { u"models"_s, counted(course.namedModels().size(), u"model"_s, u"models"_s) },
        { u"events"_s, counted(course.timeline().size(), u"event"_s, u"events"_s) },
        { u"steps"_s, counted(course.workflow().size(), u"step"_s, u"steps"_s) },
        { u"programs"_s, counted(course.software().size(), u"program"_s, u"programs"_s) },
        { u"videos"_s, counted(course.videos().size(), u"video"_s, u"videos"_s) },
        { u"front doors"_s, frontDoors(course) },
        { u"list of modules"_s, listOfModules(course) },
        { u"screens"_s, screenTitles() },
        { u"progress file"_s, PlatformWords::pathInText(HVInfo::databasePath()) },
        { u"data folder"_s, PlatformWords::pathInText(HVInfo::dataFolderPath()) },
        { u"website"_s, HVInfo::website().toString() },
        { u"credits"_s, HVHelp::creditsBody(course) },
    };
}

// Each name in braces is replaced once: what is put in stays as it is, braces included.
QString filled(QStringView text, const QHash<QString, QString> &values)
{
    QString result;
    while (true) {
        const qsizetype open = text.indexOf(u'{');
        const qsizetype close = text.indexOf(u'}', qMax<qsizetype>(0, open));
        if (open < 0 || close < 0)
            return result + text;
        const QString name = text.sliced(open + 1, close - open - 1).toString();
        Q_ASSERT(values.contains(name));
        result += text.first(open) + values.value(name);
        text = text.sliced(close + 1);
    }
}

} // namespace

namespace HVHelp {

QList<CRVNHelpTopic> topics()
{
    return topics(ContentLibrary::shared());
}

QList<CRVNHelpTopic> topics(const ContentLibrary &course)
{
    const QHash<QString, QString> values = valuesFor(course);
    QList<CRVNHelpTopic> result;
    for (const ContentRecord &record : writtenTopics()) {
        result.append({
            .id = record.id.toString(),
            .title = record.first(u"title").toString(),
            .body = filled(record.body, values),
            .keywords = ContentParser::list(record.first(u"keywords")),
        });
    }
    return result;
}

QString creditsBody(const ContentLibrary &course)
{
    const QString checked = "checked "_L1 + HVInfo::checkedISO;

    QString body = HVInfo::appName
        + " was written by Corvane (CRVN): the program, its drawings and the course. Website, "
          "updates and support: "_L1
        + HVInfo::website().toString()
        + u"\n\n## Pictures and illustrations\n"
          "No photographs are bundled with the app. Every illustration — the camera body, the "
          "gear diagrams, the Exposure Lab scene and the app icon — was drawn in code by CRVN. No "
          "third-party images are used, so no image credits are needed."_s;

    body += "\n\n## History sources ("_L1 + checked + u')';
    QStringList citations;
    for (const TimelineEvent &event : course.timeline()) {
        for (const Citation &citation : event.sources)
            citations.append(bullet(joined({ citation.title, citation.url })));
    }
    citations.removeDuplicates();
    body += citations.join(QString());

    body += "\n\n## Gear: makers' product pages ("_L1 + checked + ", specs as of Oct 2026)"_L1;
    QStringList hosts;
    for (const GearModel &model : course.namedModels())
        hosts.append(hostOf(model.url));
    hosts.removeAll(QString());
    for (const auto &[host, count] : tally(hosts))
        body += bullet(
            host + " ("_L1 + QString::number(count) + (count == 1 ? " model)"_L1 : " models)"_L1));

    body += "\n\n## Video Library: YouTube channels (links "_L1 + checked + u')';
    QStringList channels;
    for (const Video &video : course.videos())
        channels.append(video.channel);
    for (const auto &[channel, count] : tally(channels))
        body += bullet(channel + " ("_L1 + QString::number(count) + u')');
    body
        += "\nVideos are played from YouTube with the official embedded player and belong to their "
           "channels."_L1;

    body += "\n\n## Software makers"_L1;
    for (const Software &software : course.software())
        body += bullet(joined({ software.name, software.maker, software.url }));

    return body
        + "\n\nProduct and company names are trademarks of their owners. CRVN is not affiliated "
          "with any camera maker, software company, retailer, museum or channel mentioned."_L1;
}

} // namespace HVHelp
