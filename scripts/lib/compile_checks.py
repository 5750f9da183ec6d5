#!/usr/bin/python3
"""Checks that need to compile: of headers by themselves, and clang-tidy's.

    compile_checks.py headers|tidy ROOT BUILD     the sources' names, one per line, on standard input

Prints the findings and ends with status 1 when there are any. What clang-tidy found clean is remembered in
BUILD/lint, and looked at again only when it, a header that it includes or the rules changed.
"""

import concurrent.futures
import hashlib
import json
import os
import pathlib
import re
import shlex
import subprocess
import sys

TIDIED_FOLDERS = ("kit/", "app/")
BUILT_FOLDERS = (*TIDIED_FOLDERS, "tests/")  # by the development preset
FINDING = re.compile(r"^(?P<where>[^\s:]+:\d+:\d+): (?P<what>(?:warning|error): .*)$", re.MULTILINE)


class Project:
    def __init__(self, root, build, names):
        self.root, self.build, self.names = pathlib.Path(root).resolve(), pathlib.Path(build).resolve(), names
        database = json.loads((self.build / "compile_commands.json").read_text())
        self.commands = {os.path.relpath(entry["file"], self.root): shlex.split(entry["command"])
                         for entry in database}

    def flags_of(self, source):
        """The compiler and its flags without input, output and precompiled headers."""
        words = iter(self.commands[source][:])
        flags = []
        for word in words:
            if word in ("-o", "-c", "-include"):
                next(words)
            else:
                flags.append(word)
        return flags


def in_parallel(check, items):
    with concurrent.futures.ThreadPoolExecutor(os.cpu_count()) as pool:
        return sorted({finding for findings in pool.map(check, items) for finding in findings})


def findings_in(output, project):
    return [f"{os.path.relpath(match['where'], project.root)}: {match['what']}"
            for match in FINDING.finditer(output)]


# --- Headers ------------------------------------------------------------------------------------------------


def headers(project):
    """The headers that no source of the same name includes first: those compile alone already."""
    lonely = [name for name in project.names
              if name.endswith(".h") and name.startswith(BUILT_FOLDERS)
              and name[:-2] + ".cpp" not in project.commands]
    return in_parallel(lambda header: compile_alone(project, header), lonely)


def compile_alone(project, header):
    neighbour = neighbour_of(project, header)
    if neighbour is None:
        return [f"{header}:1:1: error: nothing that is built can include this header"]
    command = [*project.flags_of(neighbour), "-fsyntax-only", "-x", "c++", "-"]
    result = subprocess.run(command, input=f'#include "{project.root / header}"\n', text=True, cwd=project.build,
                            capture_output=True, check=False)
    if result.returncode == 0:
        return []
    return findings_in(result.stderr, project) or [f"{header}:1:1: error: {result.stderr.strip()}"]


def neighbour_of(project, header):
    """A source that is compiled with the header's include paths: of its folder, else of one that links it."""
    folder = os.path.dirname(header)
    same = [source for source in project.commands if os.path.dirname(source) == folder]
    paths = module_paths(project, folder)
    using = [source for source, command in project.commands.items() if paths <= set(command)]
    return next(iter(same + using), None)


def module_paths(project, folder):
    """The -I of a module that has no sources itself."""
    return {f"-I{project.build / 'include' / ('quillon_' + folder.replace('/', '_'))}"}


# --- clang-tidy ----------------------------------------------------------------------------------------------


def tidy(project):
    sources = [name for name in project.names if name in project.commands and name.startswith(TIDIED_FOLDERS)]
    includes = included_files(project)
    return in_parallel(lambda source: tidy_source(project, source, includes.get(source, [])), sources)


def tidy_source(project, source, includes):
    stamp = project.build / "lint" / (source.replace("/", "__") + ".clean")
    state = state_of(project, source, includes)
    if stamp.exists() and stamp.read_text() == state:
        return []
    # The compile commands are g++'s, whose warnings clang need not know.
    command = ["clang-tidy", "-p", str(project.build), "--quiet", "--extra-arg=-Wno-unknown-warning-option", source]
    result = subprocess.run(command, text=True, cwd=project.root, capture_output=True, check=False)
    findings = findings_in(result.stdout + result.stderr, project)
    if result.returncode == 0 and not findings:
        stamp.parent.mkdir(exist_ok=True)
        stamp.write_text(state)
        return []
    return findings or [f"{source}:1:1: error: clang-tidy failed: {result.stderr.strip()[-300:]}"]


def state_of(project, source, includes):
    digest = hashlib.sha256(" ".join(project.commands[source]).encode())
    for name in (".clang-tidy", source, *sorted(includes)):
        digest.update((project.root / name).read_bytes())
    return digest.hexdigest()


def included_files(project):
    """The project's own files that each source included when it was last built."""
    output = subprocess.run(["ninja", "-t", "deps"], cwd=project.build, text=True, capture_output=True,
                            check=True).stdout
    included = {}
    for block in output.split("\n\n"):
        files = [os.path.relpath(os.path.realpath(project.build / line.strip()), project.root)
                 for line in block.splitlines()[1:]]
        own = [name for name in files if name in project.names]
        for name in own[:1]:
            included[name] = own[1:]
    return included


def main():
    check, root, build = sys.argv[1:]
    project = Project(root, build, sys.stdin.read().splitlines())
    findings = {"headers": headers, "tidy": tidy}[check](project)
    print(*findings, sep="\n", end="\n" if findings else "")
    return 1 if findings else 0


if __name__ == "__main__":
    sys.exit(main())
