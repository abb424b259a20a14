"""What the lints share: the project's files, C++ without its comments and texts, and the way a lint runs.

A lint is a script with a function `check(files)` that takes a dict of path (relative to the project, with "/") to text, and gives a list of
`Finding`. Its `EXAMPLES` show that it can fail: each names a case, the files of a tiny project, and the places that must be found there,
as "path:line", none for a project that is in order.
"""

import re
import subprocess
import sys
from pathlib import Path
from typing import Callable, NamedTuple

ROOT = Path(__file__).resolve().parents[2]


class Finding(NamedTuple):
    path: str
    line: int
    message: str


class Example(NamedTuple):
    name: str
    files: dict[str, str]
    places: list[str]


def _versioned_paths() -> list[str] | None:
    """The files under version control and those that are to be; none where git or its folder is missing."""
    try:
        command = ["git", "-C", str(ROOT), "ls-files", "-z", "--cached", "--others", "--exclude-standard"]
        listing = subprocess.run(command, capture_output=True, check=True)
    except (OSError, subprocess.CalledProcessError):
        return None
    return [name for name in listing.stdout.decode().split("\0") if name]


def project_files() -> dict[str, str]:
    """All text files of the project."""
    paths = _versioned_paths()
    if paths is None:
        found = [path.relative_to(ROOT) for path in ROOT.rglob("*")]
        paths = [path.as_posix() for path in found if not {".git", "build", "cookbook", "__pycache__"} & set(path.parts)]
    files = {}
    for path in sorted(paths):
        place = ROOT / path
        if not place.is_file():
            continue
        content = place.read_bytes()
        if b"\0" not in content:
            files[path] = content.decode("utf-8", errors="replace")
    return files


def is_cpp(path: str) -> bool:
    return path.endswith((".cpp", ".h"))


def is_under(path: str, *folders: str) -> bool:
    return any(path.startswith(folder + "/") for folder in folders)


_TOKEN = re.compile(
    r"""//[^\n]*|/\*.*?\*/|R"(?P<mark>[^()\\\s]{0,16})\(.*?\)(?P=mark)"|"(?:\\.|[^"\\\n])*"|(?<![0-9A-Za-z_])'(?:\\.|[^'\\\n])+'""", re.DOTALL
)


def without_comments(text: str, keep_texts: bool = False) -> str:
    """The C++ text with its comments, and the inside of its string and character literals, blanked; lines and columns stay. File names of
    includes stay too."""

    def blank(match: re.Match[str]) -> str:
        token = match.group(0)
        if token.startswith("/"):
            return re.sub(r"[^\n]", " ", token)
        line_start = text.rfind("\n", 0, match.start()) + 1
        if keep_texts or text[line_start : match.start()].lstrip().startswith("#include"):
            return token
        return token[0] + re.sub(r"[^\n]", " ", token[1:-1]) + token[-1]

    return _TOKEN.sub(blank, text)


def matches(files: dict[str, str], pattern: str, message: str) -> list[Finding]:
    """A finding for each line of the files on which the pattern is found; `message` takes the text found in place of "%"."""
    found = []
    expression = re.compile(pattern)
    for path, text in files.items():
        for number, line in enumerate(text.split("\n"), 1):
            match = expression.search(line)
            if match:
                found.append(Finding(path, number, message.replace("%", match.group(0).strip())))
    return found


def _self_check(check: Callable[[dict[str, str]], list[Finding]], examples: list[Example]) -> list[str]:
    wrong = []
    for example in examples:
        places = sorted(f"{finding.path}:{finding.line}" for finding in check(example.files))
        if places != sorted(example.places):
            wrong.append(f"example '{example.name}': expected {sorted(example.places)}, found {places}")
    if not any(example.places for example in examples):
        wrong.append("no example shows that this lint can fail")
    return wrong


def run(check: Callable[[dict[str, str]], list[Finding]], examples: list[Example]) -> None:
    """Runs a lint as a script: its examples, then the project. Two results, of which the last line gives the counts."""
    name = Path(sys.argv[0]).stem
    wrong = _self_check(check, examples)
    findings = sorted(set(check(project_files())))
    for line in wrong:
        print(f"{name}: {line}")
    for finding in findings:
        print(f"{finding.path}:{finding.line}: {finding.message}")
    print(f"{'FAILED' if wrong else 'ok'} {name} can fail")
    print(f"{f'FAILED, {len(findings)} found,' if findings else 'ok'} {name}")
    failed = (1 if wrong else 0) + (1 if findings else 0)
    print(f"{2 - failed} passed, {failed} failed")
    sys.exit(1 if failed else 0)
