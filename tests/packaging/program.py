"""What the built program says of itself."""

import os
import pathlib
import re
import subprocess

BUILD = pathlib.Path(os.environ["QUILLON_BUILD"])


def help_text():
    return subprocess.run([BUILD / "bin/quillon", "--help"], text=True, capture_output=True, check=True,
                          stdin=subprocess.DEVNULL, env=os.environ | {"QT_QPA_PLATFORM": "offscreen"}).stdout


def sections_of_help():
    """What the help tells below the name of each command."""
    block = help_text().split("Commands:\n")[1].split("\n\n")[0]
    return dict(re.findall(r"(?ms)^  (\w+) (.*?)(?=^  \S|\Z)", block))


def commands_of_help():
    """The name of each command, with the options that are explained below it."""
    return {name: re.findall(r"(?m)^ +(--[a-z]+)", section) for name, section in sections_of_help().items()}


def options_of_help():
    """Every option, of the program and of its commands."""
    return set(re.findall(r"--[a-z]+", help_text()))


def words_of_help():
    """The words that an option of a command takes, such as "text (default), json or markdown", by both names."""
    found = {}
    for command, section in sections_of_help().items():
        for option, told in re.findall(r"(?ms)^ +(--[a-z]+) +(?:FORMAT|KEYS) +(.*?)(?=^ +--|\Z)", section):
            if same := re.match(r"as for (\w+)", told):
                found[command, option] = found[same[1], option]
            else:
                told = re.sub(r" as they .*", "", told, flags=re.S)
                listed = re.match(r"\w+(?: \(default\))?(?:,? (?:or )?\w+)*", told)[0]
                found[command, option] = set(re.findall(r"\w+", listed)) - {"default", "or"}
    return found
