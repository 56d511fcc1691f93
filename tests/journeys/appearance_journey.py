"""What the user asks the desktop for, before the program starts and while it runs."""

from driver import wait_for
from journey import Journey, main
from portal import Portal

NO_PREFERENCE, DARK, LIGHT = range(3)
WINDOW = {"light": (0xFF, 0xFF, 0xFF), "dark": (0x1C, 0x1C, 0x1F)}


class Appearance(Journey):
    @classmethod
    def setUpClass(cls):
        super().setUpClass()
        cls.desktop.want_no_motion()
        cls.portal = Portal(cls.desktop.bus_address)

    def setUp(self):
        super().setUp()
        self.portal.ask_for("color-scheme", NO_PREFERENCE)

    def shows(self, program, appearance):
        wait_for(f"a {appearance} window", lambda: program.picture().getpixel((5, 640)) == WINDOW[appearance])

    def test_light_and_dark_change_while_the_program_runs(self):
        program = self.start()
        self.shows(program, "light")
        for scheme, appearance in ((DARK, "dark"), (LIGHT, "light"), (DARK, "dark"), (NO_PREFERENCE, "light")):
            self.portal.ask_for("color-scheme", scheme)
            self.shows(program, appearance)
        self.assertEqual((program.close(), program.errors()), (0, ""))

    def test_the_window_waits_for_no_answer(self):
        self.portal.ask_for("color-scheme", DARK)
        self.portal.hold()
        program = self.start()
        wait_for("the question", lambda: self.portal.held() == 1)
        self.shows(program, "light")
        program.find("push button", "Start System Scan")
        self.portal.let_go()
        self.shows(program, "dark")
        self.assertEqual((program.close(), program.errors()), (0, ""))


if __name__ == "__main__":
    main()
