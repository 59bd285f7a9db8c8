# SPDX-License-Identifier: MIT
"""Writes the pages of docs/classes from the headers, the list of images, and the code in the pages
that are written by hand, or with --check compares; see scripts/docs."""

import re
import sys
from dataclasses import dataclass, field
from pathlib import Path
from textwrap import indent

import tree

PAGES = Path("docs/classes")
LINES = "the hoxq_class() lines of the build"
BY_HAND = [Path("README.md"), *sorted(Path("docs").glob("*.md"))]
IMAGE_LIST = Path("docs/image-list.md")
IMAGES_PAGE = Path("gallery/pages/imagespage.cpp")
NOTICE = "<!-- Written by scripts/docs from {}: change it there. -->\n"

CLASS = re.compile(
    r"(?P<comment>(?:^///[^\n]*\n)+)(?P<key>class|struct|enum class|enum) (?:\w+_EXPORT )?"
    r"(?P<name>\w+)(?P<bases>[^;{]*?)\s*\{\n(?P<body>.*?)^\};", re.M | re.S)
SECTION = re.compile(r"(public|protected|private|Q_SIGNALS)( Q_SLOTS)?:")
PROPERTY = re.compile(r"Q_PROPERTY\(\s*(?P<type>.+?) (?P<name>\w+) (?:READ (?P<get>\w+)|MEMBER \w+)"
                      r"(?: WRITE (?P<set>\w+))?")
# What a comment names: an argument, a qualified name, a call, a name with underscores and perhaps
# its value, a quotation, a class; and what Markdown would take for its own.
TOKEN = re.compile(r'\\a\s+(\w+)|\w+(?:::\w+)+(?:\(\))?|\w+\([^()]*\)|\w*_\w+(?:="[^"]*")?|"[^"]*"'
                   r"|\b[A-Z]\w+\b|[<>*|]")


# <!-- code: FILE FUNCTION... --> before a block of code: what the block shows.
EMBEDDED = re.compile(r"(?P<mark><!-- code: (?P<file>\S+)(?P<names>[\w ]*) -->\n```\w+\n)"
                      r"(?P<code>.*?)(?P<end>^```$)", re.M | re.S)

# <!-- made: KIND --> and <!-- end -->: what lies between is made.
MADE = re.compile(r"(?P<mark><!-- made: (?P<kind>\w+) -->\n).*?(?P<end><!-- end -->)", re.S)


@dataclass
class Item:
    """Declarations that share a comment."""
    section: str
    declarations: list
    text: str


@dataclass
class Class:
    name: str
    header: Path
    comment: str
    bases: list
    items: list = field(default_factory=list)
    bare: list = field(default_factory=list)  # declarations that nothing describes

    def chosen(self, section, test):
        return [item for item in self.items
                if item.section == section and test(item.declarations[0])]


def is_property(code):
    return code.startswith("Q_PROPERTY")


def is_operation(code):
    # A parenthesis behind = or { belongs to a default value.
    return bool(re.match(r"[^={]*\(|.*\boperator\b", code)) and not code.startswith("Q_")


def is_implied(code):
    return not is_operation(code) or bool(re.search(r"~|\boverride\b|= (default|delete);", code))


def is_enum(code):
    return code.startswith("enum ")


def is_field(code):
    return not is_operation(code) and not is_enum(code) and not is_property(code)


def uncommented(lines):
    return "\n".join(line.strip()[3:].removeprefix(" ") for line in lines)


def is_complete(code):
    is_balanced = all(code.count(a) == code.count(b) for a, b in ("()", "{}"))
    return is_balanced and (code[-1] in ";}" or code.startswith("Q_"))


def statements(body, section):
    """Yields section, comment, declaration and whether a blank line stands before it."""
    comment, code, is_apart = [], "", True
    for line in map(str.strip, body.splitlines()):
        switch = SECTION.fullmatch(line)
        if switch:
            section, is_apart = switch[1], True
        elif not line:
            is_apart = True
        elif line.startswith("///"):
            comment.append(line)
        elif not line.startswith("//"):
            declaration, _, behind = line.partition("///<")
            code = f"{code} {declaration.partition(' //')[0].strip()}".strip()
            code = code.replace("( ", "(")
            if behind:
                name = "" if is_complete(code) else f"- \\a {re.match(r'[^ ,=]+', line)[0]}:"
                comment.append(f"///{name}{behind}")
            if is_complete(code):
                code = code.removeprefix("Q_INVOKABLE ")
                yield section, uncommented(comment), code, is_apart
                comment, code, is_apart = [], "", False


