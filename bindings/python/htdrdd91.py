"""The component HTDRdd91 from Python, with ctypes alone.

    import htdrdd91
    htdrdd91.load("./libHTDRdd91.so")
    rdd = htdrdd91.create("clsHTDRDD")
    if rdd.Read("quiz.rdd"):
        print(rdd.Questions.Item(1).QuestionName)

An object belongs to the thread that created it. See Array, MISSING, Ref and NOTHING in variants.py for lists,
omitted arguments, arguments by reference and the empty object.
"""

import ctypes
import functools
import itertools
import traceback
import uuid
from ctypes import CFUNCTYPE, addressof, byref, c_int32, c_uint16, c_uint32, c_void_p, sizeof

import variants
from variants import BSTR, BYREF, DISPATCH, MISSING, NOTHING, VARIANT, Array, Ref, Variant, kind_of, read, write


def guid(text):
    return uuid.UUID(text).bytes_le


CLASSES = {
    "clsHTDRDD": guid("FE91C6A3-6D62-4CF3-9E16-FB01B1A18596"),
    "clsHTDRDDQuestion": guid("8355A573-AA75-4427-84E6-F0B9FF824898"),
    "clsHTDRDDSequence": guid("2BFC11CD-537D-4745-BD71-2E6A3CBBA2A3"),
    "clsHTDRDDSubtest": guid("204401FC-242A-41C8-B11A-EC53F2CF051E"),
    "clsHTDRDDQuestionSubtest": guid("CC4456B9-067F-44CC-9BD2-535C02636F46"),
    "clsHTDRDDStrings": guid("83F4BA80-C95A-4F02-BDB1-167E1C163068"),
    "clsHTDRDDGradeScale": guid("9062B76F-D304-424A-A438-76CF3CACBDBA"),
    "clsHTDRDDScaledScore": guid("A4436691-7BFC-47E2-B84C-86BBD469C8DC"),
    "clsHTDRDDScaledScoreDB": guid("18037C1A-459B-4005-B757-D0364DE448DD"),
    "clsHTDGradeScaleManager": guid("DEF954C4-AA97-4154-B42E-BA06C25F3A2C"),
    "clsHTDScaledScoreManager": guid("CB9B9F9F-ECE9-4B6D-A68B-3133B4EFAD70"),
}
EVENTS = {
    "AfterRead": [guid("0B1A1EA7-0E3C-4E0D-9372-4E8A77F26FFB")],
    "Reload": [guid("172F253E-8868-4BF7-873C-DC25A8E8E55D"), guid("E174112A-B65E-4205-A1DE-17857831F2C5")],
}
NO_INTERFACE = bytes(16)
UNKNOWN_INTERFACE = guid("00000000-0000-0000-C000-000000000046")
DISPATCH_INTERFACE = guid("00020400-0000-0000-C000-000000000046")
FACTORY_INTERFACE = guid("00000001-0000-0000-C000-000000000046")
ENUMERATOR_INTERFACE = guid("00020404-0000-0000-C000-000000000046")
CONNECTIONS_INTERFACE = guid("B196B284-BAB4-101A-B69C-00AA00341D07")

METHOD, GET, PUT, PUT_REFERENCE = 1, 2, 4, 8
DEFAULT_MEMBER, PUT_VALUE, NEW_ENUM = 0, -3, -4
NOT_IMPLEMENTED, NO_SUCH_INTERFACE, FAILED, NO_SUCH_EVENT = 0x80004001, 0x80004002, 0x80004005, 0x80040200
NOT_AVAILABLE, MEMBER_NOT_FOUND, UNKNOWN_NAME, EXCEPTION = 0x80040111, 0x80020003, 0x80020006, 0x80020009
WRONG_COUNT, NOT_OPTIONAL = 0x8002000E, 0x8002000F
RAISED = 0x800A0000  # plus the number of the failure


class ComponentError(Exception):
    """A failure of a member with its number, or the result code of a call that didn't reach the member."""

    def __init__(self, number, text=""):
        super().__init__(number, text)
        self.number, self.text = number, text


def check(result):
    if result < 0:
        raise ComponentError(result & 0xFFFFFFFF, f"The call was refused with {result & 0xFFFFFFFF:X}")


class Arguments(ctypes.Structure):
    _fields_ = [("values", c_void_p), ("names", c_void_p), ("count", c_uint32), ("named", c_uint32)]


class FailureRecord(ctypes.Structure):
    _fields_ = [("code", c_uint16), ("reserved", c_uint16), ("source", c_void_p), ("text", c_void_p),
                ("help", c_void_p), ("topic", c_uint32), ("more", c_void_p), ("fill", c_void_p), ("result", c_uint32)]


def load(path):
    """Loads the component and returns its exported functions. Must be called first."""
    global library
    library = ctypes.CDLL(path)
    variants.use(library, lambda pointer: living.get(pointer) or Object(pointer, shared=True))
    return library


