"""Each slot of each interface, called directly, is the member that the table has there."""

import gc
import os
import re
import sys
import types
import unittest
from ctypes import addressof, c_void_p

import htdrdd91

LIBRARY = htdrdd91.load(os.environ["HTDRDD_COMPONENT"])

import variants
from interfaces import HOST, INTERFACES
from variants import ARRAY, BOOL, BSTR, DISPATCH, I2, I4, NUMBERS, R8, UNKNOWN, VARIANT, Variant

KINDS = {"S": BSTR, "L": I4, "H": I2, "D": R8, "B": BOOL, "V": VARIANT, "O": DISPATCH, "U": UNKNOWN,
         "A": ARRAY | BSTR, "N": ARRAY | I4, "F": ARRAY | BOOL}
FIRST_SLOT = 7
DEFAULTS = {"Item": 0, "SubtestName": 0, "Include": 0, "AnswerCodes": 0, "NewEnum": -4}


def call(face, slot, signature, arguments=()):
    """The result of a slot, or a list of it and of what the references hold."""
    codes, _, result = signature.partition(">")
    codes = re.findall("&?.", codes) + ["&" + code for code in result]
    argument_types, passed, cells, references = [], [], [], []
    try:
        for i, code in enumerate(codes):
            kind, cell = KINDS[code[-1]], Variant()
            place = addressof(cell) + (0 if kind == VARIANT else Variant.value.offset)
            cell.kind = 0 if kind == VARIANT else kind
            cells.append(cell)
            if i < len(arguments):
                variants.write(kind, place, arguments[i])
            by_value = Variant if kind == VARIANT else NUMBERS.get(kind, c_void_p)
            argument_types.append(c_void_p if code[0] == "&" else by_value)
            passed.append(place if code[0] == "&" else by_value.from_address(place))
            references += [(kind, place)] if code[0] == "&" else []
        htdrdd91.check(face._slot(FIRST_SLOT + slot, argument_types, *passed))
        outcome = [variants.read(*reference) for reference in references]
    finally:
        variants.clear(*cells)
    outcome = outcome[-1:] + outcome[:-1] if result else outcome
    return outcome if len(outcome) > 1 else outcome[0] if outcome else None


def fresh(name):
    return INTERFACES[name][2]() if name in INTERFACES else htdrdd91.create("clsHTDRDD").Header


def members(name):
    """Members with the slot of each, a property with that of its reading."""
    slot = 0
    for member in INTERFACES[name][3]:
        yield slot, member
        slot += 2 if member.form == "property" else 1


class Slots(unittest.TestCase):
    def setUp(self):
        htdrdd91.create("clsHTDRDD").SetError(HOST)

    def each(self, check, *forms):
        for name in INTERFACES:
            for slot, member in members(name):
                if member.form in forms:
                    with self.subTest(f"{name}.{member.name}"):
                        made = fresh(name)
                        check(name, made, made._query(htdrdd91.guid(INTERFACES[name][1])), slot, member)

    def test_properties(self):
        distinctive = {"S": "a text", "L": 7, "H": 5, "D": 1.25}

        def check(name, made, face, slot, member):
            names = [other.name for _, other in members(name) if other.form == "property"]
            old = {other: getattr(made, other) for other in names}
            code = member.signature if member.signature in KINDS else "O"
            value = distinctive.get(code, not old[member.name]) if code != "O" else fresh(member.signature)
            call(face, slot + 1, code, [value])
            self.assertEqual(call(face, slot, ">" + code), value)
            self.assertEqual({other: getattr(made, other) for other in names}, old | {member.name: value})

        self.each(check, "property")

    def test_methods(self):
        def check(name, made, face, slot, member):
            member.first(made)
            arguments = [a() if isinstance(a, types.FunctionType) else a for a in member.arguments]
            outcome = call(face, slot, member.signature, arguments)
            if isinstance(member.gives, types.FunctionType):
                self.assertTrue(member.gives(outcome), outcome)
            else:
                self.assertEqual(outcome, member.gives)
            self.assertTrue(member.then(made, arguments))

        self.each(check, "method", "get", "put")

    def test_names(self):
        for name in INTERFACES:
            with self.subTest(name):
                made, names = fresh(name), {member.name for _, member in members(name)}
                found = {member: made._identifiers(member.upper())[0] for member in names}
                self.assertEqual(found, {member: made._identifiers(member.lower())[0] for member in names})
                self.assertEqual(len(set(found.values())), len(names))
                special = {member: identifier for member, identifier in found.items() if identifier <= 0}
                self.assertEqual(special, {member: DEFAULTS[member] for member in names & DEFAULTS.keys()})

    @classmethod
    def tearDownClass(cls):
        htdrdd91.create("clsHTDRDD").SetError(htdrdd91.NOTHING)
        gc.collect()
        assert LIBRARY.DllCanUnloadNow() == 0, "objects have leaked"


if __name__ == "__main__":
    unittest.main()
