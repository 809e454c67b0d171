"""What a scenario's tail can ask for, once the host has ended."""
import datetime, itertools, json, pathlib, re, shlex, subprocess, xml.etree.ElementTree, zipfile
from dataclasses import dataclass

from server import Server, request_line, split_upload

PROPERTIES = ["KRX_SYS_Server", "KRX_SYS_ProjectID", "KRX_SYS_DeliverableID", "KRX_SYS_ActivityID",
              "KRX_SYS_RelatedFileID", "KRX_SYS_GateDocumentID", "HALVEX_MSExcelReportID", "KRX_SYS_TemplateLibraryID"]
MARGIN = 0.3  # seconds left out at both ends of a delay when the processor's use is measured


class Failure(Exception):
    """A check that does not hold, in words."""


@dataclass
class Outcome:
    folder: pathlib.Path
    top: pathlib.Path
    server: Server
    traces: list
    processor: list

    def requests_with(self, text):
        return [request for request in self.server.requests() if text in request_line(request)]

    def file(self, name):
        path = self.folder / name
        require(path.exists(), f"there is no file {name}")
        return path


def require(holds, words):
    if not holds:
        raise Failure(words)


def equal(what, found, wanted):
    require(found == wanted, f"{what}: {found}\n  instead of: {wanted}")


def check(scenario, outcome):
    if scenario.requests:
        check_all_requests(scenario.requests, outcome)
    for word, rest in scenario.checks:
        require(word in CHECKS, f"no check is named {word}")
        CHECKS[word](outcome, rest)


def repeated(line):
    """The line once for every choice of its {a,b} parts."""
    parts = re.split(r"\{([^}]*)\}", line)
    choices = [part.split(",") if odd else [part] for odd, part in zip(itertools.cycle([False, True]), parts)]
    return ["".join(choice) for choice in itertools.product(*choices)]


def check_all_requests(lines, outcome):
    wanted = [] if lines == ["nothing"] else [one for line in lines for one in repeated(line)]
    found = [request_line(request) for request in outcome.server.requests()]
    for number, (one, other) in enumerate(itertools.zip_longest(found, wanted), 1):
        equal(f"request {number}", one, other)


def check_requests(outcome, rest):
    number, text = rest.split(" ", 1)
    equal(f'requests with "{text}"', len(outcome.requests_with(text)), int(number))


def check_header(outcome, rest):
    text, header = rest.split(" ", 1)
    requests = outcome.requests_with(text)
    require(requests, f'no request holds "{text}"')
    headers = [": ".join(pair) for pair in requests[0]["headers"]]
    require(header in headers, f'no header "{header}" among {headers}')


def check_versions(outcome, rest):
    equal("versions", len(outcome.server.versions()), int(rest))


def check_version(outcome, rest):
    wanted = json.loads(rest)
    versions = outcome.server.versions()
    fitting = [version for version in versions if wanted.items() <= version.items()]
    require(len(fitting) == 1, f"{len(fitting)} versions fit {rest} among\n{json.dumps(versions, indent=1)}")


def sound_zip(path):
    require(zipfile.is_zipfile(path), f"{path.name} is no zip")
    archive = zipfile.ZipFile(path)
    require(archive.testzip() is None, f"{path.name} has a broken part {archive.testzip()}")
    return archive


def check_uploaded(outcome, rest):
    file = outcome.file(rest)
    version = outcome.server.versions()[-1]
    sent = split_upload(outcome.requests_with("POST UploadToTransfer.ashx")[-1]["bytes"])[1]
    require(sent == file.read_bytes(), "the bytes sent are not those of the file")
    require((outcome.server.data / version["storedAs"]).read_bytes() == sent, "the version holds other bytes")
    sound_zip(file)


def custom_properties(path):
    """Names to pairs of the value's type and text."""
    archive = sound_zip(path)
    if "docProps/custom.xml" not in archive.namelist():
        return {}
    root = xml.etree.ElementTree.fromstring(archive.read("docProps/custom.xml"))
    return {one.get("name"): (one[0].tag.partition("}")[2], one[0].text or "") for one in root}


def check_bound(outcome, rest):
    name, *ids = shlex.split(rest)
    wanted = [("lpwstr", outcome.server.url)] + [("i4", number) for number in ids]
    equal("properties", custom_properties(outcome.file(name)), dict(zip(PROPERTIES, wanted, strict=True)))


def check_unbound(outcome, rest):
    equal("properties", custom_properties(outcome.file(rest)), {})


def check_ribbon(outcome, rest):
    schema = outcome.top.parent / f"shared/schemas/customUI.{rest}.xsd"
    require(schema.exists(), f"the schema {schema.name} is missing beside the project folder")
    lint = subprocess.run(["xmllint", "--noout", "--schema", str(schema), str(outcome.file("customUI.xml"))],
                          capture_output=True, text=True, check=False)
    require(lint.returncode == 0, "the ribbon is not valid:\n" + lint.stderr)


def check_trace(outcome, rest):
    if rest == "none":
        equal("trace files", [file.name for file in outcome.traces], [])
        return
    equal("trace files", len(outcome.traces), 1)
    lines = outcome.traces[0].read_text(encoding="cp1252").splitlines()
    require(any(line.endswith("\t" + rest) for line in lines), f'no line "{rest}" in the trace')


def check_cpu_below(outcome, rest):
    percent, text = rest.split(" ", 1)
    request = outcome.requests_with(text)[0]
    start = datetime.datetime.fromisoformat(request["time"]).timestamp() + MARGIN
    delay = json.loads((outcome.folder / "faults.json").read_text())[0]["delayMs"] / 1000
    notes = [note for note in outcome.processor if start <= note[0] <= start + delay - 2 * MARGIN]
    require(len(notes) >= 2 and notes[-1][0] - notes[0][0] > delay / 2, "the delay was not measured")
    (first, before), (last, after) = notes[0], notes[-1]
    used = 100 * (after - before) / (last - first)
    print(f"  {used:.2f} % of a core in {last - first:.1f} s")
    require(used < float(percent), f"the host used {used:.2f} % of a core")


CHECKS = {"requests": check_requests, "header": check_header, "versions": check_versions, "version": check_version,
          "uploaded": check_uploaded, "bound": check_bound, "unbound": check_unbound, "ribbon": check_ribbon,
          "trace": check_trace, "cpu-below": check_cpu_below}
