"""Scenarios in which every step of a save meets faults, one after the other, until it succeeds in the same dialog.

The server uses up one rule with each failing request. A rule without effect lets a request through.
"""
import json

USER = "/WebServices/offi.asp?Op=G%65tUser&P1=v6"
LOST = "Unable to contact server ${SERVER}."
SECURE = "The server cannot be accessed or the page must be viewed over a secure channel."
TOO_LARGE = "File size is greater than maximum allowed. Please contact your server administrator."
DOCUMENT = "<error number='7' source='Its own' description='Its words.'/>"
STATUSES = [401, 403, 404, 424, 500, 503, 509]
FAMILIES = {  # kinds of faults that one story meets, by its name
    "faults": {"drop": {"drop": "before"}, "document": {"body": DOCUMENT}, **{f"{n}": {"status": n} for n in STATUSES}},
    "answers": {**{f"{n} document": {"status": n, "body": DOCUMENT} for n in STATUSES},
                "upper case": {"body": DOCUMENT.replace("error", "ERROR")}, "empty": {"body": ""},
                "truncated": {"body": '<xml xmlns:z="#RowsetSchema"><z:row a='},
                "wrong type": {"body": "GIF89a", "contentType": "image/png"}, "redirected": {"status": 302, "location": USER}},
    "lines": {"refused": {"status": 302, "location": "http://127.0.0.1:1/"}, "late": {"delayMs": 3000},
              "no such name": {"status": 302, "location": "http://h.invalid/"}, "body": {"drop": "body"}},
    "large": {"64 MiB": {"file": "HUGE"}}}
FAULTS = {kind: rule for family in FAMILIES.values() for kind, rule in family.items()}
SILENT = {"empty", "truncated", "wrong type", "redirected", "64 MiB"}  # no failure by themselves
SAVE = ["MaxFileUploadSize", "UploadTo"]
STORIES = {  # command, tree, target, dialog, requests of the first loading, recording, later loading and recording
    "deliverable": ("DelivAct", "GetMyAssignmentsAsTree", "Apollo/Concept/Business case", "frmSaveAssignment", {
        "IsAutoSet": 1, "IsProjectTeamMember": 1, "Op=GetUserID": 3, "Op=GetUser&": 1, "GETPROJECTDELIVERABLE": 1,
        "CHECKACTIVEWORKFLOW": 1}, "CDeliverable.UploadAndUpdate", "CDeliverable.UploadAndUpdate"),
    "activity": ("DelivAct", "GetMyAssignmentsAsTree", "Apollo/Concept/Business case/Draft the business case",
                 "frmSaveAssignment", {"Op=GetUserID": 2, "GETPROJECTACTIVITY": 1, "CHECKACTIVEWORKFLOW": 2},
                 "CActivity.UploadAndUpdate", "CActivity.UploadAndUpdate"),
    "gate": ("GateDoc", "GetMyGateDocumentsAsTree", "Apollo/Gate 1/Project charter", "frmSaveGateDoc", {
        "Op=GetUserID": 2, "IsProjectTeamMember": 1, "USERCANUPDATE": 1, "GETPROJECTGATEDOCUMENT": 1, "Op=GetUser&": 1},
        "CGateDocument.UploadAndUpdate", "CGateDocument.UploadAndUpdate"),
    "related": ("Related", "GetMyProjectsRelatedFiles", "Apollo/[New Related Document]", "frmSaveRelatedDoc", {
        "Op=GetUser&": 1, "GetProjectRelatedFile": 0, "GetGroups": 1}, "CreateProjectRelatedFile2",
        "UploadProjectRelatedFile2")}


