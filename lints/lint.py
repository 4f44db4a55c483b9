#!/usr/bin/env python3
"""The rules of the house that a compiler does not hold. One finding a line; exit 1 when there is any.

usage: lints/lint.py [RULE...]      without a rule, all of them
"""
import pathlib
import re
import subprocess
import sys

ROOT = pathlib.Path(__file__).resolve().parent.parent
FILE_LINES = 400
FUNCTION_LINES = 60


def names():
    """The repository's files, new ones included; without git, every file outside a build directory."""
    command = ["git", "ls-files", "-co", "--exclude-standard", "-z"]
    try:
        return subprocess.run(command, cwd=ROOT, capture_output=True, check=True).stdout.decode().split("\0")
    except (OSError, subprocess.CalledProcessError):
        every = (path.relative_to(ROOT) for path in ROOT.rglob("*"))
        return [str(path) for path in every if not path.parts[0].startswith(("build", ".git"))]


def tracked(*suffixes):
    """Those of the repository's files that have one of these suffixes."""
    for name in filter(None, names()):
        path = ROOT / name
        if path.is_file() and (not suffixes or path.suffix in suffixes):
            yield path


def text(path):
    return path.read_text(encoding="utf-8", errors="replace")


def under(path, *parts):
    return path.relative_to(ROOT).parts[: len(parts)] == parts


def is_window(path):
    return "windows" in path.relative_to(ROOT).parts


def grep(pattern, paths):
    expression = re.compile(pattern)
    for path in paths:
        for number, line in enumerate(text(path).splitlines(), 1):
            if expression.search(line):
                yield f"{path.relative_to(ROOT)}:{number}: {line.strip()[:120]}"


def sources(folder="src"):
    return [p for p in tracked(".cpp", ".h") if under(p, folder)]


def core_without_widgets():
    """The core includes no widget."""
    widgets = r"#include <Q(Widget|Application|Dialog|MainWindow|PushButton|Label|LineEdit|ListView|TreeView|Menu|Action)>"
    core = [p for p in sources() if not is_window(p) and p.name != "main.cpp"]
    return grep(r"QtWidgets|QtPrintSupport|" + widgets, core)


def outside_only():
    """Boxes, printers, tray, started programs and the wall clock stand in outside/ alone."""
    names = (
        r"\b(QMessageBox|QFileDialog|QInputDialog|QFontDialog|QColorDialog|QPrinter|QPrinterInfo|QPrintDialog"
        r"|QSystemTrayIcon|QDesktopServices|QProcess)\b"
        r"|QDate(Time)?::currentDate(Time)?|QTime::currentTime|system_clock"
    )
    return grep(names, [p for p in sources() if not under(p, "src", "outside")])


def style_only():
    """Colours and style sheets stand in the style alone; core's colours are those of the sheet."""
    allowed = ("src", "application", "windows")
    windows = [p for p in sources() if is_window(p) and not under(p, *allowed)]
    return grep(r"setStyleSheet|QColor\(\s*(\d|0x|QStringLiteral)|QFont\(", windows)


def no_sql_joined():
    """Values are bound: no statement is built from a text with a value in it."""
    return grep(r"(select|insert|update|delete) .*['\"]\s*\+\s*(?!.*(colonne|table|nom))", sources())


def file_length():
    """A source file has at most 400 lines."""
    for path in tracked(".cpp", ".h"):
        lines = text(path).count("\n")
        if lines > FILE_LINES:
            yield f"{path.relative_to(ROOT)}: {lines} lines"


def function_length():
    """A function has at most 60 lines. Functions start at column 0 and end with a brace there."""
    for path in tracked(".cpp"):
        start = None
        for number, line in enumerate(text(path).splitlines(), 1):
            if line == "{":
                start = number
            elif line == "}" and start:
                if number - start - 1 > FUNCTION_LINES:
                    yield f"{path.relative_to(ROOT)}:{start}: {number - start - 1} lines"
                start = None


def formatted():
    """clang-format has nothing to say, where it is installed."""
    try:
        version = subprocess.run(["clang-format", "--version"], capture_output=True, check=True).stdout.decode()
    except (OSError, subprocess.CalledProcessError):
        return
    if " 14." not in version:
        return
    files = [str(p) for p in tracked(".cpp", ".h")]
    out = subprocess.run(["clang-format", "--dry-run", *files], capture_output=True).stderr.decode()
    yield from sorted({line.split(": warning")[0].rsplit(":", 2)[0] for line in out.splitlines() if "warning:" in line})


def named_like_class():
    """A file that declares one class bears its name."""
    for path in sources():
        if path.suffix != ".h":
            continue
        classes = re.findall(r"^class (\w+)[^;]*$", text(path), re.M)
        if classes and path.stem not in classes and path.stem[0].isupper():
            yield f"{path.relative_to(ROOT)}: declares {', '.join(classes)}"


def words():
    """Nothing speaks of a document outside the repository, nor names a package registry's host."""
    me = pathlib.Path(__file__).resolve()
    paths = [p for p in tracked() if p != me and p.suffix not in (".png", ".svg", ".pdf")]
    yield from grep(r"(?i)\bpart(ie)? [1-7]\.[0-9]\b|://[a-z.]*(debian|npm)[a-z]*\.", paths)


def folder_readmes():
    """Each source folder tells in a few lines what it is for."""
    for folder in sorted({p.parent for p in sources()}):
        if folder.name in ("windows", "src"):
            continue
        if not (folder / "README.md").is_file():
            yield f"{folder.relative_to(ROOT)}: no README.md"


RULES = {
    rule.__name__: rule
    for rule in (
        core_without_widgets,
        outside_only,
        style_only,
        no_sql_joined,
        file_length,
        function_length,
        formatted,
        named_like_class,
        words,
        folder_readmes,
    )
}


def main():
    findings = 0
    for name in sys.argv[1:] or RULES:
        for finding in RULES[name]() or ():
            print(f"{name}: {finding}   [{RULES[name].__doc__.splitlines()[0]}]")
            findings += 1
    print(f"{findings} findings")
    return 1 if findings else 0


if __name__ == "__main__":
    sys.exit(main())
