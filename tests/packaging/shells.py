"""Asks the shells what they offer for a command line that someone begins."""

import os
import pathlib
import pty
import select
import subprocess
import tempfile
import time

COMPLETIONS = pathlib.Path(__file__).resolve().parents[2] / "packaging/completions"
PROMPT = b"ready>"
ANSWER_WITHIN = 20.0  # seconds

# A program that stands for the real one, in the words of all three shells.
APPS = ("71 geany Geany gtk", "72 org.gimp.GIMP GIMP gtk")
COUNTED = '[{"bundleID":"geany"},{"bundleID":"org.kde.kate"}]'
POSIX_PROGRAM = f"""quillon() {{
    case $* in
        apps) printf '%s\\n' {" ".join(f"'{line}'" for line in APPS)} ;;
        'stats --format json') printf '%s\\n' '{COUNTED}' ;;
    esac
}}
"""
FISH_PROGRAM = f"""function quillon
    switch "$argv"
        case apps
            printf '%s\\n' {" ".join(f"'{line}'" for line in APPS)}
        case 'stats --format json'
            printf '%s\\n' '{COUNTED}'
    end
end
"""

# What zsh finds out about its own completions once.
ZSH_CACHE = tempfile.TemporaryDirectory()

# Completion functions hand every candidate to `compadd`: what of it fits is written down.
ZSH_SETUP = f"""
PS1='{PROMPT.decode()}'
fpath=({COMPLETIONS} $fpath)
autoload -U compinit && compinit -u -C -d {ZSH_CACHE.name}/dump
{POSIX_PROGRAM}
compadd() {{
    if [[ ${{@[1,(i)(-|--)]}} != *-(O|A|D)\\ * ]]; then
        local -a fitting
        builtin compadd -A fitting "$@"
        print -rl -- $fitting >>$ANSWER
    fi
    builtin compadd "$@"
}}
leave() {{ exit }}
zle -N leave
bindkey '^I' complete-word '^X' leave
"""


def bash(*words):
    line = f"""source "{COMPLETIONS}/quillon"
        {POSIX_PROGRAM}
        COMP_WORDS=({" ".join(f"'{word}'" for word in words)})
        COMP_CWORD={len(words) - 1}
        _quillon && printf '%s\\n' "${{COMPREPLY[@]}}\""""
    return asked("bash", "--norc", "-c", line)


def fish(*words):
    with tempfile.TemporaryDirectory() as home:
        lines = asked("fish", "--no-config", "-c",
                      f"source '{COMPLETIONS}/quillon.fish'\n{FISH_PROGRAM}\ncomplete -C '{' '.join(words)}'",
                      environment={"HOME": home, "XDG_CONFIG_HOME": home, "XDG_DATA_HOME": home}, by_line=True)
    return [line.split("\t")[0] for line in lines]


def zsh(*words):
    with tempfile.TemporaryDirectory() as folder:
        answer = pathlib.Path(folder, "answer")
        answer.touch()
        pathlib.Path(folder, ".zshrc").write_text(ZSH_SETUP)
        type_into_terminal(["zsh", "-d", "-i"],
                           os.environ | {"ZDOTDIR": folder, "ANSWER": str(answer), "TERM": "dumb"},
                           " ".join(words).encode() + b"\t\x18")
        return sorted(set(answer.read_text().split()))


def asked(*command, environment=None, by_line=False):
    result = subprocess.run(command, text=True, capture_output=True, check=False, stdin=subprocess.DEVNULL,
                            env=os.environ | (environment or {}))
    assert result.stderr == "", result.stderr
    return result.stdout.splitlines() if by_line else result.stdout.split()


def type_into_terminal(command, environment, keys):
    """Runs a shell in a terminal of its own and types when it asks for it. The keys have to end the shell."""
    child, terminal = pty.fork()
    if child == 0:
        os.execvpe(command[0], command, environment)
    deadline = time.monotonic() + ANSWER_WITHIN
    shown, typed = b"", False
    while time.monotonic() < deadline:
        if not select.select([terminal], [], [], 0.1)[0]:
            continue
        try:
            shown += os.read(terminal, 4096)
        except OSError:  # the shell has gone
            break
        if PROMPT in shown and not typed:
            os.write(terminal, keys)
            typed = True
    else:
        os.kill(child, 9)
        raise AssertionError(f"{command[0]} did not end; it showed {shown!r}")
    os.close(terminal)
    os.waitpid(child, 0)


SHELLS = {"bash": bash, "zsh": zsh, "fish": fish}
