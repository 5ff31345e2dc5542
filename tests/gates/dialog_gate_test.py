#!/usr/bin/python3
"""Shows that the dialog gate finds each kind of fault, and none in a dialog that is right."""

import unittest

import dialog_gate

RIGHT = """IDD_A DIALOG 0, 0, 200, 60
BEGIN
    LTEXT "&Name:", -1, 7, 10, 40, 8
    EDITTEXT IDC_NAME, 50, 8, 60, 12, ES_AUTOHSCROLL
    DEFPUSHBUTTON "&Update", IDOK, 140, 7, 50, 14
    PUSHBUTTON "&Cancel", IDCANCEL, 140, 24, 50, 14
END
"""


class DialogGateTest(unittest.TestCase):
    def faults(self, *changes):
        text = RIGHT
        for old, new in changes:
            self.assertIn(old, text)
            text = text.replace(old, new)
        return list(dialog_gate.faults(text))

    def test_a_right_dialog_has_no_fault(self):
        self.assertEqual(self.faults(), [])
        self.assertEqual(self.faults(("&Name", "B && W &Name")), [])

    def test_each_fault_is_found(self):
        for old, new in [
            ("&Name:", "Name:"),
            ("&Update", "Update"),
            ("&Name:", "&Cost:"),  # the mnemonic of a button
            ("50, 8, 60", "30, 8, 60"),  # the field lies on its label
            ("140, 24", "160, 24"),  # beyond the right edge
            ("&Name:", "&Name or number:"),  # longer than its label
            ("DEFPUSHBUTTON", "PUSHBUTTON"),
            ("IDCANCEL", "IDC_LEAVE"),
            ('    LTEXT "&Name:", -1, 7, 10, 40, 8\n', ""),
        ]:
            self.assertEqual(len(self.faults((old, new))), 1, new)


if __name__ == "__main__":
    unittest.main()
