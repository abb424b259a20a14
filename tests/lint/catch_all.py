"""No catch (...) in the program: it would swallow the end of the run as well as its errors. Statement guards catch RuntimeError, and the
dispatcher catches the rest by type."""

from lintlib import Example, is_cpp, is_under, matches, run, without_comments

# Places that are in order as they are, each with its reason.
EXCEPTIONS: dict[str, str] = {}


def check(files: dict[str, str]):
    code = {
        path: without_comments(text)
        for path, text in files.items()
        if is_cpp(path) and is_under(path, "src", "tests/support") and path not in EXCEPTIONS
    }
    return matches(code, r"\bcatch\s*\(\s*\.\.\.\s*\)", "% also catches the end of the run")


EXAMPLES = [
    Example("any", {"src/a.cpp": "try {\n} catch (...) {\n}\n"}, ["src/a.cpp:2"]),
    Example("by type", {"src/a.cpp": "try {\n} catch (const RuntimeError&) {\n}\n"}, []),
    Example("in a comment", {"src/a.cpp": "// no catch (...) here\n"}, []),
]

if __name__ == "__main__":
    run(check, EXAMPLES)
