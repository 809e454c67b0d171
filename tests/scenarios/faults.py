"""Scenarios in which every request of a save meets faults, one after the other, until it succeeds in the same dialog.

The steps write the server's rules: one fault for the next request of its kind.
"""
import itertools, json, pathlib, sys

sys.path.append(str(pathlib.Path(__file__).resolve().parents[1] / "faults"))
from hostile import write_hostile
from kinds import (CLOSED, CLOSED_RELATED, DECLINED, NO_NUMBER, NOT_OWNER, NOT_SET, NUMBERS, OLD, OWN, SECURE, STATUSES,
                   TOO_OLD, TRUNCATED, document)

LOST = "Unable to contact server ${SERVER}."
TOO_LARGE = "File size is greater than maximum allowed. Please contact your server administrator."
NOT_TEAM = "Document cannot be uploaded to Corvane because you are not a project team member."
NOT_OWN = "Document cannot be uploaded to Corvane because you do not own this "
UNSET = f'message exactly "ERROR" "Number: 91" "Description: {NOT_SET}" "Source: WebService.FirstRow" OK'
DOCUMENT = document()
REFUSED = "Document cannot be uploaded to Corvane because "
REFUSALS = {  # what a save says instead of the number, by its dialog
    "frmSaveAssignment": {
        NOT_OWNER: [REFUSED + "you are not the owner."], CLOSED: [REFUSED + "the project is closed."],
        NOT_OWNER + 2: [REFUSED + "the project Stage is locked."],
        NOT_OWNER + 3: [REFUSED + "the document is currently being routed."],
        NOT_OWNER + 4: [REFUSED + "the document was routed and approved."],
        NOT_OWNER + 6: ["Documents that require user re-authentication for creating new versions must be uploaded using "
                        "the Deliverable detail page in Corvane."]},
    "frmSaveGateDoc": {
        NOT_OWNER: [REFUSED + "you are not the owner."],
        CLOSED: ["The project 'Apollo' is closed and no longer active.", "", "Please click the Change button to select "
                 "another project.", "", "Your document has not been saved."]},
    "frmSaveRelatedDoc": {CLOSED_RELATED: ["Document cannot be uploaded to Corvane  because the project is closed."]}}
FAMILIES = {  # kinds of faults that one story meets, by its name
    "faults": {"drop": {"drop": "before"}, "document": {"body": DOCUMENT}, **{f"{n}": {"status": n} for n in STATUSES}},
    "answers": {**{f"{n} document": {"status": n, "body": DOCUMENT} for n in STATUSES},
                "upper case": {"body": document(tag="ERROR")}, "empty": {"body": ""}, "truncated": {"body": TRUNCATED},
                "wrong type": {"body": "GIF89a", "contentType": "image/png"},
                "redirected": {"status": 302, "location": "/"}},
    "lines": {"refused": {"status": 302, "location": "http://127.0.0.1:1/"}, "late": {"delayMs": 3000},
              "no such name": {"status": 302, "location": "http://h.invalid/"}, "head": {"drop": "status"},
              "body": {"drop": "body"}},
    "numbers": {number: {"body": document(number)} for number in NUMBERS},
    "large": {"64 MiB": {"file": "HUGE"}}}
FAULTS = {kind: rule for family in FAMILIES.values() for kind, rule in family.items()}
# What a dialog can tell apart; the number that its dialog has words for comes with them.
TOLD_APART = ["drop", "403", "500", "document", TOO_OLD, DECLINED, "empty"]
MAILED = ["document", DECLINED, "empty"]  # what the mail's request meets: each takes a whole save
SILENT = {"empty", "truncated", "wrong type", "redirected", "64 MiB"}  # no failure, and nothing of use in them
SAVE, SENDING = ["press cmdSave"], ["MaxFileUploadSize", "UploadTo"]
ASSIGNMENT = ("DelivAct", "GetMyAssignmentsAsTree", "frmSaveAssignment")
STORIES = {  # command, tree, dialog, target, recordings, requests of loading: what silence in their answer is told as
    "deliverable": (*ASSIGNMENT, "Apollo/Concept/Business case", ["CDeliverable.UploadAndUpdate"], {
        "IsAutoSet": None, "IsProjectTeamMember": NOT_TEAM, "Op=GetUser&": 91, "GETPROJECTDELIVERABLE": 91,
        "CHECKACTIVEWORKFLOW": None}),
    "activity": (*ASSIGNMENT, "Apollo/Concept/Business case/Draft the business case", ["CActivity.UploadAndUpdate"], {
        "Op=GetUserID": None, "GETPROJECTACTIVITY": 91}),
    "manager": (*ASSIGNMENT, "Leaderless/Without a team leader/Nobody leads, nobody owns", [], {
        "GETUSERROLES": NOT_OWN + "Deliverable.", "CHECKUSERMANAGEACCESS": NOT_OWN + "Deliverable."}),
    "gate": ("GateDoc", "GetMyGateDocumentsAsTree", "frmSaveGateDoc", "Apollo/Gate 1/Project charter",
             ["CGateDocument.UploadAndUpdate"], {
                 "Op=GetUserID": None, "USERCANUPDATE": None, "GETPROJECTGATEDOCUMENT": 91}),
    "related": ("Related", "GetMyProjectsRelatedFiles", "frmSaveRelatedDoc", "Apollo/[New Related Document]",
                ["CreateProjectRelatedFile2", "UploadProjectRelatedFile2"], {
                    "Op=GetUser&": 91, "GetProjectRelatedFile": 91, "GetGroups": None})}
