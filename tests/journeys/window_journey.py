"""The window itself."""

from journey import Journey, main


class Window(Journey):
    def test_is_as_large_at_first_as_it_can_be_made_small(self):
        window = self.start().window
        size = window.get_geometry()
        self.assertEqual((size.width, size.height), (900, 650))
        least = window.get_wm_normal_hints()
        self.assertEqual((least.min_width, least.min_height), (900, 650))
        self.assertEqual((least.max_width, least.max_height), (0, 0))


if __name__ == "__main__":
    main()
