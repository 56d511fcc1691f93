"""A scan of a made-up home shows what is there, and nothing else."""

from home import measured, size_text, title
from journey import Journey, main


class Scan(Journey):
    def test_finds_exactly_what_is_there_with_its_sizes(self):
        expected = self.home.furnish()
        program = self.start()
        self.scan(program)
        for category, paths in expected.items():
            program.press("list item", category)
            total = size_text(sum(map(measured, paths)))
            program.find("label", total)
            way_back = "Escape shows the overview of all categories"
            self.assertEqual(program.find("list item", category).description,
                             f"{len(paths)} items · {total}. {way_back}")
            largest_first = sorted(paths, key=measured, reverse=True)
            self.assertEqual(self.rows(program), [title(path) for path in largest_first])
            for path in paths:
                program.find("label", path)
                program.find("label", size_text(measured(path)))

    def test_leaves_out_what_is_small_new_or_elsewhere(self):
        expected = self.home.furnish()
        program = self.start()
        self.scan(program)
        for category in ("Program Caches", "App Data", "Old Downloads"):
            program.press("list item", category)
            program.find("list item", title(expected[category][0]))
            for name in ("com.example.Small", "exactly", "Small", "new film.mov", "novel.txt"):
                self.assertNotIn(name, self.rows(program))


if __name__ == "__main__":
    main()
