"""The registration of the library as installer tables. Class ids come from the library's interface definition."""
import pathlib, re
from xml.sax.saxutils import quoteattr

IDL = pathlib.Path(__file__).resolve().parents[1] / "src/addin/addin.idl.in"
PROJECT = "CorvaneMSOfficePowerPoint"
TITLE = "Corvane for MS Office - PowerPoint"
DESCRIPTION = "Corvane Addin for MS Office Documents - PowerPoint"
CLASSES = "Software\\Classes\\"
ADD_IN = f"Software\\Microsoft\\Office\\PowerPoint\\Addins\\{PROJECT}.Connect"


def interface_definition():
    """The library's id and the public classes' names and ids."""
    text = IDL.read_text(encoding="utf-8")
    library = re.search(r"\[uuid\(([^)]*)\)[^]]*\]\s*library", text)[1]
    classes = re.findall(r"\[uuid\(([^)]*)\)[^]]*\]\s*coclass (\w+)", text)
    braced = lambda guid: "{" + guid.upper() + "}"
    return braced(library), [(name, braced(guid)) for guid, name in classes]


def class_values(library, classes):
    for name, guid in classes:
        key = f"{CLASSES}CLSID\\{guid}"
        yield key, "", f"{PROJECT}.{name}"
        yield key + "\\InprocServer32", "", "[#Library]"
        yield key + "\\InprocServer32", "ThreadingModel", "Apartment"
        yield key + "\\ProgID", "", f"{PROJECT}.{name}"
        yield key + "\\TypeLib", "", library


def prog_id_values(classes):
    for name, guid in classes:
        yield f"{CLASSES}{PROJECT}.{name}", "", f"{PROJECT}.{name}"
        yield f"{CLASSES}{PROJECT}.{name}\\CLSID", "", guid


def components(arch, scope, version, derived):
    """Each component: its name, its id and its values. A user's id without the bitness is shared by both bitnesses,
    so that its values stay until the last of them is removed; a machine's differ in their view of the registry."""
    library, classes = interface_definition()
    short = f"{version[0]:x}.{version[1]:x}"
    type_library = f"{CLASSES}TypeLib\\{library}\\{short}"
    # A machine's add-ins key exists once for each bitness, a user's only once.
    add_in = ("add-in", arch, scope) if scope == "perMachine" else ("add-in", scope)
    return [
        ("Classes", derived("classes", arch, scope), class_values(library, classes)),
        ("ProgIds", derived("prog-ids", scope), prog_id_values(classes)),
        ("AddIn", derived(*add_in), [(ADD_IN, "FriendlyName", TITLE), (ADD_IN, "Description", DESCRIPTION),
                                     (ADD_IN, "LoadBehavior", 3)]),
        ("TypeLibrary", derived("type-library", arch, scope, short),
         [(type_library + ("\\0\\win64" if arch == "x64" else "\\0\\win32"), "", "[#Library]")]),
        ("TypeLibraryName", derived("type-library-name", scope, short), [(type_library, "", TITLE)]),
    ]


def value_element(root, key, name, value, first):
    attributes = {"Root": root, "Key": key, "Type": "integer" if isinstance(value, int) else "string",
                  "Value": str(value)}
    if name:
        attributes["Name"] = name
    if first:
        attributes["KeyPath"] = "yes"
    return "<RegistryValue " + " ".join(f"{key}={quoteattr(text)}" for key, text in attributes.items()) + "/>"


def include(arch, scope, version, derived):
    """The include file for corvane.wxs."""
    lines = ["<Include>", '<DirectoryRef Id="INSTALLDIR">']
    root = "HKCU" if scope == "perUser" else "HKLM"
    shared = {guid for _, guid, _ in components("x86" if arch == "x64" else "x64", scope, version, derived)}
    for name, guid, values in components(arch, scope, version, derived):
        # A component of both packages is one to the installer only if it has the same bitness in both. A user's keys
        # are the same in both views of the registry. Those of a machine are not everywhere, so each package has them
        # in its own view.
        wide = arch == "x64" and (scope == "perMachine" or guid not in shared)
        lines.append(f'<Component Id="{name}" Guid="{guid}" Win64="{"yes" if wide else "no"}">')
        lines += [value_element(root, *value, first=index == 0) for index, value in enumerate(values)]
        lines.append("</Component>")
    return "\n".join(lines + ["</DirectoryRef>", "</Include>", ""])
