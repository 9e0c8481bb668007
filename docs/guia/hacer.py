"""Makes the guide: its pages out of paginas/ and what the orders quoted in them really print and write, its pictures of
the window by really using it (tools/capturas), and the pictures of the README.

  hacer.py BIN               remakes data/guia and docs/imagenes; Chromium draws the pictures of web pages
  hacer.py BIN --comprobar   runs every order again and compares the pages; says what is not so, or lost

In a page, <orden>ORDER</orden> runs ORDER in the work folder and shows it with what it prints. Attributes: arte (small
letters), filas="N" (its first N lines). The pictures that a page shows are those that the orders
before, or the window, have left in the work folder."""
import filecmp
import html
import math
import os
import pathlib
import re
import shutil
import subprocess
import sys
import tempfile

HERE = pathlib.Path(__file__).resolve().parent
ROOT = HERE.parent.parent
GUIDE = ROOT / 'data/guia'
# The pages in their order; a page whose name is a blank begins a group.
PAGES = [('index', 'Para empezar'), ('modos', 'Los seis modos'), ('conversiones', 'Las conversiones'),
         ('', 'Cómo se hace'), ('fotografia', 'Una fotografía'), ('logotipo', 'Un logotipo'), ('letrero', 'Un letrero'),
         ('animacion', 'Una animación'), ('pagina', 'Una página web'), ('dibujar', 'Dibujar a mano'),
         ('miles', 'Miles de imágenes'), ('', 'De consulta'), ('ordenes', 'La línea de órdenes'), ('teclas', 'Las teclas')]
FRAMES = 16


def boat(turn):
    """A frame of the film: a boat on the sea; `turn` goes from 0 to 1 and begins again."""
    def wave(base, height, length, speed, colour):
        points = ' '.join(f'{x},{base + height * math.sin(2 * math.pi * (x / length + speed * turn)):.1f}' for x in range(0, 641, 8))
        return f'<polygon points="0,400 {points} 640,400" fill="{colour}"/>'
    tilt, rise = 7 * math.sin(2 * math.pi * turn), 8 * math.cos(2 * math.pi * turn)
    return f'''<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 640 400" width="640" height="400">
<defs><linearGradient id="c" x2="0" y2="1"><stop stop-color="#000"/><stop offset="1" stop-color="#0d1b33"/></linearGradient>
<linearGradient id="v"><stop stop-color="#f0713a"/><stop offset="1" stop-color="#ffe0a8"/></linearGradient></defs>
<rect width="640" height="400" fill="url(#c)"/><circle cx="520" cy="95" r="48" fill="#ffedb0"/>
{wave(292, 8, 320, -1, '#1d5a88')}
<g transform="translate(300 {rise:.1f}) rotate({tilt:.2f} 0 280)">
<rect x="-5" y="50" width="10" height="220" fill="#c89a6a"/>
<path d="M14 62Q150 150 150 232H14z" fill="url(#v)"/><path d="M-14 92Q-110 170-110 232H-14z" fill="#fff3df"/>
<path d="M-150 252H165Q140 322 90 326H-90Q-135 320-150 252z" fill="#e0935a"/><path d="M-150 252H165l-5 14H-146z" fill="#ffffff"/></g>
{wave(318, 10, 213.34, 1, '#2c86b8')}{wave(350, 9, 160, -1, '#5cb8e6')}{wave(378, 8, 128, 1, '#2f86b8')}</svg>'''


def steps(*lines):
    return '\n'.join('\t'.join(line) for line in lines)


GRAY = 'AsciiArt -> Escala de grises'
CAT = (('cargar', 'gato.png'), ('esperar', '1500'), ('poner', 'cboConversion', 'Formas'))
LOGO = (('cargar', 'logo.svg'), ('esperar', '1500'), ('poner', 'numColumnas', '90'))
PLAY = (('elegir', 'mnuPlay'), ('esperar', '1500'))


def scene(size, *lines):
    return steps(('medida', *size), *lines)


