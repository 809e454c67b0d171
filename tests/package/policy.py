#!/usr/bin/env python3
"""Checks the policy templates: namespaces, every reference between the two files, and that the add-in reads the values
that they set, and that the guide for administrators lists them. Exits non-zero with one line for each fault."""
import pathlib, re, sys
import xml.etree.ElementTree as ET

TOP = pathlib.Path(__file__).resolve().parents[2]
NAMESPACE = "{http://schemas.microsoft.com/GroupPolicy/2006/07/PolicyDefinitions}"
KEY = r"Software\Policies\Halvex\Corvane"


def faults():
    template = ET.parse(TOP / "policy/Corvane.admx").getroot()
    texts = ET.parse(TOP / "policy/en-US/Corvane.adml").getroot()
    for root, name in ((template, "policyDefinitions"), (texts, "policyDefinitionResources")):
        if root.tag != NAMESPACE + name:
            yield f"the root is {root.tag}"
    there = {"string": {one.get("id") for one in texts.iter(NAMESPACE + "string") if (one.text or "").strip()},
             "presentation": {one.get("id") for one in texts.iter(NAMESPACE + "presentation")}}
    used = {kind: set(re.findall(rf"\$\({kind}\.(\w+)\)", ET.tostring(template, "unicode"))) for kind in there}
    for kind in there:
        for name in used[kind] ^ there[kind]:
            yield f"{kind} {name} is " + ("not defined" if name in used[kind] else "not used")
    boxes = {one.get("refId") for one in texts.iter() if one.get("refId")}
    elements = {one.get("id") for one in template.iter() if one.get("id")}
    for name in boxes ^ elements:
        yield f"element {name} stands in one of the files only"
    names = {one.get("name") for one in template.iter() if one.get("name")}
    for one in template.iter():
        if one.get("ref") and one.get("ref") not in names:
            yield f"{one.get('ref')} is referred to, but not defined"
    yield from unread(template, texts)


def unread(template, texts):
    """Values that a policy sets and no source reads, and keys that are not the add-in's."""
    source = "".join(file.read_text(encoding="utf-8") for file in (TOP / "src").rglob("*.cpp"))
    read = {name for name in re.findall(r'Policy::Number\(L"(\w+)"\)', source)}
    read |= {name + "s" for name in re.findall(r'Policy::List\(L"(\w+)"\)', source)}
    values = {one.get("valueName") for one in template.iter() if one.get("valueName")}
    for one in template.iter(NAMESPACE + "list"):
        values.add(one.get("valuePrefix") + "s")
        if one.get("key") != f"{KEY}\\{one.get('valuePrefix')}s":
            yield f"the list {one.get('id')} is in another key"
    for name in read ^ values:
        yield f"the value {name} is " + ("never set by a policy" if name in read else "never read")
    rows = (TOP / "docs/admin-guide.md").read_text(encoding="utf-8")
    titles = {one.get("id"): one.text for one in texts.iter(NAMESPACE + "string")}
    for one in template.iter(NAMESPACE + "policy"):
        if f"| {titles[one.get('name')]} | `{one.get('name')}" not in rows:
            yield f"the guide does not list {one.get('name')}"
        if not one.get("key").startswith(KEY):
            yield f"the policy {one.get('name')} is in another key"


if __name__ == "__main__":
    found = list(faults())
    print("\n".join(found) or "policy: templates and add-in agree")
    sys.exit(bool(found))
