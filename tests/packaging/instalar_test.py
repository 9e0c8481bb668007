"""Installs the build into a folder of its own and holds what lies there: the files, what desktops, manuals and shells read
of them, and that the installed command line works. Usage: instalar_test.py CMAKE BUILD VERSION"""
import os
import re
import shutil
import subprocess
import sys
import tempfile
import unittest

CMAKE, BUILD, VERSION = sys.argv[1:4]
SIZES = (16, 22, 24, 32, 48, 64, 128, 256, 512)
EXPECTED = {
    'bin/pixmosa', 'bin/pixmosa-cli', 'libexec/pixmosa/pixmosa-decodificador',
    'share/applications/pixmosa.desktop', 'share/metainfo/org.pixmosa.pixmosa.metainfo.xml',
    'share/doc/pixmosa/copyright', 'share/doc/pixmosa/CHANGELOG.md',
    'share/pixmosa/muestra.png', 'share/pixmosa/Paleta 3x2.txt',
    'share/man/man1/pixmosa.1', 'share/man/man1/pixmosa-cli.1',
    'share/man/es/man1/pixmosa.1', 'share/man/es/man1/pixmosa-cli.1',
    'share/bash-completion/completions/pixmosa-cli', 'share/zsh/site-functions/_pixmosa-cli',
    'share/fish/vendor_completions.d/pixmosa-cli.fish',
    'share/icons/hicolor/scalable/apps/pixmosa.svg', 'share/icons/hicolor/symbolic/apps/pixmosa-symbolic.svg',
} | {f'share/icons/hicolor/{n}x{n}/apps/pixmosa.png' for n in SIZES}


def run(*words, **more):
    return subprocess.run(words, capture_output=True, text=True, timeout=60, **more)