WINDOW = '\n'.join((
    scene(('1120', '760'), *CAT, ('poner', 'numColumnas', '150'), *PLAY, ('elegir', 'mnuVerTodo'), ('esperar', '400'), ('foto', 'ventana.png')),
    scene(('960', '700'), ('poner', 'numColumnas', '110'), *PLAY, ('foto', 'modo-grises.png')),
    steps(('elegir', 'AsciiArt -> Detección de bordes'), *LOGO, *PLAY, ('elegir', 'mnuVerTodo'), ('esperar', '400'), ('foto', 'modo-bordes.png')),
    steps(('elegir', 'AsciiArt -> Anti-aliasing'), *PLAY, ('foto', 'modo-antialias.png')),
    steps(('elegir', 'mnuEditor'), ('esperar', '900'), ('foto', 'editor.png', 'frmEditor'), ('cerrar', 'frmEditor')),
    steps(('elegir', 'AsciiArt -> Texto'), ('elegir', 'mnuPlay'), ('esperar', '900'), ('poner', 'txtFigText', 'Hola'), ('esperar', '900'),
          ('foto', 'modo-texto.png'))))
COMPARISON = scene(('960', '700'), *CAT, ('elegir', 'mnuComparar'), ('medida', '960', '560', 'frmComparar'), ('esperar', '2500'),
          ('foto', 'comparar.png', 'frmComparar'), ('cerrar', 'frmComparar'))
WEB_ART = '\n'.join((
    scene(('960', '700'), ('cargar', 'gato.png'), ('esperar', '1500'), ('elegir', 'WebArt -> Mosaico'), ('poner', 'cboPaletaWeb', 'Texto del usuario'), ('poner', 'txtPaletaWeb', 'gato '),
          ('foto', 'modo-mosaico.png')),
    steps(('elegir', 'WebArt -> Copia exacta'), ('foto', 'modo-copia.png'))))


class Guide:
    def __init__(self, bin_, work):
        self.bin, self.work = bin_, work
        self.env = {'PATH': f'{bin_}:/usr/bin:/bin', 'LC_ALL': 'C.UTF-8', 'HOME': str(work), 'QT_QPA_PLATFORM': 'offscreen'}
        shutil.copy(ROOT / 'data/muestra.png', work / 'gato.png')
        for drawing in (HERE / 'dibujos').iterdir():
            shutil.copy(drawing, work)
        (work / 'barco').mkdir()
        for k in range(FRAMES):
            (work / f'barco/{k + 1}.svg').write_text(boat(k / FRAMES), encoding='utf-8')

    def run(self, order):
        done = subprocess.run(['bash', '-c', order], cwd=self.work, env=self.env, capture_output=True, text=True, timeout=120)
        if done.returncode or done.stderr:
            raise SystemExit(f'{order}\n{done.returncode} {done.stderr}')
        return done.stdout

    def quote(self, found):
        wishes, order = found[1], html.unescape(found[2]).strip()
        out = self.run(order)
        words = re.sub(r'(?<= )(-[^\s]+)', r'<span>\1</span>', html.escape(order, False))  # kept from breaking at a hyphen
        shown = f'<pre class="orden">{words}</pre>'
        rows = re.search(r'filas="(\d+)"', wishes)
        if rows and out.count('\n') > int(rows[1]):
            out = '\n'.join(out.split('\n')[:int(rows[1])]) + '\n…\n'
        if not out:
            return shown
        kind = 'salida arte' if 'arte' in wishes else 'salida'
        return f'{shown}\n<pre class="{kind}" tabindex="0">{html.escape(out, False)}</pre>'

    def pages(self):
        """Every page by its file name."""
        frame = (HERE / 'plantilla.html').read_text(encoding='utf-8')
        version = self.run('pixmosa-cli --version').split()[-1]
        made = {}
        for name, title in PAGES:
            if not name:
                continue
            index = '\n'.join(
                f'<li class="grupo">{t}</li>' if not n else
                f'<li><a href="{n}.html"{" aria-current=" + chr(34) + "page" + chr(34) if n == name else ""}>{t}</a></li>' for n, t in PAGES)
            text = (HERE / f'paginas/{name}.html').read_text(encoding='utf-8')
            body = re.sub(r'<orden([^>]*)>(.*?)</orden>', self.quote, text, flags=re.S)
            full = 'Guía de Pixmosa' if name == 'index' else f'{title} – Guía de Pixmosa'
            made[name + '.html'] = frame.format(titulo=full, indice=f'<ul>\n{index}\n</ul>', cuerpo=body.strip(),
                                                pie=f'Pixmosa {version}. Los dibujos y las respuestas de esta guía salen del propio programa.')
        return made

    def window(self):
        for scenes in (WINDOW, COMPARISON, WEB_ART):
            subprocess.run([self.bin / 'capturas'], cwd=self.work, input=scenes + '\n', text=True, check=True, timeout=120,
                           stderr=subprocess.DEVNULL)

    def browser(self, page, picture, width, height):
        """What a browser shows of a page in the work folder."""
        subprocess.run(['chromium', '--headless', '--no-sandbox', '--disable-gpu', '--hide-scrollbars', f'--window-size={width},{height}',
                        f'--user-data-dir={self.work}/navegador', f'--screenshot={self.work}/{picture}', f'file://{self.work}/{page}'],
                       check=True, capture_output=True, timeout=90)
        subprocess.run([self.bin / 'capturas'], cwd=self.work, input=f'reducir\t{picture}\n', text=True, check=True, timeout=60,
                       stderr=subprocess.DEVNULL)