def without_body(code):
    if not is_operation(code):
        return code.rstrip(";")
    code = re.sub(r"\s*(\{.*\})?;?$", "", code)
    return re.sub(r"^\[\[.*?\]\] |^explicit | override$", "", code)


def name_of(operation):
    return re.search(r"(\w+|\boperator[^(]+)\(", operation)[1]


def accessors(code):
    """The operations that the description of a property speaks of too."""
    found = PROPERTY.match(code)
    return {found["get"], found["set"]} if found else set()


def is_constructor(code, owner, arguments=".*"):
    return bool(re.match(rf"(explicit )?{owner}\({arguments}\)", code))


def is_sibling(code, above):
    """Whether what is said of the operation above holds for this one: another overload, the setter
    of a getter, or another name with the same arguments."""
    if not above or not is_operation(code) or not is_operation(above.declarations[-1]):
        return False
    code, other = without_body(code), above.declarations[-1]
    name, other_name = name_of(code), name_of(other)
    stem = re.sub("^(get|is)(?=[A-Z])", "", other_name)
    is_same_call = code.replace(name, "", 1) == other.replace(other_name, "", 1)
    return (name in (other_name, "set" + stem[0].upper() + stem[1:])
            or (is_same_call and not re.search(r"\(\)", code)))


def describe(entry, body, section):
    """Fills the items of entry. A comment describes what stands right below it."""
    above, known = None, set()
    for part, comment, code, is_apart in statements(body, section):
        known |= accessors(code)
        if comment or is_enum(code):
            above = Item(part, [without_body(code)], comment)
            entry.items.append(above)
        elif is_described(code, entry, known):
            above = None
        elif not is_apart and is_sibling(code, above):
            above.declarations.append(without_body(code))
        elif part != "private":
            entry.bare.append(without_body(code))


def is_described(code, entry, known):
    """Whether code needs no comment: known by a property, by a base or by its form."""
    if not is_operation(code):
        return not is_field(code) or code.startswith(("using ", "Q_", "friend ", "class "))
    is_plain = is_constructor(code, entry.name, r"(Q\w+ \*parent = nullptr)?")
    return is_implied(code) or is_plain or name_of(code) in known


def read_header(path):
    for found in CLASS.finditer(path.read_text()):
        bases = re.findall(r"public ([\w:]+)", found["bases"])
        entry = Class(found["name"], path, uncommented(found["comment"].splitlines()),
                      [base.split("::")[-1] for base in bases])
        if found["key"].startswith("enum"):
            body = f"{found['key']} {found['name']} {{\n{found['body']}}};"
            describe(entry, body, "public")
        else:
            section = "private" if found["key"] == "class" else "public"
            describe(entry, found["body"], section)
        yield entry


def headers():
    paths = [path for folder in ("ui", "util", "uitest") for path in Path(folder).glob("**/*.h")]
    paths += Path("system").glob("*.h")
    return sorted(path for path in paths
                  if not re.search("_(p|export)\\.h$", path.name) and "plugin" not in path.parts)


def markdown(text, classes, own=""):
    def mark(found):
        token = found[0]
        if found[1]:
            return f"`{found[1]}`"
        if len(token) == 1:
            return "\\" + token
        if token in classes and token != own:
            return f"[{token}]({token}.md)"
        return f"`{token}`" if re.search(r'[:("_]', token) else token
    return TOKEN.sub(mark, text)


def table(head, rows):
    lines = [head, ["---"] * len(head), *rows]
    return "\n".join("| " + " | ".join(cells) + " |" for cells in lines)


def cell(text, classes, own):
    return markdown(" ".join(text.split()), classes, own)


def properties(entry, classes):
    rows = []
    for item in entry.chosen("private", is_property):
        found = PROPERTY.match(item.declarations[0])
        access = "<br>".join(f"`{found[way]}()`" for way in ("get", "set") if found[way])
        meaning = cell(item.text, classes, entry.name)
        rows.append([f"`{found['name']}`", f"`{found['type']}`", meaning, access])
    return table(["Property", "Type", "Meaning", "Read, written by"], rows) if rows else ""


def operations(items, entry, classes):
    blocks = []
    for item in items:
        text = markdown(item.text, classes, entry.name)
        declared = "\\\n".join(f"`{declaration}`" for declaration in item.declarations)
        separator = "\n" if not text or text.startswith("- ") else "\\\n"
        blocks.append("- " + indent(declared + separator + text, "  ").strip())
    return "\n".join(blocks)


def fields(entry, classes):
    rows = [[f"`{item.declarations[0]}`", cell(item.text, classes, entry.name)]
            for item in entry.chosen("public", is_field)]
    return table(["Member", "Meaning"], rows) if rows else ""


