"""Reads the interface list, HTDRdd91.idl: `read(path)` returns a Library. An unreadable or inconsistent list raises a
ListError with the line and the reason."""

import dataclasses
import re

NUMBERS = {"long", "short", "double", "VARIANT_BOOL"}
PLAIN_KINDS = NUMBERS | {"BSTR", "VARIANT"}
SYSTEM_INTERFACES = {"IUnknown", "IDispatch"}
DIRECTIONS = ("propget", "propput", "propputref")
FIRST_SLOT = 7  # after those of IUnknown and IDispatch


class ListError(Exception):
    def __init__(self, line, reason):
        super().__init__(line, reason)
        self.line, self.reason = line, reason


@dataclasses.dataclass
class Parameter:
    """A parameter, or the result of a member. The kind is a plain kind, an enumeration or an interface; for an array,
    the kind of its elements."""

    name: str
    kind: str
    is_array: bool
    is_interface: bool
    is_reference: bool
    is_result: bool
    is_optional: bool
    default: object  # a text, a number, or None


@dataclasses.dataclass
class Member:
    id: int
    name: str
    direction: str  # one of DIRECTIONS, or "" for a method
    slot: int
    line: int
    parameters: list
    result: Parameter


@dataclasses.dataclass
class Interface:
    name: str
    identifier: str
    members: list = dataclasses.field(default_factory=list)


@dataclasses.dataclass
class Enumeration:
    name: str
    identifier: str
    constants: dict


@dataclasses.dataclass
class EventInterface:
    name: str
    identifier: str
    event: str


@dataclasses.dataclass
class Class:
    """A class. It has no identifier if the list contains only its interface."""

    name: str
    interface: Interface
    identifier: str = None
    events: EventInterface = None
    is_creatable: bool = False
    is_global: bool = False


@dataclasses.dataclass
class Library:
    name: str
    identifier: str
    version: str
    enumerations: list = dataclasses.field(default_factory=list)
    interfaces: list = dataclasses.field(default_factory=list)
    events: list = dataclasses.field(default_factory=list)
    classes: list = dataclasses.field(default_factory=list)  # in the order of their interfaces


TOKEN = re.compile(r"""
    (?P<skipped>\s+|//[^\n]*)
  | (?P<text>"(?:\\.|[^"\\\n])*")
  | (?P<identifier>[0-9A-Fa-f]{8}(?:-[0-9A-Fa-f]{4}){3}-[0-9A-Fa-f]{12})
  | (?P<number>-?\d+(?:\.\d+)?)
  | (?P<name>[A-Za-z_]\w*)
  | (?P<mark>[][{}();:,*=])
""", re.VERBOSE)


def tokens(text):
    """Kind, text and line of each token."""
    place, line = 0, 1
    while place < len(text):
        match = TOKEN.match(text, place)
        if not match:
            raise ListError(line, f"what begins with {text[place:place + 20].split()[0]} can't be read")
        if match.lastgroup != "skipped":
            yield match.lastgroup, match.group(), line
        line += match.group().count("\n")
        place = match.end()
    yield "end", "the end of the list", line


