#!/usr/bin/python3
"""The program speaks the language of its session, on the command line too, and English word for word otherwise."""

import os
import subprocess
import unittest

QUILLON = os.environ["QUILLON"]
VARIABLES = ("LANGUAGE", "LC_ALL", "LC_MESSAGES", "LANG")


def said(*arguments, **locale):
    """What the program prints, results and messages together."""
    environment = {name: value for name, value in os.environ.items() if name not in VARIABLES}
    run = subprocess.run([QUILLON, *arguments], env=environment | locale, stdout=subprocess.PIPE,
                         stderr=subprocess.STDOUT, timeout=60, check=False)
    return run.stdout.decode()


class ProgramLanguage(unittest.TestCase):
    def test_errors(self):
        self.assertEqual(said("dance", LC_ALL="C"), "quillon: unknown command 'dance'; see quillon --help\n")
        self.assertEqual(said("dance", LANG="en_GB.UTF-8"), said("dance", LC_ALL="C"))
        self.assertEqual(said("dance", LANG="de_AT.UTF-8"), "quillon: unbekannter Befehl „dance“; siehe quillon --help\n")
        self.assertIn("commande inconnue", said("dance", LC_MESSAGES="fr_FR.UTF-8"))
        self.assertIn("orden desconocida", said("dance", LC_ALL="es_MX.UTF-8", LANG="de_DE.UTF-8"))

    def test_help(self):
        english = said("--help", LC_ALL="C.UTF-8")
        self.assertTrue(english.startswith("Usage: quillon [--verbose] [COMMAND]\n"))
        german = said("--help", LC_ALL="de_DE.UTF-8")
        self.assertNotEqual(german, english)
        self.assertIn("--keys", german)

    def test_language_variable(self):
        self.assertIn("unbekannter Befehl", said("dance", LANGUAGE="sv:de", LANG="sv_SE.UTF-8"))
        self.assertIn("unknown command", said("dance", LANGUAGE="de", LC_ALL="C"))
        self.assertIn("unknown command", said("dance", LANGUAGE="en:de", LANG="de_DE.UTF-8"))
        self.assertIn("unknown command", said("dance", LANG="sv_SE.UTF-8"))

    def test_doctor(self):
        self.assertIn("Bus der Barrierefreiheit", said("doctor", LANG="de_DE.UTF-8"))
        self.assertIn("Accessibility bus", said("doctor", LANG="C.UTF-8"))

    def test_what_programs_read_stays(self):
        self.assertEqual(said("--version", LANG="de_DE.UTF-8"), said("--version", LANG="C"))
        with_json = ("stats", "--format", "json")
        self.assertEqual(said(*with_json, LANG="de_DE.UTF-8").splitlines()[-1],
                         said(*with_json, LANG="C.UTF-8").splitlines()[-1])


if __name__ == "__main__":
    unittest.main()
