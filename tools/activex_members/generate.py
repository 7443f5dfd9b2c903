#!/usr/bin/env python3
"""Makes the automation wrappers (src/activex) and the server's member tables (src/ocx) from the
dispatch tables beside this script. README.md tells the tables' format.

    generate.py            writes the files
    generate.py --check    fails where a file differs from what the tables give
"""

import pathlib
import re
import subprocess
import sys
import textwrap
import uuid

HERE = pathlib.Path(__file__).parent
SRC = HERE.parent.parent / "src"


class Type:
    """An automation type: in wrappers, their calls, and the server's tables."""

    def __init__(self, vt, parameter, prefix, result=None):
        self.vt, self.parameter, self.prefix = vt, parameter, prefix
        self.result = result or parameter


TYPES = {
    "I2": Type("I2", "short", "n"),
    "I4": Type("I4", "long", "n"),
    "R4": Type("R4", "float", "flt"),
    "R8": Type("R8", "double", "dbl"),
    "BSTR": Type("BSTR", "LPCTSTR", "psz", "CString"),
    "BOOL": Type("BOOL", "BOOL", "b"),
    "VARIANT": Type("VARIANT", "const VARIANT&", "var"),
    "DISPATCH": Type("DISPATCH", "LPDISPATCH", "p"),
    "UNKNOWN": Type("UNKNOWN", "LPUNKNOWN", "p"),
    "I2*": Type("I2", "short*", "pn"),
    "I4*": Type("I4", "long*", "pn"),
    "BOOL*": Type("BOOL", "BOOL*", "pb"),
}


class Wrapper:
    def __init__(self, table, name, class_id, server, about, by_invoke, members, entries):
        self.table, self.name, self.class_id = table, name, class_id
        self.server, self.about, self.by_invoke = server, about, by_invoke
        self.members, self.entries = members, entries

    def guid(self):
        """The class id as an initializer."""
        number = uuid.UUID(self.class_id)
        tail = ", ".join(f"0x{byte:02x}" for byte in number.bytes[8:])
        return (f"0x{number.time_low:08x}, 0x{number.time_mid:04x}, "
                f"0x{number.time_hi_version:04x}, {{{tail}}}")


WRAPPERS = [
    Wrapper("flex_grid", "CFlexGrid", "{6262D3A0-531B-11CF-91F6-C2863C385E30}",
            "FlexGrid", "a flexible grid, as a window", True, 167, 97),
    Wrapper("fp_text", "CfpText", "{CDF3B180-D408-11CE-AE2C-0080C786E37D}",
            "TextField", "a text field with frame styles, as a window", False, 191, 96),
    Wrapper("tab", "CTab", "{48932A4F-981F-101B-A7FB-4A79242FD97B}",
            "TabStrip", "a tab strip, as a window", False, 323, 168),
]

GENERATED = "From tools/activex_members/%s.txt by the script beside it: change those."

ROW = re.compile(r"(\w+)(?:\(([^)]*)\))?\s+(-?\d+)\s+(\S+)((?:\s+(?:r|w|indexed))*)$")


class Entry:
    """One line of a table."""

    def __init__(self, line, group):
        match = ROW.match(line)
        if not match:
            sys.exit(f"not an entry: {line}")
        self.name, arguments, number, kind, marks = match.groups()
        self.group, self.id = group, int(number)
        self.type = None if kind == "-" else TYPES[kind]
        marks = marks.split()
        self.method = arguments is not None and "indexed" not in marks
        self.reads, self.writes = "w" not in marks, "r" not in marks
        self.reference = self.name.startswith("Ref") and self.name != "Refresh"
        self.arguments = []
        for argument in filter(None, (arguments or "").split(",")):
            name, kind = argument.split(":")
            self.arguments.append((name, TYPES[kind], kind.endswith("*")))

    def member_count(self):
        return 1 if self.method else self.reads + self.writes

    def result(self):
        """The type that a getter or method gives."""
        if self.type is None:
            return "void"
        if self.type.vt == "DISPATCH":
            if self.name == "Font":
                return "COleFont"
            if "Picture" in self.name or "Icon" in self.name:
                return "CPicture"
        return self.type.result

    def value(self):
        """The name of a setter's value."""
        return self.type.prefix + self.name.removeprefix("Ref" if self.reference else "")


def read(table):
    group, entries = "", []
    for line in (HERE / f"{table}.txt").read_text().splitlines():
        if line.startswith("= "):
            group = line[2:]
        elif line.strip() and not line.startswith("#"):
            entries.append(Entry(line, group))
    return entries


def comment(text, indent=""):
    return "\n".join(textwrap.wrap(text, 97, initial_indent=indent + "// ",
                                   subsequent_indent=indent + "// ", break_on_hyphens=False))


def parameters(entry, setter=False):
    listed = [f"{kind.parameter} {name}" for name, kind, _ in entry.arguments]
    if setter:
        listed.append(f"{entry.type.parameter} {entry.value()}")
    return ", ".join(listed)


