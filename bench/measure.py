"""Runs the benchmarks in turn with their baselines, prints the table and writes build/bench.json, or
build/bench/some.json for single rows. Started by bench/run, which provides Wine and a display."""
import base64, contextlib, json, os, pathlib, re, shutil, signal, statistics, subprocess, sys, time

sys.dont_write_bytecode = True
TOP = pathlib.Path(__file__).resolve().parents[1]
X64 = TOP / "build/x64"
HERE = TOP / "build/bench"
LIBRARY = "CorvaneMSOfficePowerPoint.dll"
MIB = 1024 * 1024
ROUNDS = 9
PATIENCE = 600  # seconds for one program


def windows(path):
    return "Z:" + str(path).replace("/", "\\")


class Figures:
    """What was measured of one thing, in the order in which it was measured."""

    def __init__(self, values):
        self.values = sorted(values)

    @property
    def median(self):
        return statistics.median(self.values)

    @property
    def smallest(self):
        return self.values[0]

    @property
    def spread(self):
        return self.values[-1] - self.values[0]


class Table:
    """The rows, as they are printed and as they are written."""

    def __init__(self):
        self.rows = []
        heads = f"{'smallest':>10}{'median':>9}{'spread':>9}"
        print(f"{'':40}{heads}{'baseline':>11}{'median':>9}{'spread':>9}{'result':>9}   reach")

    def compare(self, name, unit, own, baseline, by, reach):
        """by: 'ratio' of the smallest, or their 'difference'. What else a machine does only ever adds."""
        own, baseline = Figures(own), Figures(baseline)
        result = own.smallest / baseline.smallest if by == "ratio" else own.smallest - baseline.smallest
        self.add(name, unit, own, baseline, result, by, reach)

    def single(self, name, unit, values, reach):
        figures = Figures(values)
        self.add(name, unit, figures, None, figures.smallest, "value", reach)

    def add(self, name, unit, own, baseline, result, by, reach):
        met = reach is None or result <= reach
        self.rows.append({"name": name, "unit": unit, "values": own.values, "baseline": baseline and baseline.values,
                          "by": by, "result": result, "reach": reach, "met": met})
        mark = {"ratio": "x", "difference": " " + unit, "value": " " + unit}[by]

        def shown(figures, width):
            return f"{figures.smallest:{width}.2f}{figures.median:9.2f}{figures.spread:9.2f}" if figures else " " * 29
        limit = "" if reach is None else f"{reach:.4g}{mark} {'met' if met else 'NOT MET'}"
        print(f"{name + ', ' + unit:40}{shown(own, 10)}{shown(baseline, 11)}{result:8.2f}{mark[:1].strip() or ' '}   {limit}",
              flush=True)


class Server:
    """The stand-in server with a folder, settings and faults of its own, for as long as the block runs."""

    def __init__(self, name, faults=(), logged=False):
        self.folder = HERE / name
        shutil.rmtree(self.folder, ignore_errors=True)
        self.folder.mkdir(parents=True)
        (self.folder / "settings.json").write_text(json.dumps({"MaxFileUploadSize": 2**31 - 1}))
        (self.folder / "faults.json").write_text(json.dumps(list(faults)))
        self.log = self.folder / "requests.log"
        self.words = ["--data", self.folder, "--faults", self.folder / "faults.json"]
        if logged:
            self.words += ["--log", self.log]

    def __enter__(self):
        program = TOP / "build/native/sandbox/server/corvane-server"
        self.process = subprocess.Popen([program, *self.words], stdout=subprocess.PIPE, text=True)
        self.url = self.process.stdout.readline().split()[-1]
        return self

    def __exit__(self, *_):
        self.process.send_signal(signal.SIGTERM)
        self.process.wait()

    def forget_uploads(self):
        for file in (self.folder / "transfer").glob("*"):
            file.unlink()


def bench(*words, debug="-all"):
    """Runs one benchmark; gives its figures by name, each a list."""
    done = subprocess.run(["wine", X64 / "bench/corvane-bench.exe", *map(str, words)], capture_output=True, text=True,
                          timeout=PATIENCE, env=dict(os.environ, WINEDEBUG=debug), errors="replace")
    if done.returncode != 0:
        raise RuntimeError(f"{' '.join(map(str, words))}: status {done.returncode}\n{done.stdout}{done.stderr[-500:]}")
    figures = {}
    for name, value in re.findall(r"^([\w-]+) (-?[\d.]+)\s*$", done.stdout, re.M):
        figures.setdefault(name, []).append(float(value))
    figures["trace"] = done.stderr
    return figures


