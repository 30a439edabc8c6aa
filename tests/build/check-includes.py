#!/usr/bin/env python3
"""Checks the include graph of the module's sources:
 - the folders of src/ include each other without a cycle (a folder that includes from a folder
   that includes, directly or not, from it cannot be read, tested or moved alone);
 - common/ includes from no other folder of src/: it is what they all share;
 - nothing in sdk/ includes from src/: the SDK stands for the host's kernel and platform, which
   know nothing of the module;
 - no module-facing header (sdk/*/include/) includes a host-only header (sdk/*/host/), and
   neither does src/ nor any further folder given (the module's public headers, the sample
   sibling): a module sees only what the real host and platform offer.

    check-includes.py SRC_DIR SDK_DIR [MODULE_DIR...]

Quiet when all hold; otherwise names each cycle and each offending include, and exits 1.
"""
import os
import re
import sys

INCLUDE = re.compile(r'^\s*#\s*include\s*[<"]([^>"]+)[>"]', re.MULTILINE)
SHARED_FOLDER = "common"
SOURCE_SUFFIXES = (".h", ".hpp", ".cpp", ".cc", ".cxx", ".in")


def sources(root):
    for folder, _, files in os.walk(root):
        for name in sorted(files):
            if name.endswith(SOURCE_SUFFIXES):
                yield os.path.join(folder, name)


def includes(path):
    with open(path, encoding="utf-8", errors="replace") as stream:
        return INCLUDE.findall(stream.read())


def top_folder(root, path):
    """The folder of src/ that holds path, or None for a path outside src/ or at its top."""
    relative = os.path.relpath(os.path.normpath(path), root)
    parts = relative.split(os.sep)
    if parts[0] == os.pardir or len(parts) < 2:
        return None
    return parts[0]


def resolve(root, including_file, name):
    """The file of src/ that an include names, or None when it names none (Qt, SDK, system)."""
    for base in (os.path.dirname(including_file), root):
        candidate = os.path.normpath(os.path.join(base, name))
        if os.path.isfile(candidate) and top_folder(root, candidate) is not None:
            return candidate
    return None


def folder_graph(root):
    graph = {}
    for path in sources(root):
        source = top_folder(root, path)
        if source is None:
            continue
        graph.setdefault(source, {})
        for name in includes(path):
            target_file = resolve(root, path, name)
            target = target_file and top_folder(root, target_file)
            if target and target != source:
                graph[source].setdefault(target, f"{os.path.relpath(path, root)}: {name}")
                graph.setdefault(target, {})
    return graph


def cycles(graph):
    """Every elementary cycle found by a depth-first walk, each reported once, from its least
    folder name."""
    found = set()

    def walk(start, node, path):
        for successor in sorted(graph[node]):
            if successor == start:
                found.add(tuple(path))
            elif successor not in path and successor > start:
                walk(start, successor, path + [successor])

    for start in sorted(graph):
        walk(start, start, [start])
    return sorted(found)


def sdk_includes_of_src(src_root, sdk_root):
    src_headers = {}
    for path in sources(src_root):
        src_headers.setdefault(os.path.basename(path), path)
    sdk_headers = {os.path.basename(path) for path in sources(sdk_root)}
    offences = []
    for path in sources(sdk_root):
        for name in includes(path):
            candidate = os.path.normpath(os.path.join(os.path.dirname(path), name))
            inside_src = os.path.commonpath([os.path.abspath(candidate), src_root]) == src_root
            by_folder = os.path.isfile(os.path.join(src_root, name))
            by_name = os.path.basename(name) in src_headers and os.path.basename(name) not in sdk_headers
            if inside_src or by_folder or by_name:
                offences.append(f"{os.path.relpath(path, os.path.dirname(sdk_root))}: {name}")
    return offences


def sdk_headers(sdk_root, side):
    """The headers of one side of the SDK ("include" or "host"), by file name."""
    headers = {}
    for library in sorted(os.listdir(sdk_root)):
        folder = os.path.join(sdk_root, library, side)
        if os.path.isdir(folder):
            for path in sources(folder):
                headers.setdefault(os.path.basename(path), path)
    return headers


def host_only_includes(sdk_root, module_roots):
    """Every include of a host-only header in a module-facing header or in module code, as
    (including file, include name, host-only header)."""
    host_only = sdk_headers(sdk_root, "host")
    module_facing = sdk_headers(sdk_root, "include")
    checked = list(module_facing.values())
    for root in module_roots:
        checked.extend(sources(root))
    offences = []
    for path in checked:
        for name in includes(path):
            beside = os.path.join(os.path.dirname(path), name)
            base = os.path.basename(name)
            if base in host_only and base not in module_facing and not os.path.isfile(beside):
                offences.append((path, name, host_only[base]))
    return offences


def main(argv):
    if len(argv) < 3 or not all(os.path.isdir(folder) for folder in argv[1:]):
        print("usage: check-includes.py SRC_DIR SDK_DIR [MODULE_DIR...] (existing folders)",
              file=sys.stderr)
        return 2
    src_root, sdk_root, *other_roots = (os.path.abspath(folder) for folder in argv[1:])
    status = 0
    graph = folder_graph(src_root)
    for cycle in cycles(graph):
        status = 1
        print("the folders of src/ include each other in a cycle: "
              + " -> ".join(cycle + (cycle[0],)), file=sys.stderr)
        for source, target in zip(cycle, cycle[1:] + (cycle[0],)):
            print(f"    {source} -> {target} ({graph[source][target]})", file=sys.stderr)
    for target, where in sorted(graph.get(SHARED_FOLDER, {}).items()):
        status = 1
        print(f"{SHARED_FOLDER}/ must use no other folder of src/, yet includes from {target}/: {where}",
              file=sys.stderr)
    offences = sdk_includes_of_src(src_root, sdk_root)
    if offences:
        status = 1
        print("sdk/ includes from src/:", file=sys.stderr)
        for offence in offences:
            print(f"    {offence}", file=sys.stderr)
    host_only = host_only_includes(sdk_root, [src_root] + other_roots)
    if host_only:
        status = 1
        print("module-facing code includes host-only headers (a module builds against sdk/*/include "
              "alone):", file=sys.stderr)
        top = os.path.dirname(sdk_root)
        for path, name, header in host_only:
            print(f"    {os.path.relpath(path, top)}: #include <{name}> is host-only "
                  f"({os.path.relpath(header, top)})", file=sys.stderr)
    return status


if __name__ == "__main__":
    sys.exit(main(sys.argv))
