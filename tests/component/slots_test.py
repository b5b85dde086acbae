"""Slots, called directly: each property, each name, and one call for each kind of argument and result."""

import gc
import unittest
from ctypes import addressof, c_void_p

import htdrdd91
import variants
from hosts import CLASSES, HOST, LIBRARY, definition, face, filled, fresh, memberships, scale
from htdrdd91 import ENUMERATOR_INTERFACE, MISSING, NOTHING, Array, create
from variants import ARRAY, BOOL, BSTR, DISPATCH, I2, I4, NUMBERS, R8, UNKNOWN, VARIANT, Variant

KINDS = {"BSTR": BSTR, "long": I4, "short": I2, "double": R8, "VARIANT_BOOL": BOOL, "VARIANT": VARIANT,
         "SAFEARRAY(BSTR)": ARRAY | BSTR, "SAFEARRAY(long)": ARRAY | I4, "SAFEARRAY(VARIANT_BOOL)": ARRAY | BOOL,
         "IUnknown*": UNKNOWN}


def kind_of(told):
    return KINDS.get(told, DISPATCH if told.endswith("*") else I4)  # an enumeration


def call(slots, member, arguments=()):
    """The result of a slot; if there are references, a list of the result and their new values."""
    told = [kind for kind, _ in member.parameters] + ([member.result + "&"] if member.result else [])
    types, passed, cells, references = [], [], [], []
    try:
        for i, one in enumerate(told):
            kind, cell, is_reference = kind_of(one.rstrip("&")), Variant(), one.endswith("&")
            place = addressof(cell) + (0 if kind == VARIANT else Variant.value.offset)
            cell.kind = 0 if kind == VARIANT else kind
            cells.append(cell)
            if i < len(arguments):
                variants.write(kind, place, arguments[i])
            by_value = Variant if kind == VARIANT else NUMBERS.get(kind, c_void_p)
            types.append(c_void_p if is_reference else by_value)
            passed.append(place if is_reference else by_value.from_address(place))
            references += [(kind, place)] if is_reference else []
        htdrdd91.check(slots._slot(member.slot, types, *passed))
        outcome = [variants.read(*reference) for reference in references]
    finally:
        variants.clear(*cells)
    outcome = outcome[-1:] + outcome[:-1] if member.result else outcome
    return outcome if len(outcome) > 1 else outcome[0] if outcome else None


class Slots(unittest.TestCase):
    def setUp(self):
        create("clsHTDRDD").SetError(HOST)

    def test_properties(self):
        for name, listed in CLASSES.items():
            if not fresh(name):
                continue
            gets = {m.name: m for m in listed.members if m.direction == "propget" and not m.parameters}
            puts = {m.name: m for m in listed.members if m.direction.startswith("propput") and len(m.parameters) == 1}
            for property_name, get in gets.items():
                with self.subTest(f"{name}.{property_name}"):
                    made = fresh(name)
                    slots, old = face(made, name), {other: getattr(made, other) for other in gets}
                    self.assertEqual(call(slots, get), old[property_name])
                    if property_name not in puts:
                        continue
                    kind = get.result
                    value = {"BSTR": "a text", "short": 5, "double": 1.25, "VARIANT_BOOL": not old[property_name]}.get(
                        kind, fresh("clsHTDRDDStrings" if kind == "IDispatch*" else kind[1:-1]) if kind.endswith("*") else 7)
                    call(slots, puts[property_name], [value])
                    self.assertEqual({other: getattr(made, other) for other in gets}, old | {property_name: value})

    def test_names(self):
        for name, listed in CLASSES.items():
            if made := fresh(name):
                told = {member.name: member.identifier for member in listed.members}
                self.assertEqual(told, {member: made._identifiers(member.upper())[0] for member in told}, name)
                self.assertEqual(told, {member: made._identifiers(member.lower())[0] for member in told}, name)

    def test_kinds_of_arguments_and_results(self):
        strings = lambda: filled("clsHTDRDDStrings", ("AddDelimitedString", "b,a,C", ","))
        sequence = lambda: filled("clsHTDRDDSequence", ("AddDelimitedString", "30,10", ","))
        library = lambda: filled("clsHTDGradeScaleManager", ("Add", "Math", scale()))
        question = create("clsHTDRDDQuestion")
        key_of = lambda o: o.Keys()
        for make, name, arguments, outcome, afterwards in (
                (strings, "Add", ["d", "key"], True, lambda o: o("KEY") == "d"),
                (strings, "AddArray", [Array(["x"], BSTR, 4)], [True, ["x"]], lambda o: o.AsString(",") == "b,a,C,x"),
                (strings, "AsArray", [], ["b", "a", "C"], None),
                (strings, "NewEnum", [], lambda r: r._query(ENUMERATOR_INTERFACE), None),
                (strings, "put Item", [2, "x"], None, lambda o: o.AsString(",") == "b,x,C"),
                (sequence, "AddArray", [Array([8], I4)], [8], lambda o: o.AsString() == "30\t10\t8"),
                (sequence, "AsArray", [5], lambda r: (r, r.lower) == ([30, 10], 5), None),
                (sequence, "put Item", [2, 7], None, lambda o: o.Item(2) == 7),
                (memberships, "AddArray", [Array([True], BOOL)], [True], lambda o: o.Item(4).Include),
                (memberships, "AsArray", [1], [True, False, True], None),
                (scale, "CalculateGrade", [89.5, 0], "A", None),
                (lambda: filled("clsHTDRDDQuestion", AnswerCodes=filled("clsHTDRDDStrings", ("Add", "5"))), "HighCode",
                 [0], [5.0, 1], None),
                (definition, "GetExtraCredit", [1, 0, 0], [True, 1, 2.0], None),
                (definition, "ValidateVersions", [False, -7, None], [True, -7, 1], None),
                (lambda: create("clsHTDRDD"), "SetError", [HOST], [True, HOST], None),
                (lambda: create("clsHTDRDD").Questions, "Add", [question, "k", MISSING, MISSING], None,
                 lambda o: o.Item("K") == question),
                (library, "Add", [" new ", scale()], lambda r: r[0] == "new", lambda o: key_of(o) == ["Math", "new"]),
                (library, "Exists", ["MATH"], [True, "MATH"], None),
                (library, "Keys", [], ["Math"], None),
                (library, "Item", ["Math"], lambda r: r.ScaleName == "Norm", None),
                (library, "CalcTotalPossibleScore", [definition(), 1], lambda r: r[0] == 12.0, None)):
            made = make()
            *direction, name = name.split()
            class_name, member = next((c, m) for c, listed in CLASSES.items() for m in listed.members
                                      if m.name == name and (m.direction[:7] == "propput") == bool(direction) and
                                      is_of(made, c))
            with self.subTest(f"{class_name}.{name}"):
                found = call(face(made, class_name), member, arguments)
                self.assertTrue(outcome(found) if callable(outcome) else found == outcome or found == [outcome], found)
                self.assertTrue(afterwards is None or afterwards(made))

    @classmethod
    def tearDownClass(cls):
        create("clsHTDRDD").SetError(NOTHING)
        gc.collect()
        assert LIBRARY.DllCanUnloadNow() == 0, "objects have leaked"


def is_of(made, name):
    """Whether an object belongs to a class."""
    try:
        return bool(face(made, name))
    except htdrdd91.ComponentError:
        return False


if __name__ == "__main__":
    unittest.main()
