"""What the source checkers of this folder and their tests share: how a checker reports what it
found, and how a test runs a checker on a small tree of its own."""
import os
import subprocess
import sys
import tempfile


def report(problems):
    """Prints each problem on a line of standard error; the checker's exit status: 1 when there
    was any, else 0 (and nothing printed)."""
    found = list(problems)
    for problem in found:
        print(problem, file=sys.stderr)
    return 1 if found else 0


def run_on_tree(checker, files, arguments):
    """Writes `files` (a path below the tree -> its text) into a new temporary folder, runs the
    checker script with the arguments that `arguments(folder)` gives, and returns its exit
    status and standard error."""
    with tempfile.TemporaryDirectory() as top:
        for name, text in files.items():
            path = os.path.join(top, name)
            os.makedirs(os.path.dirname(path), exist_ok=True)
            with open(path, "w", encoding="utf-8") as stream:
                stream.write(text)
        result = subprocess.run([sys.executable, "-B", checker, *arguments(top)],
                                capture_output=True, text=True, check=False)
    return result.returncode, result.stderr
