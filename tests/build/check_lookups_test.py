"""The look-up checker (check-lookups.py) on small trees: it passes code that looks
identifiers up through common/IdentifierMatch.h and names every place that compares by itself."""
import os
import subprocess
import sys
import unittest

from checker_support import run_on_tree

CHECKER = os.path.join(os.path.dirname(os.path.abspath(__file__)), "check-lookups.py")

# A tree that keeps the rule: the rules' home compares, everyone else asks it, and the files
# that compare values other than identifiers do so by themselves.
CLEAN = {
    "src/common/IdentifierMatch.h": "return identifier.equalNoCase(wanted);\n"
                                    "return list.FindFirst(identifier);\n",
    "src/common/IdentifierMatch.cpp": "return identifier.compare(wanted) == 0;\n"
                                      "return a.compare(b, Qt::CaseInsensitive) == 0;\n",
    "src/ribbon/Rows.cpp": "if (IdentifierMatch::inAnyCase(row->GetIdentifier(), rowId))\n"
                           "    // Not .compare(rowId) == 0: rows match in any letter case.\n",
    "src/module/CrashReportVersionRule.cpp": "current.compare(recorded, Qt::CaseInsensitive);\n",
    "src/module/CompanionSettings.cpp": "value.compare(yes, Qt::CaseInsensitive);\n",
    "src/locale/ProductPage.cpp": "segment.compare(english, Qt::CaseInsensitive);\n",
    "src/menus/notes.txt": "menu->GetIdentifier().compare(kHelpMenuId)\n",
}


class LookupChecker(unittest.TestCase):
    def run_checker(self, changes):
        return run_on_tree(CHECKER, {**CLEAN, **changes}, lambda top: [os.path.join(top, "src")])

    def test_a_tree_that_asks_the_rules_home_passes_quietly(self):
        self.assertEqual(self.run_checker({}), (0, ""))

    def test_every_way_of_comparing_by_itself_is_named_with_its_file_and_line(self):
        status, report = self.run_checker({
            "src/menus/Help.cpp": "int unused;\n"
                                  "if (menu->GetIdentifier().compare(kHelpMenuId) == 0)\n"
                                  "if (item->GetIdentifier().equalNoCase(id)) "
                                  "return list.FindFirst(id);\n",
            "src/ribbon/Table.h": "map[id.toCaseFolded()] = key.foldedKey();\n"
                                  "a.compare(b, Qt::CaseSensitive);\n",
            "src/ribbon/Buttons.cpp": "if (button->GetIdentifier() == wanted)\n"
                                      "if (wanted != button->GetIdentifier())\n",
        })
        self.assertEqual(status, 1)
        for place, how in [("src/menus/Help.cpp:2", ".compare"),
                           ("src/menus/Help.cpp:3", ".equalNoCase"),
                           ("src/menus/Help.cpp:3", ".FindFirst"),
                           ("src/ribbon/Table.h:1", ".toCaseFolded"),
                           ("src/ribbon/Table.h:1", ".foldedKey"),
                           ("src/ribbon/Table.h:2", "Qt::CaseSensitive"),
                           ("src/ribbon/Buttons.cpp:1", "GetIdentifier() =="),
                           ("src/ribbon/Buttons.cpp:2", "!= button->GetIdentifier()")]:
            self.assertIn("%s: compares by itself (%s); look identifiers up through "
                          "common/IdentifierMatch.h" % (place, how), report)
        self.assertEqual(report.count("compares by itself"), 9)

    def test_a_file_that_compares_other_values_is_exempt_by_its_place_not_its_name(self):
        status, report = self.run_checker({
            "src/ribbon/CompanionSettings.cpp": "value.compare(other, Qt::CaseInsensitive);\n",
        })
        self.assertEqual(status, 1)
        self.assertIn("src/ribbon/CompanionSettings.cpp:1:", report)

    def test_a_missing_source_folder_is_a_usage_error(self):
        result = subprocess.run([sys.executable, "-B", CHECKER, "/nonexistent/src"],
                                capture_output=True, text=True, check=False)
        self.assertEqual((result.returncode, result.stderr),
                         (2, "usage: check-lookups.py SRC_DIR\n"))


if __name__ == "__main__":
    unittest.main()
