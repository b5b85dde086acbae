"""Generates a file from the interface list, to OUT or else to standard output:

    generate.py header LIST [OUT]   the C++ header of the interfaces
    generate.py faces LIST [OUT]    the C++ of their members
    generate.py listing LIST [OUT]  every class, member, slot and identifier, to be read and compared
"""

import argparse
import os
import pathlib
import re
import sys

import interface_list
from interface_list import ListError

CPP = {"long": "LONG", "short": "SHORT", "double": "double", "VARIANT_BOOL": "VARIANT_BOOL", "BSTR": "BSTR",
       "VARIANT": "VARIANT"}
VARTYPES = {"long": "VT_I4", "short": "VT_I2", "double": "VT_R8", "VARIANT_BOOL": "VT_BOOL", "BSTR": "VT_BSTR",
            "VARIANT": "VT_VARIANT"}
SLOT_PREFIXES = {"propget": "get_", "propput": "put_", "propputref": "putref_", "": ""}
FLAGS = {"propget": "PROPERTYGET", "propput": "PROPERTYPUT", "propputref": "PROPERTYPUTREF", "": "METHOD"}
ENUMERATOR_ID = -4


def guid(identifier):
    parts = identifier.split("-")
    data = parts[3] + parts[4]
    tail = ", ".join("0x" + data[i:i + 2] for i in range(0, 16, 2))
    return f"{{0x{parts[0]}, 0x{parts[1]}, 0x{parts[2]}, {{{tail}}}}}"


def slot_name(member):
    return SLOT_PREFIXES[member.direction] + member.name


def slot_type(value):
    """The type of a parameter or result in a slot."""
    if value.is_array:
        own = "SAFEARRAY*"
    elif value.is_interface:
        own = value.kind + "*"
    else:
        own = CPP.get(value.kind, "::" + value.kind)
    return own + "*" * value.is_reference


def vartype(value):
    element = "VT_UNKNOWN" if value.kind == "IUnknown" else "VT_DISPATCH" if value.is_interface else "VT_I4"
    return "VT_ARRAY | " * value.is_array + VARTYPES.get(value.kind, element)


def signature(member):
    values = member.parameters + [member.result] * (member.result is not None)
    return f"{slot_name(member)}({', '.join(f'{slot_type(value)} {value.name}' for value in values)})"


def header(library):
    yield "// The interfaces of the component: made from its interface list."
    yield "#pragma once"
    yield '\n#include "htdrdd91/component/layout/automation.h"\n'
    yield "// NOLINTBEGIN(bugprone-reserved-identifier): an interface has the name of its class, with an underscore in front"
    yield f"\ninline constexpr GUID LIBID_{library.name}{guid(library.identifier)};\n"
    for enumeration in library.enumerations:
        constants = ",\n".join(f"    {name} = {value}" for name, value in enumeration.constants.items())
        yield f"enum {enumeration.name} : int {{\n{constants},\n}};\n"
    yield from (f"struct {interface.name};" for interface in library.interfaces)
    for interface in library.interfaces:
        yield f"\ninline constexpr IID IID_{interface.name}{guid(interface.identifier)};"
        yield f"struct {interface.name} : IDispatch {{"
        yield from (f"    virtual HRESULT STDMETHODCALLTYPE {signature(member)} = 0;" for member in interface.members)
        yield "};"
    yield ""
    for events in library.events:
        yield f"inline constexpr IID DIID_{events.name}{guid(events.identifier)};"
        yield f"struct {events.name} : IDispatch {{}};"
    yield from (f"inline constexpr CLSID CLSID_{listed.name}{guid(listed.identifier)};" for listed in library.classes
                if listed.identifier)
    yield "\nnamespace htdrdd {"
    yield from (f"template <>\ninline constexpr GUID kIid<::{interface.name}> = IID_{interface.name};"
                for interface in library.interfaces)
    yield "} // namespace htdrdd\n\n// NOLINTEND(bugprone-reserved-identifier)"


