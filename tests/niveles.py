"""The levels of the house, held: reads the table of allowed includes out of ARCHITECTURE.md and every #include of
the tree. Usage: niveles.py ROOT; prints the faults and ends with status 1 where there are any.

A row is "LEVEL KEYS: ALLOWED ...". A key is a folder (its own files, not those below), a folder with "/**" (and all
below), or a file or, with "*", some files of a folder. A file belongs to the row with the most particular key. ALLOWED
names keys of rows further up, of the same or a lower level, or "level1" for every row of a level. Files of one folder
and row may always include one another.
"""
import fnmatch
import os
import re
import sys

FIRST_QT_LEVEL = 3
SYSTEM = re.compile(r'[a-z_]+|(pwd|unistd|fcntl|signal|sys/[a-z]+)\.h')  # the standard library and the system's own calls
SKIPPED = re.compile(r'\.|build')


def table(root):
    """The rows of the fenced block "niveles": key to (level, allowed keys, other keys of the row), and its own faults."""
    with open(os.path.join(root, 'ARCHITECTURE.md'), encoding='utf-8') as text:
        block = re.search(r'^```niveles\n(.*?)^```', text.read(), re.M | re.S)
    rows, faults = {}, []
    for line in block.group(1).splitlines() if block else []:
        row = re.fullmatch(r'(\d) +([^:]+):(.*)', line)
        if not row:
            faults.append(f'the table: not a row: {line}')
            continue
        keys = row.group(2).split()
        for key in keys:
            rows[key] = (int(row.group(1)), row.group(3).split(), set(keys) - {key})
    if not rows:
        faults.append('ARCHITECTURE.md: no table of levels')
    order, of_level = list(rows), {}
    for key, (level, _, _) in rows.items():
        of_level.setdefault(f'level{level}', []).append(key)
    for key, (level, allowed, _) in rows.items():
        allowed[:] = [name for word in allowed for name in of_level.get(word, [word])]
        for name in allowed:
            if name not in rows:
                faults.append(f'the table: {key} is allowed {name}, which has no row')
            elif rows[name][0] > level or order.index(name) >= order.index(key):
                faults.append(f'the table: {key} is allowed {name}, which does not stand above it')
    return rows, faults


def row_of(path, rows):
    """The key of a file's row, or None."""
    folder = os.path.dirname(path)
    for key in sorted((k for k in rows if re.search(r'[.*]', k) and '**' not in k), key=len, reverse=True):
        if fnmatch.fnmatchcase(path, key) and os.path.dirname(key) == folder:
            return key
    if folder in rows:
        return folder
    while folder:
        if folder + '/**' in rows:
            return folder + '/**'
        folder = os.path.dirname(folder)
    return None


def sources(root):
    for folder, below, names in os.walk(root):
        below[:] = sorted(d for d in below if not SKIPPED.match(d))
        for name in sorted(names):
            if name.endswith(('.h', '.cpp')):
                yield os.path.relpath(os.path.join(folder, name), root)


def fault_of(path, mine, what, root, rows):
    """What is wrong with one include of a file of the row `mine`, or None."""
    level, allowed, together = rows[mine]
    quoted = re.match(r'"([^"]*)"', what)
    angle = re.match(r'<([^>]*)>', what)
    if angle:
        name = angle.group(1)
        if row_of(name, rows) or os.path.exists(os.path.join(root, name)):
            return 'a file of the project stands in quotes'
        if level < FIRST_QT_LEVEL and not SYSTEM.fullmatch(name):
            return 'below level 3 there is only the standard library'
        return None
    if not quoted:
        return 'not a file name'
    name = quoted.group(1)
    if name == os.path.basename(path)[:-len('cpp')] + 'moc' and level >= FIRST_QT_LEVEL:
        return None
    if os.path.normpath(name) != name or name.startswith('..'):
        return 'a relative path'
    theirs = row_of(name, rows)
    if not theirs or not name.endswith('.h') or not os.path.isfile(os.path.join(root, name)):
        return 'not a header of the project'
    same_place = theirs == mine and os.path.dirname(name) == os.path.dirname(path)
    if not same_place and theirs not in allowed and theirs not in together:
        return f'{mine} may not include {theirs}'
    return None


def faults_of(root):
    rows, faults = table(root)
    if faults:
        return faults
    count = 0
    for path in sources(root):
        count += 1
        mine = row_of(path, rows)
        if not mine:
            faults.append(f'{path}: its folder has no row in ARCHITECTURE.md')
            continue
        with open(os.path.join(root, path), encoding='utf-8', errors='replace') as text:
            for what in re.findall(r'^[ \t]*#[ \t]*include[ \t]*(.*)', text.read(), re.M):
                fault = fault_of(path, mine, what, root, rows)
                if fault:
                    faults.append(f'{path}: {what.strip()}: {fault}')
    if count == 0:
        faults.append(f'no source file under {root}')
    return faults


if __name__ == '__main__':
    found = faults_of(sys.argv[1])
    print('\n'.join(found))
    sys.exit(1 if found else 0)
