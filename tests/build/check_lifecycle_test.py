"""The lifecycle page's checker (check-lifecycle.py) on small repositories: it passes a page
whose rows name existing tests and are pointed to by name, and names every broken pointer."""
import os
import subprocess
import sys
import tempfile
import unittest

from checker_support import run_on_tree

CHECKER = os.path.join(os.path.dirname(os.path.abspath(__file__)), "check-lifecycle.py")

PAGE = """# What the module adds

| row | comes | goes | checked by |
|---|---|---|---|
| Help entries | at creation | by text (row "One pass") | \
`MainFrameTest.TakesThemOut`, `Place.InAnyMenu` |
| One pass | | | `Unloading.OnePass` |
| Ribbon singletons | | never | the leak check |
"""

CLEAN = {
    "docs/lifecycle.md": PAGE,
    "tests/mainwindow/MainFrameTest.cpp": "TEST_F(MainFrameTest, TakesThemOut)\n"
                                          "TEST_P( Place , InAnyMenu )\n",
    "tests/ribbon/UnloadTest.cpp": "// Kept: docs/lifecycle.md, row \"One pass\".\n"
                                   "TEST(Unloading, OnePass)\n",
    "src/menus/Help.cpp": "// Taken out by text. Kept: docs/lifecycle.md, rows \"Help\n"
                          "// entries\", \"One pass\" and \"Ribbon singletons\".\n",
    "README.md": "See docs/lifecycle.md.\n",
}


class LifecycleChecker(unittest.TestCase):
    def run_checker(self, changes):
        return run_on_tree(CHECKER, {**CLEAN, **changes}, lambda top: [top])

    def test_a_page_whose_tests_exist_and_whose_rows_are_pointed_to_by_name_passes(self):
        self.assertEqual(self.run_checker({}), (0, ""))

    def test_a_row_that_names_a_test_that_is_not_there_is_named_with_the_test(self):
        status, report = self.run_checker({
            "tests/mainwindow/MainFrameTest.cpp": "TEST_F(MainFrameTest, TakesThemOutRenamed)\n"
                                                  "TEST_P(Place, InAnyMenu)\n",
        })
        self.assertEqual(status, 1)
        self.assertEqual(report, 'docs/lifecycle.md: row "Help entries" is checked by '
                                 'MainFrameTest.TakesThemOut, which is no test\n')

    def test_pointers_to_rows_the_page_lacks_are_named_with_their_file(self):
        status, report = self.run_checker({
            "tests/ribbon/UnloadTest.cpp": "// Kept: docs/lifecycle.md, row \"One Pass\".\n"
                                           "TEST(Unloading, OnePass)\n",
            "src/menus/Help.cpp": "// docs/lifecycle.md, rows \"Help entries\" and \"Help\n"
                                  "   // items\".\n",
            "docs/lifecycle.md": PAGE.replace('(row "One pass")', '(row "Two passes")'),
        })
        self.assertEqual(status, 1)
        self.assertIn('tests/ribbon/UnloadTest.cpp: points to a row that docs/lifecycle.md '
                      'lacks: "One Pass"', report)
        self.assertIn('src/menus/Help.cpp: points to a row that docs/lifecycle.md lacks: '
                      '"Help items"', report)
        self.assertIn('docs/lifecycle.md: points to a row that docs/lifecycle.md lacks: '
                      '"Two passes"', report)
        self.assertEqual(report.count("points to a row"), 3)

    def test_two_rows_of_one_name_are_named(self):
        status, report = self.run_checker({
            "docs/lifecycle.md": PAGE + "| One pass | again | | |\n",
        })
        self.assertEqual((status, report), (1, 'docs/lifecycle.md: two rows are called '
                                               '"One pass"\n'))

    def test_a_folder_without_the_page_is_a_usage_error(self):
        with tempfile.TemporaryDirectory() as top:
            result = subprocess.run([sys.executable, "-B", CHECKER, top], capture_output=True,
                                    text=True, check=False)
        self.assertEqual(result.returncode, 2)
        self.assertIn("usage: check-lifecycle.py REPOSITORY", result.stderr)


if __name__ == "__main__":
    unittest.main()
