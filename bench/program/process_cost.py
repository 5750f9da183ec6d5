"""What a running process costs, as the kernel counts it."""

import os
import pathlib
import re


def wakeups(pid):
    """The voluntary context switches so far, by thread."""
    return {
        task.name: int(re.search(r"^voluntary_ctxt_switches:\s+(\d+)", (task / "status").read_text(), re.M)[1])
        for task in pathlib.Path(f"/proc/{pid}/task").iterdir()}


def wakeups_since(pid, before):
    """Those since; of threads that ended meanwhile, none."""
    return sum(count - before.get(thread, 0) for thread, count in wakeups(pid).items())


def processor_seconds(pid):
    fields = pathlib.Path(f"/proc/{pid}/stat").read_text().rsplit(")", 1)[1].split()
    return (int(fields[11]) + int(fields[12])) / os.sysconf("SC_CLK_TCK")


def mebibytes(pid, field):
    text = pathlib.Path(f"/proc/{pid}/smaps_rollup").read_text()
    return sum(int(n) for n in re.findall(rf"^{field}:\s+(\d+)", text, re.M)) / 1024


def resident(pid):
    """All of its memory, in MiB."""
    return mebibytes(pid, "Rss")


def written(pid):
    """What it has written itself, in MiB: what can grow. Pages of its file come and go with other processes."""
    return mebibytes(pid, "Private_Dirty")


def own(pid):
    """What it shares with no other program, in MiB."""
    return mebibytes(pid, "Private_Clean") + mebibytes(pid, "Private_Dirty")