class Headers:
    """The classes in the C++ headers of a folder, as far as they must agree with the list."""

    CLASS = re.compile(r"^class (\w+)([^;{]*){(.*?)^};", re.DOTALL | re.MULTILINE)

    def __init__(self, folder):
        self.classes = {}
        for path in sorted(pathlib.Path(folder).rglob("*.h")):
            text = re.sub(r"//[^\n]*", "", path.read_text(encoding="utf-8"))
            self.classes.update({name: (bases, body) for name, bases, body in self.CLASS.findall(text)})

    def declared(self, name, member):
        """The parameters of a member function, and whether it reports its failures; None for a data member."""
        bases, body = self.classes.get(name, ("", ""))
        for match in re.finditer(rf"\b{member.name}\(", body):
            depth, end = 1, match.end()
            while depth:
                depth += {"(": 1, ")": -1}.get(body[end], 0)
                end += 1
            parameters = [one.strip() for one in re.split(r",(?![^<(]*[>)])", body[match.end():end - 1]) if one.strip()]
            parameters = [one for one in parameters if not one.startswith("Where at")]
            if len(parameters) == len(member.parameters):
                return parameters, "noexcept" in re.match(r"[^;{]*", body[end:]).group()
        found = (self.declared(base, member) for base in re.findall(r"\w+", bases) if base in self.classes and base != name)
        return next(filter(None, found), None)

    def default(self, name, member, parameter):
        """The default argument as written in the header."""
        declared = self.declared(name, member)
        if not declared:
            raise ListError(member.line, f"{name}.h declares no {member.name} with {len(member.parameters)} parameters")
        for one in declared[0]:
            match = re.search(rf"\b{parameter.name}\s*=\s*(.*)$", one, re.DOTALL)
            if match:
                return match.group(1).strip()
        raise ListError(member.line, f"{parameter.name} of {member.name} has no default in {name}.h")


def checks(library, headers):
    """Checks that the C++ has the same enumerators and defaults."""
    for enumeration in library.enumerations:
        for name, value in enumeration.constants.items():
            yield (f'static_assert(static_cast<std::int32_t>({name}) == {value}, '
                   f'"{name} is {value} in the interface list");')
    for listed in library.classes:
        for member in listed.interface.members:
            for parameter in member.parameters:
                if parameter.default is None:
                    continue
                default = headers.default(listed.name, member, parameter)
                told = f"{parameter.name} of {listed.name}::{member.name}"
                if parameter.is_reference:
                    if default != "nullptr":
                        raise ListError(member.line, f"{told} is {default} by default and not nullptr")
                elif parameter.kind == "BSTR":
                    own = "TextView()" if default == "{}" else f"TextView({default})"
                    yield f'static_assert({own} == u"{parameter.default}", "{told} has another default in the interface list");'
                elif parameter.kind == "VARIANT_BOOL":
                    yield (f'static_assert({default} == {str(parameter.default != 0).lower()}, '
                           f'"{told} has another default in the interface list");')
                else:
                    yield (f'static_assert(static_cast<std::int32_t>({default}) == {parameter.default}, '
                           f'"{told} has another default in the interface list");')


def body(member):
    names = [parameter.name for parameter in member.parameters]
    result = ["result"] * (member.result is not None)
    if member.id == ENUMERATOR_ID:
        return "Enumerate(result)"
    if member.direction == "propget" and not names:
        return f"GetProperty<&C::{member.name}>(result)"
    if member.direction not in ("propget", "") and len(names) == 1:
        return f"PutProperty<&C::{member.name}>({names[0]})"
    # Both directions of a property with arguments have the same name.
    pointer = {"propget": "Getter({})", "": "{}"}.get(member.direction, "Setter({})").format(f"&C::{member.name}")
    return f"{'CallFor' if result else 'Call'}<{pointer}>({', '.join(result + names)})"


def parameter_row(parameter):
    row = f'u"{parameter.name}", {vartype(parameter)}'
    if isinstance(parameter.default, str):
        return f'{{{row}, Parameter::Presence::Default, 0, u"{parameter.default}"}}'
    if parameter.default is not None:
        return f"{{{row}, Parameter::Presence::Default, {parameter.default}}}"
    return f"{{{row}, Parameter::Presence::Optional}}" if parameter.is_optional else f"{{{row}}}"


def member_row(interface, member):
    thunk = f"&Thunk<&{interface.name}::{slot_name(member)}, {str(member.result is not None).lower()}>::Call"
    parameters = ", ".join(parameter_row(parameter) for parameter in member.parameters)
    result = vartype(member.result) if member.result else "VT_EMPTY"
    return f'    {{{member.id}, u"{member.name}", DISPATCH_{FLAGS[member.direction]}, {result}, {thunk}, {{{parameters}}}}},'


