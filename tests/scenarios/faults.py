"""Scenarios in which every step of a save meets faults, one after the other, until it succeeds in the same dialog.

The server uses up one rule with each failing request. A rule without effect lets a request through.
"""
import json

LOST = "Unable to contact server ${SERVER}."
SECURE = "The server cannot be accessed or the page must be viewed over a secure channel."
FAULTS = {"drop": {"drop": "before"}, "error": {"status": 500, "body": "no"}, "secure": {"status": 403},
          "denied": {"status": 401}, "missing": {"status": 404}, "dependent": {"status": 424}, "full": {"status": 503},
          "document": {"body": "<error number='7' source='Its own' description='Its words.'/>"}}
SAVE = ["MaxFileUploadSize", "UploadTo"]
STORIES = {  # command, tree, target, dialog, requests of the first loading, recording, later loading and recording
    "deliverable": ("DelivAct", "GetMyAssignmentsAsTree", "Apollo/Concept/Business case", "frmSaveAssignment", {
        "IsAutoSet": 1, "Op=GetUserID": 2, "IsProjectTeamMember": 1, "Op=GetUser&": 1, "GETPROJECTDELIVERABLE": 1,
        "CHECKACTIVEWORKFLOW": 1}, "CDeliverable.UploadAndUpdate", "CDeliverable.UploadAndUpdate"),
    "activity": ("DelivAct", "GetMyAssignmentsAsTree", "Apollo/Concept/Business case/Draft the business case",
                 "frmSaveAssignment", {"GETPROJECTACTIVITY": 1, "CHECKACTIVEWORKFLOW": 2},
                 "CActivity.UploadAndUpdate", "CActivity.UploadAndUpdate"),
    "gate": ("GateDoc", "GetMyGateDocumentsAsTree", "Apollo/Gate 1/Project charter", "frmSaveGateDoc", {
        "Op=GetUserID": 2, "IsProjectTeamMember": 1, "USERCANUPDATE": 1, "GETPROJECTGATEDOCUMENT": 1, "Op=GetUser&": 1},
        "CGateDocument.UploadAndUpdate", "CGateDocument.UploadAndUpdate"),
    "related": ("Related", "GetMyProjectsRelatedFiles", "Apollo/[New Related Document]", "frmSaveRelatedDoc", {
        "Op=GetUser&": 1, "GetProjectRelatedFile": 0, "GetGroups": 1}, "CreateProjectRelatedFile2",
        "UploadProjectRelatedFile2")}


class Story:
    def __init__(self, name):
        self.name = name
        self.command, self.tree, self.target, self.dialog, self.loading, self.first, self.later = STORIES[name]
        self.rules, self.steps = [], []

    def message(self, request, kind):
        """The step that reads and closes what the user is told when the request meets the fault."""
        upload = request == "UploadTo"
        source = {"UploadTo": "ExecuteASPWSUploadFile", "UPDATEUSERACCESSLOG": "UpdateUserLog"}
        raised, status = source.get(request, "ExecuteASPWebService"), FAULTS[kind].get("status")
        number, lines = 225, ["Unable to connect to server '${SERVER}'" if upload else LOST]
        if kind == "document":
            number, lines, raised = 7, ["Its words."], "Its own"
        elif status == 403 and not upload:
            lines = [SECURE]
        elif kind != "drop" and status not in ([404] if upload else [401, 404, 424]):
            number = status
            lines = [f"Error: HTTP Status Code {number}", "", "Remote call to '${SERVER}' failed.", ""]
        words = ["ERROR", f"Number: {number}", "Description: " + lines[0], *lines[1:], "Source: " + raised]
        return "message exactly " + " ".join(f'"{word}"' for word in words) + " OK"

    def meet(self, requests, kinds, after):
        """Each request fails once in each way; after each message come these steps."""
        for request in requests:
            for kind in kinds:
                self.rules.append({"match": request, "times": 1, **FAULTS[kind]})
                self.steps += [self.message(request, kind), *after]

    def pick(self):
        return ["expect cmdOK enabled", f'select TreeView1 "{self.target}"', "press cmdOK"]

    def text(self):
        again = [f"command {self.command}"]
        usable = [f"window {self.dialog}", 'expect StatusBar1 "Ready"', "expect cmdSave enabled"]
        # A load that fails leaves the buttons as they were; where Save is in use, it loads what could not be loaded.
        retry = [f"window {self.dialog}", "expect cmdSave enabled", "press cmdSave"]
        if self.name == "related":
            retry = [f"window {self.dialog}", "expect cmdSave disabled", "press cmdCancel", f"closed {self.dialog}", *again]
        self.rules += [{"match": request, "times": times} for request, times in self.loading.items()]
        self.steps += ["new", *again, "window frmSaveTo"]
        all_alike = ["UPDATEUSERACCESSLOG"] if self.name == "deliverable" else []
        self.meet([*all_alike, self.tree], FAULTS, ["expect cmdOK disabled", 'expect StatusBar1 "Ready"', "press cmdGo"])
        self.steps += self.pick()
        leave_tree = ["press cmdCancel", "closed frmSaveTo", *again, "window frmSaveTo", *self.pick()]
        self.meet(["CConfig.GetValues"] if all_alike else [], ["document"], leave_tree)
        self.steps += [*usable, "press cmdSave"]
        self.meet([*SAVE, self.first], FAULTS, [*usable, "press cmdSave"])
        self.steps += [f"closed {self.dialog}", *again]
        for request in self.loading:
            after = ["closed frmBusy", *again] if request == "IsAutoSet" else retry
            self.meet([request], ["document"], after)
        self.steps += [*usable, "press cmdSave"]
        if self.later != self.first:
            self.meet([self.later], FAULTS, [*usable, "press cmdSave"])
        self.steps += [f"closed {self.dialog}", "no message", "quit"]
        head = ["#! run --timeout 1", "#! faults " + json.dumps(self.rules),
                r"#! registry Software\Halvex\Corvane\ServerURLMRU MRUServerURL1=${SERVER}"]
        return "\n".join([*head, *self.steps, "#= versions 2", "#= uploaded documents/Presentation1.pptx"]) + "\n"


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
    paths = [folder / f"faults-{name}.txt" for name in STORIES]
    for name, path in zip(STORIES, paths):
        path.write_text(Story(name).text(), encoding="utf-8")
    return [*paths, write_hostile(folder)]
