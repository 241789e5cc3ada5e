#!/usr/bin/env python3
"""Fails on any include or target link that goes up or sideways between layers.

    tools/check-layers.py [source root]

The layers are the table in cmake/layers.txt under the root (by default the
repository that holds this script). Every quoted #include that names a file of
the tree, and every target_link_libraries edge between targets that the tree's
CMake files define, must stay inside its unit or go to a unit that the table
lets it use, directly or through the units it names. Exit status: 0 clean,
1 violations, 2 a broken table or an unmapped source folder.
"""

import os
import re
import sys

SOURCE_SUFFIXES = (".h", ".hpp", ".cpp", ".cc", ".c", ".inl")
# Trees that hold no code of ours, or too much data to read.
SKIPPED_DIRS = {"fuzz/corpus", "fuzz/regressions", "docs", "data"}
INCLUDE = re.compile(r'^[ \t]*#[ \t]*include[ \t]*"([^"]+)"', re.M)
COMMAND = re.compile(r"\b(add_library|add_executable|target_link_libraries)\s*\(", re.I)
LINK_KEYWORDS = {"PUBLIC", "PRIVATE", "INTERFACE", "LINK_PUBLIC", "LINK_PRIVATE",
                 "LINK_INTERFACE_LIBRARIES", "debug", "optimized", "general"}


class TableError(Exception):
    pass


class Layers:
    def __init__(self, path):
        self.uses = {}      # unit -> the units it names, or None for anything
        self.folder = {}    # folder -> unit
        self.public = {}    # unit -> the headers and targets others may use
        with open(path, encoding="utf-8") as table:
            for number, line in enumerate(table, 1):
                words = line.split("#", 1)[0].split()
                if words:
                    self._read(words, f"{path}:{number}")
        named = [u for uses in self.uses.values() if uses for u in uses] + list(self.public)
        for unit in named:
            if unit not in self.uses:
                raise TableError(f"{path}: unknown unit {unit}")
        self.reach = {unit: self._closure(unit) for unit in self.uses}
        for unit, reach in self.reach.items():
            if unit in reach:
                raise TableError(f"{path}: {unit} may use itself through a cycle")

    def _read(self, words, where):
        if words[0] == "public" and len(words) >= 3:
            self.public.setdefault(words[1], set()).update(words[2:])
            return
        if "->" not in words or words.index("->") < 2:
            raise TableError(f"{where}: cannot read '{' '.join(words)}'")
        arrow = words.index("->")
        name, folders, uses = words[0], words[1:arrow], words[arrow + 1:]
        if name in self.uses:
            raise TableError(f"{where}: unit {name} twice")
        self.uses[name] = None if uses == ["*"] else set(uses)
        for folder in folders:
            folder = folder.strip("/")
            if folder in self.folder:
                raise TableError(f"{where}: folder {folder} in two units")
            self.folder[folder] = name

    def _closure(self, unit):
        reach, todo = set(), list(self.uses[unit] or ())
        while todo:
            used = todo.pop()
            if used not in reach:
                reach.add(used)
                todo.extend(self.uses[used] or ())
        return reach

    def unit_of(self, relpath):
        """The unit of the longest table folder holding relpath, or None."""
        parts = relpath.split("/")[:-1]
        while parts:
            unit = self.folder.get("/".join(parts))
            if unit:
                return unit
            parts.pop()
        return None

    def verdict(self, source, target, used):
        """None when source may use `used` of target, else why not."""
        if source == target or self.uses[source] is None:
            return None
        if self.uses[target] is None:
            return f"the program must not use {target}"
        if target in self.public and used not in self.public[target]:
            allowed = ", ".join(sorted(self.public[target]))
            return f"{target} is used only through {allowed}"
        if target in self.reach[source]:
            return None
        return "upward" if source in self.reach[target] else "sideways"


def walk(root):
    """Relative paths of every file under root, build trees and data left out."""
    for top, dirs, files in os.walk(root):
        rel = os.path.relpath(top, root).replace(os.sep, "/")
        rel = "" if rel == "." else rel + "/"
        dirs[:] = sorted(d for d in dirs
                         if not d.startswith(".")
                         and not (rel == "" and d.startswith("build"))
                         and rel + d not in SKIPPED_DIRS)
        for name in sorted(files):
            yield rel + name


def line_of(text, offset):
    return text.count("\n", 0, offset) + 1


