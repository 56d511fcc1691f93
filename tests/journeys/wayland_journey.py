"""On a Wayland desktop, at the scale of its screen."""

from driver import wait_for
from journey import Journey, main
from pictures import area
from wayland import WaylandDesktop

WIDTH = 1200
PANEL = 32
ROLES = ("push button", "check box", "text", "label", "list item")


class OnWayland(Journey):
    def start_at(self, scale, size=(WIDTH, 950), **environment):
        width, height = size
        self.desktop = WaylandDesktop(
            self.world, type(self).desktop, f"--width={width}", f"--height={height}", f"--scale={scale}")
        self.addCleanup(self.desktop.close)
        return self.start(QT_QPA_PLATFORM="wayland", **environment)

    def test_scans_and_deletes_at_scale_1(self):
        self.scans_and_deletes_at(1)

    def test_scans_and_deletes_at_scale_2(self):
        self.scans_and_deletes_at(2)

    def scans_and_deletes_at(self, scale):
        self.home.furnish()
        program = self.start_at(scale)
        self.scan(program)
        self.delete(program, "com.example.Editor")
        program.find("label", "✅ Deleted: com.example.Editor (3.8 MB)")
        program.press("push button", "Done")
        program.wait_until_gone("dialog", "Cleanup Complete!")
        self.assertEqual(program.errors(), "")

    def test_option_and_return_show_the_demo_items_and_a_key_ends_the_program(self):
        program = self.start_at(1)
        wait_for("the keyboard", program.focused)
        with self.desktop.held("Alt_L"):
            program.key("Return")
            program.find("label", "Scanning your Mac...")
        program.find("list item", "Adobe Premiere Pro")
        program.key("Control_L", "q")
        wait_for("the program's end", lambda: program.process.poll() is not None)
        self.assertEqual((program.process.returncode, program.errors()), (0, ""))

    def test_ends_when_the_frames_button_closes_it(self):
        program = self.start_at(1)
        wait_for("the keyboard", program.focused)
        before = self.frame(program)
        program.key("Super_L", "Shift_L", "M")
        wait_for("another size", lambda: self.frame(program) != before)
        # Below the compositor's panel the frame begins, with that button at its end.
        self.desktop.click(WIDTH - 18, PANEL + 16)
        wait_for("the program's end", lambda: program.process.poll() is not None)
        self.assertEqual((program.process.returncode, program.errors()), (0, ""))

    def test_is_maximised_and_back_at_scale_1(self):
        self.is_maximised_and_back(1)

    def test_is_maximised_and_back_at_scale_2(self):
        self.is_maximised_and_back(2)

    # What lies between whole numbers neither this compositor nor Qt 6.4 knows of; the toolkit's own
    # factor is what a user has for that.
    def test_is_maximised_and_back_at_a_scale_between(self):
        self.is_maximised_and_back(1, QT_SCALE_FACTOR="1.25")

    # Where less of the screen is left than the window's usual least size.
    def test_is_maximised_and_back_on_a_small_screen(self):
        self.is_maximised_and_back(1, size=(960, 690))

    def is_maximised_and_back(self, scale, **how):
        self.home.furnish()
        program = self.start_at(scale, **how)
        wait_for("the keyboard", program.focused)
        self.scan(program)
        before = self.frame(program)
        program.key("Super_L", "Shift_L", "M")
        wait_for("another size", lambda: self.frame(program) != before)
        program.press("push button", "Select All Safe")
        program.find("push button", "Delete Selected")
        wait_for(lambda: f"all within {self.frame(program)}, but for {self.outside(program)}",
                 lambda: self.reaches_the_corner(program) and not self.outside(program))
        program.key("Super_L", "Shift_L", "M")
        wait_for("the window as it was", lambda: self.frame(program) == before)
        self.assertEqual(program.errors(), "")

    def frame(self, program):
        return area(*program.shown("frame"))

    def outside(self, program):
        """What is clipped by the window's edge."""
        left, top, right, bottom = self.frame(program)
        boxes = {str(control): area(control) for role in ROLES for control in program.shown(role)}
        return {name: box for name, box in boxes.items()
                if box[0] < left or box[1] < top or box[2] > right or box[3] > bottom}

    def reaches_the_corner(self, program):
        """The last button is as far from the corner as its margins are."""
        _, _, right, bottom = self.frame(program)
        button = area(program.find("push button", "Delete Selected"))
        return 0 < right - button[2] < 32 and 0 < bottom - button[3] < 32


if __name__ == "__main__":
    main(screen=(2600, 2000))