class Reader:
    def __init__(self, text):
        self.tokens = list(tokens(text))
        self.place = 0
        self.enumerations, self.announced, self.identifiers = set(), {}, {}

    @property
    def line(self):
        return self.tokens[self.place][2]

    def sees(self, text):
        return self.tokens[self.place][1] == text

    def take(self, expected=None, kind=None):
        """The text of the next token. Fails if the token isn't the expected text or of the expected kind."""
        found_kind, text, line = self.tokens[self.place]
        if expected is not None and text != expected or kind is not None and found_kind != kind:
            raise ListError(line, f"{expected or 'a ' + kind} is expected, not {text}")
        self.place += 1
        return text

    def takes(self, text):
        return bool(self.sees(text) and self.take())

    def attributes(self, known):
        """Names with their values; True for a name without a value."""
        found = {}
        self.take("[")
        while not found or self.takes(","):
            line, name = self.line, self.take(kind="name")
            if name not in known:
                raise ListError(line, f"the attribute {name} isn't known here")
            if name in found:
                raise ListError(line, f"the attribute {name} stands twice")
            found[name] = True
            if self.takes("("):
                found[name] = self.take()
                self.take(")")
        self.take("]")
        return found

    def identifier(self, attributes, of):
        value = attributes.get("uuid")
        if value is None or not re.fullmatch(TOKEN.pattern, str(value), re.VERBOSE):
            raise ListError(self.line, f"{of} has no uuid")
        if value.upper() in self.identifiers:
            raise ListError(self.line, f"{of} has the uuid of {self.identifiers[value.upper()]}")
        self.identifiers[value.upper()] = of
        return value.upper()

    def library(self):
        while self.takes("import"):
            self.take(kind="text")
            self.take(";")
        attributes = self.attributes({"uuid", "version"})
        self.take("library")
        name = self.take(kind="name")
        library = Library(name, self.identifier(attributes, name), attributes.get("version"))
        if library.version is None:
            raise ListError(self.line, f"{name} has no version")
        self.take("{")
        while not self.takes("}"):
            self.statement(library)
        self.take(kind="end")
        for name, line in self.announced.items():
            if name not in {interface.name for interface in library.interfaces}:
                raise ListError(line, f"{name} is announced, but has no members anywhere")
        known = {listed.interface.name: listed for listed in library.classes}
        library.classes = [known.get(interface.name) or Class(interface.name[1:], interface)
                           for interface in library.interfaces]
        return library

    def statement(self, library):
        line = self.line
        if self.takes("typedef"):
            library.enumerations.append(self.enumeration())
        elif self.takes("interface"):
            self.announced[self.take(kind="name")] = line
            self.take(";")
        elif self.sees("["):
            attributes = self.attributes({"uuid", "odl", "dual", "oleautomation", "hidden", "nonextensible",
                                          "noncreatable", "appobject"})
            what, name = self.take(kind="name"), self.take(kind="name")
            identifier = self.identifier(attributes, name)
            if what == "interface":
                library.interfaces.append(self.interface(name, identifier))
            elif what == "dispinterface":
                library.events.append(self.event_interface(name, identifier))
            elif what == "coclass":
                library.classes.append(self.coclass(library, name, identifier, attributes))
            else:
                raise ListError(line, f"a statement that begins with {what} can't be read")
        else:
            raise ListError(line, f"a statement that begins with {self.take()} can't be read")

    def enumeration(self):
        attributes = self.attributes({"uuid", "v1_enum"})
        self.take("enum")
        name, constants = self.take(kind="name"), {}
        self.take("{")
        while not constants or self.takes(","):
            line, constant = self.line, self.take(kind="name")
            self.take("=")
            if constant in constants:
                raise ListError(line, f"{constant} stands twice in {name}")
            constants[constant] = int(self.take(kind="number"))
        self.take("}")
        self.take(name)
        self.take(";")
        self.enumerations.add(name)
        return Enumeration(name, self.identifier(attributes, name), constants)

    def interface(self, name, identifier):
        made = Interface(name, identifier)
        self.take(":")
        self.take("IDispatch")
        self.take("{")
        while not self.takes("}"):
            member = self.member(FIRST_SLOT + len(made.members))
            for other in made.members:
                if member.name == other.name and member.direction == other.direction:
                    raise ListError(member.line, f"{member.name} stands twice in {name}")
                if member.name == other.name and member.id != other.id:
                    raise ListError(member.line, f"{member.name} has the ids {other.id} and {member.id} in {name}")
                if member.name != other.name and member.id == other.id:
                    raise ListError(member.line, f"id {member.id} is that of {other.name} and {member.name} in {name}")
            made.members.append(member)
        return made

    def member(self, slot):
        line = self.line
        attributes = self.attributes({"id", "hidden", *DIRECTIONS})
        directions = [direction for direction in DIRECTIONS if direction in attributes]
        self.take("HRESULT")
        name, values = self.take(kind="name"), []
        if "id" not in attributes:
            raise ListError(line, f"{name} has no id")
        if len(directions) > 1:
            raise ListError(line, f"{name} is {' and '.join(directions)}")
        self.take("(")
        while not self.takes(")"):
            if values:
                self.take(",")
            values.append(self.parameter())
            if values[-1].name in [other.name for other in values[:-1]]:
                raise ListError(line, f"{name} has two parameters {values[-1].name}")
        self.take(";")
        *parameters, last = values or [None]
        if not (last and last.is_result):
            parameters, last = values, None
        if any(value.is_result for value in parameters):
            raise ListError(line, f"the result of {name} isn't its last parameter")
        return Member(int(attributes["id"]), name, "".join(directions), slot, line, parameters, last)

    def parameter(self):
        attributes = self.attributes({"in", "out", "optional", "retval", "defaultvalue"})
        line, kind = self.line, self.take(kind="name")
        is_array, is_reference, is_interface = kind == "SAFEARRAY", "out" in attributes, False
        if is_array:
            self.take("(")
            kind = self.take(kind="name")
            self.take(")")
        stars = 0
        while self.takes("*"):
            stars += 1
        name = self.take(kind="name")
        if kind in self.announced or kind in SYSTEM_INTERFACES:
            is_interface = True
            stars -= 1
        elif kind not in PLAIN_KINDS and kind not in self.enumerations:
            raise ListError(line, f"{name} is of the kind {kind}, which isn't known")
        if stars != is_reference:
            raise ListError(line, f"{name} is {'no ' * (not is_reference)}[out] and has {stars + is_interface} *")
        default = attributes.get("defaultvalue")
        if default is not None:
            is_text = default.startswith('"')
            if is_text != (kind == "BSTR") or is_array or is_interface or not is_text and not re.fullmatch("-?[0-9]+", default):
                raise ListError(line, f"{default} is no default for {name}, which is a {kind}")
            default = default[1:-1] if is_text else int(default)
        return Parameter(name, kind, is_array, is_interface, is_reference, "retval" in attributes,
                         "optional" in attributes, default)

    def event_interface(self, name, identifier):
        for mark in ("{", "properties", ":", "methods", ":"):
            self.take(mark)
        line = self.line
        if self.attributes({"id"}).get("id") != "1":
            raise ListError(line, f"the event of {name} hasn't the id 1")
        self.take("void")
        event = self.take(kind="name")
        for mark in ("(", ")", ";", "}"):
            self.take(mark)
        return EventInterface(name, identifier, event)

    def coclass(self, library, name, identifier, attributes):
        made = Class(name, None, identifier, None, "noncreatable" not in attributes, "appobject" in attributes)
        self.take("{")
        while not self.takes("}"):
            line, is_source = self.line, "source" in self.attributes({"default", "source"})
            self.take("dispinterface" if is_source else "interface")
            wanted = self.take(kind="name")
            found = [one for one in (library.events if is_source else library.interfaces) if one.name == wanted]
            if not found:
                raise ListError(line, f"{wanted} of {name} isn't known")
            if is_source:
                made.events = found[0]
            else:
                made.interface = found[0]
            self.take(";")
        if made.interface is None or made.interface.name != "_" + name:
            raise ListError(line, f"{name} doesn't have the interface _{name}")
        return made


def read(path):
    with open(path, encoding="utf-8") as file:
        return Reader(file.read()).library()
