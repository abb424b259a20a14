"""No file includes itself by way of others."""

from lintlib import Example, Finding, is_cpp, run
from layers import includes


def graph_of(files: dict[str, str]) -> dict[str, dict[str, int]]:
    """For each file the project's files that it includes, with the line."""
    graph: dict[str, dict[str, int]] = {}
    for path, text in files.items():
        if is_cpp(path):
            named = {header: line for line, kind, header in includes(text) if kind == '"'}
            graph[path] = {
                root + header: line for header, line in named.items() for root in ("src/", "tests/") if root + header in files
            }
    return graph


def check(files: dict[str, str]) -> list[Finding]:
    graph = graph_of(files)
    found: list[Finding] = []
    done: set[str] = set()

    def visit(path: str, way: list[str]) -> None:
        way = [*way, path]
        for target, line in sorted(graph.get(path, {}).items()):
            if target in way:
                circle = [*way[way.index(target) :], target]
                found.append(Finding(path, line, "circle of includes: " + " -> ".join(circle)))
            elif target not in done:
                visit(target, way)
        done.add(path)

    for path in sorted(graph):
        if path not in done:
            visit(path, [])
    return found


EXAMPLES = [
    Example("a tree", {"src/a.h": '#include "b.h"\n#include "c.h"\n', "src/b.h": '#include "c.h"\n', "src/c.h": ""}, []),
    Example("two files", {"src/a.h": '#include "b.h"\n', "src/b.h": '\n#include "a.h"\n'}, ["src/b.h:2"]),
    Example("itself", {"src/a.h": '#include "a.h"\n'}, ["src/a.h:1"]),
    Example(
        "three files",
        {"src/a.h": '#include "b.h"\n', "src/b.h": '#include "c.h"\n', "src/c.h": '#include "a.h"\n'},
        ["src/c.h:1"],
    ),
]

if __name__ == "__main__":
    run(check, EXAMPLES)
