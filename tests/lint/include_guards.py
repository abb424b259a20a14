"""Every header begins with #pragma once, below nothing but comments, and has no guard of the older kind."""

import re

from lintlib import Example, Finding, run, without_comments


def check(files: dict[str, str]) -> list[Finding]:
    found = []
    for path, text in files.items():
        if not path.endswith(".h"):
            continue
        lines = without_comments(text).split("\n")
        first = next((number for number, line in enumerate(lines, 1) if line.strip()), 1)
        if lines[first - 1].strip() != "#pragma once":
            found.append(Finding(path, first, "a header begins with #pragma once"))
        found += [
            Finding(path, number, "an include guard of the older kind")
            for number, line in enumerate(lines, 1)
            if re.match(r"\s*#\s*ifndef\s+\w+_H_?\s*$", line)
        ]
    return found


EXAMPLES = [
    Example("in order", {"src/a.h": "// A file.\n\n#pragma once\n\nint a();\n"}, []),
    Example("none", {"src/a.h": "// A file.\nint a();\n"}, ["src/a.h:2"]),
    Example("in a comment", {"src/a.h": "// #pragma once\nint a();\n"}, ["src/a.h:2"]),
    Example("the older kind", {"src/a.h": "#pragma once\n#ifndef A_H\n#define A_H\n#endif\n"}, ["src/a.h:2"]),
    Example("no header", {"src/a.cpp": "int a() { return 1; }\n"}, []),
]

if __name__ == "__main__":
    run(check, EXAMPLES)
