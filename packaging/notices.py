"""The notices of the works of others that ship in our programs, from the copyright files of their Debian packages."""
import pathlib, re

PACKAGES = pathlib.Path("/usr/share/doc")
PUGIXML = pathlib.Path(__file__).resolve().parents[1] / "third_party/pugixml/LICENSE.md"

HEAD = """Corvane for MS Office - PowerPoint: notices

{programs} use the components of Windows and contain parts of these works:

- The GNU C++ library and the support library of the GNU compilers, copyright Free Software Foundation, Inc., under the
  GNU General Public License, version 3, with the GCC Runtime Library Exception, which lets programs that contain them
  be passed on under terms of their own. Sources: https://gcc.gnu.org
- The mingw-w64 run time and its winpthreads, under the terms below. Sources: https://www.mingw-w64.org
"""


def paragraphs(text):
    """Each paragraph of the machine-readable format as its fields."""
    for paragraph in re.split(r"\n\s*\n(?=\S)", text):
        yield dict(re.findall(r"^(\S+):[ \t]*(.*(?:\n[ \t].*)*)", paragraph, re.M))


def plain(field):
    return "\n".join(re.sub(r"^ ?\.?$", "", line).removeprefix(" ") for line in field.splitlines())


# Titles of works, the packages that tell of them, and the files by which these do.
RUNTIME = (("mingw-w64 run time", "mingw-w64-common", "*"),
           ("winpthreads", "mingw-w64-common", "mingw-w64-libraries/winpthreads/*"),
           ("winpthreads/include/pthread.h", "mingw-w64-common", "mingw-w64-libraries/winpthreads/include/pthread.h"))
SANDBOX = (("Asio", "libasio-dev", "*"),
           ("JSON for Modern C++", "nlohmann-json3-dev", "*"),
           ("JSON for Modern C++: numbers", "nlohmann-json3-dev", "include/nlohmann/detail/conversions/to_chars.hpp"),
           ("JSON for Modern C++: letters", "nlohmann-json3-dev", "include/nlohmann/detail/output/serializer.hpp"),
           ("zlib", "libz-mingw-w64-dev", "*"))
SANDBOX_HEAD = """- Asio, JSON for Modern C++, pugixml and zlib, in the programs of the sandbox, under the terms below. Sources:
  https://think-async.com, https://github.com/nlohmann/json, https://pugixml.org, https://zlib.net
"""


def licence_text(fields, name, package):
    """The text of a licence: of the first paragraph that names it and carries more than its name."""
    for paragraph in fields:
        title, _, body = paragraph.get("License", "").partition("\n")
        if title.strip() == name and body.strip():
            return plain(body)
    raise SystemExit(f"the copyright file of {package} lacks the licence {name}")


def section(title, package, files):
    fields = list(paragraphs((PACKAGES / package / "copyright").read_text(encoding="utf-8")))
    paragraph = next(one for one in fields if one.get("Files", "").split("\n")[0].strip() == files)
    name = paragraph["License"].split("\n")[0].strip()
    owners = plain(paragraph["Copyright"]).strip()
    return f"\n\n=== {title} ===\n\nCopyright {owners}\n\n{licence_text(fields, name, package)}\n"


def write(target, sandbox=False):
    """Writes the notices of the add-in, or of the add-in and the sandbox's programs."""
    programs = "The add-in's library and the programs beside it" if sandbox else "The add-in's library and its diagnosis program"
    text = HEAD.format(programs=programs) + SANDBOX_HEAD * sandbox + "".join(section(*work) for work in RUNTIME + SANDBOX * sandbox)
    if sandbox:
        text += "\n\n=== pugixml ===\n\n" + PUGIXML.read_text(encoding="utf-8")
    target.write_text(text.replace("\n", "\r\n"), encoding="utf-8", newline="")