def info(entry, setter=False):
    """The call's parameter string and arguments."""
    kinds = [("P" if out else "") + kind.vt for _, kind, out in entry.arguments]
    names = [("&" if kind.vt == "VARIANT" else "") + name for name, kind, _ in entry.arguments]
    if setter:
        kinds.append(entry.type.vt)
        names.append(entry.value())
    return " ".join("VTS_" + kind for kind in kinds), names


def get_call(wrapper, entry):
    gives = entry.result()
    raw = "LPDISPATCH" if gives in ("COleFont", "CPicture") else gives
    types, names = info(entry)
    if not wrapper.by_invoke:
        call = f"qv::GetMember<{raw}>(*this, {entry.id}, VT_{entry.type.vt})"
    else:
        rest = ", ".join([types] + names if types else [])
        call = f"qv::InvokeGet<{raw}>(*this, {entry.id}, VT_{entry.type.vt}" + \
               (f", {rest})" if rest else ")")
    return f"return {gives}({call});" if raw != gives else f"return {call};"


def put_call(wrapper, entry):
    if not wrapper.by_invoke:
        return f"SetProperty({entry.id}, VT_{entry.type.vt}, {entry.value()});"
    types, names = info(entry, True)
    name = "qv::InvokePutRef" if entry.reference else "qv::InvokePut"
    return f"{name}(*this, {', '.join([str(entry.id), types] + names)});"


def method_call(entry):
    types, names = info(entry)
    rest = "".join(", " + part for part in ([types] + names if types else []))
    if entry.type is None:
        return f"qv::InvokeMethod(*this, {entry.id}{rest});"
    return f"return qv::InvokeMethodFor<{entry.result()}>(*this, {entry.id}, VT_{entry.type.vt}{rest});"


def members(wrapper, entry):
    """(result, name, parameters, body) of each member that an entry stands for."""
    if entry.method:
        yield entry.result(), entry.name, parameters(entry), method_call(entry)
        return
    if entry.reads:
        yield entry.result(), "Get" + entry.name, parameters(entry), get_call(wrapper, entry)
    if entry.writes:
        yield "void", "Set" + entry.name, parameters(entry, True), put_call(wrapper, entry)


def head(first, wrapper, rest=""):
    return comment(f"{first} {GENERATED % wrapper.table}{rest}") + "\n"


def header(wrapper, entries):
    about = (HERE / f"{wrapper.table}_about.txt").read_text().rstrip()
    out = [head(f"{wrapper.name}: {wrapper.about}.", wrapper), "//\n",
           "".join(f"// {line}".rstrip() + "\n" for line in about.splitlines()),
           "\n#pragma once\n\n#include \"activex/ole_objects.h\"\n#include \"frame/qv_api.h\"\n\n"
           "#include <afxwin.h>\n\n",
           f"class QV_CONTROLS_API {wrapper.name} : public CWnd {{\n"
           f"    DECLARE_DYNCREATE({wrapper.name})\n\npublic:\n"
           f"    // {wrapper.class_id}\n    const GUID& GetClsid();\n\n"
           "    // Makes the control. The class name and the context are not used. FALSE if there\n"
           "    // is no such control.\n"
           "    BOOL Create(LPCSTR pszClassName, LPCSTR pszWindowName, DWORD dwStyle,\n"
           "const RECT& rc, CWnd* pParent, UINT nID, CCreateContext* pContext = nullptr) override;\n"
           "    // With a state that was saved: as a stream, or with bStorage as a storage.\n"
           "    BOOL Create(LPCSTR pszWindowName, DWORD dwStyle, const RECT& rc, CWnd* pParent,\n"
           "UINT nID, CFile* pPersist = nullptr, BOOL bStorage = FALSE);\n"]
    group = None
    for entry in entries:
        if entry.group != group:
            group = entry.group
            out.append("\n" + comment(group, "    ") + "\n")
        for result, name, listed, _ in members(wrapper, entry):
            out.append(f"    {result} {name}({listed});\n")
    out.append("};\n")
    return "".join(out)


def source(wrapper, entries):
    out = [comment(GENERATED % wrapper.table),
           f"\n\n#include \"activex/{wrapper.table}.h\"\n\n#include \"activex/member_calls.h\"\n\n",
           f"IMPLEMENT_DYNCREATE({wrapper.name}, CWnd)\n\n"
           f"const GUID& {wrapper.name}::GetClsid() {{\n"
           f"    static constexpr GUID clsid = {{{wrapper.guid()}}};\n    return clsid;\n}}\n\n"
           f"BOOL {wrapper.name}::Create(LPCSTR, LPCSTR pszWindowName, DWORD dwStyle,\n"
           "const RECT& rc, CWnd* pParent, UINT nID, CCreateContext*) {\n"
           "    return CreateControl(GetClsid(), pszWindowName, dwStyle, rc, pParent, nID);\n}\n\n"
           f"BOOL {wrapper.name}::Create(LPCSTR pszWindowName, DWORD dwStyle, const RECT& rc,\n"
           "CWnd* pParent, UINT nID, CFile* pPersist, BOOL bStorage) {\n"
           "    return CreateControl(GetClsid(), pszWindowName, dwStyle, rc, pParent, nID,\n"
           "pPersist, bStorage);\n}\n"]
    group = None
    for entry in entries:
        if entry.group != group:
            group = entry.group
            out.append("\n" + comment(group) + "\n")
        for result, name, listed, body in members(wrapper, entry):
            out.append(f"\n{result} {wrapper.name}::{name}({listed}) {{\n    {body}\n}}\n")
    return "".join(out)


