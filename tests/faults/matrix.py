#!/usr/bin/env python3
"""Calls every operation of the server under every fault and compares how each call ends with what callers are told.

Started by run, which see; leaves a line for each cell in build/faults/ARCH.txt.
"""
import json, pathlib, re, subprocess, sys, threading, time

TOP = pathlib.Path(__file__).resolve().parents[2]
WORKERS, SHORT, LONG = 4, 150, 20000  # ms: the time-out where no answer ever comes, and where one does
PAGE = "ExecuteASPWebService"
QUERIES = {  # operation: parameters and what an undisturbed call answers
    "GetUser": "", "GetUserID": "", "IsProjectTeamMember": "12", "MaxFileUploadSize": "MaxFileUploadSize",
    "IsAutoSetPublishCheckbox": "AutomaticallySetPublishCheckbox", "KRXBLL.APPLICATION.GETCLASSES": "a b",
    "KRXBLL.APPLICATION.GETPROJECTDELIVERABLE": "45", "KRXBLL.APPLICATION.GETPROJECTACTIVITY": "678",
    "KRXBLL.APPLICATION.GETUSERROLES": "1", "KRXBLL.APPLICATION.CHECKUSERMANAGEACCESS": "12",
    "KRXBLL.APPLICATION.CHECKACTIVEWORKFLOWACTIONOWNERPERMISSIONS": "1 45", "KRXBLL.APPLICATION.USERCANUPDATE": "1201 3",
    "KRXBLL.APPLICATION.GETPROJECTTEAMMEMBERS": "12", "KRXBLL.APPLICATION.GETPROJECTGATEDOCUMENT": "1201 1",
    "KRXBLL.APPLICATION.GetProject": "12", "ACTIVITY_API.CACTIVITY.GETMULTIVERSIONDETAILSASXML": "678",
    "KRXBLL.APPLICATION.GetProjectRelatedFile": "1211", "KRXBLL.APPLICATION.GETPROJECTRELATEDFILE": "1211",
    "RELATEDFILE_API.CFilter.GetGroups": "12", "OFFI_API.CUser.GetMyAssignmentsAsTree": "0 a",
    "OFFI_API.CUser.GetMyProjectsRelatedFiles": "0 a", "OFFI_API.Cuser.GetMyGateDocumentsAsTree": "0 a",
    "OFFI_API.CConfig.GetValues": "", "KRXBLL.APPLICATION.GetSetIconForOFFI": "Azure project_offi.gif",
    "UPDATEUSERACCESSLOG": ""}
RECORDINGS = {
    "OFFI_API.CDeliverable.UploadAndUpdate": "PowerPoint 12 45 plan.pptx a c 0 0 n",
    "OFFI_API.CActivity.UploadAndUpdate": "PowerPoint 12 678 plan.pptx a c 0 0 n",
    "OFFI_API.CGateDocument.UploadAndUpdate": "PowerPoint 12 1201 plan.pptx a c 0 0 n",
    "KRXBLL.Application.CreateProjectRelatedFile2": "12 plan.pptx n a Drawings d 0",
    "KRXBLL.Application.UploadProjectRelatedFile2": "1211 plan.pptx n a Drawings d 0"}
OPERATIONS = QUERIES | RECORDINGS | {"upload": "PLAN plan.pptx"}
OTHER_SOURCES = {"UPDATEUSERACCESSLOG": "UpdateUserLog", "upload": "ExecuteASPWSUploadFile",
                 "KRXBLL.APPLICATION.GetSetIconForOFFI": "ExecuteASPWebserviceBinary"}
OLD = "This Corvane for MS Office add-in must be used with a server where Corvane 8.0 or higher has been installed."
SECURE = "The server cannot be accessed or the page must be viewed over a secure channel."
NO_OBJECT, NO_VALUE = (91, "*", "Object variable or With block variable not set"), (94, "*", "Invalid use of Null")
DONE = (0, "", "")


def document(number, tag="error"):
    return f'<x><{tag} number="{number}" source="Its own" description="Its words."/></x>'