def create(name):
    """A new object of one of the CLASSES."""
    factory, pointer = c_void_p(), c_void_p()
    if name not in CLASSES:
        raise ComponentError(NOT_AVAILABLE, f"{name} can't be created, only reached through other objects")
    check(library.DllGetClassObject(CLASSES[name], FACTORY_INTERFACE, byref(factory)))
    check(Object(factory.value)._slot(3, (c_void_p,) * 3, None, DISPATCH_INTERFACE, byref(pointer)))
    return Object(pointer.value)


def global_object(name):
    """The object of a class that can be used without creating one."""
    pointer = c_void_p()
    check(library.HTDRddGlobalObject((name + "\0").encode("utf-16-le"), DISPATCH_INTERFACE, byref(pointer)))
    return Object(pointer.value)


def call_slot(pointer, slot, types, *arguments):
    """Calls the function in a slot of an interface; returns its result code."""
    table = c_void_p.from_address(pointer).value
    entry = c_void_p.from_address(table + slot * sizeof(c_void_p)).value
    return CFUNCTYPE(c_int32, c_void_p, *types)(entry)(pointer, *arguments)


class Object:
    """An object of the component: `rdd.Notes` reads, `rdd.Notes = "x"` writes, `rdd.Read(path)` calls. Names
    ignore case, and named arguments are keywords. `codes.put("Item", 1, "x")` writes a property with arguments,
    `codes(1)` calls the default member. Lists are indexed from 1 to `Count`. Two instances are equal if they
    refer to the same object."""

    def __init__(self, pointer, shared=False):
        self._pointer = pointer
        if shared:
            self._hold()

    def __del__(self):
        self._slot(2, ())

    def __eq__(self, other):
        return isinstance(other, Object) and self._identity() == other._identity()

    def __hash__(self):
        return hash(self._identity())

    def __getattr__(self, name):
        if name.startswith("_"):
            raise AttributeError(name)
        try:
            return self._invoke(GET, self._identifiers(name))
        except ComponentError as failure:
            if failure.number not in (MEMBER_NOT_FOUND, WRONG_COUNT, NOT_OPTIONAL):
                raise
            return functools.partial(self.call, name)

    def __setattr__(self, name, value):
        object.__setattr__(self, name, value) if name.startswith("_") else self.put(name, value)

    def __call__(self, *arguments):
        return self._invoke(METHOD | GET, [DEFAULT_MEMBER], arguments)

    def __iter__(self):
        enumerator, item = self._invoke(METHOD | GET, [NEW_ENUM])._query(ENUMERATOR_INTERFACE), Variant()
        while enumerator._slot(3, (c_uint32, c_void_p, c_void_p), 1, byref(item), None) == 0:
            value = read(VARIANT, addressof(item))
            variants.clear(item)
            yield value

    def call(self, name, *arguments, **named):
        return self._invoke(METHOD | GET, self._identifiers(name, *named), arguments, named.values())

    def put(self, name, *arguments):
        *arguments, value = arguments
        flag = PUT_REFERENCE if kind_of(value) == DISPATCH else PUT
        self._invoke(flag, self._identifiers(name) + [PUT_VALUE], arguments, [value])

    def connect(self, **handler):
        """Connects a function to an event, as in connect(AfterRead=f); returns a function to disconnect it."""
        ((event, function),) = handler.items()
        container, point, cookie, sink = self._query(CONNECTIONS_INTERFACE), c_void_p(), c_uint32(), Dispatch()
        found = (i for i in EVENTS[event] if container._slot(4, (c_void_p, c_void_p), i, byref(point)) == 0)
        sink._interfaces.add(next(found, None))
        if not point:
            raise ComponentError(NO_SUCH_EVENT, f"The object has no event {event}")
        setattr(sink, event, function)
        sink._names.append(event)
        source = Object(point.value)
        try:
            check(source._slot(5, (c_void_p, c_void_p), sink._hold(), byref(cookie)))
        finally:
            sink._release()
        return lambda: check(source._slot(6, (c_uint32,), cookie))

    def _slot(self, number, types, *arguments):
        return call_slot(self._pointer, number, types, *arguments)

    def _hold(self):
        self._slot(1, ())
        return self._pointer

    def _query(self, interface):
        pointer = c_void_p()
        check(self._slot(0, (c_void_p, c_void_p), interface, byref(pointer)))
        return Object(pointer.value)

    def _identity(self):
        return self._query(UNKNOWN_INTERFACE)._pointer

    def _identifiers(self, *names):
        texts = [ctypes.create_string_buffer((name + "\0").encode("utf-16-le")) for name in names]
        pointers, identifiers = (c_void_p * len(names))(*map(addressof, texts)), (c_int32 * len(names))()
        types = (c_void_p, c_void_p, c_uint32, c_uint32, c_void_p)
        code = self._slot(5, types, NO_INTERFACE, pointers, len(names), 0, identifiers) & 0xFFFFFFFF
        if code == UNKNOWN_NAME:
            raise ComponentError(code, "There is no member, or no argument, " + " ".join(names))
        check(code)
        return list(identifiers)

    def _invoke(self, flags, identifiers, arguments=(), named=()):
        member, *names = identifiers
        given = [*named, *reversed(arguments)]
        places, targets, names = (Variant * len(given))(), (Variant * len(given))(), (c_int32 * len(names))(*names)
        result, failure = Variant(), FailureRecord()
        types = (c_int32, c_void_p, c_uint32, c_uint16, c_void_p, c_void_p, c_void_p, c_void_p)
        try:
            for place, target, value in zip(places, targets, given):
                variants.pass_on(place, target, value)
            record = Arguments(addressof(places), addressof(names), len(places), len(names))
            code = self._slot(6, types, member, NO_INTERFACE, 0, flags, byref(record), byref(result), byref(failure),
                              None)
            for place, value in zip(places, given):
                if isinstance(value, Ref):
                    value.value = read(VARIANT, addressof(place))
            if code & 0xFFFFFFFF == EXCEPTION:
                number = failure.result
                number = number & 0xFFFF if number & ~0xFFFF == RAISED else number
                raise ComponentError(number, variants.read_text(failure.text))
            check(code)
            return read(VARIANT, addressof(result))
        finally:
            texts = (Variant(BSTR, value=text) for text in (failure.source, failure.text, failure.help))
            variants.clear(result, *places, *targets, *texts)