def server_rows(entries):
    """One row a property, with its directions together."""
    rows = {}
    for entry in entries:
        flags = []
        if entry.method:
            flags = ["DISPATCH_METHOD"]
        else:
            flags += ["DISPATCH_PROPERTYGET"] if entry.reads else []
            put = "DISPATCH_PROPERTYPUTREF" if entry.reference else "DISPATCH_PROPERTYPUT"
            flags += [put] if entry.writes else []
        if entry.id in rows:
            rows[entry.id][1].extend(flags)
        else:
            rows[entry.id] = (entry, flags)
    return [rows[number] for number in sorted(rows)]


def server_header(wrapper, entries):
    rows = server_rows(entries)
    prefix = f"{wrapper.server}Id"
    ids = "".join(f"        {row.name} = {row.id},\n" for row, _ in rows)
    return (head(f"What a container may ask of the {wrapper.server} control.", wrapper) +
            "\n#pragma once\n\n#include \"ocx/member.h\"\n\nnamespace ocx {\n\n"
            f"struct {prefix} {{\n    enum : DISPID {{\n{ids}    }};\n}};\n\n"
            "// In ascending order of ids.\n"
            f"extern const Member k{wrapper.server}Members[{len(rows)}];\n\n}}  // namespace ocx\n")


def server_source(wrapper, entries):
    name = server_file(wrapper)
    out = [comment(GENERATED % wrapper.table),
           f"\n\n#include \"ocx/{name}.h\"\n\nnamespace ocx {{\n\nnamespace {{\n\n"]
    rows, used = [], set()
    short = {"DISPATCH_METHOD": "kMethod", "DISPATCH_PROPERTYGET": "kGet",
             "DISPATCH_PROPERTYPUT": "kPut", "DISPATCH_PROPERTYPUTREF": "kPutRef"}
    for entry, flags in server_rows(entries):
        used.update(flags)
        arguments = ["VT_" + kind.vt + (" | VT_BYREF" if by_ref else "")
                     for _, kind, by_ref in entry.arguments]
        kind = "VT_" + entry.type.vt if entry.type else "VT_EMPTY"
        rest = ", {" + ", ".join(arguments) + "}" if arguments else ""
        rows.append(f"    {{{entry.id}, L\"{entry.name}\", "
                    f"{' | '.join(short[flag] for flag in flags)}, {kind}{rest}}},\n")
    out += [f"constexpr WORD {short[flag]} = {flag};\n" for flag in short if flag in used]
    out += ["\n}  // namespace\n\n", f"const Member k{wrapper.server}Members[] = {{\n"] + rows
    return "".join(out) + "};\n\n}  // namespace ocx\n"


def server_file(wrapper):
    return re.sub(r"(?<!^)([A-Z])", r"_\1", wrapper.server).lower() + "_members"


def formatted(text, path):
    return subprocess.run(["clang-format", f"--assume-filename={path}"], input=text, text=True,
                          check=True, capture_output=True).stdout


def generate():
    """Every file's path and text; fails where the tables do not hold what they should."""
    files, all_members, all_entries = {}, 0, 0
    for wrapper in WRAPPERS:
        entries = read(wrapper.table)
        count = sum(entry.member_count() for entry in entries)
        print(f"{wrapper.name}: {count} members of {len(entries)} entries")
        if (count, len(entries)) != (wrapper.members, wrapper.entries):
            sys.exit(f"{wrapper.name} should have {wrapper.members} of {wrapper.entries}")
        all_members += count
        all_entries += len(entries)
        files[SRC / "activex" / f"{wrapper.table}.h"] = header(wrapper, entries)
        files[SRC / "activex" / f"{wrapper.table}.cpp"] = source(wrapper, entries)
        files[SRC / "ocx" / f"{server_file(wrapper)}.h"] = server_header(wrapper, entries)
        files[SRC / "ocx" / f"{server_file(wrapper)}.cpp"] = server_source(wrapper, entries)
    print(f"{all_members} members of {all_entries} entries")
    return files


def main():
    files = generate()
    if sys.argv[1:] == ["--check"]:
        # Layout is not compared, so that any version of the formatter will do.
        plain = lambda text: "".join(re.sub(r"^\s*//", "", text, flags=re.M).split())
        stale = [str(path.relative_to(SRC.parent)) for path, text in files.items()
                 if not path.exists() or plain(path.read_text()) != plain(text)]
        if stale:
            sys.exit("differ from the tables: " + ", ".join(stale))
    else:
        for path, text in files.items():
            path.parent.mkdir(exist_ok=True)
            path.write_text(formatted(text, path))


main()
