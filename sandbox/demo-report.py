#!/usr/bin/env python3
"""Shows what the demo left in its folder, and checks it: demo-report.py FOLDER SERVER-URL"""
import base64, json, pathlib, re, struct, subprocess, sys, urllib.parse, xml.etree.ElementTree

# The plays in their order: title, what was recorded (the seed holds earlier versions), the file, and whether a tree was
# asked for.
PLAYS = {
    "first-save": ("A new presentation becomes a version of a deliverable", ("deliverable", 45, 3),
                   "Presentation1.pptx", True),
    "next-version": ("The saved file, opened again, knows its target", ("deliverable", 45, 4),
                     "Presentation1.pptx", False),
    "activity": ("Another new presentation becomes a version of an activity", ("activity", 678, 2),
                 "Presentation1 (2).pptx", True),
}
PICTURES = ["1-ribbon", "2-backstage", "3-tree", "4-dialog", "5-save-complete", "6-next-version", "7-activity"]
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
    ids = {"KRX_SYS_ProjectID": 12, "KRX_SYS_DeliverableID": 45, "KRX_SYS_ActivityID": target if kind == "activity" else 0,
           "KRX_SYS_RelatedFileID": 0, "KRX_SYS_GateDocumentID": 0, "HALVEX_MSExcelReportID": 0,
           "KRX_SYS_TemplateLibraryID": 0}
    return {"KRX_SYS_Server": server} | {name: str(number) for name, number in ids.items()}


def check_host(folder, name):
    printed = read_text(folder / f"{name}.host")
    passed = f"scenario passed: {name}.txt " in printed and printed.rstrip().endswith("exit status 0")
    expect(passed, f"{name}: the host did not play it to the end")
    for line in printed.splitlines():
        if not passed or line.startswith("scenario"):
            print("    " + line)


def show_file(folder, name, version, server):
    _, (kind, target, _), file, _ = PLAYS[name]
    saved = folder / f"{name}.pptx"
    found = properties_of(saved)
    print(f"  Binding inside {file}:")
    for one, value in found.items():
        print(f"    {one} = {value}")
    expect(found == wanted_properties(kind, target, server), f"{name}: the binding inside {file} is not as it should be")
    stored = folder / "data" / version["storedAs"] if version else None
    same = stored and stored.exists() and saved.exists() and stored.read_bytes() == saved.read_bytes()
    expect(same, f"{name}: the recorded bytes are not those of {file}")
    print(f"  Recorded bytes equal the file on disk: {'yes' if same else 'NO'}")


def show_version(name, versions):
    kind, target, number = PLAYS[name][1]
    fitting = [one for one in versions if (one["kind"], one["id"], one["version"]) == (kind, target, number)]
    expect(len(fitting) == 1, f"{name}: version {number} of {kind} {target} was not recorded")
    for one in fitting:
        print(f'  Recorded: {kind} {target} "{one["name"]}", version {number}, {one["file"]}, {one["size"]} bytes, '
              f'by {one["author"]}' + (f': {one["comments"]}' if one["comments"] else ""))
    return fitting[0] if fitting else None


def show_play(folder, name, requests, versions, server):
    title, _, _, asks_tree = PLAYS[name]
    print(f"\n{title} ({name})")
    check_host(folder, name)
    print("  The server saw:")
    show_requests(requests)
    expect(requests and all(request["status"] == 200 for request in requests if "SetIcon" not in request["target"]),
           f"{name}: a request was not answered with 200")
    trees = sum("AssignmentsAsTree" in request["target"] for request in requests)
    expect(bool(trees) == asks_tree, f"{name}: the tree was asked for {trees} times")
    show_file(folder, name, show_version(name, versions), server)


def check_picture(path):
    data = path.read_bytes() if path.exists() else b""
    is_png = data[:8] == b"\x89PNG\r\n\x1a\n" and len(data) >= SMALLEST_PICTURE
    good = is_png and min(struct.unpack(">II", data[16:24])) >= SMALLEST_SIDE
    expect(good, f"{path.name} is missing or no picture of the screen")


def main(folder, server):
    requests = [json.loads(line) for line in read_text(folder / "requests.log").splitlines()]
    versions = json.loads(read_text(folder / "data/versions.json") or "[]")
    seen = 0
    for name in PLAYS:
        until = int(read_text(folder / f"{name}.requests") or seen)
        show_play(folder, name, requests[seen:until], versions, server)
        seen = until
    expect(len(versions) == len(PLAYS), f"{len(versions)} versions were recorded instead of {len(PLAYS)}")
    for picture in PICTURES:
        check_picture(folder / f"{picture}.png")
    print(f"\nPictures of the windows: {folder}/{PICTURES[0]}.png to {PICTURES[-1]}.png")
    print(f"Presentations: {folder}/documents; the server's files: {folder}/data")
    for problem in problems:
        print("MISSING: " + problem)
    print("The demo failed." if problems else "All of it happened as it should.")
    return 1 if problems else 0


if __name__ == "__main__":
    sys.exit(main(pathlib.Path(sys.argv[1]), sys.argv[2]))
