"""Numbers and letters never pass through the C locale: the window toolkit sets the locale of the process at its start, and these calls would
then answer differently in a window than in a test. std::from_chars and std::to_chars do for numbers, platform/text for letters."""

from lintlib import Example, Finding, is_cpp, is_under, matches, run, without_comments

FOLDERS = ["src", "tests", "bench", "fuzz"]

CALLS = (
    r"(?<![\w.>])(std::)?("
    r"ato[fil]|atoll|strto(d|f|ld|l|ll|ul|ull|imax|umax)|sto(d|f|i|l|ll|ul|ull|ld)|wcsto\w+|v?s?n?f?w?scanf"
    r"|strcoll|strxfrm|strftime|wcscoll"
    r"|tolower|toupper|isalnum|isalpha|isblank|iscntrl|isgraph|islower|isprint|ispunct|isspace|isupper"
    r")\s*\("
)
HEADERS = r"^\s*#\s*include\s*<(sstream|iomanip|strstream)>"
# On a number with a point it goes by the locale; the lint can't tell, and plainText does for both kinds.
TO_STRING = r"\bto_w?string\s*\("
TYPES = r"std::(stringstream|ostringstream|istringstream|num_get|num_put)\b"
# A test may change the locale, to show that nothing depends on it; nothing else may.
CHANGES = r"\bsetlocale\s*\(|std::locale\b|^\s*#\s*include\s*<(locale|clocale|locale\.h)>"
# A printf-like call with a number that has a decimal point; the whole format stands on the line of the call in this project's style.
FORMATS = r"\b(v?s?n?f?d?printf|asprintf)\s*\(.*%[-+ #0-9.*']*(l|L)?[aAeEfFgG]"
# Streams may write to the terminal of a command-line program and nowhere else.
STREAM = r"^\s*#\s*include\s*<(iostream|ostream|istream)>"
STREAM_ALLOWED = ["src/newstore/main.cpp", "src/desktop/main.cpp"]

# Places that are in order as they are, each with its reason.
EXCEPTIONS: dict[str, str] = {}


def check(files: dict[str, str]) -> list[Finding]:
    sources = {path: text for path, text in files.items() if is_cpp(path) and is_under(path, *FOLDERS) and path not in EXCEPTIONS}
    code = {path: without_comments(text) for path, text in sources.items()}
    with_texts = {path: without_comments(text, keep_texts=True) for path, text in sources.items()}
    program = {path: text for path, text in code.items() if is_under(path, "src")}
    quiet = {path: text for path, text in program.items() if path not in STREAM_ALLOWED}
    message = "% goes by the C locale"
    return (
        matches(code, CALLS, message)
        + matches(program, HEADERS, message)
        + matches(program, TO_STRING, message)
        + matches(program, TYPES, message)
        + matches(program, CHANGES, message)
        + matches(with_texts, FORMATS, message)
        + matches(quiet, STREAM, "% outside the command-line programs")
    )


def _one(line: str, found: bool, path: str = "src/core/a.cpp") -> Example:
    return Example(line, {path: f"\n{line}\n"}, [f"{path}:2"] if found else [])


EXAMPLES = [
    _one("double a = std::stod(text);", True),
    _one("double a = strtod(text, &end);", True),
    _one("auto a = std::to_string(7);", True),
    _one("auto a = std::to_string(7);", False, "tests/unit/core/a_test.cpp"),
    _one("char a = tolower(b);", True),
    _one('std::printf("%5.2f", 1.5);', True),
    _one('std::printf("%s", name);', False),
    _one('setlocale(LC_ALL, "");', True),
    _one("#include <sstream>", True),
    _one("#include <iomanip>", False, "bench/a.cpp"),
    _one("#include <iostream>", True),
    _one("#include <iostream>", False, "src/newstore/main.cpp"),
    _one("std::locale here;", True),
    _one("std::locale here;", False, "tests/unit/text/a_test.cpp"),
    _one("// strtod(text) would go by the locale", False),
    _one('const char* a = "strtod(text)";', False),
    _one("std::from_chars(first, last, number);", False),
    _one("const auto a = QString(b).toLower();", False),
    _one("unit.isspace(b);", False),
]

if __name__ == "__main__":
    run(check, EXAMPLES)
