#!/usr/bin/env python3
"""mutate.py BUILD [COUNT [SEED]]: changes single places of the services, the toolkit, the widgets and
the text helpers, one at a time, and runs the tests of the changed folder. A change that no test notices
(a survivor) shows a missing test, or code that does not matter. Prints each survivor with its line, and
the share of killed ones; ends with 1 where it is below 90 %.

Works in the tree that it stands in: run it in a work tree of its own, where nothing else is changed."""

import random
import re
import subprocess
import sys
from pathlib import Path

LEAST_KILLED = 90  # per cent
LONGEST_RUN = 300  # seconds; a mutant that waits for ever is noticed by this

# What may be changed, and the test programs that are to notice, the quickest first.
TARGETS = {
    "platform/registry": ["platform/register_manager_test"],
    "platform/profiles": ["platform/profile_manager_test"],
    "platform/files": ["platform/directory_manager_test"],
    "platform/graphics": ["platform/displays_test"],
    "platform/PlatformRegisterManagerImp.cpp": ["platform/register_manager_test"],
    "platform/PlatformProfileManagerImp.cpp": ["platform/profile_manager_test"],
    "platform/PlatformDirectoryManagerImp.cpp": ["platform/directory_manager_test"],
    "platform/PlatformFontManagerImp.cpp": ["platform/font_manager_test"],
    "platform/PlatformResourceManagerImp.cpp": ["platform/displays_test"],
    "platform/PlatformUserInputManagerImp.cpp": ["platform/displays_test"],
    "platform/PlatformCursorManagerImp.cpp": ["platform/displays_test"],
    "platform/PlatformMessageManagerImp.cpp": ["platform/services_test"],
    "platform/PlatformServicesImp.cpp": ["platform/services_test"],
    "crypto": ["crypto/crypto_test"],
    "widgets": ["widgets/widgets_test"],
    "app/CStdStr.cpp": ["app/support_test"],
    "app/TextTime.cpp": ["app/support_test"],
    "app/Logger.cpp": ["app/support_test"],
}

# A pattern, and what stands in its place instead. Each is something that a slip could write.
CHANGES = [
    (r" == ", " != "), (r" != ", " == "),
    (r" < ", " <= "), (r" <= ", " < "), (r" > ", " >= "), (r" >= ", " > "),
    (r" && ", " || "), (r" \|\| ", " && "),
    (r" \+ ", " - "), (r" - ", " + "), (r"\+\+", "--"), (r" \+= ", " -= "),
    (r" << ", " >> "), (r" >> ", " << "), (r" & ", " | "), (r" \| ", " & "),
    (r"\btrue\b", "false"), (r"\bfalse\b", "true"),
    (r"\b0\b", "1"), (r"\b1\b", "2"), (r"\b(\d{2,})\b", r"\g<1> + 1"),
    (r"\bif \((?!!)(?=[^;]*$)", "if (!"),
    (r"^(\s+)(?!return|using|break|continue|else|case|default|const |auto |static )"
     r"([\w.:>\-\[\]]+\([^{}]*\);)$", r"\1/* \2 */;"),
]


def is_code(line):
    text = line.strip()
    return text and not text.startswith(("//", "#", "*", "/*", "static_assert"))


def places():
    """All changes there are: (path, line number, the line, the changed line, programs)."""
    found = []
    for target, programs in TARGETS.items():
        path = Path(target)
        for file in [path] if path.is_file() else sorted(path.rglob("*.cpp")):
            for number, line in enumerate(file.read_text().splitlines()):
                code = line.split("//")[0].rstrip() if is_code(line) else ""
                for pattern, replacement in CHANGES:
                    for match in re.finditer(pattern, code):
                        changed = code[:match.start()] + match.expand(replacement) + code[match.end():]
                        if '"' not in match.group() and code[:match.start()].count('"') % 2 == 0:
                            found.append((file, number, code, changed, programs))
    return found


def build_fails(build, programs):
    names = [Path(program).name for program in programs]
    return subprocess.run(["cmake", "--build", build, "--target", *names],
                          stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL).returncode != 0


def tests_fail(build, programs):
    for program in programs:
        command = [f"{build}/tests/{program}", "--gtest_brief=1", "--gtest_fail_fast"]
        try:
            if subprocess.run(command, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL,
                              timeout=LONGEST_RUN).returncode != 0:
                return True
        except subprocess.TimeoutExpired:
            return True
    return False


def verdict(build, place):
    """"refused" by the compiler, "killed" by a test, or "survived"."""
    path, number, _, changed, programs = place
    original = path.read_text()
    lines = original.splitlines(keepends=True)
    lines[number] = changed + "\n"
    try:
        path.write_text("".join(lines))
        if build_fails(build, programs):
            return "refused"
        return "killed" if tests_fail(build, programs) else "survived"
    finally:
        path.write_text(original)


def main():
    build = sys.argv[1]
    count = int(sys.argv[2]) if len(sys.argv) > 2 else 250
    random.seed(int(sys.argv[3]) if len(sys.argv) > 3 else 1)
    chosen = places()
    random.shuffle(chosen)
    killed = survived = 0
    for place in chosen:
        if killed + survived == count:
            break
        result = verdict(build, place)
        killed += result == "killed"
        survived += result == "survived"
        if result == "survived":
            path, number, code, changed, _ = place
            print(f"survived: {path}:{number + 1}\n  - {code.strip()}\n  + {changed.strip()}", flush=True)
    share = 100 * killed / max(1, killed + survived)
    print(f"{killed} of {killed + survived} killed, {share:.1f} % (at least {LEAST_KILLED})")
    return 0 if share >= LEAST_KILLED else 1


if __name__ == "__main__":
    sys.exit(main())
