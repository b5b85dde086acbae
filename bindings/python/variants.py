"""Converts between the component's values in memory and Python's: text, numbers, booleans, lists, objects, and
the special values MISSING and NOTHING.

A value that is written belongs to its address. Reading copies the value.
"""

import ctypes
import enum
from ctypes import addressof, byref, c_double, c_int16, c_int32, c_uint16, c_uint32, c_void_p

EMPTY, I2, I4, R8, BSTR, DISPATCH, ERROR, BOOL, VARIANT, UNKNOWN = 0, 2, 3, 5, 8, 9, 10, 11, 12, 13
ARRAY, BYREF = 0x2000, 0x4000
NUMBERS = {I2: c_int16, I4: c_int32, R8: c_double, ERROR: c_uint32, BOOL: c_int16}
POINTERS = {BSTR, DISPATCH, UNKNOWN}
OMITTED = 0x80020004

Special = enum.Enum("Special", "MISSING NOTHING")
MISSING, NOTHING = Special  # an omitted argument; the empty object reference


class Array(list):
    """A list with the kind of its elements and its lower bound; `lower` is None if it has no bounds."""

    def __init__(self, items=(), kind=VARIANT, lower=0):
        super().__init__(items)
        self.kind, self.lower = kind, lower


class Ref:
    """An argument by reference; holds the new value after the call. `kind` defaults to the value's kind."""

    def __init__(self, value=None, kind=None):
        self.value, self.kind = value, kind


class Variant(ctypes.Structure):
    _fields_ = [("kind", c_uint16), ("reserved", c_uint16 * 3), ("value", c_void_p), ("record", c_void_p)]


class SafeArray(ctypes.Structure):
    _fields_ = [("dimensions", c_uint16), ("features", c_uint16), ("size", c_uint32), ("locks", c_uint32),
                ("data", c_void_p), ("count", c_uint32), ("lower", c_int32)]


def use(component, object_at):
    """Sets the component that creates texts and arrays, and the function that wraps object pointers."""
    global library, wrap
    library, wrap = component, object_at
    library.SysAllocStringLen.restype = library.SafeArrayCreate.restype = c_void_p


def kind_of(value):
    if isinstance(value, list):
        kinds = {value.kind} if isinstance(value, Array) else {kind_of(item) for item in value}
        return ARRAY | (kinds.pop() if len(kinds) == 1 and kinds < {I2, I4, R8, BSTR, BOOL} else VARIANT)
    if isinstance(value, int) and not isinstance(value, bool):
        return I4 if -0x80000000 <= value < 0x80000000 else R8
    if hasattr(value, "_hold"):
        return DISPATCH
    known = {type(None): EMPTY, bool: BOOL, float: R8, str: BSTR, Special: ERROR if value is MISSING else DISPATCH}
    if type(value) not in known:
        raise TypeError(f"The component has no kind for {value!r}")
    return known[type(value)]


def read(kind, address):
    if kind == VARIANT:
        return read(Variant.from_address(address).kind, address + Variant.value.offset)
    if kind in NUMBERS:
        number = NUMBERS[kind].from_address(address).value
        return number != 0 if kind == BOOL else MISSING if (kind, number) == (ERROR, OMITTED) else number
    if not kind & (ARRAY | BYREF) and kind not in POINTERS:
        return None
    pointer = c_void_p.from_address(address).value
    if kind & BYREF:
        return read(kind & ~BYREF, pointer)
    if kind & ARRAY:
        return read_array(pointer, kind & ~ARRAY)
    return read_text(pointer) if kind == BSTR else wrap(pointer) if pointer else None


def read_text(pointer):
    units = ctypes.string_at(pointer, 2 * library.SysStringLen(c_void_p(pointer))) if pointer else b""
    return units.decode("utf-16-le", "surrogatepass")


def read_array(pointer, kind):
    if not pointer:
        return Array(kind=kind, lower=None)
    array = SafeArray.from_address(pointer)
    return Array((read(kind, array.data + i * array.size) for i in range(array.count)), kind, array.lower)


def write(kind, address, value):
    place = c_void_p.from_address(address) if kind & ARRAY or kind in POINTERS else None
    if kind == VARIANT:
        variant = Variant.from_address(address)
        variant.kind = kind_of(value)
        write(variant.kind, address + Variant.value.offset, value)
    elif kind & ARRAY:
        place.value = new_array(value, kind & ~ARRAY)
    elif kind == BSTR:
        units = value.encode("utf-16-le", "surrogatepass")
        place.value = library.SysAllocStringLen(units, len(units) // 2)
    elif kind in POINTERS:
        place.value = None if value in (None, NOTHING) else value._hold()
    elif kind in NUMBERS:
        number = -bool(value) if kind == BOOL else OMITTED if kind == ERROR else value
        NUMBERS[kind].from_address(address).value = number


def new_array(items, kind):
    lower = getattr(items, "lower", 0)
    if lower is None:
        return None
    pointer = library.SafeArrayCreate(c_uint16(kind), 1, (c_int32 * 2)(len(items), lower))
    array = SafeArray.from_address(pointer)
    for i, item in enumerate(items):
        write(kind, array.data + i * array.size, item)
    return pointer


def clear(*variants):
    for variant in variants:
        library.VariantClear(byref(variant))


def replace(kind, address, value):
    if kind == VARIANT:
        clear(Variant.from_address(address))
    elif kind & ARRAY or kind in POINTERS:
        clear(Variant(kind, value=c_void_p.from_address(address).value))
    write(kind, address, value)


def pass_on(place, target, value):
    """Writes an argument to its place. The value of an argument by reference goes to the target."""
    if not isinstance(value, Ref):
        return write(VARIANT, addressof(place), value)
    kind = value.kind or kind_of(value.value) or VARIANT
    at = addressof(target) + (0 if kind == VARIANT else Variant.value.offset)
    target.kind = 0 if kind == VARIANT else kind
    write(kind, at, value.value)
    place.kind, place.value = BYREF | kind, at