class Called:
    """What a caller of one operation has to be told."""

    def __init__(self, operation, server):
        self.kind, self.server = operation, server
        self.source = OTHER_SOURCES.get(operation, PAGE)
        self.upload, self.binary = operation == "upload", operation.endswith("GetSetIconForOFFI")

    def lost(self):
        return 225, self.source, f"Unable to connect to server '{self.server}'" if self.upload else \
            f"Unable to contact server {self.server}."

    def unusable(self):
        return 225, self.source, "Unable to contact server."

    def status(self, status, has_document=False):
        if status in ([404] if self.upload else [401, 404] if self.binary else [401, 404, 424]):
            return self.lost()
        if status == 403 and not self.upload:
            return 225, self.source, SECURE
        if has_document:
            return self.told(5)
        if status == 509 and not self.upload:
            return NO_OBJECT
        words = f"Error: HTTP Status Code {status}\r\n\r\nRemote call to '{self.server}' failed.\r\n"
        return status, self.source, words

    def told(self, number):
        if number == 0x8004070C - 2**32:
            return 225, "ExecuteASPWebServiceBinary" if self.binary else self.source, OLD
        if self.binary and number == "99999999999":
            return 6, "*", "Overflow"
        if not isinstance(number, int) or (number == 0 and not self.binary):
            return (13, "*", "Type mismatch") if self.binary else (-2147221504, "Its own", "Its words.")
        return number, "Its own", "Its words."


REFUSALS = [0x8004C6A3 + n for n in range(7)] + [0x8004073C, 0x8004070C]
NUMBERS = [number - 2**32 for number in REFUSALS] + [287, 5, 0, "", "abc", "99999999999"]
FAULTS = {  # name: the server's rule or another server, the time-out, what the caller is told
    "refused": ("http://127.0.0.1:1", SHORT, Called.lost), "no such name": ("http://h.invalid", SHORT, Called.lost),
    "no address": ("http://h:99999999", LONG, Called.unusable), "late": ({"delayMs": 3000}, SHORT, Called.lost),
    "empty": ({"body": ""}, LONG, DONE), "truncated": ({"body": '<xml xmlns:z="#RowsetSchema"><z:row a='}, LONG, DONE),
    "wrong type": ({"body": "1", "contentType": "image/png"}, LONG, DONE),
    "upper case": ({"body": document(5, "ERROR")}, LONG, NO_OBJECT), "no element": ({"body": "a <error"}, LONG, NO_OBJECT),
    "too old, no words": ({"body": "<error number='-2147219700'/>"}, LONG, lambda called: called.told(0x8004070C - 2**32)),
    "no words": ({"body": "<error number='5'/>"}, LONG, NO_VALUE),
    "no number": ({"body": "<error source='s'/>"}, LONG, NO_VALUE),
    "redirected": ({"status": 302, "location": "/WebServices/offi.asp?Op=G%65tUserID&P1=v6"}, LONG, DONE),
    "round and round": ({"status": 302, "location": "/WebServices/x?OP"}, SHORT, Called.lost)}
for place in ("before", "status", "headers", "body"):
    FAULTS["dropped: " + place] = ({"drop": place}, SHORT, Called.lost)
for code in (401, 403, 404, 424, 500, 503, 509):
    FAULTS[f"{code}"] = ({"status": code, "body": "no"}, LONG, lambda called, s=code: called.status(s))
    FAULTS[f"{code} with document"] = ({"status": code, "body": document(5)}, LONG, lambda c, s=code: c.status(s, True))
EACH_KIND = ["GetUserID", "GetUser", *OTHER_SOURCES, *RECORDINGS]  # what meets the slow fault
for value in NUMBERS:
    FAULTS[f"number '{value}'"] = ({"body": document(value)}, LONG, lambda called, n=value: called.told(n))
FAULTS["8 MiB"] = {"file": "BIG"}, LONG, DONE
FAULTS["64 MiB"] = {"file": "HUGE"}, LONG, DONE  # by the host's own component: Wine's takes a minute for each


def met_by(operation, faults):
    return [name for name in faults if name != "8 MiB" or operation in EACH_KIND]


