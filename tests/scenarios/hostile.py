"""A scenario with a server that means ill: everything that it tells of a save is oversized or malformed."""
import json


def attributes(count):
    return b" ".join(b"a%x=''" % n for n in range(count))


HOSTILE = {  # files of a server that means ill, by the request that they answer
    "members.xml": ("GETPROJECTTEAMMEMBERS", b"<xml xmlns:z='#RowsetSchema'>" + b"".join(
        b"<z:row EMailAddress='member%d@example.org'/>" % n for n in range(10000)) + b"</xml>"),
    "row.xml": ("GETPROJECTDELIVERABLE", b"<xml xmlns:z='#RowsetSchema'><z:row ProjectName='%s' DeliverableName='\t|..' "
                b"DeliverableID='45' OwnerID='99999999999' TeamLeaderID='-' %s/></xml>" % (b"n" * 100000, attributes(4000)))}
ICON_SETS = ["..\\..\\evil", "C:evil", "a|b", "x" * 2000]


def hostile_tree():
    projects = [f'<project pid="{10**11 + n}" name="{"w" * 100000}" IconSet="{name}"/>' for n, name in enumerate(ICON_SETS)]
    below = "".join(f'<deliverable deliverableid="{n}" name="D{n}"/>' for n in range(40, 60))
    projects += [f'<project pid="{n}" name="P{n}"><stage phaseid="1" name="S">{below}</stage></project>' for n in range(490)]
    return "<xml>" + "".join(projects) + "</xml>"


def write_hostile(folder):
    """Writes the scenario, and beside it the files of its server."""
    files = {**HOSTILE, "tree.xml": ("GetMyAssignmentsAsTree", hostile_tree().encode()),
             "many.xml": ("GetMyProjectsRelatedFiles", b"<xml>" + b"<project pid='1' name='P'/>" * 10000 + b"</xml>")}
    for name, (_, content) in files.items():
        (folder / name).write_bytes(content)
    rules = [{"match": match, "file": "${BESIDE}/" + name} for name, (match, _) in files.items()]
    endless = b"<xml xmlns:z='#RowsetSchema'><z:row %s/></xml>" % attributes(1000000)
    (folder / "endless.xml").write_bytes(endless)
    words = "line&#10;" * 20 + "w" * 1000 + "&#10;line" * 100000
    rules[:0] = [{"match": "GETPROJECTDELIVERABLE", "file": "${BESIDE}/endless.xml", "times": 1},
                 {"match": "UploadAndUpdate", "body": f"<error number='7' source='' description='{words}'/>", "times": 1}]
    cached = "#! registry Software\\Halvex\\Corvane\\CustomNames "  # by an older version
    head = f"#! faults {json.dumps(rules)}\n#! run --timeout 60\n{cached}Corvane=\n{cached}Deliverable={'d' * 1025}\n"
    (folder / "hostile-server.txt").write_text(head + HOSTILE_STEPS, encoding="utf-8")


HOSTILE_STEPS = r"""#! set mail.client=outlook
#! set patience=120
#! set outlook=new
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
pick "P12/S/D45"
message "Number: 91" OK
window frmSaveAssignment
press cmdCancel
closed frmSaveAssignment
command DelivAct
pick "P12/S/D45"
message "Document cannot be uploaded to Corvane because you do not own this Deliverable." OK
window frmSaveAssignment
expect cmdSave disabled
press cmdCancel
closed frmSaveAssignment
command GateDoc
pick "Apollo/Gate 1/Project charter"
window frmSaveGateDoc
press cmdSaveAndSend
window message
fits message
message "Number: 7" OK
press cmdSaveAndSend
closed frmSaveGateDoc
mail Subject "Project charter, Version 2 (${TODAY}) - Gate 1 - Apollo"
no message
#= requests 1 GETPROJECTTEAMMEMBERS
#= versions 1
#= ribbon 2009-07
"""
