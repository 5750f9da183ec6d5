"""Displays that the toolkit cannot draw on end with a sentence."""

import desktop
from quillon import QuillonTestCase, Ran


class FewColoursTest(QuillonTestCase):
    def assert_ends_with(self, sentence, **options):
        ran = Ran(**options)
        self.assertEqual((ran.status, ran.output), (1, ""), ran)
        self.assertEqual(ran.errors, f"quillon: {sentence}\n")

    def test_a_display_with_a_palette_of_256_colours(self):
        self.assert_ends_with("the display has only 8 bits per pixel; at least 15 are needed")

    def test_a_platform_that_the_toolkit_does_not_have(self):
        self.assert_ends_with('Qt has no platform plugin "nonsense:option"; see QT_QPA_PLATFORM',
                              environment={"QT_QPA_PLATFORM": "nonsense:option"})

    def test_no_display_at_all(self):
        self.assert_ends_with("there is no display; start it in a graphical session, or use quillon sheet",
                              without=("DISPLAY",))


if __name__ == "__main__":
    desktop.main()
