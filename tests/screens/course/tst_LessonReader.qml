import QtQuick
import QtTest
import Halvorin.Camera
import Halvorin.Screens
import Halvorin.Shell
import Halvorin.Testing
import "../../kit/Find.js" as Find

TestCase {
    id: test
    name: "LessonReader"
    when: windowShown
    width: 1100
    height: 1200
    visible: true

    Component {
        id: readers
        LessonReader {
            width: 600
            height: 1100
            c: CameraPalette.current
        }
    }
    property Item reader

    function init() {
        World.begin();
    }
    function read(lessonID) {
        AppModel.openLesson(lessonID);
        reader = createTemporaryObject(readers, test, { lessonID: lessonID });
        World.settle(reader);
    }
    function button(text) {
        return Find.button(reader, text);
    }

    function test_shows_the_lesson() {
        read("l1");
        const texts = Find.texts(reader);
        compare(texts.slice(0, 3), ["LIGHT AND THE CAMERA", "7 min read", "A HOLE IN THE DARK"]);
        const body = Find.first(reader, item => item.textDocument !== undefined);
        compare(body.getText(0, body.length).split("\u2029").join("\n"),
                "A hole sorts the light\nHold a card with a pinhole in front of the wall.\nthe hole is small\nthe picture is dim\nNever look into the sun.\nIt stands on its head.");
        compare(Find.first(reader, item => item.size === 14 && item.text !== undefined).size, 14);
    }

    function test_a_lesson_without_a_module_has_no_module_title() {
        read("stray");
        compare(Find.texts(reader)[0], "5 min read");
    }

    function test_has_its_actions_in_their_order() {
        read("l1");
        const actions = Find.buttons(reader).slice(0, 3);
        compare(actions.map(action => action.label), ["Mark as finished", "Bookmark", "Add note"]);
        compare(actions.map(action => action.symbol), ["circle", "bookmark", "square.and.pencil"]);
        compare(actions.map(action => action.prominent), [true, false, false]);
        for (const action of actions)
            verify(action.compact);
        compare(actions[0].tip, "Record this lesson as finished");
    }

    function test_the_first_action_marks_as_finished_and_takes_the_mark_away() {
        read("l1");
        mouseClick(button("Mark as finished"));
        compare(World.finishedLessons(), ["l1"]);
        verify(!button("Mark as finished"));
        compare(button("Finished").symbol, "checkmark.circle.fill");
        compare(button("Finished").prominent, false);
        compare(button("Finished").tip, "Record this lesson as finished");
        mouseClick(button("Finished"));
        compare(World.finishedLessons(), []);
        compare(button("Mark as finished").symbol, "circle");
    }

    function test_bookmarks() {
        read("l2");
        mouseClick(button("Bookmark"));
        verify(World.isBookmarked("lesson", "l2"));
        compare(button("Bookmarked").symbol, "bookmark.fill");
        mouseClick(button("Bookmarked"));
        verify(!World.isBookmarked("lesson", "l2"));
        verify(button("Bookmark"));
    }

    function test_starts_a_note() {
        read("l2");
        mouseClick(button("Add note"));
        compare(World.noteTarget(), "lesson l2");
    }

    function test_tells_why_a_mark_could_not_be_written() {
        read("l1");
        World.fillDisk();
        mouseClick(button("Mark as finished"));
        verify(AppModel.messageText.includes("disk is full"));
        verify(button("Mark as finished"));
    }

    function test_moves_on_even_if_the_mark_could_not_be_written() {
        read("l1");
        World.fillDisk();
        mouseClick(button("Finish & next lesson"));
        verify(AppModel.messageText.includes("disk is full"));
        compare(World.lessonID(), "l2");
    }

    function test_leads_to_gear_and_videos_that_are_there() {
        read("l1");
        const texts = Find.texts(reader);
        verify(texts.indexOf("IN THE ENCYCLOPEDIA") > 0);
        verify(texts.indexOf("WATCH") > texts.indexOf("IN THE ENCYCLOPEDIA"));
        compare(button("Tripod").symbol, "books.vertical");
        compare(button("Pinhole — The Bench").symbol, "play.rectangle");
        mouseClick(button("Tripod"));
        compare(AppModel.screen, HVScreen.Gear);
        compare(World.gearID(), "tripod");
        mouseClick(button("Pinhole — The Bench"));
        compare(AppModel.screen, HVScreen.Videos);
        compare(World.videoID(), "abcdefghijk");
    }

    function test_has_no_captions_if_gear_and_videos_are_gone() {
        read("l2");
        verify(!Find.text(reader, "IN THE ENCYCLOPEDIA"));
        verify(!Find.text(reader, "WATCH"));
        compare(Find.buttons(reader).map(item => item.label), ["Mark as finished", "Bookmark", "Add note", "Previous", "Finish & next lesson"]);
    }

    function test_the_first_lesson_has_no_previous_one() {
        read("l1");
        verify(!button("Previous"));
        verify(button("Finish & next lesson"));
    }

    function test_the_last_lesson_has_no_next_one() {
        read("stray");
        verify(button("Previous"));
        verify(!button("Finish & next lesson"));
        // The only way to finish it.
        mouseClick(button("Mark as finished"));
        compare(World.finishedLessons(), ["stray"]);
        compare(World.lessonID(), "stray");
        compare(World.quizModuleID(), "none");
    }

    function test_a_lesson_that_is_not_in_the_course_counts_as_the_first() {
        reader = createTemporaryObject(readers, test, { lessonID: "no-such-lesson" });
        World.settle(reader);
        verify(!button("Previous"));
        mouseClick(button("Finish & next lesson"));
        compare(World.lessonID(), "l2");
    }

    function test_goes_back_and_on_across_modules() {
        read("l3");
        mouseClick(button("Previous"));
        compare(World.lessonID(), "l2");
        compare(World.moduleID(), "light");
        compare(World.finishedLessons(), []);

        reader.lessonID = "l2";
        World.settle(reader);
        mouseClick(button("Finish & next lesson"));
        compare(World.lessonID(), "l3");
        compare(World.moduleID(), "time");
        compare(World.finishedLessons(), ["l2"]);
    }

    function test_its_ways_on_look_as_they_weigh() {
        read("l2");
        compare(button("Previous").symbol, "chevron.left");
        verify(!button("Previous").prominent);
        compare(button("Finish & next lesson").symbol, "chevron.right");
        verify(button("Finish & next lesson").prominent);
        verify(!button("Previous").compact && !button("Finish & next lesson").compact);
        World.finish(["l2"]);
        verify(button("Finish & next lesson"));
    }

    function test_begins_each_lesson_at_its_top() {
        read("l1");
        reader.height = 200;
        tryVerify(() => reader.contentHeight > 400);
        reader.contentY = 150;
        reader.lessonID = "l2";
        compare(reader.contentY, 0);
    }

    function test_holds_its_column_to_860() {
        read("l1");
        reader.width = 1090;
        const title = Find.first(reader, item => item.subtitle !== undefined);
        compare(title.mapToItem(reader, 0, 0).x, 26);
        compare(title.width, 860 - 2 * 26);
        reader.width = 600;
        compare(title.width, 600 - 2 * 26);
    }

    function test_follows_marks_that_are_made_elsewhere() {
        read("l1");
        World.finish(["l1"]);
        verify(button("Finished"));
        AppModel.toggleBookmark("lesson", "l1");
        verify(button("Bookmarked"));
    }
}
