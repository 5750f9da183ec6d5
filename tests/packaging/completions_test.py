"""Shells complete what the program's help tells, no more and no less."""

import unittest

from program import commands_of_help, options_of_help, words_of_help
from shells import COMPLETIONS, SHELLS, asked


class CompletionsTest(unittest.TestCase):
    def assert_offered(self, words, expected):
        for name, offered_by in SHELLS.items():
            with self.subTest(shell=name, words=words):
                self.assertEqual(sorted(offered_by(*words)), sorted(expected))

    def test_they_are_read_without_a_word(self):
        for shell, file in (("bash", "quillon"), ("zsh", "_quillon"), ("fish", "quillon.fish")):
            self.assertEqual(asked(shell, "-n", str(COMPLETIONS / file)), [])

    def test_every_command_is_offered(self):
        self.assert_offered(["quillon", "s"], [name for name in commands_of_help() if name.startswith("s")])
        for name, offered_by in SHELLS.items():
            offered = {word for word in offered_by("quillon", "") if not word.startswith("-")}
            self.assertEqual(offered, set(commands_of_help()), name)

    def test_the_program_has_options_without_a_command(self):
        of_commands = {option for options in commands_of_help().values() for option in options}
        self.assert_offered(["quillon", "--"], options_of_help() - of_commands)

    def test_every_option_of_every_command_is_offered(self):
        for command, options in commands_of_help().items():
            self.assert_offered(["quillon", command, "--"], options)

    def test_words_that_an_option_takes_are_offered(self):
        self.assertEqual(words_of_help()["sheet", "--format"], {"text", "json", "markdown", "pdf"})
        for (command, option), words in words_of_help().items():
            self.assert_offered(["quillon", command, option, ""], words)
        self.assert_offered(["quillon", "sheet", "--format", "j"], ["json"])

    def test_applications_and_processes_are_those_that_run_or_were_counted(self):
        self.assert_offered(["quillon", "sheet", "--app", ""], ["geany", "org.gimp.GIMP"])
        self.assert_offered(["quillon", "practice", "--app", ""], ["geany", "org.gimp.GIMP"])
        self.assert_offered(["quillon", "stats", "--app", ""], ["geany", "org.kde.kate"])
        self.assert_offered(["quillon", "sheet", "--pid", ""], ["71", "72"])

    def test_nothing_is_offered_for_what_only_the_user_knows(self):
        for option in ("--query", "--practice", "--seed"):
            self.assert_offered(["quillon", "sheet", option, ""], [])


if __name__ == "__main__":
    unittest.main()
