"""Writes the C++ of all members from the interface list: a face for each interface, with a line for each slot,
and a row for each member and each class. `members.py HTDRdd91.idl OUT`"""

import re
import sys

KINDS = {
    "BSTR": ("BSTR", "VT_BSTR"),
    "VARIANT_BOOL": ("VARIANT_BOOL", "VT_BOOL"),
    "long": ("LONG", "VT_I4"),
    "short": ("SHORT", "VT_I2"),
    "double": ("double", "VT_R8"),
    "VARIANT": ("VARIANT", "VT_VARIANT"),
    "IUnknown*": ("IUnknown*", "VT_UNKNOWN"),
}
DIRECTIONS = {"propget": "get_", "propput": "put_", "propputref": "putref_"}
FLAGS = {"propget": "PROPERTYGET", "propput": "PROPERTYPUT", "propputref": "PROPERTYPUTREF", "": "METHOD"}


class Value:
    """A parameter or the result of a member."""

    def __init__(self, text):
        match = re.fullmatch(r"\[(.*?)\] (.*?)(\**) (\w+)", text)
        attributes, kind, stars, self.name = match.groups()
        self.is_result = "retval" in attributes
        self.is_reference = "out" in re.split(r"\W+", attributes)
        default = re.search(r"defaultvalue\((.*?)\)$", attributes)
        self.default = default.group(1) if default else None
        self.is_optional = "optional" in attributes
        array = re.fullmatch(r"SAFEARRAY\((\w+)\)", kind)
        if self.is_reference:
            stars = stars[:-1]
        if array:
            own, self.vt = "SAFEARRAY*", "VT_ARRAY | " + KINDS[array.group(1)][1]
        elif kind + stars in KINDS:
            own, self.vt = KINDS[kind + stars]
        elif stars:
            own, self.vt = kind + "*", "VT_DISPATCH"
        else:
            own, self.vt = "::" + kind, "VT_I4"
        self.cpp = own + "*" if self.is_reference else own
        self.of_class = kind[1:] if stars and kind.startswith("_") else None

    def row(self):
        if self.default is not None and self.default.startswith('"'):
            return f'{{u"{self.name}", {self.vt}, Parameter::When::Default, 0, u{self.default}}}'
        if self.default is not None:
            return f'{{u"{self.name}", {self.vt}, Parameter::When::Default, {self.default}}}'
        if self.is_optional:
            return f'{{u"{self.name}", {self.vt}, Parameter::When::Optional}}'
        return f'{{u"{self.name}", {self.vt}}}'

    def natural(self):
        """The value for a member that is called without knowing its parameters."""
        return f"Referred<{self.of_class}>({self.name})" if self.of_class else f"Natural({self.name})"


class Member:
    def __init__(self, attributes, name, values):
        self.id = re.search(r"id\((-?\d+)\)", attributes).group(1)
        self.direction = next((d for d in DIRECTIONS if d in re.split(r"\W+", attributes)), "")
        self.name = name
        self.slot = DIRECTIONS.get(self.direction, "") + name
        self.values = [Value(v) for v in re.findall(r"\[.*?\] [^,\[]*(?:\(\w+\))?[^,\[]*", values)]
        self.result = next((v for v in self.values if v.is_result), None)
        self.parameters = [v for v in self.values if not v.is_result]

    def body(self):
        names = [v.name for v in self.parameters]
        if self.id == "-4":
            return "Enumerate(result)"
        if self.direction == "" or (self.direction == "propget" and not names):
            verb = "GetProperty" if self.direction else "CallFor" if self.result else "Call"
            return f"{verb}<&C::{self.name}>({', '.join((['result'] if self.result else []) + names)})"
        if len(names) == 1 and self.direction != "propget":
            return f"PutProperty<&C::{self.name}>({names[0]})"
        call = f"it.{self.name}({', '.join(v.natural() for v in self.parameters)})"
        if self.direction == "propget":
            return f"GetPropertyBy(result, [&](C& it) -> decltype(auto) {{ return {call}; }})"
        return f"With([&](C& it) {{ {call}; }})"

    def override(self):
        parameters = ", ".join(f"{v.cpp} {v.name}" for v in self.values)
        return f"    HRESULT {self.slot}({parameters}) noexcept override {{ return {self.body()}; }}"

    def row(self, interface):
        parameters = ", ".join(v.row() for v in self.parameters)
        return (f'    {{{self.id}, u"{self.name}", DISPATCH_{FLAGS[self.direction]}, '
                f'{self.result.vt if self.result else "VT_EMPTY"}, '
                f'&Late<&{interface}::{self.slot}, {"true" if self.result else "false"}>::Call, {{{parameters}}}}},')


def main(source, target):
    text = re.sub(r"\s+", " ", re.sub(r"//.*", "", open(source, encoding="utf-8").read()))
    out = [f"// Made from {source.rsplit('/', 1)[-1]}.", ""]

    names = []
    for interface, body in re.findall(r"\binterface (_\w+) : IDispatch \{(.*?) \}", text):
        name = interface[1:]
        members = [Member(*m) for m in re.findall(r"\[([^\]]*)\] HRESULT (\w+)\((.*?)\);", body)]
        assert len(members) == body.count("HRESULT"), name
        names.append(name)
        out += [f"class {name}Face final : public Face<{interface}, {name}> {{", f"    using C = {name};", "",
                "public:", "    using Face::Face;"]
        out += [m.override() for m in members]
        out += ["};", f"constexpr Member k{name}Members[]{{"]
        out += [m.row(interface) for m in members]
        out += ["};", ""]

    events = dict(re.findall(r"dispinterface (__\w+) \{ properties: methods: \[id\(1\)\] void (\w+)\(\);", text))
    classes = {c: (a, b) for a, c, b in re.findall(r"\[([^\]]*)\] coclass (\w+) \{(.*?)\}", text)}
    assert set(classes) <= set(names)
    out += ["constexpr ClassRow kClasses[]{"]
    for name in names:
        attributes, body = classes.get(name, ("noncreatable", ""))
        source_of = re.search(r"source\] dispinterface (\w+)", body)
        event = source_of and events[source_of.group(1)]
        out += [f'    {{u"{name}", {"&CLSID_" + name if name in classes else "nullptr"}, &IID__{name}, '
                f'{"&DIID_" + source_of.group(1) if event else "nullptr"}, '
                f'{f"&EventOf<&{name}::{event}>" if event else "nullptr"}, '
                f'{"false" if "noncreatable" in attributes else "true"}, '
                f'{"true" if "appobject" in attributes else "false"}, '
                f'&MakeObject<{name}>, &MakeFace<{name}Face, {name}>, k{name}Members}},']
    out += ["};", ""]
    with open(target, "w", encoding="utf-8") as file:
        file.write("\n".join(out))


main(*sys.argv[1:])
