"""Wrong arrows planted in a small tree with the real table: each must be found. Usage: niveles_test.py ROOT"""
import os
import shutil
import sys
import tempfile
import unittest

import niveles

ROOT = sys.argv.pop(1)

# A correct tree: every file with its includes.
TREE = {
    'platform/A.h': ['<vector>', '<sys/stat.h>'],
    'conversion/basAscii.h': ['"platform/A.h"'],
    'effects/mFiltros.h': ['"platform/A.h"'],
    'web/basWeb.h': ['"platform/A.h"'],
    'web/frmGIFAvance.h': ['<QDialog>', '"web/basWeb.h"', '"platform/qt/Menus.h"'],
    'programa/Programa.h': ['"conversion/basAscii.h"', '"web/basWeb.h"'],
    'platform/qt/Menus.h': ['<QMenu>', '"platform/A.h"'],
    'app/Muestra.h': ['<QColor>'],
    'app/frmMain.h': ['"app/frmOpcAlgoritmo.h"', '"web/frmGIFAvance.h"', '"programa/Programa.h"'],
    'app/frmMain_Web.cpp': ['"app/frmMain.h"', '"app/Muestra.h"'],
    'app/frmOpcAlgoritmo.h': ['"app/Muestra.h"', '<QDockWidget>'],
    'app/main.cpp': ['"app/frmMain.h"'],
    'cli/main.cpp': ['"cli/Orden.h"', '"programa/Programa.h"', '"platform/qt/Menus.h"'],
    'cli/Orden.h': ['<string>'],
    'tools/letras/Mapa.h': ['"platform/A.h"'],
    'tests/support/Gif.h': ['"platform/A.h"'],
    'tests/web/GifTest.cpp': ['"tests/support/Gif.h"', '"app/frmMain.h"', '"GifTest.moc"'],
    'bench/web/WebBench.cpp': ['"web/basWeb.h"', '"tests/support/Gif.h"'],
}

# A file, what it would include besides, and what is said.
WRONG = [
    ('platform/qt/Menus.h', '"app/Muestra.h"', 'may not include'),
    ('cli/main.cpp', '"app/Muestra.h"', 'may not include'),
    ('app/main.cpp', '"cli/Orden.h"', 'may not include'),
    ('web/frmGIFAvance.h', '"cli/Orden.h"', 'may not include'),
    ('web/frmGIFAvance.h', '"app/frmMain.h"', 'may not include'),
    ('app/frmOpcAlgoritmo.h', '"app/frmMain.h"', 'may not include'),
    ('app/Muestra.h', '"app/frmMain.h"', 'may not include'),
    ('web/basWeb.h', '"tests/support/Gif.h"', 'may not include'),
    ('app/main.cpp', '"tests/support/Gif.h"', 'may not include'),
    ('conversion/basAscii.h', '"tools/letras/Mapa.h"', 'may not include'),
    ('conversion/basAscii.h', '<QString>', 'standard library'),
    ('programa/Programa.h', '<qstring.h>', 'standard library'),
    ('web/basWeb.h', '<jpeglib.h>', 'standard library'),
    ('effects/mFiltros.h', '"web/basWeb.h"', 'may not include'),
    ('effects/mFiltros.h', '"programa/Programa.h"', 'may not include'),
    ('platform/A.h', '"conversion/basAscii.h"', 'may not include'),
    ('platform/A.h', '"platform/qt/Menus.h"', 'may not include'),
    ('web/basWeb.h', '"web/frmGIFAvance.h"', 'may not include'),
    ('tests/web/GifTest.cpp', '"bench/web/Bench.h"', 'not a header'),
    ('tools/letras/Mapa.h', '"tests/support/Gif.h"', 'may not include'),
    ('app/main.cpp', '"../web/basWeb.h"', 'relative'),
    ('app/main.cpp', '"web/./basWeb.h"', 'relative'),
    ('app/main.cpp', '"web/nada.h"', 'not a header'),
    ('app/main.cpp', '"frmMain.h"', 'not a header'),
    ('tests/web/GifTest.cpp', '"app/main.cpp"', 'not a header'),
    ('cli/Orden.h', '<app/Muestra.h>', 'in quotes'),
    ('cli/Orden.h', 'NOMBRE', 'not a file name'),
    ('nueva/Cosa.h', '<string>', 'no row'),
    ('tests/nueva.h', '<string>', None),
]


class Niveles(unittest.TestCase):
    def setUp(self):
        self.root = tempfile.mkdtemp()
        self.addCleanup(shutil.rmtree, self.root)
        shutil.copy(os.path.join(ROOT, 'ARCHITECTURE.md'), self.root)
        for path, includes in TREE.items():
            self.write(path, includes)

    def write(self, path, includes):
        os.makedirs(os.path.join(self.root, os.path.dirname(path)), exist_ok=True)
        with open(os.path.join(self.root, path), 'w', encoding='utf-8') as file:
            file.write('#pragma once\n' + ''.join(f' # include {what}\n' for what in includes))

    def retable(self, old, new):
        with open(os.path.join(ROOT, 'ARCHITECTURE.md'), encoding='utf-8') as text:
            changed = text.read().replace(old, new)
        with open(os.path.join(self.root, 'ARCHITECTURE.md'), 'w', encoding='utf-8') as file:
            file.write(changed)

    def test_a_correct_tree_passes(self):
        self.assertEqual(niveles.faults_of(self.root), [])

    def test_every_wrong_arrow_is_found(self):
        for path, what, said in WRONG:
            self.write(path, TREE.get(path, []) + [what])
            faults = niveles.faults_of(self.root)
            with self.subTest(path=path, include=what):
                if said is None:
                    self.assertEqual(faults, [])
                else:
                    self.assertEqual(len(faults), 1, faults)
                    self.assertIn(said, faults[0])
                    self.assertTrue(faults[0].startswith(path))
            if path in TREE:
                self.write(path, TREE[path])
            else:
                os.remove(os.path.join(self.root, path))

    def test_the_table_itself_points_downward(self):
        for old, new in (('1 web: platform', '1 web: platform programa'), ('1 web: platform', '1 web: platform nada'),
                         ('1 web: platform', '1 web: platform stats\n1 stats: platform web'),
                         ('1 web: platform', 'web platform'), ('```niveles', '```')):
            self.retable(old, new)
            with self.subTest(new=new):
                self.assertTrue(all('table' in fault for fault in niveles.faults_of(self.root)))
                self.assertNotEqual(niveles.faults_of(self.root), [])


unittest.main()