class Instalado(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.stage = tempfile.mkdtemp()
        done = run(CMAKE, '--install', BUILD, '--prefix', '/usr', env={**os.environ, 'DESTDIR': cls.stage})
        if done.returncode:
            raise RuntimeError(done.stderr)
        cls.usr = os.path.join(cls.stage, 'usr')
        cls.cli = os.path.join(cls.usr, 'bin/pixmosa-cli')
        cls.orders = {}  # order: {option: its choices}, as the help shows them
        names = re.findall(r'^  (\S+)', run(cls.cli, '--help').stdout.split('Órdenes:')[1].split('Ejemplos:')[0], re.M)
        for name in names:
            page = run(cls.cli, name, '--help').stdout.split('\nEjemplo:')[0]
            rows = re.findall(r'^  (--?[a-z][a-z-]*)(?: (\S+))?', page, re.M)
            cls.orders[name] = {o: v.split('|') if re.fullmatch(r'[a-z0-9]+(\|[a-z0-9]+)+', v) else [] for o, v in rows}

    @classmethod
    def tearDownClass(cls):
        shutil.rmtree(cls.stage)

    def text(self, path):
        with open(os.path.join(self.usr, path), encoding='utf-8') as file:
            return file.read()

    def test_the_files_are_all_there_and_no_others(self):
        found = {os.path.relpath(os.path.join(folder, f), self.usr) for folder, _, files in os.walk(self.usr) for f in files}
        fonts = {f for f in found if f.startswith('share/pixmosa/Fonts/')}
        guide = {f for f in found if f.startswith('share/pixmosa/guia/')}
        self.assertEqual(found - fonts - guide, EXPECTED)
        shipped = os.path.join(os.path.dirname(__file__), '../../data/guia')
        self.assertEqual(guide, {'share/pixmosa/guia/' + os.path.relpath(os.path.join(folder, f), shipped)
                                 for folder, _, files in os.walk(shipped) for f in files})
        self.assertIn('share/pixmosa/guia/index.html', guide)
        self.assertIn('share/pixmosa/Fonts/categoriestree.txt', fonts)
        self.assertEqual(os.listdir(self.stage), ['usr'])
        for name in ('bin/pixmosa', 'bin/pixmosa-cli', 'libexec/pixmosa/pixmosa-decodificador'):
            self.assertTrue(os.access(os.path.join(self.usr, name), os.X_OK), name)

    def test_icons_have_the_size_of_their_folder(self):
        for n in SIZES:
            with open(os.path.join(self.usr, f'share/icons/hicolor/{n}x{n}/apps/pixmosa.png'), 'rb') as icon:
                head = icon.read(24)
            self.assertEqual((int.from_bytes(head[16:20]), int.from_bytes(head[20:24])), (n, n))

    def test_desktops_and_software_centres_take_what_they_read(self):
        for tool, path in ((['desktop-file-validate'], 'share/applications/pixmosa.desktop'),
                           (['appstreamcli', 'validate', '--no-net'], 'share/metainfo/org.pixmosa.pixmosa.metainfo.xml')):
            done = run(*tool, os.path.join(self.usr, path))
            self.assertEqual((done.returncode, done.stderr), (0, ''), done.stdout)
        self.assertIn(f'<release version="{VERSION}"', self.text('share/metainfo/org.pixmosa.pixmosa.metainfo.xml'))
        self.assertRegex(self.text('share/applications/pixmosa.desktop'), r'(?m)^Exec=pixmosa %f$')

    def test_the_data_and_the_decoding_process_are_found_where_they_lie(self):
        drawing = os.path.join(self.stage, 'ventana.svg')
        with open(drawing, 'w', encoding='utf-8') as file:
            file.write('<svg xmlns="http://www.w3.org/2000/svg" width="40" height="40"><rect width="20" height="40"/></svg>')
        done = run(self.cli, 'ascii', drawing, '--columnas', '8')
        os.remove(drawing)
        self.assertEqual((done.returncode, done.stderr), (0, ''))
        self.assertTrue(all(len(set(row[:4])) == 1 and row[0] != row[-1] for row in done.stdout.splitlines()), done.stdout)
        self.assertEqual(run(self.cli, 'letrero', 'a').returncode, 0)

    @unittest.skipUnless(shutil.which('man') and shutil.which('groff'), 'man is not here')
    def test_manual_pages_are_printed_without_a_warning(self):
        for page in ('pixmosa', 'pixmosa-cli'):
            path = os.path.join(self.usr, f'share/man/es/man1/{page}.1')
            done = run('man', '--warnings', '-E', 'UTF-8', '-l', path, env={**os.environ, 'MANWIDTH': '80'})
            self.assertEqual((done.returncode, done.stderr), (0, ''), page)
            self.assertIn(f'Pixmosa {VERSION}', done.stdout)

    def test_every_order_and_option_stands_in_the_manual_under_its_order(self):
        page = self.text('share/man/man1/pixmosa-cli.1').replace('\\-', '-')
        parts = dict(re.findall(r'^\.SS (\S+)\n(.*?)(?=^\.S[SH] )', page, re.M | re.S))
        self.assertEqual(list(parts), list(self.orders))
        for order, options in self.orders.items():
            self.assertEqual(re.findall(r'^\.TP\n\\fB(-[a-z-]+)', parts[order], re.M), list(options))
        for word in re.findall(r'^  (--\w+)', run(os.path.join(self.usr, 'bin/pixmosa'), '--help').stdout, re.M):
            self.assertIn('\\fB' + word, self.text('share/man/man1/pixmosa.1').replace('\\-', '-'))

    def complete(self, *words, folder='/'):
        """What bash offers for the last of the words."""
        script = ('source "$0"; COMP_WORDS=("$@"); COMP_CWORD=$(($# - 1)); '
                  '_pixmosa_cli; printf "%s\\n" "${COMPREPLY[@]}"')
        done = run('bash', '-c', script, os.path.join(self.usr, 'share/bash-completion/completions/pixmosa-cli'),
                   'pixmosa-cli', *words, cwd=folder)
        self.assertEqual(done.stderr, '')
        return set(done.stdout.split('\n')) - {''}

    def test_bash_completes_every_order_option_and_choice(self):
        self.assertEqual(self.complete(''), set(self.orders) | {'--help', '--version'})
        for order, options in self.orders.items():
            self.assertEqual(self.complete(order, '-'), set(options) | {'--help'}, order)
            for option, choices in options.items():
                if choices:
                    self.assertEqual(self.complete(order, option, ''), set(choices))
                    self.assertEqual(self.complete(order, option, '=', choices[1]), {choices[1]})
        self.assertEqual(self.complete('ascii', '--paleta', '=',), {'0', '1', '2', '3'})
        self.assertEqual(self.complete('ascii', '--columnas', ''), set())
        with tempfile.TemporaryDirectory() as folder:
            os.mkdir(os.path.join(folder, 'una carpeta'))
            open(os.path.join(folder, 'una foto.png'), 'w').close()
            self.assertEqual(self.complete('ascii', 'una', folder=folder), {'una carpeta', 'una foto.png'})
            self.assertEqual(self.complete('ascii', '--carpeta', 'u', folder=folder), {'una carpeta'})

    def test_zsh_and_fish_are_told_every_option_of_each_order(self):
        zsh = self.text('share/zsh/site-functions/_pixmosa-cli')
        fish = self.text('share/fish/vendor_completions.d/pixmosa-cli.fish')
        parts = dict(re.findall(r'^    ([a-z]+)\)\n(.*?);;$', zsh, re.M | re.S))
        self.assertEqual(list(parts), list(self.orders))
        for order, options in self.orders.items():
            self.assertEqual(re.findall(r"^ +'(-[a-z-]+)", parts[order], re.M), [*options, '--help'])
            lines = re.findall(rf"_seen_subcommand_from {order}' -(s|l) (\S+)", fish)
            self.assertEqual([('-' if kind == 's' else '--') + name for kind, name in lines], ['--help', *options])
        for shell, path in (('zsh', 'zsh/site-functions/_pixmosa-cli'), ('fish', 'fish/vendor_completions.d/pixmosa-cli.fish')):
            if shutil.which(shell):
                self.assertEqual(run(shell, '-n', os.path.join(self.usr, 'share', path)).stderr, '')


if __name__ == '__main__':
    unittest.main(argv=sys.argv[:1])