class Worker(threading.Thread):
    """A server and a program that calls it; takes operations until none is left."""

    def __init__(self, name, arch, waiting, faults, lines):
        super().__init__()
        self.folder = TOP / f"build/faults/{arch}-{name}"
        self.folder.mkdir(parents=True, exist_ok=True)
        self.waiting, self.faults, self.lines, self.failed = waiting, faults, lines, 0
        self.rules = self.folder / "faults.json"
        self.rules.write_text("[]")
        self.files = {"PLAN": self.folder / "plan.pptx", "BIG": TOP / "build/faults/8", "HUGE": TOP / "build/faults/64"}
        self.files["PLAN"].write_text("a document")
        self.server = subprocess.Popen([TOP / "build/native/sandbox/server/corvane-server", "--faults", self.rules,
                                        "--data", self.folder / "data"], stdout=subprocess.PIPE, text=True)
        self.url = self.server.stdout.readline().split()[-1]
        self.programs = [subprocess.Popen(["wine", TOP / f"build/{arch}/tests/faults/fault_calls.exe", *own], text=True,
                                          stdin=subprocess.PIPE, stdout=subprocess.PIPE, stderr=subprocess.DEVNULL)
                         for own in ([], ["own"])]

    def call(self, operation, server, limit, own=False):
        program = self.programs[own]
        words = [word.replace("PLAN", "Z:" + str(self.files["PLAN"])) for word in OPERATIONS[operation].split(" ")]
        program.stdin.write("\t".join([operation, server, str(limit), *filter(None, words)]) + "\n")
        program.stdin.flush()
        took, memory, number, *texts = program.stdout.readline().rstrip("\n").split("\t")
        texts = [re.sub(r"\\u([0-9a-f]+);", lambda hit: chr(int(hit[1], 16)), text) for text in texts]
        return int(took), int(memory), (int(number), *texts[:2]), texts[2]

    def undisturbed(self, operation):
        if operation in RECORDINGS:
            self.call("upload", self.url, LONG)
        return self.call(operation, self.url, LONG)[2]

    def cell(self, operation, name):
        fault, limit, wanted = FAULTS[name]
        server = fault if isinstance(fault, str) else self.url
        match = "UploadTo" if operation == "upload" else operation
        rule = {} if isinstance(fault, str) else {"match": match} | fault
        if "location" in rule:
            rule["location"] = rule["location"].replace("OP", match)
        if "file" in rule:
            rule["file"] = str(self.files[rule["file"]])
        self.rules.write_text(json.dumps([rule] if rule else []))
        patience = max(limit, 1500) if operation == "upload" else limit  # its question for the limit is answered
        took, memory, told, _ = self.call(operation, server, patience, name == "64 MiB")
        self.rules.write_text("[]")
        after = self.undisturbed(operation)
        # An upload asks another server for its limit first.
        asked = operation if server == self.url else operation.replace("upload", "MaxFileUploadSize")
        wanted = wanted(Called(asked, server)) if callable(wanted) else wanted
        if name == "dropped: headers" and told == DONE:
            wanted = DONE  # the rest of the head may be missed by the platform's component; nothing tells of it
        fits = all(want in ("*", found) for want, found in zip(wanted, told)) and after == DONE
        self.failed += not fits
        self.lines.append(f"{operation} | {name} | {told[0]} | {told[1]} | {told[2]!r} | {took} ms | {memory} KiB")
        if not fits:
            print("FAILED", self.lines[-1], "\n  instead of", wanted, "\n  and afterwards", after, flush=True)

    def run(self):
        try:
            while self.waiting:
                operation = self.waiting.pop()
                for name in met_by(operation, self.faults):
                    self.cell(operation, name)
        except (LookupError, ValueError, OSError) as problem:
            self.failed += 1
            print("FAILED", operation, repr(problem), flush=True)
        finally:
            for program in self.programs:
                program.stdin.close()
                program.wait(20)
            self.server.terminate()
            self.server.wait(20)


def main():
    arch, *arguments = sys.argv[1:]
    start, lines, waiting = time.monotonic(), [], list(OPERATIONS)
    (TOP / "build/faults").mkdir(exist_ok=True)
    for size in (8, 64):
        (TOP / f"build/faults/{size}").write_text("x" * (size << 20))
    faults = arguments or list(FAULTS)
    workers = [Worker(str(n), arch, waiting, faults, lines) for n in range(WORKERS)]
    for worker in workers:
        worker.start()
    for worker in workers:
        worker.join()
    (TOP / f"build/faults/{arch}.txt").write_text("\n".join(sorted(lines)) + "\n")
    failed = sum(worker.failed for worker in workers)
    print(f"{len(lines)} cells, {failed} failed, {time.monotonic() - start:.0f} s")
    return failed or len(lines) != sum(len(met_by(operation, faults)) for operation in OPERATIONS)


if __name__ == "__main__":
    sys.exit(1 if main() else 0)
