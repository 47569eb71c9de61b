# Sets attributes of elements of a range template, each found by its full range name:
#   edit-template.py IN OUT NAME ATTR=VALUE... [-- NAME ATTR=VALUE...]...
# A field is "s.x", a pointer's target "p*", a parameter "f.#0", a result "f.return"; an array's
# element and the members of an anonymous struct have the name of their parent.
import sys
import xml.etree.ElementTree as ET


def walk(element, parent_kind, parent_name, out):
    for child in element:
        if child.tag == "assert":
            continue
        own = child.get("name", "")
        if parent_kind == "file":
            name = own
        elif parent_kind == "pointer":
            name = parent_name + "*"
        elif parent_kind == "array" or (parent_kind == "struct" and own == ""):
            name = parent_name
        else:
            name = parent_name + "." + own
        out.setdefault(name, child)
        walk(child, child.tag, name, out)


tree = ET.parse(sys.argv[1])
by_name = {}
for file in tree.getroot():
    walk(file, "file", "", by_name)
edits = " ".join(sys.argv[3:]).split(" -- ")
for edit in edits:
    name, *settings = edit.split()
    for setting in settings:
        attribute, value = setting.split("=", 1)
        by_name[name].set(attribute, value)
tree.write(sys.argv[2], encoding="UTF-8", xml_declaration=True)
