#!/usr/bin/python3
"""The translations hold every sentence of the program, finished, with all its forms and places.

    translation_files_test.py ROOT LUPDATE

Looks for sentences as scripts/update-translations does, into files of its own.
"""

import pathlib
import re
import subprocess
import sys
import tempfile
import unittest
import xml.etree.ElementTree

ROOT, LUPDATE = pathlib.Path(sys.argv[1]), sys.argv[2]
LANGUAGES = ("de", "es", "fr")
FORMS = {"de": 2, "es": 2, "fr": 2}
PLACE = re.compile(r"%(?:\d+|n)")
PROGRAM = "Quillon"  # called so in every language
NO_WORDS = re.compile(r"^[\W\d_]*$")

# Where a literal may stand that nobody reads, or that is given to QCoreApplication::translate elsewhere.
SHOWN_BY = re.compile(
    r"\b(?:setText|setWindowTitle|setToolTip|setPlaceholderText|setAccessibleName|setAccessibleDescription|"
    r"addAction|addTab|setStatusTip|setTitle)\(\s*(?:u?\"(?P<a>[^\"]*)\"|QStringLiteral\(u?\"(?P<b>[^\"]*)\")")


class Message:
    def __init__(self, context, element):
        self.context = context
        self.source = element.findtext("source")
        self.comment = element.findtext("comment", "")
        translation = element.find("translation")
        self.state = translation.get("type", "finished")
        self.is_plural = element.get("numerus") == "yes"
        self.forms = ([form.text or "" for form in translation.findall("numerusform")] if self.is_plural
                      else [translation.text or ""])

    def key(self):
        return self.context, self.source, self.comment

    def __str__(self):
        return f"[{self.context}] {self.source!r}"


def messages_of(path):
    tree = xml.etree.ElementTree.parse(path)
    return [Message(context.findtext("name"), message)
            for context in tree.getroot().findall("context") for message in context.findall("message")]


def sentences_in_sources():
    with tempfile.TemporaryDirectory() as folder:
        found = pathlib.Path(folder, "found.ts")
        subprocess.run([LUPDATE, "-silent", "-locations", "none", "app", "-ts", found], cwd=ROOT, check=True,
                       stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        return {message.key(): message for message in messages_of(found)}


def places_of(text):
    return sorted(set(PLACE.findall(text)))


class TranslationFiles(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.sources = sentences_in_sources()
        cls.files = {language: messages_of(ROOT / f"app/languages/quillon_{language}.ts") for language in LANGUAGES}

    def each(self):
        return [(language, message) for language, messages in self.files.items() for message in messages]

    def test_sources_were_found(self):
        self.assertIn(("Tray", "Quit Quillon", ""), self.sources)
        self.assertIn(("Overlay", "clicked %1 times", ""), self.sources)
        self.assertTrue(self.sources["Overlay", "clicked %1 times", ""].is_plural)
        self.assertIn(("Doctor", "Session bus", ""), self.sources)
        self.assertTrue(any(context == "CommandLine" and source.startswith("Usage:")
                            for context, source, _ in self.sources))

    def test_no_sentence_is_missing_and_none_is_left_over(self):
        for language, messages in self.files.items():
            translated = {message.key() for message in messages}
            self.assertEqual(len(translated), len(messages), f"{language}: a sentence stands there twice")
            self.assertEqual(sorted(self.sources.keys() - translated), [], f"{language}: run scripts/update-translations")
            self.assertEqual(sorted(translated - self.sources.keys()), [], f"{language}: run scripts/update-translations")

    def test_everything_is_finished(self):
        for _, message in self.each():
            self.assertEqual(message.state, "finished", message)
            for form in message.forms:
                self.assertNotEqual(form.strip(), "", message)

    def test_plurals_have_all_their_forms(self):
        for language, message in self.each():
            self.assertEqual(message.is_plural, self.sources[message.key()].is_plural, message)
            if message.is_plural:
                self.assertEqual(len(message.forms), FORMS[language], message)

    def test_every_place_is_in_every_form(self):
        for _, message in self.each():
            for form in message.forms:
                self.assertEqual(places_of(form), places_of(message.source), f"{message} {form}")

    def test_what_is_quoted_or_typed_stays(self):
        for _, message in self.each():
            for word in re.findall(r"(?<![\w-])--[a-z]+|`[^`]+`|\bquillon (?:apps|sheet|show|doctor|quit|stats)\b",
                                   message.source):
                if word.startswith("`setxkbmap"):
                    continue
                for form in message.forms:
                    self.assertIn(word, form, message)

    def test_lines_and_ends_are_as_in_the_source(self):
        for _, message in self.each():
            for form in message.forms:
                self.assertEqual(form.endswith("\n"), message.source.endswith("\n"), f"{message} {form}")
                self.assertEqual(form.endswith("…"), message.source.endswith("…"), f"{message} {form}")
                self.assertEqual(form.endswith("."), message.source.endswith("."), f"{message} {form}")
                self.assertEqual(form.strip(" "), form, message)

    def test_quotes_are_those_of_the_language(self):
        strangers = {"de": "«»", "fr": "„“”\"", "es": "„“”\""}
        for language, message in self.each():
            if message.source.startswith("Usage:"):
                continue
            for form in message.forms:
                for quote in strangers[language]:
                    self.assertNotIn(quote, form, f"{language} {message}")

    def test_lines_of_help_fit_a_terminal(self):
        for _, message in self.each():
            if "\n" in message.source:
                for form in message.forms:
                    for line in form.split("\n"):
                        self.assertLessEqual(len(line), 80, line)

    def test_views_show_nothing_that_is_not_translated(self):
        """Literals with words in them, given straight to what shows text."""
        for path in sorted((ROOT / "app/views").rglob("*.cpp")):
            for match in SHOWN_BY.finditer(path.read_text(encoding="utf-8")):
                literal = match["a"] or match["b"] or ""
                if literal != PROGRAM:
                    self.assertRegex(literal, NO_WORDS, f"{path}: shown without a translation")


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