def pictures(pages):
    return sorted({name for text in pages.values() for name in re.findall(r'src="imagenes/([^"]+)"', text)})


def make(guide):
    made = guide.pages()
    guide.window()
    guide.browser('gato-web.html', 'pagina.png', 900, 760)
    shutil.rmtree(GUIDE, ignore_errors=True)
    (GUIDE / 'imagenes').mkdir(parents=True)
    shutil.copy(HERE / 'style.css', GUIDE)
    for name, text in made.items():
        (GUIDE / name).write_text(text, encoding='utf-8')
    for name in pictures(made):
        shutil.copy(guide.work / name, GUIDE / 'imagenes')
    shown = {n for name in ('README.md', 'README.es.md') for n in re.findall(r'docs/imagenes/([\w.-]+)', (ROOT / name).read_text(encoding='utf-8'))}
    for name in shown:
        (ROOT / 'docs/imagenes').mkdir(exist_ok=True)
        shutil.copy(guide.work / name, ROOT / 'docs/imagenes')


def faults(guide):
    made = guide.pages()
    for name, text in made.items():
        if not (GUIDE / name).exists() or (GUIDE / name).read_text(encoding='utf-8') != text:
            yield f'{name} no es lo que resulta ahora de docs/guia; "hacer.py BIN" la rehace'
    if not filecmp.cmp(HERE / 'style.css', GUIDE / 'style.css', shallow=False):
        yield 'style.css no es la de docs/guia'
    there = {str(p.relative_to(GUIDE)) for p in GUIDE.rglob('*') if p.is_file()}
    yield from (f'nada lleva a {name}' for name in there - set(made) - {'style.css'} - {f'imagenes/{n}' for n in pictures(made)})
    for name, text in made.items():
        for link in re.findall(r'(?:href|src)="([^"#]*)', text):
            if link and link not in there:
                yield f'{name}: no existe {link}'
        for picture in re.findall(r'<img[^>]*>', text):
            if not re.search(r'alt="[^"]{8,}"', picture):
                yield f'{name}: sin palabras para {picture}'
        if '<script' in text or '<orden' in text:
            yield f'{name}: lleva lo que una página no debe'
    for name in ('README.md', 'README.es.md', 'CONTRIBUTING.md'):
        for link in re.findall(r'\]\((?!http)([^)#]+)', (ROOT / name).read_text(encoding='utf-8')):
            if not (ROOT / link).exists():
                yield f'{name}: no existe {link}'


def main():
    with tempfile.TemporaryDirectory() as work:
        guide = Guide(pathlib.Path(sys.argv[1]).resolve(), pathlib.Path(work))
        if '--comprobar' not in sys.argv:
            return make(guide)
        found = list(faults(guide))
        print('\n'.join(found))
        return 1 if found else 0


if __name__ == '__main__':
    sys.exit(main())
