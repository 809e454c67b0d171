"""Reads the streams of a compiled help file through chmls."""

import pathlib
import struct
import subprocess
import tempfile


def run(*command, folder="."):
    """What the command prints. Ends the program with the command's own words when it fails."""
    done = subprocess.run(command, cwd=folder, stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True)
    if done.returncode != 0:
        raise SystemExit(f"{' '.join(command)} failed with {done.returncode}:\n{done.stdout}")
    return done.stdout


def entries(chm):
    """Name of each stream: its section (0 is stored as it is), offset and length."""
    rows = (line.split(maxsplit=3) for line in run("chmls", "--no-page", "list", str(chm)).splitlines())
    return {row[3]: tuple(map(int, row[:3])) for row in rows if len(row) == 4 and row[0].isdigit()}


def stream(chm, name):
    with tempfile.TemporaryDirectory() as folder:
        target = pathlib.Path(folder, "stream")
        run("chmls", "extract", str(chm), name, str(target))
        return target.read_bytes()


def contexts(chm):
    """Context id: the page that the viewer opens for it, as the file names it."""
    strings = stream(chm, "/#STRINGS")
    pairs = struct.iter_unpack("<II", stream(chm, "/#IVB")[4:])
    return {number: strings[at:strings.index(b"\0", at)].decode() for number, at in pairs}
