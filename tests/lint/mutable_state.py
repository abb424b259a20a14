"""No mutable variables outside functions and objects, nor static ones in functions: what is shared belongs to a run, and two runs live in one
process. Goes by the way the code stands: namespaces are not indented, so a variable in the first column has namespace scope."""

import re

from lintlib import Example, Finding, is_cpp, is_under, run, without_comments

# Places that are in order as they are, each with its reason.
EXCEPTIONS: dict[str, str] = {}

CONSTANT = re.compile(r"\b(const|constexpr|consteval|using|typedef|friend|template|static_assert|operator)\b|\*\s*const\b")
NO_VARIABLE = re.compile(r"^(namespace|struct|class|enum|union|return|public|private|protected|case|default|extern \"C\"|TEST|[A-Z_]+\()")
# A type, a name, and then the end, a value, or the size of an array. A function's name would be followed by a parenthesis.
VARIABLE = re.compile(
    r"^((static|inline|thread_local|extern)\s+)*[A-Za-z_][\w:]*(<.*>)?(\s*[&*]+\s*|\s+)([a-z_]\w*\s+)*[A-Za-z_]\w*\s*(\[.*\]\s*)?(=.*|\{.*)?(;|\{|,|=)$"
)
LOCAL_STATIC = re.compile(r"^\s+(inline\s+)?(static|thread_local)\s+(?!const\b|constexpr\b|_cast)(?!.*\bconst\b)[^()]*(;|=.*|\{.*|\(.*\);)$")
DECLARED_FUNCTION = re.compile(r"^\s+static\s[^=]*\([^)]*\)[^=]*(;|\{|\}|,|\()$|^\s+static\s[^=;]*\($")


def is_variable(line: str) -> bool:
    if line.startswith((" ", "}", "#", ")")) or CONSTANT.search(line) or NO_VARIABLE.match(line):
        return False
    return VARIABLE.match(line) is not None


def is_local_static(line: str) -> bool:
    return LOCAL_STATIC.match(line) is not None and not DECLARED_FUNCTION.match(line)


def check(files: dict[str, str]) -> list[Finding]:
    found = []
    for path, text in files.items():
        if not (is_cpp(path) and is_under(path, "src")) or path in EXCEPTIONS:
            continue
        for number, line in enumerate(without_comments(text).split("\n"), 1):
            line = line.rstrip()
            if is_variable(line):
                found.append(Finding(path, number, "a mutable variable at namespace scope"))
            elif is_local_static(line):
                found.append(Finding(path, number, "a mutable static variable"))
    return found


def _one(line: str, found: bool) -> Example:
    return Example(line, {"src/core/a.cpp": f"\n{line}\n"}, ["src/core/a.cpp:2"] if found else [])


EXAMPLES = [
    _one("int counter = 0;", True),
    _one("int counter;", True),
    _one("static std::map<int, std::string> cache;", True),
    _one("inline std::string name = make();", True),
    _one("thread_local bool busy{false};", True),
    _one("Run* current = nullptr;", True),
    _one("int table[] = {", True),
    _one("  static int counter = 0;", True),
    _one("  static std::vector<int> seen;", True),
    _one("  static inline int counter = 0;", True),
    _one("const int limit = 10;", False),
    _one("constexpr std::array<int, 2> table{", False),
    _one("inline constexpr int limit = 10;", False),
    _one("  static const std::map<int, int> table = make();", False),
    _one("  static constexpr int limit = 10;", False),
    _one("  static void createStore(const std::filesystem::path& file);", False),
    _one("  [[nodiscard]] static std::string join(std::string_view a);", False),
    _one("  static bool known(int a) { return a > 1; }", False),
    _one("using Routine = void (*)(Run&);", False),
    _one("long Len(std::string_view text);", False),
    _one("struct Run;", False),
    _one("enum class Lines { One, Many };", False),
    _one("}  // namespace pantrigo", False),
    _one("  int counter = 0;", False),
]

if __name__ == "__main__":
    run(check, EXAMPLES)