def parts(entry, classes):
    def listed(section, test=is_operation):
        return operations(entry.chosen(section, test), entry, classes)
    return {
        "Properties": properties(entry, classes),
        "Signals": listed("Q_SIGNALS"),
        "Enumerations": listed("public", is_enum),
        "Operations": listed("public"),
        "For subclasses": listed("protected"),
        "Members": fields(entry, classes),
    }


def snippet(entry):
    return Path(f"docs/snippets/{entry.name.lower()}.cpp").read_text().split("//! [page]\n")[1]


def origin(entry, classes):
    header = f"Header [{entry.header}](../../{entry.header})."
    if not entry.bases:
        return header
    bases = [f"[{base}]({base}.md)" if base in classes else f"`{base}`" for base in entry.bases]
    return f"Inherits {' and '.join(bases)}. {header}"


def companions(entry, classes, rows):
    """What stands in the same header and has no page of its own."""
    return [other for other in classes.values()
            if other.header == entry.header and other.name not in rows]


def companion_text(entry, classes):
    blocks = [f"## {entry.name}", markdown(entry.comment, classes, entry.name)]
    blocks += [text for text in parts(entry, classes).values() if text]
    return "\n\n".join(blocks)


def page_of(entry, classes, shown_on, rows):
    blocks = [NOTICE.format("the header and the snippet") + f"# {entry.name}",
              markdown(entry.comment, classes, entry.name), origin(entry, classes)]
    if shown_on != "-":
        blocks.append(f"![The page {shown_on} of the gallery](../images/{shown_on}.png)\n\n"
                      f"In the gallery: `scripts/gallery --page {shown_on}`.")
    blocks.append(f"## Example\n\n```cpp\n{snippet(entry)}```")
    blocks += [f"## {title}\n\n{text}" for title, text in parts(entry, classes).items() if text]
    blocks += [companion_text(other, classes) for other in companions(entry, classes, rows)]
    return "\n\n".join(blocks) + "\n"


def class_table(rows, folder=""):
    lines = [[row.need, f"[{name}]({folder}{name}.md)"] for name, row in rows.items()]
    return table(["You see or need", "Class"], lines)


def index(rows):
    return f"{NOTICE.format(LINES)}# Classes\n\n{class_table(rows)}\n"


def class_tree(classes, rows):
    """Each class below its first base, with the further ones and what it is for."""
    below = {}
    for name in rows:
        base = next(iter(classes[name].bases), "")
        below.setdefault(base, []).append(name)

    def lines(base, depth):
        for name in below.get(base, ()):
            further = " ".join(f"+ {other}" for other in classes[name].bases[1:])
            head = "  " * depth + f"{name} {further}".rstrip()
            yield f"{head:<46} {rows[name].need}"
            yield from lines(name, depth + 1)

    foreign = sorted(base for base in below if base and base not in rows)
    drawn = [line for base in foreign for line in (base, *lines(base, 1))]
    return "\n".join(["```", *lines("", 0), *drawn, "```"])


def room_picture():
    drawn = [f"    {room} --> {other}" for room, other in tree.arrows(tree.rooms())]
    return "\n".join(["```mermaid", "graph TD", *drawn, "```"])


def function_in(text, name):
    """With the comment above it."""
    found = re.search(rf"(?:^//(?!!)[^\n]*\n)*^\w[^\n;]*\b{name}\((?:[^\n]*\n)+?^\}}\n", text, re.M)
    if not found:
        raise ValueError(f"no function {name} to show")
    return found[0]


def code_of(found):
    text = Path(found["file"]).read_text()
    names = found["names"].split()
    if names:
        return "\n".join(function_in(text, name) for name in names)
    if "//! [page]\n" in text:
        return text.split("//! [page]\n")[1]
    return re.sub(r"\A(//|#) SPDX[^\n]*\n+", "", text)


def with_code(path, made):
    text = EMBEDDED.sub(lambda found: found["mark"] + code_of(found) + found["end"],
                        path.read_text())
    return MADE.sub(lambda found: found["mark"] + made[found["kind"]] + "\n" + found["end"], text)


def images():
    """Yields the resource path, the kind and the drawing of each image of the bundle."""
    for alias, file in re.findall(r'<file alias="([^"]+)">([^<]+)<',
                                  Path("ui/resources/widgetimages.qrc.in").read_text()):
        name = Path(file).name
        raster = Path("ui/resources/images/raster") / name.replace(".png", ".svg")
        drawing = Path(file.removeprefix("@PROJECT_SOURCE_DIR@/"))
        yield f":/{alias}", name[-3:].upper(), raster if name.endswith(".png") else drawing


