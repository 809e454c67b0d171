"""A fresh Wine with nothing of the add-in in it, and what its registry and its disk hold."""
import pathlib, re, subprocess, sys

sys.path.append(str(pathlib.Path(__file__).resolve().parents[2] / "sandbox"))
from desk import TOP, Desk, windows_path

PATIENCE = 120  # seconds for one program


class Failure(Exception):
    """What does not hold, in words."""


def require(holds, words):
    if not holds:
        raise Failure(words)


def equal(what, found, wanted):
    require(found == wanted, f"{what}: {found}\n  instead of: {wanted}")


def values_of(export):
    """Every value of an exported registry as key, name and data."""
    values, key = set(), ""
    for line in re.sub(r"\\\r?\n +", "", export).splitlines():
        if line.startswith("["):
            key = line.strip("[]")
        elif match := re.match(r'(@|"(?:[^"\\]|\\.)*")=(.*)', line):
            values.add((key, match[1].strip('"').replace("\\\\", "\\"), match[2]))
    return values


class Prefix(Desk):
    def __init__(self, arch):
        super().__init__(arch, f"package-{arch}", fresh=True)

    def run(self, *command):
        """The exit status of a Windows program and what it printed."""
        done = subprocess.run([str(TOP / "sandbox/wine"), self.arch, *map(str, command)], env=self.environment,
                              stdin=subprocess.DEVNULL, stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True,
                              timeout=PATIENCE, errors="replace", check=False)
        return done.returncode, done.stdout

    def msiexec(self, action, package, *properties):
        return self.run("msiexec", action, windows_path(package), "/qn", *properties)[0]

    def values(self, hive):
        """All of the Software key of HKEY_CURRENT_USER or HKEY_LOCAL_MACHINE."""
        file = self.path / "export.reg"
        self.run("regedit", "/E", windows_path(file), hive + "\\Software")
        values = values_of(file.read_text(encoding="utf-16"))
        file.unlink()
        return values

    def write(self, changes):
        """Writes "KEY|NAME|DATA" lines, the data as in registry files; a line "-KEY" removes a key."""
        if not changes:
            return
        lines = ["Windows Registry Editor Version 5.00"]
        for change in changes:
            key, _, value = change.partition("|")
            name, _, data = value.partition("|")
            lines += [f"[{key}]"] + ([('@' if name == "" else f'"{name}"') + f"={data}"] if value else [])
        file = self.path / "import.reg"
        file.write_text("\r\n".join(lines) + "\r\n", encoding="utf-16")
        self.run("regedit", "/S", windows_path(file))
        file.unlink()

    def files(self):
        """The files on drive C but for temporary ones, what Windows keeps of web pages, and the user's documents."""
        drive = self.path / "drive_c"
        return {str(file.relative_to(drive)) for file in drive.rglob("*")
                if not file.is_dir() and not {"Temp", "INetCache", "INetCookies", "Documents"} & set(file.parts)}

    def unix_path(self, path):
        """Where a path on drive C lies on this machine."""
        return self.path / "drive_c" / path.removeprefix("C:\\").replace("\\", "/")
