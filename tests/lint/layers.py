"""Which folder may include what. The arrows run down only; each one that is allowed stands here, and in docs/architecture.md with its reason."""

import re
from pathlib import PurePosixPath

from lintlib import Example, Finding, is_cpp, is_under, run, without_comments

PLATFORM_VALUES = ["platform/text", "platform/files", "platform/printer"]
PLATFORM = [*PLATFORM_VALUES, "platform/store", "platform/controls"]
LOGIC_BASE = [*PLATFORM, "forms", "core"]
LOGIC = [*LOGIC_BASE, "measures", "browse", "detail", "print", "exchange", "maintenance"]

# What the files of a folder of src may include besides those of their own folder.
ALLOWED: dict[str, list[str]] = {
    "platform/text": [],
    "platform/store": ["platform/text"],
    "platform/files": ["platform/text"],
    "platform/printer": ["platform/text"],
    "platform/controls": PLATFORM_VALUES,
    "forms": [*PLATFORM_VALUES, "platform/controls"],
    "core": [*PLATFORM, "forms"],
    "measures": LOGIC_BASE,
    "browse": [*LOGIC_BASE, "measures", "print"],
    "detail": [*LOGIC_BASE, "measures"],
    "print": [*LOGIC_BASE, "measures"],
    "exchange": [*LOGIC_BASE, "measures", "browse"],
    "maintenance": [*LOGIC_BASE, "measures"],
    "program": LOGIC,
    "newstore": [*LOGIC_BASE, "exchange"],
    "desktop": [*LOGIC_BASE, "program"],
}

# Headers of libraries, and the folders that alone may include them.
LIBRARIES = [
    ("Qt", re.compile(r"^(Q[A-Z]\w*|Qt\w+/.*|qt?[a-z]+\.h)$"), ["src/desktop", "tests/desktop", "bench"]),
    ("SQLite", re.compile(r"^sqlite3\w*\.h$"), ["src/platform/store", "tests/unit/store", "tests/support", "bench"]),
    ("ICU", re.compile(r"^unicode/"), ["src/platform/text"]),
    ("Lua", re.compile(r"^(lua\w*|lauxlib|lualib)\.(h|hpp)$"), ["tests/support"]),
    ("GoogleTest", re.compile(r"^g(test|mock)/"), ["tests"]),
    ("Google Benchmark", re.compile(r"^benchmark/"), ["bench"]),
]

INCLUDE = re.compile(r'^\s*#\s*include\s*([<"])([^>"]+)[>"]')


def layer_of(path: str) -> str | None:
    """The folder of ALLOWED that a path relative to src lies in."""
    parts = PurePosixPath(path).parts[:-1]
    for length in (2, 1):
        if "/".join(parts[:length]) in ALLOWED:
            return "/".join(parts[:length])
    return None


def includes(text: str):
    for number, line in enumerate(without_comments(text).split("\n"), 1):
        match = INCLUDE.match(line)
        if match:
            yield number, match.group(1), match.group(2)


def check_library(path: str, line: int, header: str) -> list[Finding]:
    return [
        Finding(path, line, f"{name} header <{header}> outside {', '.join(folders)}")
        for name, pattern, folders in LIBRARIES
        if pattern.match(header) and not is_under(path, *folders)
    ]


def check_own(files: dict[str, str], path: str, line: int, header: str) -> list[Finding]:
    """An include in quotation marks of a file in src: it must exist, be named from src on, and lie in a folder that is allowed."""
    if f"src/{header}" not in files:
        return [Finding(path, line, f'"{header}" is no file of the project; includes are named from src on')]
    own, other = layer_of(path.removeprefix("src/")), layer_of(header)
    if own is None:
        return [Finding(path, line, f"the folder of {path} has no place among the layers")]
    if other == own or other in ALLOWED[own]:
        return []
    return [Finding(path, line, f'{own} may not include "{header}"')]


def check(files: dict[str, str]) -> list[Finding]:
    found = []
    for path, text in files.items():
        if not is_cpp(path):
            continue
        for line, kind, header in includes(text):
            found += check_library(path, line, header)
            if kind == '"' and path.startswith("src/"):
                found += check_own(files, path, line, header)
    return found


def _tree(**texts: str) -> dict[str, str]:
    names = {"text": "src/platform/text/a.h", "core": "src/core/a.h", "browse": "src/browse/a.cpp", "print": "src/print/a.h"}
    tree = dict.fromkeys(names.values(), "")
    return tree | {names[key]: text for key, text in texts.items()}


EXAMPLES = [
    Example("down", _tree(core='#include "platform/text/a.h"\n', browse='#include "core/a.h"\n#include "print/a.h"\n'), []),
    Example("up", _tree(text='#include <string>\n#include "core/a.h"\n'), ["src/platform/text/a.h:2"]),
    Example("sideways", _tree(print='#include "browse/a.cpp"\n'), ["src/print/a.h:1"]),
    Example("in a comment", _tree(text='// #include "core/a.h"\n'), []),
    Example("not named from src on", _tree(core='#include "a.h"\n'), ["src/core/a.h:1"]),
    Example("Qt in the logic", _tree(browse="#include <QString>\n"), ["src/browse/a.cpp:1"]),
    Example("SQLite in the logic", _tree(core="#include <sqlite3.h>\n"), ["src/core/a.h:1"]),
    Example("ICU in the logic", _tree(core="#include <unicode/coll.h>\n"), ["src/core/a.h:1"]),
    Example("Lua in the logic", _tree(core="#include <lua.hpp>\n"), ["src/core/a.h:1"]),
    Example("Qt in the desktop", {"src/desktop/a.cpp": "#include <QString>\n"}, []),
    Example("a folder without a layer", _tree() | {"src/extra/a.cpp": '#include "core/a.h"\n'}, ["src/extra/a.cpp:1"]),
]

if __name__ == "__main__":
    run(check, EXAMPLES)