def class_row(listed):
    fields = {"name": f'u"{listed.name}"', "defaultInterface": f"&IID_{listed.interface.name}"}
    if listed.identifier:
        fields["identifier"] = f"&CLSID_{listed.name}"
    if listed.events:
        fields["events"] = f"&DIID_{listed.events.name}"
        fields["event"] = f"&EventOf<&{listed.name}::{listed.events.event}>"
    fields["isCreatable"] = str(listed.is_creatable).lower()
    fields["isGlobal"] = str(listed.is_global).lower()
    fields["make"] = f"&MakeObject<{listed.name}>"
    fields["face"] = f"&MakeFace<{listed.name}Face, {listed.name}>"
    fields["members"] = f"k{listed.name}Members"
    return "    {" + ",\n     ".join(f".{name} = {value}" for name, value in fields.items()) + "},"


def faces(library, headers):
    yield "// The faces of the component and the rows of their members: made from the interface list."
    for listed in library.classes:
        interface, name = listed.interface, listed.name
        yield f"\nclass {name}Face final : public Face<{interface.name}, {name}> {{\n    using C = {name};\n\npublic:"
        yield "    using Face::Face;"
        for member in interface.members:
            yield f"    HRESULT STDMETHODCALLTYPE {signature(member)} noexcept override {{ return {body(member)}; }}"
        yield f"}};\nconstexpr Member k{name}Members[]{{"
        yield from (member_row(interface, member) for member in interface.members)
        yield "};"
    yield "\nconstexpr ClassRow kClasses[]{"
    yield from map(class_row, library.classes)
    yield f'}};\n\nconstexpr TextView kListedTypeLibraryVersion = u"{library.version}";\n'
    yield from checks(library, headers)


def listed_value(value):
    kind = f"SAFEARRAY({value.kind})" if value.is_array else value.kind + "*" * value.is_interface
    return kind + "&" * (value.is_reference and not value.is_result)


def listed_parameter(parameter):
    told = f"{listed_value(parameter)} {parameter.name}"
    if parameter.default is not None:
        told += f' = "{parameter.default}"' if isinstance(parameter.default, str) else f" = {parameter.default}"
    return f"[{told}]" if parameter.is_optional else told


def listing(library, headers):
    yield "Members with ! let failures pass to their caller; the others report them to the host object.\n"
    yield f"{library.name} {library.identifier} version {library.version}"
    for enumeration in library.enumerations:
        yield f"\nenumeration {enumeration.name} {enumeration.identifier}"
        yield from (f"  {value:4}  {name}" for name, value in enumeration.constants.items())
    for listed in library.classes:
        how = "created" if listed.is_creatable else "reached through others"
        yield f"\nclass {listed.name} {listed.identifier or '(no identifier)'} {how}{', global' * listed.is_global}"
        if listed.events:
            yield f"raises {listed.events.event} of {listed.events.name} {listed.events.identifier}"
        yield f"interface {listed.interface.name} {listed.interface.identifier}: slot, identifier, member"
        for member in listed.interface.members:
            parameters = ", ".join(map(listed_parameter, member.parameters))
            result = f" -> {listed_value(member.result)}" if member.result else ""
            _, reports = headers.declared(listed.name, member) or ([], True)
            yield (f"  {member.slot:3} {member.id:3}  {member.direction or 'method':10} {member.name}({parameters}){result}"
                   + " !" * (not reports))


def main():
    arguments = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    arguments.add_argument("what", choices=["header", "faces", "listing"])
    arguments.add_argument("list")
    arguments.add_argument("out", nargs="?")
    arguments.add_argument("--headers", default=pathlib.Path(__file__).parents[2], help="the folder of the layers")
    given = arguments.parse_args()
    try:
        library = interface_list.read(given.list)
        classes = Headers(given.headers)
        lines = header(library) if given.what == "header" else {"faces": faces, "listing": listing}[given.what](library, classes)
        text = "\n".join(lines) + "\n"
    except ListError as error:
        sys.exit(f"{os.path.basename(given.list)}:{error.line}: {error.reason}")
    if given.out:
        pathlib.Path(given.out).write_text(text, encoding="utf-8")
    else:
        sys.stdout.write(text)


if __name__ == "__main__":
    main()
