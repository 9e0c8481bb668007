"""preparar.sh on systems of each kind, played by programs that only write down how they are called.
Usage: preparar_test.py SOURCES"""
import os
import re
import shutil
import subprocess
import sys
import tempfile
import unittest

SCRIPT = os.path.join(sys.argv[1], 'packaging/preparar.sh')
# manager: the program that knows what is installed, a name of the compiler, one of Qt's, and how it installs
SYSTEMS = {
    'apt-get': ('dpkg-query', 'g++', 'qt6-base-dev', 'install -y'),
    'dnf': ('rpm', 'gcc-c++', 'qt6-qtbase-devel', 'install -y'),
    'pacman': ('pacman', 'gcc', 'qt6-base', '-S --noconfirm'),
}
KNOWS = '''#!/bin/sh
case "$1" in -S) echo "pacman $*" >> "$LOG"; exit 0;; esac
case "$*" in *cmake) echo "install ok installed"; exit 0;; esac
exit 1
'''


class Preparar(unittest.TestCase):
    def play(self, manager, what='run', user='0'):
        """The exit, what was said, and the calls of a system where only cmake is there."""
        with tempfile.TemporaryDirectory() as folder:
            programs = {'id': f'#!/bin/sh\necho {user}\n'}
            if manager:
                programs[manager] = f'#!/bin/sh\necho "{manager} $*" >> "$LOG"\n'
                programs[SYSTEMS[manager][0]] = KNOWS
            for name, text in programs.items():
                with open(os.path.join(folder, name), 'w', encoding='utf-8') as file:
                    file.write(text)
                os.chmod(file.name, 0o755)
            os.symlink(shutil.which('grep'), os.path.join(folder, 'grep'))
            log = os.path.join(folder, 'log')
            done = subprocess.run([shutil.which('bash'), SCRIPT, what], env={'PATH': folder, 'LOG': log},
                                  capture_output=True, text=True, timeout=60)
            open(log, 'a', encoding='utf-8').close()
            with open(log, encoding='utf-8') as file:
                return done, file.read()

    def test_each_system_gets_its_own_names_once_with_a_reason(self):
        for manager, (_, compiler, qt, how) in SYSTEMS.items():
            for what in ('run', 'test', 'paquete'):
                done, calls = self.play(manager, what)
                self.assertEqual((done.returncode, done.stderr), (0, ''), manager)
                packages = calls.splitlines()[-1].split()
                self.assertIn(f'{manager} {how}', calls)
                self.assertLessEqual({compiler, qt}, set(packages))
                self.assertEqual(len(packages), len(set(packages)), packages)
                self.assertNotIn('cmake', packages)
                said = re.findall(r'^Pixmosa necesita (\S+) \(.{4,}\); se instala ahora\.$', done.stdout, re.M)
                self.assertEqual(packages[-len(said):], said)
                self.assertEqual('appstream' in said, what == 'test')

    def test_without_the_right_to_install_it_says_so(self):
        done, calls = self.play('dnf', user='1000')
        self.assertEqual((done.returncode, calls), (1, ''))
        self.assertIn('Hace falta sudo, o ser root, para instalar: gcc-c++', done.stderr)

    def test_another_system_is_told_what_it_needs(self):
        done, _ = self.play(None)
        self.assertEqual((done.returncode, done.stdout), (0, ''))
        self.assertRegex(done.stderr, r'^Este sistema no tiene apt, dnf ni pacman.*: g\+\+ cmake .*qt6-base-dev ')
        self.assertEqual(self.play(None, 'otra')[0].returncode, 2)


if __name__ == '__main__':
    unittest.main(argv=sys.argv[:1])