class Dispatch:
    """Base of Python objects that the component calls by name, such as a host. Arguments by reference are
    passed as Ref, omitted ones as MISSING. An exception is returned as a failure."""

    def __new__(cls, *_, **__):
        self = super().__new__(cls)
        self._interfaces, self._names = {UNKNOWN_INTERFACE, DISPATCH_INTERFACE}, [None]
        self._count, self._face = 0, c_void_p(addressof(SLOTS))
        return self

    def _hold(self):
        self._count += 1
        living[addressof(self._face)] = self
        return addressof(self._face)

    def _release(self):
        self._count -= 1
        if not self._count:
            del living[addressof(self._face)]
        return self._count

    def _identifier(self, wanted):
        """The position in _names, to which the first request adds the name; -1 if there is no such member."""
        known = [name for name in dir(self) if name.lower() == wanted.lower() and not name.startswith("_")]
        self._names += [name for name in known[:1] if name not in self._names]
        return self._names.index(known[0]) if known else -1

    def _perform(self, name, flags, arguments):
        if flags & (PUT | PUT_REFERENCE):
            return setattr(self, name, arguments[-1])
        member = getattr(self, name)
        return member(*arguments) if callable(member) else member


living = {}  # Python objects with outside references, by address


def query(this, interface, result):
    known = ctypes.string_at(interface, 16) in living[this]._interfaces
    c_void_p.from_address(result).value = living[this]._hold() if known else None
    return 0 if known else NO_SUCH_INTERFACE


def add_reference(this):
    living[this]._hold()
    return living[this]._count


def release(this):
    return living[this]._release()


def refuse(*_):
    return NOT_IMPLEMENTED


def identify(this, interface, names, count, locale, identifiers):
    at = itertools.count(c_void_p.from_address(names).value, 2)
    name = "".join(map(chr, iter(lambda: c_uint16.from_address(next(at)).value, 0)))
    found = [living[this]._identifier(name)] + [-1] * (count - 1)
    (c_int32 * count).from_address(identifiers)[:] = found
    return UNKNOWN_NAME if -1 in found else 0


def invoke(this, member, interface, locale, flags, arguments, result, failure, position):
    self, record = living[this], Arguments.from_address(arguments)
    if not 0 < member < len(self._names):
        return MEMBER_NOT_FOUND
    places = [Variant.from_address(record.values + i * sizeof(Variant)) for i in reversed(range(record.count))]
    values = [read(VARIANT, addressof(place)) for place in places]
    given = [Ref(value) if place.kind & BYREF else value for place, value in zip(places, values)]
    try:
        answer = self._perform(self._names[member], flags, given)
        for place, old, new in zip(places, values, given):
            if isinstance(new, Ref) and new.value is not old:
                variants.replace(place.kind & ~BYREF, place.value, new.value)
        if result:
            write(VARIANT, result, answer)
        return 0
    except Exception as error:
        if not isinstance(error, ComponentError):
            traceback.print_exc()
        number, text = error.args if isinstance(error, ComponentError) else (FAILED, repr(error))
        if failure:
            failed = FailureRecord.from_address(failure)
            failed.result = RAISED | number if number < 0x10000 else number
            write(BSTR, failure + FailureRecord.text.offset, text)
        return EXCEPTION


ENTRIES = [CFUNCTYPE(c_int32, c_void_p, *types)(entry) for entry, *types in (
    (query, c_void_p, c_void_p), (add_reference,), (release,), (refuse, c_void_p),
    (refuse, c_uint32, c_uint32, c_void_p), (identify, c_void_p, c_void_p, c_uint32, c_uint32, c_void_p),
    (invoke, c_int32, c_void_p, c_uint32, c_uint16, c_void_p, c_void_p, c_void_p, c_void_p))]
SLOTS = (c_void_p * len(ENTRIES))(*(ctypes.cast(entry, c_void_p).value for entry in ENTRIES))