class Story:
    def __init__(self, name, family):
        self.name, self.family = name, family
        self.command, self.tree, self.target, self.dialog, self.loading, self.first, self.later = STORIES[name]
        self.silent = [kind for kind in FAMILIES[family] if kind in SILENT]
        self.loud = [kind for kind in FAMILIES[family] if kind not in SILENT]
        self.again = [f"command {self.command}"]
        self.usable = [f"window {self.dialog}", 'expect StatusBar1 "Ready"', "expect cmdSave enabled"]
        self.rules, self.steps, self.unseen = [], [], 0

    def message(self, request, kind):
        """The step that reads and closes what the user is told when the request meets the fault."""
        upload = request == "UploadTo"
        source = {"UploadTo": "ExecuteASPWSUploadFile", "UPDATEUSERACCESSLOG": "UpdateUserLog"}
        raised, rule = source.get(request, "ExecuteASPWebService"), FAULTS[kind]
        status, told = rule.get("status", 200), rule.get("body") == DOCUMENT
        number, lines = 225, ["Unable to connect to server '${SERVER}'" if upload else LOST]
        if kind in SILENT and upload:
            number, lines, raised = -2147023728, ["No file 'Presentation1.pptx' was uploaded."], "Archive"
        elif kind in SILENT:
            lines, raised = [TOO_LARGE], "ExecuteASPWSUploadFile"
        elif status == 403 and not upload:
            lines = [SECURE]
        elif status in ([404] if upload else [401, 404, 424]) or {"drop", "delayMs", "location"} & rule.keys():
            pass
        elif told:
            number, lines, raised = 7, ["Its words."], "Its own"
        elif kind == "upper case" or (status == 509 and not upload):
            number, lines = 91, ["Object variable or With block variable not set"]
        else:
            number, lines = status, [f"Error: HTTP Status Code {status}", "", "Remote call to '${SERVER}' failed.", ""]
        words = ["ERROR", f"Number: {number}", "Description: " + lines[0], *lines[1:], "Source: " + raised]
        return "message exactly " + " ".join(f'"{word}"' for word in words) + " OK"

    def meet(self, requests, kinds, after):
        """Each request fails once in each way; after each message come these steps."""
        for request in requests:
            for kind in kinds:
                self.rules.append({"match": request, "times": 1, **FAULTS[kind]})
                self.steps += [self.message(request, kind), *after]

    def meet_silently(self, request, shown, after):
        """Each answer without a failure in it ends what was asked for as if it had been done."""
        for kind in self.silent:
            times = 2 if request == self.tree else 1  # its projects are counted before
            self.rules.append({"match": request, "times": times, **FAULTS[kind]})
            self.steps += [*shown, *after]

    def pick(self):
        return ["expect cmdOK enabled", f'select TreeView1 "{self.target}"', "press cmdOK"]

    def save(self, recording, kinds, reopen):
        """A save whose requests fail, up to its success in the same dialog."""
        again = [*self.usable, "press cmdSave"]
        self.steps += again
        if recording == self.first and "UploadTo" not in str(self.rules):
            self.meet(SAVE, FAMILIES[self.family], again)
            self.rules.append({"match": recording, "times": len(self.silent)})  # nothing had been uploaded
        self.meet([recording], kinds, again)
        self.unseen += len({"late", "body"}.intersection(kinds))  # recorded, only nobody was told
        if reopen:
            self.meet_silently(recording, [f"closed {self.dialog}", *reopen], again)
        self.steps.append(f"closed {self.dialog}")

    def text(self):
        related = self.name == "related"
        all_alike = ["UPDATEUSERACCESSLOG"] if self.name == "deliverable" else []
        # A load that fails leaves the buttons as they were; where Save is in use, it loads what could not be loaded.
        retry = [f"window {self.dialog}", "expect cmdSave enabled", "press cmdSave"]
        if related:
            retry = [f"window {self.dialog}", "expect cmdSave disabled", "press cmdCancel", f"closed {self.dialog}", *self.again]
        saves_before = 1 + (len(self.silent) if related else 0)
        self.rules += [{"match": request, "times": times * saves_before} for request, times in self.loading.items()]
        self.steps += ["new", *self.again, "window frmSaveTo"]
        self.meet([*all_alike, self.tree], self.loud, ["expect cmdOK disabled", 'expect StatusBar1 "Ready"', "press cmdGo"])
        self.meet_silently(self.tree, ["expect txtTree visible", 'expect StatusBar1 "Ready"'], ["press cmdGo"])
        self.steps += self.pick()
        leave_tree = ["press cmdCancel", "closed frmSaveTo", *self.again, "window frmSaveTo", *self.pick()]
        self.meet(["CConfig.GetValues"] if all_alike else [], self.loud, leave_tree)
        self.save(self.first, self.loud, [*self.again, "window frmSaveTo", *self.pick()] if related else [])
        self.steps += self.again
        for request in self.loading:
            self.meet([request], self.loud, ["closed frmBusy", *self.again] if request == "IsAutoSet" else retry)
        self.save(self.later, self.loud if related else [], self.again)
        self.steps += ["no message", "quit"]
        head = [f"#! run --timeout {60 if self.family == 'large' else 1}", "#! faults " + json.dumps(self.rules),
                r"#! registry Software\Halvex\Corvane\ServerURLMRU MRUServerURL1=${SERVER}"]
        if self.family == "large": # the system's takes a minute for each
            head.append("#! set http=own")
        return "\n".join([*head, *self.steps, f"#= versions {2 + self.unseen}", "#= uploaded documents/Presentation1.pptx"]) + "\n"


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
    (folder / "huge").write_bytes(b"x" * 2**26)
    paths = [write_hostile(folder)]
    for family in FAMILIES:
        for name in STORIES:
            paths.append(folder / f"{family}-{name}.txt")
            paths[-1].write_text(Story(name, family).text().replace("HUGE", str(folder / "huge")), encoding="utf-8")
    return paths
