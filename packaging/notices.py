"""The notices of the run-time code that the compiler links in, from the copyright files of its Debian packages."""
import pathlib, re

RUNTIME = pathlib.Path("/usr/share/doc/mingw-w64-common/copyright")

HEAD = """Corvane for MS Office - PowerPoint: notices

The add-in's library and its diagnosis program use the components of Windows and contain parts of these works:

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


def licence_text(fields, name):
    """The text of a licence: of the first paragraph that names it and carries more than its name."""
    for paragraph in fields:
        title, _, body = paragraph.get("License", "").partition("\n")
        if title.strip() == name and body.strip():
            return plain(body)
    raise SystemExit(f"{RUNTIME} lacks the licence {name}")


def write(target):
    fields = list(paragraphs(RUNTIME.read_text(encoding="utf-8")))
    text = HEAD
    for files in ("*", "mingw-w64-libraries/winpthreads/*", "mingw-w64-libraries/winpthreads/include/pthread.h"):
        paragraph = next(one for one in fields if one.get("Files", "").split("\n")[0].strip() == files)
        name = paragraph["License"].split("\n")[0].strip()
        title = "mingw-w64 run time" if files == "*" else files.partition("/")[2].removesuffix("/*")
        owners = plain(paragraph["Copyright"]).strip()
        text += f"\n\n=== {title} ===\n\nCopyright {owners}\n\n{licence_text(fields, name)}\n"
    target.write_text(text.replace("\n", "\r\n"), encoding="utf-8", newline="")