def image_row(path, kind, drawing):
    text = drawing.read_text()
    width, height = re.search(r'viewBox="0 0 ([\d.]+) ([\d.]+)"', text).groups()
    palette = {color.upper(): name for name, color in palette_colors()}
    colors = {palette.get(color.upper(), color) for color in re.findall(r"#[0-9A-Fa-f]{6}\b", text)}
    return [f"`{path}`", kind, f"{width} x {height}", ", ".join(sorted(colors)) or "none"]


def palette_colors():
    for name, *rgb in re.findall(r"(C\d+)\{ (\d+), (\d+), (\d+) \}",
                                 Path("ui/foundation/vexocolors.h").read_text()):
        yield name, "#" + "".join(f"{int(part):02x}" for part in rgb)


def image_list():
    intro = ("The images in the library, for `CachedVectorIcon`, `addIcon()` and the other\n"
             "operations that take a file. Those in C0 or C13 alone are for dark ground. Sizes\n"
             "are those of the drawing; a PNG is sharp at this one, an SVG at each.")
    listed = table(["Path", "Kind", "Size", "Colours"], [image_row(*image) for image in images()])
    return (f"{NOTICE.format('ui/resources/widgetimages.qrc.in')}# Images\n\n{intro}\n\n"
            f"{listed}\n\n![Each of them on C0, C1 and C4](images/images.png)\n\n"
            "In the gallery: `scripts/gallery --page images`.\n")


def faults(classes, rows):
    """What is missing for the pages to be written."""
    described = {classes[name].header for name in rows if name in classes}
    for name in sorted(classes.keys() | rows.keys()):
        if name not in rows and classes[name].header in described:
            continue
        if name not in rows:
            yield f"{classes[name].header}: no hoxq_class() line names {name}"
        elif name not in classes:
            yield f"{name}: no header documents a class of this name"
        elif not Path(f"docs/snippets/{name.lower()}.cpp").exists():
            yield f"docs/snippets/{name.lower()}.cpp: missing"
    for entry in classes.values():
        for code in entry.bare:
            yield f"{entry.header}: no comment describes {code}"
    for path in sorted({*headers()} - {entry.header for entry in classes.values()}):
        yield f"{path}: documents no class"
    folders = Path("CONTRIBUTING.md").read_text()
    for folder in sorted(path.parent for path in Path().glob("[a-z]*/CMakeLists.txt")):
        if f"`{folder}/`" not in folders:
            yield f"CONTRIBUTING.md: tells nothing of {folder}/"
    for room in tree.circles(tree.rooms()):
        yield f"ui/{room}: includes what includes it"


def dead_links():
    for path in BY_HAND:
        text = re.sub(r"^```.*?^```$", "", path.read_text(), flags=re.M | re.S)
        for link in re.findall(r"\]\(([^)#:]+)[^)]*\)", text):
            if not (path.parent / link).exists():
                yield f"{path}: leads to {link}, which is missing"


def missing_pictures(rows):
    shown = IMAGES_PAGE.read_text()
    for path, *_ in images():
        if f'"{path}"' not in shown:
            yield f"{IMAGES_PAGE}: does not show {path}"
    for page in sorted({row.page for row in rows.values()} - {"-"}):
        if not Path(f"docs/images/{page}.png").exists():
            yield f"docs/images/{page}.png: missing; scripts/docs --pictures renders it"


def write(pages):
    for stale in PAGES.glob("*.md"):
        if stale not in pages:
            stale.unlink()
    for path, text in pages.items():
        path.write_text(text)


def differences(pages):
    for path in sorted({*pages, *PAGES.glob("*.md")}):
        if path not in pages:
            yield f"{path}: belongs to no class; scripts/docs removes it"
        elif not path.exists() or path.read_text() != pages[path]:
            yield f"{path}: not up to date; scripts/docs writes it"


def main(mode):
    classes = {entry.name: entry for path in headers() for entry in read_header(path)}
    rows = tree.public_classes()
    findings = list(faults(classes, rows))
    if not findings:
        pages = {PAGES / f"{name}.md": page_of(classes[name], classes, row.page, rows)
                 for name, row in rows.items()}
        pages[PAGES / "README.md"] = index(rows)
        made = {"classes": class_table(rows, f"{PAGES}/"), "tree": class_tree(classes, rows),
                "rooms": room_picture()}
        pages |= {path: with_code(path, made) for path in BY_HAND if path != IMAGE_LIST}
        pages[IMAGE_LIST] = image_list()
        if mode != "--check":
            write(pages)
        findings = [*differences(pages), *missing_pictures(rows), *dead_links()]
    for finding in findings:
        print(finding)
    return 1 if findings else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1]))
