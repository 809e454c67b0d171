"""Scenarios in which every request of a save meets faults, one after the other, until it succeeds in the same dialog.

The steps write the server's rules: one fault for the next request of its kind.
"""
import itertools, json

LOST = "Unable to contact server ${SERVER}."
SECURE = "The server cannot be accessed or the page must be viewed over a secure channel."
TOO_LARGE = "File size is greater than maximum allowed. Please contact your server administrator."
NOT_SET = "Object variable or With block variable not set"
NOT_TEAM = "Document cannot be uploaded to Corvane because you are not a project team member."
NOT_OWN = "Document cannot be uploaded to Corvane because you do not own this "
UNSET = f'message exactly "ERROR" "Number: 91" "Description: {NOT_SET}" "Source: WebService.FirstRow" OK'
DOCUMENT = "<error number='7' source='Its own' description='Its words.'/>"
STATUSES = [401, 403, 404, 424, 500, 503, 509]
FAMILIES = {  # kinds of faults that one story meets, by its name
    "faults": {"drop": {"drop": "before"}, "document": {"body": DOCUMENT}, **{f"{n}": {"status": n} for n in STATUSES}},
    "answers": {**{f"{n} document": {"status": n, "body": DOCUMENT} for n in STATUSES},
                "upper case": {"body": DOCUMENT.replace("error", "ERROR")}, "empty": {"body": ""},
                "truncated": {"body": '<xml xmlns:z="#RowsetSchema"><z:row a='},
                "wrong type": {"body": "GIF89a", "contentType": "image/png"},
                "redirected": {"status": 302, "location": "/"}},
    "lines": {"refused": {"status": 302, "location": "http://127.0.0.1:1/"}, "late": {"delayMs": 3000},
              "no such name": {"status": 302, "location": "http://h.invalid/"}, "head": {"drop": "status"},
              "body": {"drop": "body"}},
    "large": {"64 MiB": {"file": "HUGE"}}}
FAULTS = {kind: rule for family in FAMILIES.values() for kind, rule in family.items()}
SILENT = {"empty", "truncated", "wrong type", "redirected", "64 MiB"}  # no failure, and nothing of use in them
SAVE = ["MaxFileUploadSize", "UploadTo"]
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


def told_as(number, source, *lines):
    words = ["ERROR", f"Number: {number}", "Description: " + lines[0], *lines[1:], "Source: " + source]
    return ["message exactly " + " ".join(f'"{word}"' for word in words) + " OK"]


