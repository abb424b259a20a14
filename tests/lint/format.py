"""C++ stands as clang-format writes it by .clang-format. Version 14 decides; others differ in places."""

import re
import shutil
import subprocess
from concurrent.futures import ThreadPoolExecutor

from lintlib import ROOT, Example, Finding, is_cpp, run

PROGRAM = shutil.which("clang-format-14") or shutil.which("clang-format")
PLACE = re.compile(r"^[^:\n]+:(\d+):\d+: error", re.MULTILINE)


def check_file(path: str, text: str) -> list[Finding]:
    """The first place where the file is not as it should be."""
    if PROGRAM is None:
        return [Finding(path, 1, "clang-format is not installed")]
    command = [PROGRAM, "--dry-run", "--Werror", f"--style=file:{ROOT}/.clang-format", f"--assume-filename={path}"]
    result = subprocess.run(command, input=text, capture_output=True, text=True, check=False)
    if result.returncode == 0:
        return []
    place = PLACE.search(result.stderr)
    return [Finding(path, int(place.group(1)) if place else 1, "not as clang-format writes it")]


def check(files: dict[str, str]) -> list[Finding]:
    sources = {path: text for path, text in files.items() if is_cpp(path)}
    with ThreadPoolExecutor() as pool:
        return [finding for found in pool.map(check_file, sources.keys(), sources.values()) for finding in found]


EXAMPLES = [
    Example("in order", {"src/a.cpp": "int a();\nint b();\n"}, []),
    Example("not in order", {"src/a.cpp": "int b();\nint  a( ) {return 1;}\n"}, ["src/a.cpp:2"]),
    Example("another language", {"tests/a.lua": "a  =  1\n"}, []),
]

if __name__ == "__main__":
    run(check, EXAMPLES)
