"""The server of one scenario, and what the scenario's tail can ask of it and of the host."""
import base64, collections.abc, datetime, itertools, json, pathlib, re, shlex, subprocess, xml.etree.ElementTree, zipfile
from dataclasses import dataclass

OUT_OF_REACH = "http://127.0.0.1:1"  # nothing listens there
BOUNDARY = "---------------------------998284F0-10C0-4D3B-8D1C-22EAA672A15D"
PROPERTIES = ["KRX_SYS_Server", "KRX_SYS_ProjectID", "KRX_SYS_DeliverableID", "KRX_SYS_ActivityID",
              "KRX_SYS_RelatedFileID", "KRX_SYS_GateDocumentID", "HALVEX_MSExcelReportID", "KRX_SYS_TemplateLibraryID"]
MARGIN = 0.3  # seconds left out at both ends of a delay when the processor's use is measured


class Failure(Exception):
    """A check that does not hold, in words."""


def require(holds, words):
    if not holds:
        raise Failure(words)


def equal(what, found, wanted):
    require(found == wanted, f"{what}: {found}\n  instead of: {wanted}")


class Server:
    """corvane-server on a data folder of its own, unless the scenario wants none."""

    def __init__(self, top, folder, scenario):
        self.program, self.folder, self.scenario = top / "build/native/sandbox/server/corvane-server", folder, scenario
        self.url, self.process, self.data = OUT_OF_REACH, None, folder / "data"

    def start(self):
        settings = self.scenario.one("server", "{}")
        if settings == "none":
            return
        self.data.mkdir()
        (self.data / "settings.json").write_text(settings, encoding="utf-8")
        (self.folder / "faults.json").write_text(self.scenario.one("faults"), encoding="utf-8")
        with open(self.folder / "server.txt", "wb") as errors:
            self.process = subprocess.Popen(
                [self.program, "--port", "0", "--data", self.data, "--log", self.folder / "requests.log", "--faults",
                 self.folder / "faults.json", "--user", self.scenario.one("user", "Dana Reyes")],
                stdout=subprocess.PIPE, stderr=errors)
        first = self.process.stdout.readline().decode().strip()
        require(first.startswith("listening on "), "the server did not start")
        self.url = first.removeprefix("listening on ")

    def stop(self):
        if self.process:
            self.process.terminate()
            self.process.communicate(timeout=20)
            self.process = None

    def requests(self):
        log = self.folder / "requests.log"
        entries = map(json.loads, log.read_text(encoding="utf-8").splitlines() if log.exists() else [])
        return [dict(entry, body=base64.b64decode(entry["body"])) for entry in entries]

    def versions(self):
        file = self.data / "versions.json"
        return json.loads(file.read_text(encoding="utf-8")) if file.exists() else []

    def told(self):
        printed = self.folder / "server.txt"
        return "\n".join([printed.read_text(errors="replace") if printed.exists() else ""] +
                         [f"{request['status']} {request_line(request)[:300]}" for request in self.requests()])


def request_line(request):
    """A request as scenarios write it: the method, the page with its query, the body of a form as it was sent."""
    line = request["method"] + " " + request["target"].removeprefix("/WebServices/")
    body = request["body"]
    if body.startswith(b"--"):
        body = b" ".join(split_upload(body)[0]) if split_upload(body) else b"an upload with a wrong boundary"
    return line + ("|" + body.decode(errors="replace") if body else "")


def split_upload(body):
    """The head's lines and the file of an upload; None where its boundaries are not as they have to be."""
    head, _, rest = body.partition(b"\r\n\r\n")
    first, *lines = head.split(b"\r\n")
    tail = f"\r\n--{BOUNDARY}--\r\n".encode()
    return (lines, rest[:-len(tail)]) if first == f"--{BOUNDARY}".encode() and rest.endswith(tail) else None


@dataclass
class Outcome:
    folder: pathlib.Path
    top: pathlib.Path
    server: Server
    traces: list
    processor: list
    traced: collections.abc.Iterator = None  # what the trace checks have not yet passed

    def requests_with(self, text):
        return [request for request in self.server.requests() if text in request_line(request)]

    def file(self, name):
        path = self.folder / name
        require(path.exists(), f"there is no file {name}")
        return path


def check(scenario, outcome):
    if scenario.requests:
        check_all_requests(scenario.requests, outcome)
    for word, rest in scenario.checks:
        require(word in CHECKS, f"no check is named {word}")
        CHECKS[word](outcome, rest.replace("${HOST}", outcome.server.url.partition("//")[2]))


def repeated(line):
    """The line once for every choice of its {a,b} parts."""
    parts = re.split(r"\{([^}]*)\}", line)
    choices = [part.split(",") if at % 2 else [part] for at, part in enumerate(parts)]
    return ["".join(choice) for choice in itertools.product(*choices)]