class Story:
    def __init__(self, name, family):
        self.name, self.family = name, family
        self.command, self.tree, self.dialog, self.target, self.recordings, self.loading = STORIES[name]
        self.silent = [kind for kind in FAMILIES[family] if kind in SILENT]
        self.loud = [kind for kind in FAMILIES[family] if kind not in SILENT]
        self.open = [f"command {self.command}"]
        self.pick = ["window frmSaveTo", "expect cmdOK enabled", f'select TreeView1 "{self.target}"', "press cmdOK"]
        self.usable = [f"window {self.dialog}", 'expect StatusBar1 "Ready"', "expect cmdSave enabled"]
        self.leave = [f"window {self.dialog}", "press cmdCancel", f"closed {self.dialog}"]
        self.unseen = len({"late", "head", "body"}.intersection(self.loud))  # recordings done that nobody was told of
        self.steps, self.versions, self.numbers = ["new"], 0, itertools.count()
        # The access is logged, and the customer's names are asked for, until there is an answer, whatever is in it.
        turn = list(STORIES).index(name)
        self.logged = [("UPDATEUSERACCESSLOG", kind) for kind in self.silent[max(turn - 1, 0):turn]]
        self.named = self.silent[turn:turn + 1]

    def told(self, request, kind):
        """The step that reads and closes what the user is told when the request meets the fault."""
        upload = request == "UploadTo"
        sources = {"UploadTo": "ExecuteASPWSUploadFile", "UPDATEUSERACCESSLOG": "UpdateUserLog"}
        source = sources.get(request, "ExecuteASPWebService")
        status, document = FAULTS[kind].get("status", 200), FAULTS[kind].get("body") == DOCUMENT
        if status == 403 and not upload:
            return told_as(225, source, SECURE)
        if status in ([404] if upload else [401, 404, 424]) or {"drop", "delayMs", "location"} & FAULTS[kind].keys():
            return told_as(225, source, "Unable to connect to server '${SERVER}'" if upload else LOST)
        if document:
            return told_as(7, "Its own", "Its words.")
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
        self.steps += [self.rules(FAMILIES[self.family], "GetSetIcon"), *(again if self.loud else self.open), *ready]
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
        save = ["press cmdSave"]
        self.steps += self.usable
        silence = {"MaxFileUploadSize": told_as(225, "ExecuteASPWSUploadFile", TOO_LARGE),
                   "UploadTo": told_as(-2147023728, "Archive", "No file 'Presentation1.pptx' was uploaded.")}
        for request in [*requests, recording]:
            self.meet(request, self.loud, save, self.usable)
            if request in silence:
                self.meet(request, self.silent, save, self.usable, silence[request])
        self.meet(recording, self.silent, save, [f"closed {self.dialog}", *reopen, *self.usable], [])
        self.versions += 1 + self.unseen
        self.steps += [*save, f"closed {self.dialog}"]

    def meet_in_loading(self):
        """Of a dialog that the document's binding opens."""
        for request, silence in self.loading.items():
            if self.name == "related" or request == "IsAutoSet":
                self.meet(request, self.loud, self.open, self.leave if self.name == "related" else [])
            elif self.loud:
                failed = [f"window {self.dialog}", "expect cmdSave enabled"]  # Save loads what could not be loaded
                self.meet(request, self.loud[:1], self.open, failed)
                self.meet(request, self.loud[1:], ["press cmdSave"], failed)
                self.steps += self.leave
            words = [UNSET if silence == 91 else f'message exactly "{silence}" OK'] if silence else []
            self.meet(request, self.silent, self.open, self.leave, words)

    def meet_in_mail(self):
        for kind in [*self.loud, *self.silent] if self.name in MAILS else []:
            send = [*self.open, *self.usable, "press cmdSaveAndSend", f"closed {self.dialog}"]
            silence = [UNSET] if self.name == "related" else []
            self.meet(MAILS[self.name], [kind], send, [], silence if kind in SILENT else None)
            self.versions += 1

    def text(self):
        self.meet_in_tree()
        first, last = (self.recordings or [""])[0], (self.recordings or [""])[-1]
        if first:
            self.meet_in_save(first, SAVE, [*self.open, *self.pick] if first != last else self.open)
        else:
            self.steps += [*self.usable, "press cmdSave", f"closed {self.dialog}"]
            self.versions += 1
        self.meet_in_loading()
        self.meet_in_mail()
        self.steps += self.open
        if last != first:
            self.meet_in_save(last, [], self.open)
        else:
            self.steps += [*self.usable, "press cmdSave", f"closed {self.dialog}"]
            self.versions += 1
        large = self.family == "large"  # the system's HTTP component takes a minute for each
        head = [f"#! run --timeout {60 if large else 1}",
                r"#! registry Software\Halvex\Corvane\ServerURLMRU MRUServerURL1=${SERVER}",
                "#! set mail.client=outlook", "#! set outlook=new", *(["#! set http=own"] if large else [])]
        if self.name == "manager":
            head.append("#! user Maria Kowalski")
        tail = ["no message", "quit", f"#= versions {self.versions}", "#= uploaded documents/Presentation1.pptx",
                "#= bound documents/Presentation1.pptx " + BOUND[self.name].format(2305 + self.unseen)]
        return "\n".join([*head, *self.steps, *tail]) + "\n"


def picture(width, height, filling=b""):
    return b"GIF89a" + width.to_bytes(2, "little") + height.to_bytes(2, "little") + b"\xf7\0\0" + filling


def attributes(count):
    return b" ".join(b"a%x=''" % n for n in range(count))


