#!/usr/bin/env python3
"""Rewrites every quoted include to its path from the top of the tree."""
import os, re, sys

root = os.path.abspath(sys.argv[1] if len(sys.argv) > 1 else '.')
skip = {'.git'}
by_name = {}
sources = []
for d, dirs, files in os.walk(root):
    dirs[:] = [x for x in dirs if x not in skip and not x.startswith('build')]
    for f in files:
        p = os.path.relpath(os.path.join(d, f), root)
        if f.endswith(('.h', '.hpp')):
            by_name.setdefault(f, []).append(p)
        if f.endswith(('.h', '.hpp', '.cpp', '.cc')):
            sources.append(p)

inc = re.compile(r'^(\s*#\s*include\s+)"([^"]+)"', re.M)
changed = 0
for s in sources:
    text = open(os.path.join(root, s), encoding='utf-8').read()
    def fix(m):
        name = m.group(2)
        here = os.path.normpath(os.path.join(os.path.dirname(s), name))
        if os.path.exists(os.path.join(root, here)) and '/' not in name:
            return m.group(1) + '"' + here + '"'
        if os.path.exists(os.path.join(root, name)):
            return m.group(0)
        cands = by_name.get(os.path.basename(name), [])
        if len(cands) == 1:
            return m.group(1) + '"' + cands[0] + '"'
        return m.group(0)
    new = inc.sub(fix, text)
    if new != text:
        open(os.path.join(root, s), 'w', encoding='utf-8').write(new)
        changed += 1
print(f'{changed} files rewritten')
