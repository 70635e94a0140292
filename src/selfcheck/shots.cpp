#include "selfcheck/shots.h"

#include "camera/hvcolors.h"
#include "content/contentlibrary.h"
#include "shell/appmodel.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

void showLessonOnFNumbers(AppModel &model)
{
    const QList<Lesson> &lessons = ContentLibrary::shared().lessons();
    const auto found = std::ranges::find_if(
        lessons, [](const Lesson &lesson) { return lesson.body.contains("f/1.4"_L1); });
    model.openLesson(found != lessons.end() ? found->id : u"m01.1"_s);
}

void showQuiz(AppModel &model)
{
    model.setModuleID(u"m02"_s);
    model.setQuizModuleID(u"m02"_s);
    model.setScreen(Screen::Course);
}

struct CameraSettings {
    double aperture;
    double shutter;
    double iso;
    double focal;
};

void showExposure(AppModel &model, const CameraSettings &camera)
{
    SimSettings settings;
    settings.aperture = camera.aperture;
    settings.shutter = camera.shutter;
    settings.iso = camera.iso;
    settings.focal = camera.focal;
    model.setSim(settings);
    model.setScreen(Screen::Exposure);
}

// An event that every photographer knows, else any.
void showEvent(AppModel &model)
{
    const QList<TimelineEvent> &events = ContentLibrary::shared().timeline();
    const auto found = std::ranges::find_if(
        events, [](const TimelineEvent &event) { return event.title.contains("Kodak"_L1); });
    if (found != events.end())
        model.setEventID(found->id);
    else if (!events.isEmpty())
        model.setEventID(events.first().id);
    model.setScreen(Screen::History);
}

void showGear(AppModel &model, const QString &query, const QString &id)
{
    model.setGearQuery(query);
    model.setGearID(id);
    model.setScreen(Screen::Gear);
}

void showFirstVideo(AppModel &model)
{
    const QList<Video> &videos = ContentLibrary::shared().videos();
    model.setVideoID(videos.isEmpty() ? std::nullopt : std::optional(videos.first().id));
    model.setScreen(Screen::Videos);
}

std::function<void(AppModel &)> show(Screen screen)
{
    return [screen](AppModel &model) { model.setScreen(screen); };
}

} // namespace

QList<Shot> allShots()
{
    const QString brass = HVThemes::brassID;
    return {
        { .name = u"01-campus"_s, .themeID = brass, .arrange = show(Screen::Home) },
        { .name = u"02-lesson-fnumbers"_s, .themeID = brass, .arrange = showLessonOnFNumbers },
        { .name = u"03-quiz"_s, .themeID = brass, .arrange = showQuiz },
        { .name = u"04-exposure-lab"_s,
            .themeID = brass,
            .arrange =
                [](AppModel &model) {
                    showExposure(
                        model, { .aperture = 2, .shutter = 0.004, .iso = 1600, .focal = 85 });
                } },
        { .name = u"05-lens-lab"_s, .themeID = brass, .arrange = show(Screen::Lens) },
        { .name = u"06-history"_s, .themeID = brass, .arrange = showEvent },
        { .name = u"07-gear-tripod"_s,
            .themeID = brass,
            .arrange = [](AppModel &model) { showGear(model, u"tripod"_s, u"tripod"_s); } },
        { .name = u"08-workflows"_s, .themeID = brass, .arrange = show(Screen::Workflow) },
        { .name = u"09-videos"_s, .themeID = brass, .arrange = showFirstVideo },
        { .name = u"10-videos-offline"_s,
            .themeID = brass,
            .arrange = showFirstVideo,
            .online = false },
        { .name = u"11-notes-progress"_s, .themeID = brass, .arrange = show(Screen::Notes) },
        { .name = u"12-search-tripod"_s,
            .themeID = brass,
            .arrange = [](AppModel &model) { model.setGlobalQuery(u"tripod"_s); } },
        { .name = u"13-campus-cobalt"_s,
            .themeID = u"cobalt-gunmetal"_s,
            .arrange = show(Screen::Home) },
        { .name = u"14-gear-rose-gold"_s,
            .themeID = u"rose-gold"_s,
            .arrange = [](AppModel &model) { showGear(model, {}, u"fast-prime"_s); } },
        { .name = u"15-exposure-midnight"_s,
            .themeID = u"midnight-black"_s,
            .arrange =
                [](AppModel &model) {
                    showExposure(
                        model, { .aperture = 16, .shutter = 0.25, .iso = 100, .focal = 24 });
                } },
        { .name = u"16-history-gray"_s, .themeID = u"brushed-gray"_s, .arrange = showEvent },
        { .name = u"17-lens-lavender"_s,
            .themeID = u"lavender-pearl"_s,
            .arrange = show(Screen::Lens) },
        { .name = u"18-course-candy-red"_s,
            .themeID = u"candy-red-titanium"_s,
            .arrange = [](AppModel &model) { model.openLesson(u"m01.1"_s); } },
        { .name = u"20-help-credits"_s,
            .size = QSize(1000, 1400),
            .subject = Shot::Subject::HelpCredits },
        { .name = u"21-tripod-diagram"_s,
            .size = QSize(800, 520),
            .subject = Shot::Subject::TripodDiagram },
    };
}