HOSTILE = {  # files of a server that means ill, by the request that they answer
    "broken.gif": ("P2=Broken", picture(17, 17)),
    "wide.gif": ("P2=Wide", picture(65535, 65535, b"\0" * 768 + b",\0\0\0\0\xff\xff\xff\xff\0\x08\x01\0\0;")),
    "fat.gif": ("P2=Fat", picture(17, 17, b"\xff" * 2**22)),
    "members.xml": ("GETPROJECTTEAMMEMBERS", b"<xml xmlns:z='#RowsetSchema'>" + b"".join(
        b"<z:row EMailAddress='member%d@example.org'/>" % n for n in range(10000)) + b"</xml>"),
    "row.xml": ("GETPROJECTDELIVERABLE", b"<xml xmlns:z='#RowsetSchema'><z:row ProjectName='%s' DeliverableName='\t|..' "
                b"DeliverableID='45' OwnerID='99999999999' TeamLeaderID='-' %s/></xml>" % (b"n" * 100000, attributes(4000)))}
ICON_SETS = ["..\\..\\evil", "C:evil", "a|b", "Broken", "Wide", "Fat", "x" * 2000]


def hostile_tree():
    projects = [f'<project pid="{10**11 + n}" name="{"w" * 100000}" IconSet="{name}"/>' for n, name in enumerate(ICON_SETS)]
    below = "".join(f'<deliverable deliverableid="{n}" name="D{n}"/>' for n in range(40, 60))
    projects += [f'<project pid="{n}" name="P{n}"><stage phaseid="1" name="S">{below}</stage></project>' for n in range(490)]
    return "<xml>" + "".join(projects) + "</xml>"


def write_hostile(folder):
    """Everything that the server tells of a save is oversized or malformed; the path of the scenario."""
    files = {**HOSTILE, "tree.xml": ("GetMyAssignmentsAsTree", hostile_tree().encode()),
             "many.xml": ("GetMyProjectsRelatedFiles", b"<xml>" + b"<project pid='1' name='P'/>" * 10000 + b"</xml>")}
    for name, (_, content) in files.items():
        (folder / name).write_bytes(content)
    rules = [{"match": match, "file": str(folder / name)} for name, (match, _) in files.items()]
    endless = b"<xml xmlns:z='#RowsetSchema'><z:row %s/></xml>" % attributes(1000000)
    (folder / "endless.xml").write_bytes(endless)
    rules.insert(0, {"match": "GETPROJECTDELIVERABLE", "file": str(folder / "endless.xml"), "times": 1})
    head = "#! faults " + json.dumps(rules) + "\n#! run --timeout 60\n"
    path = folder / "hostile-server.txt"
    path.write_text(head + HOSTILE_STEPS, encoding="utf-8")
    return path


HOSTILE_STEPS = r"""#! set mail.client=outlook
#! set outlook=new
#! registry Software\Halvex\Corvane\ServerURLMRU MRUServerURL1=${SERVER}
new
command Related
window frmSaveTo
message "There are more than 500 entries" OK
window frmFilter
press cmdCancel
closed frmFilter
window frmSaveTo
expect cmdOK disabled
press cmdCancel
closed frmSaveTo
command DelivAct
window frmSaveTo
expect cmdOK enabled
select TreeView1 "P12/S/D45"
press cmdOK
message "Number: 91" OK
window frmSaveAssignment
press cmdCancel
closed frmSaveAssignment
command DelivAct
window frmSaveTo
expect cmdOK enabled
select TreeView1 "P12/S/D45"
press cmdOK
message "Document cannot be uploaded to Corvane because you do not own this Deliverable." OK
window frmSaveAssignment
expect cmdSave disabled
press cmdCancel
closed frmSaveAssignment
command GateDoc
window frmSaveTo
expect cmdOK enabled
select TreeView1 "Apollo/Gate 1/Project charter"
press cmdOK
window frmSaveGateDoc
press cmdSaveAndSend
closed frmSaveGateDoc
mail Subject "Project charter, Version 2 (${TODAY}) - Gate 1 - Apollo"
no message
quit
#= requests 1 GETPROJECTTEAMMEMBERS
#= versions 1
"""


def write_stories(folder):
    """Writes the scenarios; their paths."""
    folder.mkdir(parents=True, exist_ok=True)
    huge = folder / "huge"
    huge.exists() or huge.write_bytes(b"x" * 2**26)
    paths = [write_hostile(folder)]
    for family in FAMILIES:
        for name in STORIES:
            paths.append(folder / f"{family}-{name}.txt")
            paths[-1].write_text(Story(name, family).text().replace("HUGE", str(huge)), encoding="utf-8")
    return paths
