"""The stand-in server of one scenario."""
import base64, json, subprocess

OUT_OF_REACH = "http://127.0.0.1:1"  # a port that nothing listens on


class Server:
    """Runs corvane-server on a data folder of its own, unless the scenario wants none."""

    def __init__(self, top, folder, scenario):
        self.url, self.process = OUT_OF_REACH, None
        self.data, self.log, self.printed = folder / "data", folder / "requests.log", folder / "server.txt"
        self.data.mkdir()
        settings = scenario.one("server")
        if settings == "none":
            return
        (self.data / "settings.json").write_text(settings or "{}", encoding="utf-8")
        faults = folder / "faults.json"
        faults.write_text(scenario.one("faults"), encoding="utf-8")
        with open(self.printed, "wb") as errors:
            self.process = subprocess.Popen(
                [str(top / "build/native/sandbox/server/corvane-server"), "--port", "0", "--data", str(self.data),
                 "--log", str(self.log), "--faults", str(faults), "--user", scenario.one("user", "Dana Reyes")],
                stdout=subprocess.PIPE, stderr=errors)
        first = self.process.stdout.readline().decode().strip()
        self.url = first.removeprefix("listening on ")

    def stop(self):
        if self.process:
            self.process.terminate()
            self.process.wait(10)
            self.process.stdout.close()

    def output(self):
        printed = self.printed.read_text(errors="replace") if self.printed.exists() else ""
        return printed + "".join(f"{request['status']} {request_line(request)[:300]}\n" for request in self.requests())

    def requests(self):
        if not self.log.exists():
            return []
        lines = self.log.read_text(encoding="utf-8").splitlines()
        return [dict(entry, bytes=base64.b64decode(entry["body"])) for entry in map(json.loads, lines)]

    def versions(self):
        file = self.data / "versions.json"
        return json.loads(file.read_text(encoding="utf-8")) if file.exists() else []


def request_line(request):
    """A request as scenarios write it: the method, the page with its query, the body of a form as it went."""
    line = request["method"] + " " + request["target"].removeprefix("/WebServices/")
    if request["bytes"][:2] == b"--":
        return line + "|" + upload_line(request["bytes"])
    return line + ("|" + request["bytes"].decode(errors="replace") if request["bytes"] else "")


BOUNDARY = b"---------------------------998284F0-10C0-4D3B-8D1C-22EAA672A15D"


def split_upload(body):
    """The head and the file of an upload's body; None where the body is not laid out as it has to be."""
    head, _, rest = body.partition(b"\r\n\r\n")
    tail = b"\r\n--" + BOUNDARY + b"--\r\n"
    return (head, rest[:-len(tail)]) if rest.endswith(tail) else None


def upload_line(body):
    parts = split_upload(body)
    if not parts:
        return "an unfinished upload"
    lines = parts[0].decode().split("\r\n")
    return " ".join(lines[1:]) if lines[0] == "--" + BOUNDARY.decode() else "an upload without its boundary"
