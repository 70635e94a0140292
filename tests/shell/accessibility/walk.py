"""Goes through the running program as a screen reader does: by names, roles, states and actions.

Started by ./walk, which makes the desktop around it."""

import json
import os
import signal
import subprocess
import sys
import time
import unittest

import pyatspi

PROGRAM = sys.argv.pop(1)
PATIENCE = 20  # s
# Qt answers an action when all that follows from it is done, and a whole screen may follow. How long
# that takes isn't asked here, and the library's own 0.8 s is short for a machine at work.
pyatspi.Atspi.set_timeout(1000 * PATIENCE, 1000 * PATIENCE)

# What a person can do something with, and so has to be able to ask for by name.
CONTROLS = {
    pyatspi.ROLE_PUSH_BUTTON, pyatspi.ROLE_TOGGLE_BUTTON, pyatspi.ROLE_CHECK_BOX,
    pyatspi.ROLE_RADIO_BUTTON, pyatspi.ROLE_COMBO_BOX, pyatspi.ROLE_ENTRY, pyatspi.ROLE_TEXT,
    pyatspi.ROLE_SLIDER, pyatspi.ROLE_SPIN_BUTTON, pyatspi.ROLE_SCROLL_BAR, pyatspi.ROLE_LINK,
    pyatspi.ROLE_MENU_ITEM, pyatspi.ROLE_CHECK_MENU_ITEM, pyatspi.ROLE_RADIO_MENU_ITEM,
    pyatspi.ROLE_LIST_ITEM, pyatspi.ROLE_PAGE_TAB, pyatspi.ROLE_PROGRESS_BAR, pyatspi.ROLE_IMAGE,
    pyatspi.ROLE_HEADING, pyatspi.ROLE_DIALOG, pyatspi.ROLE_ALERT,
}

SCREENS = ["Campus", "Course", "Exposure Lab", "Lens Lab", "History", "Gear Encyclopedia",
           "Workflows & Software", "Video Library", "My Notes & Progress"]


def until(condition, what):
    """What `condition` gives as soon as it gives anything."""
    deadline = time.monotonic() + PATIENCE
    while time.monotonic() < deadline:
        try:
            found = condition()
        except (LookupError, RuntimeError, pyatspi.Atspi.GLib.Error):
            found = None  # It went away while it was being asked.
        if found:
            return found
        time.sleep(0.05)
    raise AssertionError(f"{what} within {PATIENCE} s")


def has(node, state):
    return node.getState().contains(state)


def everything(node):
    node.clear_cache()
    yield node
    for i in range(node.childCount):
        child = node.getChildAtIndex(i)
        if child is not None:
            yield from everything(child)


def act(node, name):
    actions = node.queryAction()
    for i in range(actions.nActions):
        if actions.getName(i) == name:
            return actions.doAction(i)
    raise AssertionError(f"{node.name} can't {name}")


