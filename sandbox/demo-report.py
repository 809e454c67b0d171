#!/usr/bin/env python3
"""Shows what the demo left in its folder, and checks it: demo-report.py FOLDER SERVER-URL"""
import base64, datetime, html, json, pathlib, re, struct, subprocess, sys, tempfile, urllib.parse, urllib.request
import xml.etree.ElementTree
from dataclasses import dataclass


@dataclass(frozen=True)
class Play:
    """What one play has to bring about. The seed holds earlier versions and gives new documents the next free id."""

    name: str
    title: str
    kind: str
    target: int
    version: int
    file: str
    asks_tree: bool = True
    page_picture: str = ""  # of the page that its mail links to; empty: it sends none


PLAYS = [
    Play("first-save", "A new presentation becomes a version of a deliverable", "deliverable", 45, 3,
         "Presentation1.pptx"),
    Play("next-version", "The saved file, opened again, knows its target", "deliverable", 45, 4, "Presentation1.pptx",
         asks_tree=False),
    Play("activity", "Another new presentation becomes a version of an activity", "activity", 678, 2,
         "Presentation1 (2).pptx"),
    Play("gate-document", "A version of a gate document, with a mail to the team", "gate document", 1201, 2,
         "Presentation1 (3).pptx", page_picture="10-gate-document-page"),
    Play("related-document", "A new related document, with a mail to the team", "related document", 2305, 1,
         "Presentation1 (4).pptx", page_picture="13-related-document-page"),
]
LINKS = {"deliverable": "DD&PID=12&DID=", "activity": "AD&PID=12&DID=", "gate document": "GD&PID=12&GDID=",
         "related document": "RFD&PID=12&RFID="}
TEAM = "dana.reyes tomas.lind maria.kowalski igor.petrov sam.okafor".split()  # one more has no address
PICTURES = ["1-ribbon", "2-backstage", "3-tree", "4-dialog", "5-save-complete", "6-next-version", "7-activity",
            "8-gate-document", "9-gate-document-mail", "10-gate-document-page", "11-related-document",
            "12-related-document-mail", "13-related-document-page"]
BROWSER = ["chromium", "--headless", "--no-sandbox", "--disable-gpu", "--disable-quic", "--no-first-run",
           "--disable-background-networking", "--disable-component-update", "--disable-sync", "--hide-scrollbars",
           "--window-size=1000,640"]
SMALLEST_PICTURE = 5000  # bytes; a screen of one colour is smaller
SMALLEST_SIDE = 500  # pixels
SHORT = 60

problems = []


def expect(holds, words):
    if not holds:
        problems.append(words)


def read_text(path):
    return path.read_text(encoding="utf-8", errors="replace") if path.exists() else ""


def shortened(text):
    text = " ".join(text.split())
    return text if len(text) <= SHORT else text[:SHORT] + "..."


def describe(request):
    """The request in one line: an operation with its parameters, or an upload with its file."""
    page, _, query = request["target"].rpartition("/")[2].partition("?")
    body = base64.b64decode(request["body"])
    if "Op=" not in query and not body.startswith(b"Op="):
        name = re.search(rb'filename="([^"]*)"', body)
        return f'{request["method"]:4} {page} {name.group(1).decode() if name else ""}, {len(body)} bytes'
    fields = urllib.parse.parse_qsl(query or body.decode(), keep_blank_values=True)
    values = ", ".join(shortened(value) or '""' for name, value in fields if name not in ("Op", "P1"))
    return f'{request["method"]:4} {fields[0][1]}({values})'


def show_requests(requests):
    """One line each; a run of icons, of which a tree fetches many, as one line."""
    lines = [(request["status"], re.sub(r"GetSetIconForOFFI\(.*", "GetSetIconForOFFI", describe(request)))
             for request in requests]
    while lines:
        count = next((at for at, line in enumerate(lines) if line != lines[0]), len(lines))
        print(f"    {lines[0][0]}  {lines[0][1]}" + (f"  ({count} times)" if count > 1 else ""))
        del lines[:count]


