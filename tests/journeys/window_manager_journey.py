"""Under a window manager, as on most desktops: the window is framed, made larger and smaller, and closed."""

from driver import PATIENCE, wait_for
from journey import Journey, main
from window_manager import WindowManager

SCREEN = (2000, 1600)
SMALLEST = (900, 650)


def size(window):
    area = window.get_geometry()
    return area.width, area.height


def least_size(window):
    hints = window.get_wm_normal_hints()
    return hints.min_width, hints.min_height


class UnderAWindowManager(Journey):
    @classmethod
    def setUpClass(cls):
        cls.manager = WindowManager(cls.desktop)
        cls.addClassCleanup(cls.manager.close)

    def start(self, **how):
        program = super().start(**how)
        wait_for("the frame", lambda: self.manager.frame(program.window))
        wait_for("the keyboard", program.focused)
        return program

    def has_size(self, program, expected):
        wait_for(lambda: f"{expected}, not {size(program.window)}", lambda: size(program.window) == expected)

    def is_laid_out_for_its_size(self, program):
        """The first screen's button stands in the middle."""
        button = program.find("push button", "Start System Scan")
        wait_for(lambda: f"the middle, not {button.center}",
                 lambda: abs(button.center[0] - self.middle(program.window)) <= 1)

    def middle(self, window):
        left = -window.translate_coords(window.query_tree().root, 0, 0).x
        return abs(left) + size(window)[0] / 2

    def test_cannot_be_made_smaller_than_its_smallest_size(self):
        program = self.start()
        self.has_size(program, SMALLEST)
        self.manager.place(program.window, 100, 100, 1000, 700)
        self.has_size(program, (1000, 700))
        self.manager.place(program.window, 100, 100, 600, 400)
        self.has_size(program, SMALLEST)
        self.is_laid_out_for_its_size(program)

    def whole_screen(self, program):
        """What the frame leaves of it, which is thinner around a maximised window."""
        left, right, top, bottom = self.manager.frame(program.window)
        return SCREEN[0] - left - right, SCREEN[1] - top - bottom

    def test_fills_half_of_the_screen_and_all_of_it(self):
        program = self.start()
        half = SCREEN[0] // 2, self.whole_screen(program)[1]
        self.manager.place(program.window, 0, 0, *half)
        self.has_size(program, half)
        self.is_laid_out_for_its_size(program)
        self.manager.maximise(program.window)
        wait_for(lambda: f"{self.whole_screen(program)}, not {size(program.window)}",
                 lambda: size(program.window) == self.whole_screen(program))
        self.is_laid_out_for_its_size(program)

    def test_grows_with_the_scale_of_the_screen_and_of_large_texts(self):
        scales = (({"QT_SCALE_FACTOR": "1.25"}, (1125, 813)), ({"QT_SCALE_FACTOR": "2"}, (1800, 1300)),
                  ({"QT_FONT_DPI": "144"}, (1350, 975)))
        for settings, expected in scales:
            with self.subTest(settings):
                program = self.start(**settings)
                self.has_size(program, expected)
                self.assertEqual(least_size(program.window), expected)
                self.scan(program)
                program.find("label", "Your Mac is clean!")
                program.kill()

    def test_ends_when_the_frames_button_closes_it(self):
        program = self.start()
        self.manager.ask_to_close(program.window)
        self.assertEqual(program.process.wait(PATIENCE), 0)
        self.assertEqual(program.errors(), "")

    def test_option_and_return_show_the_demo_items_where_the_window_manager_takes_option_and_a_click(self):
        program = self.start()
        with self.desktop.held("Alt_L"):
            program.key("Return")
            program.find("label", "Scanning your Mac...")
        program.find("list item", "Adobe Premiere Pro")


if __name__ == "__main__":
    main(screen=SCREEN)