def check_all_requests(lines, outcome):
    wanted = [] if lines == ["nothing"] else [one for line in lines for one in repeated(line)]
    found = [request_line(request) for request in outcome.server.requests()]
    if wanted[:1] == ["..."]:
        wanted, found = wanted[1:], found[1 - len(wanted):]
    for number, (one, other) in enumerate(itertools.zip_longest(found, wanted), 1):
        equal(f"request {number}", one, other)


def check_requests(outcome, rest):
    number, text = rest.split(" ", 1)
    equal(f'requests with "{text}"', len(outcome.requests_with(text)), int(number))


def check_header(outcome, rest):
    text, header = rest.split(" ", 1)
    headers = [": ".join(pair) for pair in outcome.requests_with(text)[0]["headers"]]
    fits = str.startswith if header.endswith(":") else str.__eq__
    require(any(fits(one, header) for one in headers), f'no header "{header}" among {headers}')


def check_versions(outcome, rest):
    equal("versions", len(outcome.server.versions()), int(rest))


def check_version(outcome, rest):
    versions = outcome.server.versions()
    fitting = [version for version in versions if json.loads(rest).items() <= version.items()]
    require(len(fitting) == 1, f"{len(fitting)} versions fit {rest} among\n{json.dumps(versions, indent=1)}")


def sound_zip(path):
    require(zipfile.is_zipfile(path), f"{path.name} is no zip")
    archive = zipfile.ZipFile(path)
    require(archive.testzip() is None, f"{path.name} has a broken part {archive.testzip()}")
    return archive


def check_uploaded(outcome, rest):
    file = outcome.file(rest)
    stored = outcome.server.data / outcome.server.versions()[-1]["storedAs"]
    sent = split_upload(outcome.requests_with("POST UploadToTransfer.ashx")[-1]["body"])[1]
    require(sent == file.read_bytes(), "the bytes sent are not those of the file")
    require(sent == stored.read_bytes(), "the bytes recorded are not those sent")
    sound_zip(file)


def custom_properties(path):
    """Names to pairs of the value's type and text."""
    archive = sound_zip(path)
    if "docProps/custom.xml" not in archive.namelist():
        return {}
    root = xml.etree.ElementTree.fromstring(archive.read("docProps/custom.xml"))
    return {one.get("name"): (one[0].tag.partition("}")[2], one[0].text) for one in root}


def check_bound(outcome, rest):
    name, *ids = shlex.split(rest)
    wanted = [("lpwstr", outcome.server.url)] + [("i4", number) for number in ids]
    found = list(custom_properties(outcome.file(name)).items())
    equal("properties", found, list(zip(PROPERTIES, wanted, strict=True)))


def check_unbound(outcome, rest):
    equal("properties", custom_properties(outcome.file(rest)), {})


def check_ribbon(outcome, rest):
    told = subprocess.run([outcome.top / "tests/ribbon/check", rest, outcome.file("customUI.xml")],
                          capture_output=True, text=True, check=False)
    require(told.returncode == 0, "the ribbon is not sound:\n" + told.stderr)


def check_ribbon_texts(outcome, rest):
    elements = xml.etree.ElementTree.parse(outcome.file("customUI.xml")).iter()
    texts = [one.get(name, "").strip() for one in elements for name in ("label", "screentip", "supertip")]
    equal("texts of the ribbon", [text for text in texts if text], shlex.split(rest))


def check_trace(outcome, rest):
    equal("trace files", len(outcome.traces), 0 if rest == "none" else 1)
    if rest != "none":
        outcome.traced = outcome.traced or iter(outcome.traces[0].read_text(encoding="cp1252").splitlines())
        require(any(line.endswith("\t" + rest) for line in outcome.traced), f'no line "{rest}" in its turn in the trace')


def check_cpu_below(outcome, rest):
    percent, text = rest.split(" ", 1)
    delay = json.loads((outcome.folder / "faults.json").read_text())[0]["delayMs"] / 1000
    start = datetime.datetime.fromisoformat(outcome.requests_with(text)[0]["time"]).timestamp()
    notes = [note for note in outcome.processor if start + MARGIN <= note[0] <= start + delay - MARGIN]
    require(len(notes) > 1 and notes[-1][0] - notes[0][0] > delay / 2, "the delay was not measured")
    used = 100 * (notes[-1][1] - notes[0][1]) / (notes[-1][0] - notes[0][0])
    (outcome.folder / "cpu.txt").write_text(f"{used:.2f} % of a core\n")
    require(used < float(percent), f"the host used {used:.2f} % of a core")


CHECKS = {"requests": check_requests, "header": check_header, "versions": check_versions, "version": check_version,
          "uploaded": check_uploaded, "bound": check_bound, "unbound": check_unbound, "ribbon": check_ribbon,
          "ribbon-texts": check_ribbon_texts, "trace": check_trace, "cpu-below": check_cpu_below}
