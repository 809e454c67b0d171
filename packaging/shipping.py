"""What all that is passed on has in common: the version it carries, and archives that are the same for the same files."""
import zipfile


def version_of(library):
    """The version that the library's resource carries, as major, minor, revision."""
    data = library.read_bytes()
    at = data.index(bytes.fromhex("bd04effe"))  # VS_FIXEDFILEINFO
    word = lambda offset: int.from_bytes(data[at + offset:at + offset + 2], "little")
    return word(10), word(8), word(14)


def pack(target, files):
    """An archive of files by their names in it; the same files give the same archive."""
    with zipfile.ZipFile(target, "w", zipfile.ZIP_DEFLATED) as archive:
        for name, file in sorted(files.items()):
            archive.writestr(zipfile.ZipInfo(name), file.read_bytes(), zipfile.ZIP_DEFLATED)  # without a date
    return target
