"""The interface list is read completely or refused with the line and the reason."""

import os
import sys
import unittest

sys.path.insert(0, os.environ["HTDRDD_SOURCE_DIR"] + "/src/htdrdd91/component/list")
import interface_list

with open(interface_list.__file__.replace("interface_list.py", "HTDRdd91.idl"), encoding="utf-8") as file:
    LIST = file.read()


class List(unittest.TestCase):
    def refused(self, old, new):
        """The reason for refusing the list after a text is replaced, and the text of the reported line."""
        self.assertIn(old, LIST)
        text = LIST.replace(old, new, 1)
        with self.assertRaises(interface_list.ListError) as raised:
            interface_list.Reader(text).library()
        return raised.exception.reason, text.splitlines()[raised.exception.line - 1].strip()

    def test_refuses_what_it_does_not_know(self):
        for old, new, reason in (
                ("HRESULT Reset();\n    [id(19)]", "HRESULT Reset([in] float a);\n    [id(19)]", "a is of the kind float, which isn't known"),
                ("[id(18)] HRESULT Reset", "[id(17)] HRESULT Reset", "id 17 is that of Valid and Reset in _clsHTDRDDScaledScoreDB"),
                ("[id(18)] HRESULT Reset", "[id(18)] HRESULT Connect", "Connect has the ids 11 and 18 in _clsHTDRDDScaledScoreDB"),
                ("[id(19)] HRESULT Class_Initialize", "[id(18)] HRESULT Reset", "Reset stands twice in _clsHTDRDDScaledScoreDB"),
                ("[id(18)] HRESULT Reset", "[id(18), fast] HRESULT Reset", "the attribute fast isn't known here"),
                ("[id(18)] HRESULT Reset", "[id(18)] long Reset", "HRESULT is expected, not long"),
                ("[in] double dPercentScore", "[out] double dPercentScore", "dPercentScore is [out] and has 0 *"),
                ("optional, defaultvalue(3)", "optional, defaultvalue(\"3\")", "\"3\" is no default for iDecimalPlaces, which is a short"),
                ("interface _clsDZip;", "struct _clsDZip;", "a statement that begins with struct can't be read"),
                ("interface _clsDZip;", "interface _clsDZip; $", "what begins with $ can't be read"),
                ("30FC09DB-1A1A-428B-BB93-7DD18878622B", "1CA491AB-93EA-45CB-89C2-20F11A4136BB",
                 "_clsHTDRDDStrings has the uuid of HTDScaledScoreValues")):
            found, line = self.refused(old, new)
            self.assertEqual(found, reason)
            self.assertTrue(new.splitlines()[0].strip() in line or "interface _clsHTDRDDStrings" in line, line)

    def test_a_default_may_look_like_a_comment(self):
        library = interface_list.Reader(LIST.replace('defaultvalue("\\t")', 'defaultvalue("//")', 1)).library()
        self.assertEqual(library.interfaces[0].members[4].parameters[1].default, "//")


if __name__ == "__main__":
    unittest.main()
