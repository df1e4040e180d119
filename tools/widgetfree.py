"""Which sources of the program know no widgets, for the tools that look at those alone."""

import re

# By the folder of their build file; the first library of each is the one without widgets.
LIBRARIES = ("core", "store", "search", "reports", "update", "calc", "elements", "browsers", "charts", "electronics",
             "sidewindows", "options")


def sources(root):
    """The .cpp files of these libraries, as paths below root."""
    files = []
    for library in LIBRARIES:
        rules = root / library / "CMakeLists.txt"
        match = re.search(rf"alembra_library\({library}\s+SOURCES(.*?)LINK([^)]*)\)", rules.read_text(), re.DOTALL)
        if match and "widgets" not in match.group(2).lower() and "views" not in match.group(2):
            files += [f"{library}/{name}" for name in match.group(1).split()]
    return files


def headers(root):
    """The headers that these files include, directly or not."""
    found = set()
    unread = sources(root)
    while unread:
        text = (root / unread.pop()).read_text()
        for name in re.findall(r'^#include "([^"]+)"', text, re.MULTILINE):
            if name not in found and (root / name).exists():
                found.add(name)
                unread.append(name)
    return sorted(found)