def check_includes(root, layers, files, problems):
    unmapped = set()
    for rel in files:
        if not rel.endswith(SOURCE_SUFFIXES):
            continue
        source = layers.unit_of(rel)
        if source is None:
            unmapped.add(os.path.dirname(rel) or ".")
            continue
        with open(os.path.join(root, rel), encoding="utf-8", errors="replace") as f:
            text = f.read()
        for match in INCLUDE.finditer(text):
            name = match.group(1)
            if os.path.isfile(os.path.join(root, name)):
                included = os.path.normpath(name).replace(os.sep, "/")
            else:
                beside = os.path.join(os.path.dirname(rel), name)
                if not os.path.isfile(os.path.join(root, beside)):
                    continue  # generated (moc) or not ours
                included = os.path.normpath(beside).replace(os.sep, "/")
            target = layers.unit_of(included)
            why = layers.verdict(source, target, included) if target else None
            if why:
                problems.append(f"{rel}:{line_of(text, match.start())}: {source} includes "
                                f"{included} ({target}): {why}")
    return unmapped


def cmake_arguments(text, start):
    """The words of the command whose '(' ends at start, and the end offset."""
    depth, i, word, words, quoted = 1, start, [], [], False
    while i < len(text) and depth:
        c = text[i]
        if quoted:
            if c == '"':
                quoted = False
            else:
                word.append(c)
        elif c == '"':
            quoted = True
        elif c == "#":
            i = text.find("\n", i)
            i = len(text) if i < 0 else i
            continue
        elif c in "()":
            depth += 1 if c == "(" else -1
            if depth == 0:
                break
            word.append(c)
        elif c.isspace():
            if word:
                words.append("".join(word))
                word = []
        else:
            word.append(c)
        i += 1
    if word:
        words.append("".join(word))
    return words, i


def check_links(layers, files, root, problems):
    defined = {}   # target -> unit
    alias = {}
    links = []     # (file, line, target, dependency)
    for rel in files:
        if not (rel.endswith("/CMakeLists.txt") or rel == "CMakeLists.txt"
                or rel.endswith(".cmake")):
            continue
        unit = layers.unit_of(rel) if "/" in rel else None
        with open(os.path.join(root, rel), encoding="utf-8", errors="replace") as f:
            text = f.read()
        # Comments first, so that commented-out commands count for nothing.
        text = re.sub(r'#(?!\[\[)[^\n"]*', "", text)
        for match in COMMAND.finditer(text):
            words, _ = cmake_arguments(text, match.end())
            if not words or "$" in words[0]:
                continue
            command = match.group(1).lower()
            if command == "target_link_libraries":
                for dependency in words[1:]:
                    if dependency not in LINK_KEYWORDS and "$" not in dependency:
                        links.append((rel, line_of(text, match.start()), words[0], dependency))
            elif "IMPORTED" in words:
                continue
            elif len(words) >= 3 and words[1] == "ALIAS":
                alias[words[0]] = words[2]
            elif unit:
                defined[words[0]] = unit
    for rel, line, name, dependency in links:
        dependency = alias.get(dependency, dependency)
        source, target = defined.get(name), defined.get(dependency)
        if not source or not target:
            continue
        why = layers.verdict(source, target, dependency)
        if why:
            problems.append(f"{rel}:{line}: target {name} ({source}) links "
                            f"{dependency} ({target}): {why}")


def main(argv):
    here = os.path.dirname(os.path.abspath(__file__))
    root = os.path.abspath(argv[1] if len(argv) > 1 else os.path.join(here, ".."))
    table = os.path.join(root, "cmake", "layers.txt")
    try:
        layers = Layers(table)
    except (OSError, TableError) as error:
        print(f"check-layers: {error}", file=sys.stderr)
        return 2
    files = list(walk(root))
    problems = []
    unmapped = check_includes(root, layers, files, problems)
    check_links(layers, files, root, problems)
    for problem in problems:
        print(problem)
    for folder in sorted(unmapped):
        print(f"{folder}: source files in a folder that cmake/layers.txt does not place")
    if unmapped:
        return 2
    if problems:
        print(f"check-layers: {len(problems)} edge(s) against cmake/layers.txt", file=sys.stderr)
        return 1
    return 0


if __name__ == "__main__":
    sys.exit(main(sys.argv))
