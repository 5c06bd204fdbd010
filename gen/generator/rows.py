"""The reader of the rows: services and callbacks, and the public operations that follow from
them. What a row may say stands at the head of gen/rows/services.rows and callbacks.rows."""

import re
from collections import namedtuple
from pathlib import Path

from codes import RESULTS, TYPES, short

ROOT = Path(__file__).resolve().parent.parent.parent
ROWS = ROOT / "gen" / "rows"
EXCEPTION_HEADER = ROOT / "api" / "RTI" / "Exception.h"

# `mark`: "*" or "&" if the public operation takes by value or by reference what others do not.
Field = namedtuple("Field", "code name mark")


class Row:
    """A service or a callback."""

    def __init__(self, name, fields, group):
        self.name = name
        self.fields = fields
        self.group = group
        self.java_name = "_".join([name] + [TYPES[field.code].name for field in fields])


class Callback(Row):
    @property
    def native_name(self):
        return self.java_name + "_Native"


class Service(Row):
    def __init__(self, name, fields, result, step, group):
        super().__init__(name, fields, group)
        self.result = result
        self.step = step
        self.rungs = []  # tails by name
        self.operation = None  # the public form

    @property
    def signature(self):
        return "(" + ("[B" if self.fields else "") + ")" + RESULTS[self.result].signature

    @property
    def method_id(self):
        return "_id" + self.java_name[0].upper() + self.java_name[1:]


class Operation:
    """An operation of the public ambassador: a service as a federate calls it, or a decoder."""

    def __init__(self, name, fields, result, group):
        self.name = name
        self.fields = fields  # in the public order
        self.result = result  # the C++ type
        self.group = group
        self.out = None  # the parameter that takes a result: (C++ type, name)
        self.is_const = False
        self.throws = []  # the exception list, tails by name
        self.service = None  # none behind a decoder


def parameter(field):
    """The C++ parameter of a field in the public operation."""
    kind = short(TYPES[field.code].parameter)
    return {"": kind, "*": kind.replace(" const&", ""), "&": kind + " const&"}[field.mark]


def _statements(path):
    """Yields (group, first line, lines indented below it), each line with its continuations."""
    group, lines = None, []
    for line in path.read_text().splitlines() + ["end"]:
        if line.startswith("#") or not line.strip():
            continue
        if line.startswith("      "):
            lines[-1] += " " + line.strip()
        elif line.startswith("   "):
            lines.append(line.strip())
        else:
            if lines and lines[0].startswith("group "):
                group = lines[0][len("group "):]
            elif lines:
                yield group, lines[0], lines[1:]
            lines = [line]


def _fields(text):
    fields = []
    for part in filter(None, (part.strip() for part in text.split(","))):
        code, mark, name = re.fullmatch(r"(\S+?)([*&]?) (\w+)", part).groups()
        if code not in TYPES:
            raise ValueError(f"unknown type code {code} in '{text}'")
        fields.append(Field(code, name, mark))
    return fields


def _operation(service, out, words):
    """The public form: the row's own but for what its `public` and `throws` say."""
    public = RESULTS[service.result].public
    result = public.result if public else RESULTS[service.result].cpp
    match = re.fullmatch(r"(\w+)(?: ((?!const$).+?))?( const)?", words.get("public", service.name))
    by_name = {field.name: field for field in service.fields}
    names = match[2].split(", ") if match[2] else list(by_name)
    operation = Operation(match[1], [by_name.pop(name) for name in names], short(result),
                          service.group)
    if by_name or bool(out) != bool(public and public.parameter):
        raise ValueError(f"{service.name}: the public form lacks {list(by_name) or 'into'}")
    if out:
        operation.out = (short(public.parameter), out)
    operation.is_const = match[3] is not None
    operation.throws = words["throws"].split() if "throws" in words else service.rungs
    operation.service = service
    return operation


def _service(group, head, body):
    row = re.compile(r"service (\w+) ?(.*?)(?: ?-> (\S+)(?: into (\w+))?)?(?: then (\w+))?")
    name, fields, result, out, step = row.fullmatch(head).groups()
    service = Service(name, _fields(fields), result, step, group)
    words = {}
    for line in body:
        word, _, rest = line.partition(" ")
        if word in ("public", "throws"):
            words[word] = rest
        else:
            service.rungs += line.split()
    service.operation = _operation(service, out, words)
    return service


def _decoders(group, head, body):
    for code in head.split()[1:]:
        result = short(RESULTS[code].cpp)
        operation = Operation("decode" + result, _fields("BX encodedValue"), result, group)
        operation.is_const = True
        operation.throws = body[0].split()
        yield operation


def _read_services():
    services, decoders, tails = [], [], {}
    for group, head, body in _statements(ROWS / "services.rows"):
        kind = head.split()[0]
        if kind == "tail":
            tails[head.split()[1]] = " ".join(body).split()
        elif kind == "decoders":
            decoders += _decoders(group, head, body)
        else:
            services.append(_service(group, head, body))
    return services, decoders, tails


def read_services():
    """The services in order, and the tails by name."""
    services, _, tails = _read_services()
    return services, tails


def read_operations():
    """The operations of the public ambassador: one a service, and the decoders."""
    services, decoders, _ = _read_services()
    return [service.operation for service in services] + decoders


def read_callbacks():
    """The callbacks in the order of the native method table."""
    callbacks = []
    for group, head, _ in _statements(ROWS / "callbacks.rows"):
        name, fields = re.fullmatch(r"callback (\w+) ?(.*)", head).groups()
        callbacks.append(Callback(name, _fields(fields), group))
    return callbacks


def read_exceptions():
    """The exception class names, from the list that declares them."""
    return re.findall(r"^ *X\((\w+)\)", EXCEPTION_HEADER.read_text(), re.MULTILINE)
