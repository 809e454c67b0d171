"""A Wine of its own with a display of its own, both kept up, which makes each program start fast, and a server beside it."""
import fcntl, json, os, pathlib, subprocess

TOP = pathlib.Path(__file__).resolve().parents[1]


def windows_path(path):
    return "Z:" + str(path).replace("/", "\\")


class Desk:
    """Holds the Wine build/wine/NAME until it is closed; another run waits for it."""

    def __init__(self, arch, name, fresh=False):
        self.arch, self.path = arch, TOP / "build/wine" / name
        self.path.mkdir(parents=True, exist_ok=True)
        self.lock = open(self.path / "desk.lock", "w", encoding="utf-8")
        fcntl.flock(self.lock, fcntl.LOCK_EX)
        path = subprocess.run([TOP / "tools/wine-path", arch], stdout=subprocess.PIPE, text=True, check=True).stdout
        reading, writing = os.pipe()
        self.screen = subprocess.Popen(["Xvfb", "-displayfd", str(writing), "-screen", "0", "1400x1050x24",
                                        "-nolisten", "tcp"], pass_fds=[writing], stderr=subprocess.DEVNULL)
        os.close(writing)
        with os.fdopen(reading) as answer:
            display = ":" + answer.readline().strip()
        self.environment = dict(os.environ, CORVANE_WINEPREFIX=str(self.path), WINEPREFIX=str(self.path), DISPLAY=display,
                                WINEDEBUG="-all", WINEDLLOVERRIDES="mscoree,mshtml=;winedbg.exe,winemenubuilder.exe=d", LC_ALL="C.UTF-8",
                                PATH=path.strip(), WINEARCH="win64")
        self.renew() if fresh else self.prepare()

    def prepare(self):
        """Makes the Wine ready, as every script does that uses one."""
        subprocess.run(["bash", "-euc", 'top=$0 arch=$1 dpi=96; . "$top/sandbox/wine-session.sh"', TOP, self.arch],
                       env=self.environment, check=True)

    def renew(self):
        """Makes the Wine anew, whatever a program that was killed left in it."""
        self.stop()
        (self.path / "prepared").unlink(missing_ok=True)
        self.prepare()

    def wine(self, *command):
        subprocess.run(command, env=self.environment, check=False, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)

    def stop(self):
        self.wine("wineserver", "-k")
        self.wine("wineserver", "-w")

    def close(self):
        self.stop()
        self.screen.terminate()
        self.screen.wait()
        self.lock.close()


class Server:
    """corvane-server with these faults, on data of its own below a folder."""

    def __init__(self, folder, faults=()):
        (folder / "data").mkdir()
        (folder / "faults.json").write_text(json.dumps(list(faults)), encoding="utf-8")
        self.data = folder / "data"
        self.process = subprocess.Popen([TOP / "build/native/sandbox/server/corvane-server", "--data", self.data,
                                         "--log", folder / "requests.log", "--faults", folder / "faults.json"],
                                        stdout=subprocess.PIPE, text=True)
        self.url = self.process.stdout.readline().split()[-1]

    def versions(self):
        file = self.data / "versions.json"
        return json.loads(file.read_text(encoding="utf-8")) if file.exists() else []

    def stop(self):
        self.process.terminate()
        self.process.communicate(timeout=20)
