"""What the user asks the desktop for, before the program starts and while it runs."""

from driver import wait_for
from journey import Journey, main
from portal import Portal

NO_PREFERENCE, DARK, LIGHT = range(3)
STANDARD, HIGH = range(2)
WINDOW = {"light": (0xFF, 0xFF, 0xFF), "dark": (0x1C, 0x1C, 0x1F)}
# Of the texts in the second colour and of the primary button.
LIGHT_STANDARD = {(0x58, 0x58, 0x5D), (0x00, 0x6B, 0xFF)}
LIGHT_HIGH = {(0x35, 0x35, 0x38), (0x00, 0x4B, 0xB2)}
DARK_HIGH = {(0xE3, 0xE3, 0xE5), (0x00, 0x4B, 0xB2)}


class Appearance(Journey):
    @classmethod
    def setUpClass(cls):
        super().setUpClass()
        cls.desktop.want_no_motion()
        cls.portal = Portal(cls.desktop.bus_address)

    def setUp(self):
        super().setUp()
        self.portal.ask_for("color-scheme", NO_PREFERENCE)
        self.portal.ask_for("contrast", STANDARD)
        self.portal.ask_for_motion(False)

    def shows(self, program, appearance):
        wait_for(f"a {appearance} window", lambda: program.picture().getpixel((5, 640)) == WINDOW[appearance])

    def shows_colours(self, program, colours):
        wait_for(f"{colours} in the window", lambda: colours <= colours_of(program))

    def test_light_and_dark_change_while_the_program_runs(self):
        program = self.start()
        self.shows(program, "light")
        for scheme, appearance in ((DARK, "dark"), (LIGHT, "light"), (DARK, "dark"), (NO_PREFERENCE, "light")):
            self.portal.ask_for("color-scheme", scheme)
            self.shows(program, appearance)
        self.assertEqual((program.close(), program.errors()), (0, ""))

    def test_contrast_changes_while_the_program_runs(self):
        program = self.start()
        self.shows_colours(program, LIGHT_STANDARD)
        self.portal.ask_for("contrast", HIGH)
        self.shows_colours(program, LIGHT_HIGH)
        self.portal.ask_for("color-scheme", DARK)
        self.shows_colours(program, DARK_HIGH)
        self.portal.ask_for("color-scheme", LIGHT)
        self.portal.ask_for("contrast", STANDARD)
        self.shows_colours(program, LIGHT_STANDARD)
        self.assertEqual((program.close(), program.errors()), (0, ""))

    def test_motion_begins_and_ends_while_the_program_runs(self):
        program = self.start()
        program.find("push button", "Start System Scan")
        for wanted in (True, False, True):
            self.portal.ask_for_motion(wanted)
            wait_for(f"motion: {wanted}", lambda wanted=wanted: moves(program) == wanted)
        self.assertEqual((program.close(), program.errors()), (0, ""))

    def test_the_window_waits_for_no_answer(self):
        self.portal.ask_for("color-scheme", DARK)
        self.portal.hold()
        program = self.start()
        wait_for("the question", lambda: self.portal.held() == 1)
        self.shows(program, "light")
        self.shows_colours(program, LIGHT_STANDARD)
        program.find("push button", "Start System Scan")
        self.portal.let_go()
        self.shows(program, "dark")
        self.assertEqual((program.close(), program.errors()), (0, ""))


def moves(program):
    return len({program.picture().tobytes() for _ in range(20)}) > 1


def colours_of(program):
    picture = program.picture()
    return {colour for _, colour in picture.getcolors(picture.width * picture.height)}


if __name__ == "__main__":
    main()
