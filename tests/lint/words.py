"""Words that no file and no file name holds: references to papers outside the project, folders of one machine, addresses of package sources,
and marks of unfinished work."""

import re

from lintlib import Example, Finding, is_cpp, matches, run

# Brackets around a letter keep a pattern from finding itself.
WORDS = "|".join(
    [
        r"\b[P]arts? [1-7]\.[1-6]\b",
        r"\b[Ss]pec\.m[d]\b",
        r"\b[Tt]he s[p]ec(ification)?\b",
        r"\bper s[p]ec\b",
        r"\bdesign\.m[d]\b",
        r"\brulings?\.m[d]\b",
        r"/wor[k]/",
        r"/far[m]/",
        r"/hom[e]/\w+",
        r"\.\./share[d]",
        r"(deb|security)\.debia[n]\.org",
        r"registry\.npmj[s]",
    ]
)
UNFINISHED = r"\b(TOD[O]|FIXM[E]|XX[X]|HAC[K])\b"
NAMES = re.compile(r"(^|/)(s[p]ec(ification)?|part-?[1-7][._-][1-6])", re.IGNORECASE)


def check(files: dict[str, str]) -> list[Finding]:
    searched = {path: text for path, text in files.items() if not path.startswith(".ci/")}
    code = {path: text for path, text in searched.items() if is_cpp(path) or path.endswith((".lua", ".py", ".sh", ".txt"))}
    names = [Finding(path, 1, "a file name that refers to a paper outside the project") for path in searched if NAMES.search(path)]
    return names + matches(searched, WORDS, "'%' has no place in the project") + matches(code, UNFINISHED, "'%' marks unfinished work")


def _one(line: str, found: bool, path: str = "docs/a.md") -> Example:
    return Example(line, {path: f"\n{line}\n"}, [f"{path}:2"] if found else [])


EXAMPLES = [
    _one("as Par" + "t 2.3 says", True),
    _one("as Part 8.3 of a book says", False),
    _one("see /wo" + "rk/main", True),
    _one("see /wo" + "rk/main", False, ".ci/run"),
    _one("the spe" + "cification wants it", True),
    _one("a specific case", False),
    _one("from deb." + "debian.org", True),
    _one("// TO" + "DO: later", True, "src/a.cpp"),
    _one("in todos los casos", False, "src/a.cpp"),
    Example("a file name", {"docs/spe" + "c.md": ""}, ["docs/spe" + "c.md:1"]),
]

if __name__ == "__main__":
    run(check, EXAMPLES)