def alternately(*actions):
    """Runs the actions in turn, each round beginning with another; gives each one's results."""
    results = [[] for _ in actions]
    for turn in range(ROUNDS):
        for step in range(len(actions)):
            index = (turn + step) % len(actions)
            results[index].append(actions[index]())
    return results


def figures(results, name):
    return [result[name][0] for result in results]


class OneProcessor(contextlib.ContextDecorator):
    """What is started meanwhile has one processor, Wine's server too. Between two processors of a virtual machine a
    call of that server costs several times as much, and which of both it gets is chance."""

    def __enter__(self):
        self.all = os.sched_getaffinity(0)
        self.start({min(self.all)})

    def __exit__(self, *_):
        self.start(self.all)

    def start(self, processors):
        for order in ("-k", "-w"):
            subprocess.run(["wineserver", order], stderr=subprocess.DEVNULL)
        os.sched_setaffinity(0, processors)


def make_file(path, size):
    if not path.exists() or path.stat().st_size != size:
        with path.open("wb") as file:
            for _ in range(size // MIB):
                file.write(os.urandom(MIB))
    path.read_bytes()  # from now on it comes from memory, for everybody


def upload(table):
    smallest = {}
    for size in (10, 100, 500):
        path = HERE / f"{size}.bin"
        make_file(path, size * MIB)
        with Server("upload") as server:
            def send(kind):
                server.forget_uploads()
                return bench("upload", kind, server.url, windows(path))
            own, bare = alternately(lambda: send("add-in"), lambda: send("bare"))
        path.unlink()
        shutil.rmtree(HERE / "upload")
        table.compare(f"upload {size} MiB", "ms", figures(own, "time"), figures(bare, "time"), "ratio", 1.05)
        table.single(f"upload {size} MiB, its question", "ms", figures(bare, "question"), None)
        table.compare(f"upload {size} MiB, memory", "MiB", figures(own, "memory"), figures(bare, "memory"), "ratio", 1.1)
        smallest[size] = Figures(figures(own, "time")).smallest
    table.single("upload, 500 MiB for each MiB of 100", "x", [smallest[500] / 5 / smallest[100]], None)


PARSER_MORE = 20  # ms that the longest gap of a large tree may last beyond the parser's one call


@OneProcessor()
def tree(table):
    smallest = {}
    for nodes in (10000, 40000):
        own, bare, beaten = alternately(lambda: bench("tree", "add-in", nodes), lambda: bench("tree", "bare", nodes),
                                        lambda: bench("tree", "gap", nodes))
        table.compare(f"tree of {nodes} nodes", "ms", figures(own, "time"), figures(bare, "time"), "ratio", 1.3)
        table.compare(f"tree of {nodes} nodes, parsing", "ms", figures(own, "parse"), figures(bare, "parse"), "ratio",
                      None)
        parser = Figures(figures(own, "parse")).smallest
        table.single(f"tree of {nodes} nodes, longest gap", "ms", figures(beaten, "gap"),
                     50 if nodes == 10000 else parser + PARSER_MORE)
        smallest[nodes] = Figures(figures(own, "time")).smallest
    table.single("tree, 40000 nodes for each node of 10000", "x", [smallest[40000] / 4 / smallest[10000]], None)


def install():
    folder = HERE / "installed"
    folder.mkdir(parents=True, exist_ok=True)
    shutil.copy(X64 / "src" / LIBRARY, folder)
    (folder / "settings.config").write_text(
        '<settings><setting name="EnableTraceLogs" value="false"/></settings>')
    return folder / LIBRARY


def files_opened(trace):
    """The files that are opened between the marks of a trace of the file channel, the system's own left out."""
    between = trace.partition("bench-begins")[2].partition("bench-ends")[0]
    names = {name.replace("\\\\", "\\") for name in re.findall(r'CreateFile\w* .*?L"([^"]*)"', between)}
    return sorted(name for name in names if "bench-" not in name and not re.search(r"\\windows\\", name, re.I))


def load(table):
    library = windows(install())
    own, bare = alternately(lambda: bench("load", library),
                            lambda: bench("load", windows(X64 / "bench/nothing-addin.dll")))
    table.compare("load, more than an add-in that does nothing", "ms", figures(own, "time"), figures(bare, "time"),
                  "difference", 15)
    trace = bench("load", library, debug="+file,+winsock,+wininet")["trace"]
    between = trace.partition("bench-begins")[2].partition("bench-ends")[0]
    if not between:
        raise RuntimeError("the trace of the load has no marks")
    print("  files opened:", *files_opened(trace))
    sockets = len(re.findall(r"trace:(winsock|wininet):(?!DllMain)", between))
    print("  calls of the network:", sockets)
    table.single("load, calls of the network", "calls", [sockets], 0)


def trace(table):
    result = bench("trace")
    table.compare("trace scope while off, more than none", "ns", result["add-in"], result["bare"], "difference", 20)


def wait(table):
    with Server("wait", [{"match": "Op=GetUserID", "delayMs": 5000}]) as server:
        own, idle = alternately(lambda: bench("wait", "add-in", server.url), lambda: bench("wait", "idle", server.url))

    def percent(results):
        return [100 * result["processor"][0] / result["time"][0] for result in results]
    table.compare("waiting 5 s, more than an idle loop", "%", percent(own), percent(idle), "difference", 1)


def encode(table):
    result = bench("encode")
    table.compare("encoding of 1 MiB", "ms", result["add-in"], result["bare"], "ratio", 1.5)


PAUSE = 1000  # ms that the dialog shows "Save Complete"
SENT_BY_ITSELF = {"host", "content-length", "connection", "user-agent", "accept", "accept-encoding", "accept-language",
                  "cache-control", "pragma"}


def write_requests(log, folder):
    shutil.rmtree(folder, ignore_errors=True)
    folder.mkdir()
    for number, request in enumerate(map(json.loads, log.read_text(encoding="utf-8").splitlines()), 1):
        head = [f"{request['method']} {request['target']}"]
        head += [f"{name}: {value}" for name, value in request["headers"] if name.lower() not in SENT_BY_ITSELF]
        (folder / str(number)).write_bytes("\n".join(head + ["", ""]).encode("latin-1") + base64.b64decode(request["body"]))


@OneProcessor()
def save(table):
    library = windows(install())
    document, requests = HERE / "bound.pptx", HERE / "requests"
    with Server("recorded", logged=True) as server:
        bench("save", library, server.url, windows(document))
        write_requests(server.log, requests)
    for name, faults, by, reach in (("bound save, more than its requests", [], "difference", 100),
                                    ("bound save at 50 ms a request", [{"delayMs": 50}], "ratio", 1.1)):
        with Server("save", faults) as server:
            own, bare = alternately(lambda: bench("save", library, server.url, windows(document)),
                                    lambda: bench("replay", server.url, windows(requests)))
        table.compare(name, "ms", [value - PAUSE for value in figures(own, "time")], figures(bare, "time"), by, reach)
    print("  requests of a save:", int(bare[0]["requests"][0]))


def size(table):
    for arch in ("x64", "x86"):
        path = TOP / "build" / arch / "src" / LIBRARY
        if path.exists():
            table.single(f"library, {arch}", "KiB", [path.stat().st_size / 1024], 1536)


ROWS = (encode, trace, load, tree, save, wait, upload, size)


def main():
    chosen = set(sys.argv[1:]) or {row.__name__ for row in ROWS}
    HERE.mkdir(parents=True, exist_ok=True)
    begin, load_before = time.time(), os.getloadavg()
    table = Table()
    failed = []
    for row in (row for row in ROWS if row.__name__ in chosen):
        try:
            row(table)
        except (OSError, RuntimeError, subprocess.SubprocessError) as problem:
            failed.append(row.__name__)
            print(f"{row.__name__}: NOT MEASURED: {problem}", flush=True)
    conditions = {"processors": os.cpu_count(), "load before": load_before, "load after": os.getloadavg(),
                  "seconds": round(time.time() - begin), "not measured": failed}
    print("conditions:", ", ".join(f"{name} {value}" for name, value in conditions.items()))
    written = HERE / "some.json" if sys.argv[1:] else TOP / "build/bench.json"
    written.write_text(json.dumps({"conditions": conditions, "rows": table.rows}, indent=1) + "\n")
    sys.exit(1 if failed else 0)


main()