def properties_of(file):
    """The custom properties inside a presentation: names to values, in their order."""
    unzipped = subprocess.run(["unzip", "-p", str(file), "docProps/custom.xml"], capture_output=True, check=False)
    if unzipped.returncode != 0:
        return {}
    return {one.get("name"): one[0].text or "" for one in xml.etree.ElementTree.fromstring(unzipped.stdout)}


def wanted_properties(kind, target, server):
    # An activity's document carries the id of the deliverable above it as well.
    ids = {"KRX_SYS_ProjectID": 12, "KRX_SYS_DeliverableID": 45 if kind in ("deliverable", "activity") else 0,
           "KRX_SYS_ActivityID": target if kind == "activity" else 0,
           "KRX_SYS_RelatedFileID": target if kind == "related document" else 0,
           "KRX_SYS_GateDocumentID": target if kind == "gate document" else 0, "HALVEX_MSExcelReportID": 0,
           "KRX_SYS_TemplateLibraryID": 0}
    return {"KRX_SYS_Server": server} | {name: str(number) for name, number in ids.items()}


def check_host(folder, name):
    printed = read_text(folder / f"{name}.host")
    passed = f"scenario passed: {name}.txt " in printed and printed.rstrip().endswith("exit status 0")
    expect(passed, f"{name}: the host did not play it to the end")
    for line in printed.splitlines():
        if not passed or line.startswith("scenario"):
            print("    " + line)


def show_file(folder, play, version, server):
    saved = folder / f"{play.name}.pptx"
    found = properties_of(saved)
    print(f"  Binding inside {play.file}:")
    for one, value in found.items():
        print(f"    {one} = {value}")
    expect(found == wanted_properties(play.kind, play.target, server),
           f"{play.name}: the binding inside {play.file} is not as it should be")
    stored = folder / "data" / version["storedAs"] if version else folder / "nothing"
    if play.kind == "related document":
        show_file_before_its_id(play, stored, server)
        return
    same = stored.exists() and saved.exists() and stored.read_bytes() == saved.read_bytes()
    expect(same, f"{play.name}: the recorded bytes are not those of {play.file}")
    print(f"  Recorded bytes equal the file on disk: {'yes' if same else 'NO'}")


def show_file_before_its_id(play, stored, server):
    """A new related document is recorded before it has an id, which the file on disk then receives."""
    same = properties_of(stored) == wanted_properties(play.kind, 0, server)
    expect(same, f"{play.name}: the recorded file does not carry the binding of a new document")
    print(f"  Recorded without an id, saved once more with its new one: {'yes' if same else 'NO'}")


def show_version(play, versions):
    fitting = [one for one in versions
               if (one["kind"], one["id"], one["version"]) == (play.kind, play.target, play.version)]
    expect(len(fitting) == 1, f"{play.name}: version {play.version} of {play.kind} {play.target} was not recorded")
    for one in fitting:
        print(f'  Recorded: {play.kind} {play.target} "{one["name"]}", version {play.version}, {one["file"]}, '
              f'{one["size"]} bytes, by {one["author"]}' + (f': {one["comments"]}' if one["comments"] else ""))
    return fitting[0] if fitting else None


def wanted_letter(play, link):
    """Recipients, subject and body of the mail; the plays are of today."""
    today = datetime.date.today().strftime("%b %d, %Y")
    to = "".join(f"{name}@example.org; " for name in TEAM)
    if play.kind == "gate document":
        return (to, f"Project charter, Version 2 ({today}) - Gate 1 - Apollo",
                ["A new version (Version 2) of the Gate Document Project charter has been created.",
                 "Follow the link to view the Gate Document.", "", "Project: Apollo", "Gate: Gate 1",
                 "Gate Document: Project charter", f"Version 2 ({today})", f"Link: {link}", "", ""])
    return (to, f"Kick-off slides, Dana Reyes ({today}) - Apollo",
            ["A Related Document has been created or updated for the Apollo project.",
             "Follow the link to view the Related Document.", "", "Project: Apollo",
             "Related Document: Kick-off slides", "Author: Dana Reyes", f"Date: {today}", f"Link: {link}", "", ""])


