"""On a Wayland desktop, at the scale of its screen."""

from driver import wait_for
from journey import Journey, main
from wayland import WaylandDesktop


class OnWayland(Journey):
    def start_at(self, scale):
        self.desktop = WaylandDesktop(
            self.world, type(self).desktop, "--width=1200", "--height=850", f"--scale={scale}")
        self.addCleanup(self.desktop.close)
        return self.start(QT_QPA_PLATFORM="wayland")

    def test_scans_and_deletes_at_scale_1(self):
        self.scans_and_deletes_at(1)

    def test_scans_and_deletes_at_scale_2(self):
        self.scans_and_deletes_at(2)

    def scans_and_deletes_at(self, scale):
        self.home.furnish()
        program = self.start_at(scale)
        self.scan(program)
        program.press("check box", "com.example.Editor")
        program.press("push button", "Delete Selected")
        program.press("push button", "Confirm & Delete")
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


if __name__ == "__main__":
    main(screen=(2600, 1800))