BOUND = {"deliverable": "12 45 0 0 0 0 0", "activity": "12 45 678 0 0 0 0", "manager": "19 1901 0 0 0 0 0",
         "gate": "12 0 0 0 1201 0 0", "related": "12 0 0 {} 0 0 0"}
MAILS = {"activity": "GETMULTIVERSIONDETAILSASXML", "gate": "GETPROJECTTEAMMEMBERS", "related": "GETPROJECTRELATEDFILE"}


def message(*lines):
    return ["message exactly " + " ".join(f'"{line}"' for line in lines) + " OK"]


def told_as(number, source, *lines):
    return message("ERROR", f"Number: {number}", "Description: " + lines[0], *lines[1:], "Source: " + source)


class Story:
    def __init__(self, name, family):
        self.name, self.family = name, family
        self.command, self.tree, self.dialog, self.target, self.recordings, self.loading = STORIES[name]
        self.kinds = FAMILIES.get(family) or [*TOLD_APART, next(iter(REFUSALS[self.dialog]))]
        self.silent = [kind for kind in self.kinds if kind in SILENT]
        self.loud = [kind for kind in self.kinds if kind not in SILENT]
        self.open = [f"command {self.command}"]
        self.pick = [f'pick "{self.target}"']
        self.usable = [f"window {self.dialog}", 'expect StatusBar1 "Ready"', "expect cmdSave enabled"]
        self.leave = [f"window {self.dialog}", "press cmdCancel", f"closed {self.dialog}"]
        self.unseen = len({"late", "head", "body"}.intersection(self.loud))  # recordings done that nobody was told of
        self.steps, self.versions, self.numbers = ["new"], 0, itertools.count()
        # The access is logged, and the customer's names are asked for, until there is an answer, whatever is in it.
        turn = list(STORIES).index(name)
        self.logged = [("UPDATEUSERACCESSLOG", kind) for kind in self.silent[max(turn - 1, 0):turn]]
        self.named = self.silent[turn:turn + 1]

    def told_of_number(self, request, number, source):
        saving = request in [*SENDING, *self.recordings]
        if number == DECLINED and (saving or request == MAILS.get(self.name)):
            return []
        if saving and number in REFUSALS[self.dialog]:
            return message(*REFUSALS[self.dialog][number])
        if number == TOO_OLD:
            return told_as(225, source, OLD)
        return told_as(number if isinstance(number, int) and number else NO_NUMBER, "Its own", "Its words.")

    def told(self, request, kind):
        """The step that reads and closes what the user is told when the request meets the fault."""
        upload = request == "UploadTo"
        sources = {"UploadTo": "ExecuteASPWSUploadFile", "UPDATEUSERACCESSLOG": "UpdateUserLog"}
        source = sources.get(request, "ExecuteASPWebService")
        if kind in NUMBERS:
            return self.told_of_number(request, kind, source)
        status, document = FAULTS[kind].get("status", 200), FAULTS[kind].get("body") == DOCUMENT
        if status == 403 and not upload:
            return told_as(225, source, SECURE)
        if status in ([404] if upload else [401, 404, 424]) or {"drop", "delayMs", "location"} & FAULTS[kind].keys():
            return told_as(225, source, "Unable to connect to server '${SERVER}'" if upload else LOST)
        if document:
            return told_as(OWN, "Its own", "Its words.")
        if kind == "upper case" or (status == 509 and not upload):
            return told_as(91, source, NOT_SET)
        lines = [f"Error: HTTP Status Code {status}", "", "Remote call to '${SERVER}' failed.", ""]
        return told_as(status, source, *lines)

    def rules(self, kinds, *requests):
        """The step that lets the next requests of these sorts fail, one in each of these ways."""
        rules = []
        for request, kind in [*itertools.product(requests, kinds), *self.logged]:
            times = 2 if request == self.tree and kind in SILENT else 1  # its projects are counted before
            rules.append({"match": request, "times": times, "n": next(self.numbers), **FAULTS[kind]})
        self.logged = []
        return 'faults "' + json.dumps(rules).replace('"', '""') + '"'

    def meet(self, request, kinds, act, after, told=None):
        """The request fails in each way when the user acts; what is told, and what the user does then."""
        for kind in kinds:
            words = self.told(request, kind) if told is None else told
            self.steps += [self.rules([kind], request), *act, *words, *after]

    def meet_in_tree(self):
        """Up to the dialog that the tree opens."""
        again, ready = ["press cmdGo"], ["window frmSaveTo", "expect cmdOK enabled"]
        for request, kind in itertools.product(["UPDATEUSERACCESSLOG", self.tree], self.loud):
            if request == self.tree or self.name == "deliverable":
                idle = ["window frmSaveTo", "expect cmdOK disabled", 'expect StatusBar1 "Ready"']
                self.meet(request, [kind], again if len(self.steps) > 1 else self.open, idle)
        # Each picture is asked for once, and what none comes for looks plain.
        self.steps += [self.rules(self.kinds, "GetSetIcon"), *(again if self.loud else self.open), *ready]
        self.meet(self.tree, self.silent, again, ["expect txtTree visible", 'expect StatusBar1 "Ready"'], [])
        self.steps += [*again, *ready]
        if self.name == "deliverable":
            closed = ["window frmFilter", "press btnCancel", "closed frmFilter", *ready]
            self.meet("GETCLASSES", self.loud, ["press cmdFilter"], closed)
            self.meet("GETCLASSES", self.silent, ["press cmdFilter"], closed, [])
            self.meet("CConfig.GetValues", self.loud, self.pick, ["press cmdCancel", "closed frmSaveTo", *self.open])
        if self.name == "related":
            self.meet("GetProject&", self.loud, self.pick, [*self.leave, *self.open])
            self.meet("GetProject&", self.silent, self.pick, [*self.leave, *self.open], [UNSET])
        self.steps += [self.rules(self.named, "CConfig.GetValues"), *self.pick]

    def meet_in_save(self, recording, requests, reopen):
        """Up to the success of the save that the requests belong to."""
        self.steps += self.usable
        silence = {"MaxFileUploadSize": told_as(225, "ExecuteASPWSUploadFile", TOO_LARGE),
                   "UploadTo": told_as(-2147023728, "Archive", "No file 'Presentation1.pptx' was uploaded.")}
        for request in [*requests, recording]:
            self.meet(request, self.loud, SAVE, self.usable)
            if request in silence:
                self.meet(request, self.silent, SAVE, self.usable, silence[request])
        self.meet(recording, self.silent[:1], SAVE, [f"closed {self.dialog}", *reopen, *self.usable], [])
        self.versions += 1 + self.unseen
        self.steps += [*SAVE, f"closed {self.dialog}"]

    def meet_in_loading(self):
        """Of a dialog that the document's binding opens."""
        for request, silence in self.loading.items():
            if self.name == "related" or request == "IsAutoSet":
                self.meet(request, self.loud, self.open, self.leave if self.name == "related" else [])
            elif self.loud:
                failed = [f"window {self.dialog}", "expect cmdSave enabled"]  # Save loads what could not be loaded
                self.meet(request, self.loud[:1], self.open, failed)
                self.meet(request, self.loud[1:], SAVE, failed)
                self.steps += self.leave
            words = [UNSET if silence == 91 else f'message exactly "{silence}" OK'] if silence else []
            self.meet(request, self.silent, self.open, self.leave, words)

    def meet_in_mail(self):
        for kind in [kind for kind in MAILED if kind in self.kinds and self.name in MAILS]:
            send = [*self.open, *self.usable, "press cmdSaveAndSend", f"closed {self.dialog}"]
            silence = [UNSET] if self.name == "related" else []
            self.meet(MAILS[self.name], [kind], send, [], silence if kind in SILENT else None)
            self.versions += 1

    def text(self):
        self.meet_in_tree()
        first, last = (self.recordings or [""])[0], (self.recordings or [""])[-1]
        if first:
            self.meet_in_save(first, SENDING, [*self.open, *self.pick] if first != last else self.open)
        else:
            self.steps += [*self.usable, *SAVE, f"closed {self.dialog}"]
            self.versions += 1
        self.meet_in_loading()
        self.meet_in_mail()
        self.steps += self.open
        if last != first:
            self.meet_in_save(last, [], self.open)
        else:
            self.steps += [*self.usable, *SAVE, f"closed {self.dialog}"]
            self.versions += 1
        large = self.family == "large"  # the system's HTTP component takes a minute for each
        # Answers have their time on a busy machine, but where faults show by the time-out only.
        head = [f"#! run --timeout {dict(large=60, lines=1, faults=3, told=3).get(self.family, 20)}",
                "#! set mail.client=outlook", "#! set outlook=new", *(["#! set http=own"] if large else [])]
        if self.name == "manager":
            head.append("#! user Maria Kowalski")
        tail = ["no message", f"#= versions {self.versions}", "#= uploaded documents/Presentation1.pptx",
                "#= bound documents/Presentation1.pptx " + BOUND[self.name].format(2305 + self.unseen)]
        return "\n".join([*head, *self.steps, *tail]) + "\n"


def write_stories(folder):
    """Writes the scenarios that are always played into the folder, and those of every fault into its "stories"."""
    (folder / "stories").mkdir(parents=True, exist_ok=True)
    huge = folder / "stories/huge"
    huge.exists() or huge.write_bytes(b"x" * 2**26)
    for family, name in itertools.product(["told", *FAMILIES], STORIES):
        path = folder / ("" if family == "told" else "stories") / f"{family}-{name}.txt"
        path.write_text(Story(name, family).text().replace("HUGE", "${BESIDE}/huge"), encoding="utf-8")
    write_hostile(folder)