def show_letter(folder, play, link):
    path = folder / f"{play.name}.eml"
    head, _, body = (path.read_bytes() if path.exists() else b"").decode().partition("\r\n\r\n")
    fields = dict(line.split(": ", 1) for line in head.split("\r\n") if ": " in line)
    letter = (fields.get("To"), fields.get("Subject"), body.split("\r\n"))
    expect(letter == wanted_letter(play, link), f"{play.name}: the mail is not as it should be")
    print(f"  The mail that Outlook shows, {path.name}:\n    To: {letter[0]}\n    Subject: {letter[1]}\n")
    for line in body.rstrip().splitlines():
        print("    " + line)


def show_page(folder, play, version, link):
    """Follows the link as a member of the team would."""
    try:
        with urllib.request.urlopen(link, timeout=10) as answer:
            page = answer.read().decode()
    except OSError as problem:
        page = str(problem)
    row = f"<td>{play.version}</td>"
    shown = version is not None and f'<h1>{html.escape(version["name"])}</h1>' in page and row in page
    expect(shown, f"{play.name}: the page at {link} does not show version {play.version}")
    print(f"  The page at {link} shows it: {'yes' if shown else 'NO'}")
    if play.page_picture:
        with tempfile.TemporaryDirectory() as profile:
            subprocess.run([*BROWSER, f"--user-data-dir={profile}", f"--screenshot={folder}/{play.page_picture}.png",
                            link], check=False, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL, timeout=60)


def show_play(folder, play, requests, versions, server):
    print(f"\n{play.title} ({play.name})")
    check_host(folder, play.name)
    print("  The server saw:")
    show_requests(requests)
    expect(requests and all(request["status"] == 200 for request in requests if "SetIcon" not in request["target"]),
           f"{play.name}: a request was not answered with 200")
    trees = sum(bool(re.search("AsTree|GetMyProjectsRelatedFiles", request["target"])) for request in requests)
    expect(bool(trees) == play.asks_tree, f"{play.name}: the tree was asked for {trees} times")
    version = show_version(play, versions)
    show_file(folder, play, version, server)
    link = f"{server}/?P={LINKS[play.kind]}{play.target}"
    if play.page_picture:
        show_letter(folder, play, link)
    show_page(folder, play, version, link)


def check_picture(path):
    data = path.read_bytes() if path.exists() else b""
    is_png = data[:8] == b"\x89PNG\r\n\x1a\n" and len(data) >= SMALLEST_PICTURE
    good = is_png and min(struct.unpack(">II", data[16:24])) >= SMALLEST_SIDE
    expect(good, f"{path.name} is missing or no picture of the screen")


def main(folder, server):
    requests = [json.loads(line) for line in read_text(folder / "requests.log").splitlines()]
    versions = json.loads(read_text(folder / "data/versions.json") or "[]")
    seen = 0
    for play in PLAYS:
        until = int(read_text(folder / f"{play.name}.requests") or seen)
        show_play(folder, play, requests[seen:until], versions, server)
        seen = until
    expect(len(versions) == len(PLAYS), f"{len(versions)} versions were recorded instead of {len(PLAYS)}")
    for picture in PICTURES:
        check_picture(folder / f"{picture}.png")
    print(f"\nPictures of the windows and pages: {folder}/{PICTURES[0]}.png to {PICTURES[-1]}.png")
    print(f"Presentations: {folder}/documents; the server's files: {folder}/data")
    for problem in problems:
        print("MISSING: " + problem)
    print("The demo failed." if problems else "All of it happened as it should.")
    return 1 if problems else 0


if __name__ == "__main__":
    sys.exit(main(pathlib.Path(sys.argv[1]), sys.argv[2]))
