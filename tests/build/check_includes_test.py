"""The include checker (check-includes.py) on small trees: it passes a tree that keeps every
rule and names the file and the include of each rule broken."""
import os
import unittest

from checker_support import run_on_tree

CHECKER = os.path.join(os.path.dirname(os.path.abspath(__file__)), "check-includes.py")

# A tree that keeps every rule: src/ layered, the SDK's two sides, module-facing code that
# includes only module-facing headers, and host-only headers that include module-facing ones.
CLEAN = {
    "src/common/Shared.h": "#pragma once\n",
    "src/module/Command.cpp": '#include "common/Shared.h"\n#include <CFxCommand.h>\n',
    "src/menus/Menu.cpp": '#include "common/Shared.h"\n#include <OdEditor.h>\n',
    "include/ExtCommands/Public.h": "#include <CFxString.h>\n",
    "samples/Sibling/Sibling.cpp": '#include <CFxCommand.h>\n#include "Local.h"\n',
    "samples/Sibling/Local.h": "#pragma once\n",
    "sdk/kernel/include/CFxCommand.h": '#include "CFxString.h"\n#include <OdEdCommand.h>\n',
    "sdk/kernel/include/CFxString.h": "#include <QString>\n",
    "sdk/kernel/host/CFxHostServices.h": '#include "CFxCommand.h"\n',
    "sdk/kernel/CFxHostServices.cpp": '#include "CFxHostServices.h"\n#include <OdReactorList.h>\n',
    "sdk/platform/include/OdEdCommand.h": "#pragma once\n",
    "sdk/platform/include/OdEditor.h": "#pragma once\n",
    "sdk/platform/host/OdReactorList.h": '#include "OdEditor.h"\n',
}


class IncludeChecker(unittest.TestCase):
    def run_checker(self, changes):
        return run_on_tree(CHECKER, {**CLEAN, **changes},
                           lambda top: [os.path.join(top, name)
                                        for name in ("src", "sdk", "include", "samples")])

    def test_a_tree_that_keeps_every_rule_passes_quietly(self):
        self.assertEqual(self.run_checker({}), (0, ""))

    def test_host_only_headers_in_module_code_are_named_with_the_file_and_the_include(self):
        status, report = self.run_checker({
            "src/module/Command.cpp": "#include <CFxCommand.h>\n#include <CFxHostServices.h>\n",
            "include/ExtCommands/Public.h": '#include "OdReactorList.h"\n',
            "samples/Sibling/Sibling.cpp": "#include <CFxHostServices.h>\n",
        })
        self.assertEqual(status, 1)
        self.assertIn("src/module/Command.cpp: #include <CFxHostServices.h> is host-only "
                      "(sdk/kernel/host/CFxHostServices.h)", report)
        self.assertIn("include/ExtCommands/Public.h: #include <OdReactorList.h> is host-only "
                      "(sdk/platform/host/OdReactorList.h)", report)
        self.assertIn("samples/Sibling/Sibling.cpp: #include <CFxHostServices.h>", report)
        self.assertEqual(report.count(" is host-only "), 3)

    def test_a_module_facing_header_that_includes_a_host_only_one_is_named(self):
        status, report = self.run_checker({
            "sdk/platform/include/OdEditor.h": "#include <OdReactorList.h>\n",
        })
        self.assertEqual(status, 1)
        self.assertIn("sdk/platform/include/OdEditor.h: #include <OdReactorList.h> is host-only",
                      report)

    def test_a_module_file_of_the_same_name_beside_the_includer_is_not_the_host_header(self):
        status, report = self.run_checker({
            "samples/Sibling/Sibling.cpp": '#include "CFxHostServices.h"\n',
            "samples/Sibling/CFxHostServices.h": "#pragma once\n",
        })
        self.assertEqual((status, report), (0, ""))

    def test_the_rules_of_src_and_of_sdk_towards_src_still_hold(self):
        status, report = self.run_checker({
            "src/common/Shared.h": '#include "menus/Menu.h"\n',
            "src/menus/Menu.h": '#include "module/Command.h"\n',
            "src/module/Command.h": '#include "menus/Menu.h"\n',
            "sdk/kernel/include/CFxString.h": '#include "../../../src/common/Shared.h"\n',
        })
        self.assertEqual(status, 1)
        self.assertIn("cycle: menus -> module -> menus", report)
        self.assertIn("common/ must use no other folder of src/, yet includes from menus/", report)
        self.assertIn("kernel/include/CFxString.h: ../../../src/common/Shared.h", report)


if __name__ == "__main__":
    unittest.main()