class Walk(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.process = subprocess.Popen([PROGRAM])
        cls.app = until(cls.find_application, "the program is there")
        until(lambda: cls.find("menu bar", "Help", root=cls.app), "the menus are there")

    @classmethod
    def tearDownClass(cls):
        cls.process.send_signal(signal.SIGTERM)
        if cls.process.wait(PATIENCE) != 0:
            raise AssertionError("the program ends in order")

    @classmethod
    def find_application(cls):
        desktop = pyatspi.Registry.getDesktop(0)
        desktop.clear_cache()
        for i in range(desktop.childCount):
            app = desktop.getChildAtIndex(i)
            if app and app.name == "CRVN Halvorin" and app.childCount:
                return app
        return None

    @classmethod
    def find(cls, role, name, root=None):
        """What shows with this role and this name; a name may be given by its beginning and "…"."""
        for node in everything(root or cls.app):
            fits = node.name.startswith(name[:-1]) if name.endswith("…") else node.name == name
            if fits and node.getRoleName() == role and has(node, pyatspi.STATE_SHOWING):
                return node
        return None

    def get(self, role, name):
        return until(lambda: self.find(role, name), f"{role} “{name}” shows")

    def gone(self, role, name):
        until(lambda: not self.find(role, name), f"{role} “{name}” goes")

    def go(self, screen):
        act(self.get("check box", screen), "Toggle")
        self.get("push button", f"Mode dial, {screen}")

    def setUp(self):
        self.go("Campus")

    def type(self, text):
        """By the keyboard: Qt 6.4 lets nobody set the text of a field from outside."""
        subprocess.run(["xdotool", "type", "--delay", "20", text], check=True)

    def close(self, window):
        subprocess.run(["xdotool", "key", "Escape"], check=True)
        self.gone("frame", window)

    def check_names(self, where):
        nameless = [node.getRoleName() for node in everything(self.app)
                    if node.getRole() in CONTROLS and has(node, pyatspi.STATE_SHOWING)
                    and not node.name.strip()]
        self.assertEqual(nameless, [], where)

    def preference(self, key):
        path = os.path.expanduser("~/.config/CRVN Halvorin/CRVN Halvorin.json")
        try:
            with open(path, encoding="utf-8") as file:
                return json.load(file).get(key)
        except (FileNotFoundError, json.JSONDecodeError):  # not there yet, or not yet whole
            return None

    def test_camera_has_its_names(self):
        for role, name in [("push button", "Mode dial, Campus"),
                           ("push button", "Continue the course"),
                           ("push button", "Previous screen (Ctrl+[)"),
                           ("push button", "Next screen (Ctrl+])"),
                           ("text", "Search lessons, gear, history, videos…"),
                           ("progress bar", "0 of 82 lessons finished")]:
            self.get(role, name)

    def test_every_screen_names_what_it_shows(self):
        for screen in SCREENS:
            self.go(screen)
            self.check_names(screen)

    def test_rail_tells_which_screen_shows(self):
        for screen in SCREENS:
            self.go(screen)
            until(lambda: [name for name in SCREENS
                           if has(self.get("check box", name), pyatspi.STATE_CHECKED)] == [screen],
                  f"{screen} alone is checked")

    def test_dial_and_its_arrows_turn(self):
        act(self.get("push button", "Mode dial, Campus"), "Press")
        self.get("push button", "Mode dial, Course")
        act(self.get("push button", "Previous screen (Ctrl+[)"), "Press")
        self.get("push button", "Mode dial, Campus")
        act(self.get("push button", "Next screen (Ctrl+])"), "Press")
        self.get("push button", "Mode dial, Course")

    def test_a_card_opens_its_module_and_the_module_its_lesson(self):
        act(self.get("push button", "Exposure. Beginner. 0 of 7 lessons finished"), "Press")
        self.get("heading", "Exposure")
        act(self.get("push button", "Lesson 1: …"), "Press")
        self.get("push button", "Mark as finished")
        self.check_names("a lesson")

    def test_a_lesson_is_headings_points_and_paragraphs(self):
        act(self.get("push button", "Continue the course"), "Press")
        self.get("push button", "Mark as finished")
        roles = {node.getRoleName() for node in everything(self.app) if node.name.strip()}
        self.assertLessEqual({"heading", "list item", "paragraph", "document frame"}, roles)

    def test_marks_on_a_lesson_are_set_and_taken_away(self):
        act(self.get("push button", "Continue the course"), "Press")
        for before, after in [("Mark as finished", "Finished"), ("Bookmark", "Bookmarked")]:
            act(self.get("push button", before), "Press")
            act(self.get("push button", after), "Press")
            self.get("push button", before)

    def below(self, role, beginning=""):
        """What has this role and a name that begins so, also where it has to be scrolled to."""
        return [node for node in everything(self.app)
                if node.getRoleName() == role and node.name.startswith(beginning)]

    def check_link(self, name, host):
        """What is called so can be pressed and tells the host that it leads to."""
        link = until(lambda: next((node for node in everything(self.app) if node.name == name),
                                  None), f"“{name}” is there")
        self.assertEqual(link.description, host)
        actions = link.queryAction()
        self.assertIn("Press", [actions.getName(i) for i in range(actions.nActions)],
                      link.getRoleName())

    def test_an_entry_of_the_encyclopedia_is_opened_and_its_drawing_enlarged(self):
        self.go("Gear Encyclopedia")
        act(self.get("push button", "DSLR, Cameras"), "Press")
        self.get("heading", "DSLR")
        self.check_names("an entry of the encyclopedia")
        self.check_link("Maker's page, Nikon D850", "www.nikonusa.com")
        act(self.get("push button", "Diagram: DSLR"), "Press")
        self.get("dialog", "DSLR")
        self.check_names("a drawing")
        act(self.get("push button", "Close"), "Press")
        self.gone("dialog", "DSLR")

    def test_an_event_of_the_history_is_opened(self):
        self.go("History")
        act(self.get("push button", "1558, Della Porta makes the camera obscura popular"), "Press")
        self.get("heading", "Della Porta makes the camera obscura popular")
        self.check_names("an event")
        self.check_link("Porta, De Refractione (Nigel Phillips, antiquarian bookseller)",
                        "www.nigelphillips.com")

    def test_the_workflows_are_read(self):
        self.go("Workflows & Software")
        self.get("heading", "Workflows & Software")
        until(lambda: self.below("heading", "darktable"), "the programs are there")
        self.get("label", "1. Prepare the camera")
        self.check_names("the workflows")
        self.check_link("Visit darktable's page", "www.darktable.org")

    def test_a_scroll_bar_goes_where_it_is_set(self):
        bar = self.get("scroll bar", "Vertical scroll bar")
        value = bar.queryValue()
        self.assertEqual((value.minimumValue, value.maximumValue), (0, 100))
        value.currentValue = 50
        until(lambda: value.currentValue == 50, "the bar is in the middle")
        act(bar, "Increase")
        until(lambda: value.currentValue > 50, "the bar has gone on")
        value.currentValue = 0
        until(lambda: value.currentValue == 0, "the bar is back")

    def test_search_tells_what_it_finds_and_is_cleared(self):
        field = self.get("text", "Search lessons, gear, history, videos…")
        act(field, "SetFocus")
        until(lambda: has(field, pyatspi.STATE_FOCUSED), "the field has the focus")
        self.type("tripod")
        act(self.get("push button", "Clear search"), "Press")
        self.gone("push button", "Clear search")
        self.assertEqual(field.queryText().getText(0, -1), "")

    def test_search_counts_its_hits_and_a_hit_opens_its_place(self):
        field = self.get("text", "Search lessons, gear, history, videos…")
        act(field, "SetFocus")
        until(lambda: has(field, pyatspi.STATE_FOCUSED), "the field has the focus")
        self.type("tripod")
        until(lambda: field.clear_cache() or field.description.endswith(" results"),
              "the count is told")
        self.get("heading", field.description + ' for "tripod"')
        self.get("list", "Search results")
        self.check_names("the results")
        act(self.get("push button", "Tripod, gear"), "Press")
        self.gone("list", "Search results")
        self.get("push button", "Mode dial, Gear Encyclopedia")
        self.assertEqual(field.queryText().getText(0, -1), "")

    def test_menus_open_and_do_what_they_say(self):
        for menu, entry in [("File", "New Note"), ("Edit", "Select All"), ("View", "Zoom In"),
                            ("Go", "Exposure Lab"), ("Theme", "Rose Gold"),
                            ("Help", "CRVN Halvorin Help")]:
            act(self.get("menu bar", menu), "Press")
            self.get("menu item", entry)
            self.check_names(f"the menu {menu}")
            act(self.get("menu bar", menu), "Press")

    def test_a_menu_changes_the_zoom(self):
        act(self.get("menu bar", "View"), "Press")
        act(self.get("menu item", "Zoom In"), "Press")
        until(lambda: self.preference("crvn.zoom") == 1.15, "the zoom is kept")
        act(self.get("menu bar", "View"), "Press")
        act(self.get("menu item", "Actual Size (100%)"), "Press")
        until(lambda: self.preference("crvn.zoom") == 1, "the zoom is back")

    def test_a_menu_changes_the_theme_and_tells_which(self):
        for theme in ["Rose Gold", "Medium Format Black & Brass"]:
            act(self.get("menu bar", "Theme"), "Press")
            act(self.get("menu item", theme), "Press")
            self.gone("menu item", theme)
            act(self.get("menu bar", "Theme"), "Press")
            until(lambda: has(self.get("menu item", theme), pyatspi.STATE_CHECKED),
                  f"{theme} is checked")
            act(self.get("menu bar", "Theme"), "Press")
            self.gone("menu item", theme)

    def test_an_entry_that_cannot_act_is_disabled(self):
        act(self.get("menu bar", "Edit"), "Press")
        self.assertEqual(self.get("menu item", "Cut").description, "Not available now")
        self.assertEqual(self.get("menu item", "Undo").description, "Not available now")
        act(self.get("menu bar", "Edit"), "Press")

    def test_a_slider_of_the_lab_is_set_and_stepped(self):
        self.go("Exposure Lab")
        slider = self.get("slider", "Subject distance (focus)")
        value = slider.queryValue()
        value.currentValue = 5
        until(lambda: slider.clear_cache() or slider.description == "5.0 m", "it reads 5.0 m")
        act(slider, "Increase")
        until(lambda: slider.clear_cache() or slider.description == "5.1 m", "it reads 5.1 m")

    def test_the_lab_tells_its_picture_in_words(self):
        self.go("Exposure Lab")
        picture = self.get("image", "Preview picture")
        until(lambda: picture.clear_cache() or "background blur" in picture.description,
              "it is described")
        act(self.get("push button", "Set shutter for me (aperture priority)"), "Press")
        until(lambda: picture.clear_cache() or "correct exposure" in picture.description, "it is right")

    def test_a_module_opens_its_quiz(self):
        act(self.get("push button", "Exposure. Beginner. 0 of 7 lessons finished"), "Press")
        act(self.get("push button", "Take the module quiz (…"), "Press")
        self.get("heading", "Quiz: Exposure")
        self.check_names("the quiz")

    def test_a_note_is_written_and_kept(self):
        self.go("My Notes & Progress")
        act(self.get("push button", "New note"), "Press")
        self.get("push button", "Save Note")
        self.check_names("the note editor")
        self.type("Meet the light")
        act(self.get("push button", "Save Note"), "Press")
        self.gone("push button", "Save Note")
        until(lambda: any("Meet the light" in node.name for node in everything(self.app)),
              "the note is in the list")

    def test_help_is_read_and_searched(self):
        act(self.get("menu bar", "Help"), "Press")
        act(self.get("menu item", "Exposure Lab"), "Press")
        window = self.get("frame", "CRVN Halvorin Help")
        inside = lambda role, name: until(lambda: self.find(role, name, window), f"{role} {name}")
        inside("heading", "Exposure Lab")
        inside("paragraph", "The Exposure Lab is a camera to try things on.…")
        act(inside("check box", "Quizzes and scores"), "Toggle")
        inside("heading", "Quizzes and scores")
        self.check_names("the help")
        search = inside("text", "Search help")
        act(search, "SetFocus")
        self.type("tripod")
        until(lambda: search.clear_cache() or "topic" in search.description, "the count is told")
        act(inside("push button", "Clear search"), "Press")
        self.close("CRVN Halvorin Help")

    def test_about_tells_the_version(self):
        act(self.get("menu bar", "Help"), "Press")
        act(self.get("menu item", "About CRVN Halvorin"), "Press")
        self.get("label", "Version 1.0 (1)")
        self.get("push button", "Corvane Website")
        self.check_names("About")
        self.close("About CRVN Halvorin")


if __name__ == "__main__":
    unittest.main(verbosity=2)
