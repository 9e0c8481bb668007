"""Exported drawings as a reader sees them: colours, proportions, real text, nothing loaded, legible everywhere."""
import collections
import pathlib
import random
import subprocess
import sys
import tempfile
import unittest

from browser import Browser
from pictures import pixels, png

CLI = sys.argv.pop(1)
CELL = tuple(int(v) for v in subprocess.run([CLI, "tabla"], check=True, capture_output=True, text=True)
             .stdout.split("\n")[0].split("\t")[1:])
PRE = "const p = document.querySelector('pre');"
# Names of families and the share of an em that a digit is wide in them.
FONTS = {"DejaVu Sans Mono": .602, "Nimbus Mono PS": .6, "Nimbus Roman": .5, "Nimbus Sans": .556, "DejaVu Sans": .636}


def cells(columns, rows, colour):
    """A picture in which the cell at (x, y) is all colour(x, y)."""
    lines = [[colour(x, y) for x in range(columns) for _ in range(CELL[0])] for y in range(rows)]
    return png([line for line in lines for _ in range(CELL[1])])


def hues(x, y):
    """Colours apart from one another and from paper."""
    return (30 + 25 * x, 200 - 60 * y, 20 + 90 * ((x + y) % 3))


class Drawings(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.browser = cls.enterClassContext(Browser())

    def setUp(self):
        self.browser.size(1280, 1000)

    def export(self, picture, name, *options):
        folder = pathlib.Path(self.enterContext(tempfile.TemporaryDirectory()))
        (folder / "i.png").write_bytes(picture)
        subprocess.run([CLI, "ascii", str(folder / "i.png"), "-o", str(folder / name), *options], check=True)
        self.text = subprocess.run([CLI, "ascii", str(folder / "i.png"), *options], check=True, text=True,
                                   capture_output=True).stdout if "--formato" not in options else None
        return folder / name

    def page(self, picture, name, *options):
        file = self.export(picture, name, *options)
        self.browser.open(file)
        return file

    def check_colours(self, box, columns, rows):
        """In each cell of the box the commonest colour that is not paper is the picture's."""
        shown = pixels(self.browser.screenshot())
        left, top, width, height = box
        for y in range(rows):
            for x in range(columns):
                across = range(round(left + x * width / columns) + 2, round(left + (x + 1) * width / columns) - 2)
                down = range(round(top + y * height / rows) + 2, round(top + (y + 1) * height / rows) - 2)
                seen = collections.Counter(shown[v][u] for v in down for u in across)
                del seen[(255, 255, 255)]
                colour = seen.most_common(1)[0][0]
                off = max(abs(a - b) for a, b in zip(colour, hues(x, y)))
                self.assertLessEqual(off, 3, f"({x}, {y}) is {colour}, not {hues(x, y)}")

    def test_colours_of_pages(self):
        for more in ([], ["--sin-imagenes"]):
            with self.subTest(more):
                self.page(cells(8, 3, hues), "d.html", "--columnas", "8", "--color", *more)
                box = self.browser.run(PRE + "const b = p.getBoundingClientRect(); return [b.x, b.y, b.width, b.height]")
                self.check_colours(box, 8, 3)

    def test_colours_of_vector_pictures(self):
        for more in ([], ["--trazos"]):
            with self.subTest(more):
                self.page(cells(8, 3, hues), "d.svg", "--columnas", "8", "--color", *more)
                self.browser.run("const s = document.documentElement; s.setAttribute('width', 1200);"
                                 "s.setAttribute('height', 1200 * s.viewBox.baseVal.height / s.viewBox.baseVal.width)")
                self.check_colours((0, 0, 1200, 1200 * 3 * CELL[1] / (8 * CELL[0])), 8, 3)

    def test_proportions_in_any_font_and_window(self):
        # Digits alone are as wide as one another in these, also where letters are not: fonts of many widths.
        columns, rows = 300, 60
        self.page(cells(columns, rows, hues_of_noise(1)), "d.html", "--columnas", "300", "--paleta", "3")
        self.assertRegex(self.text, r"^[\d\n]+$")
        wanted = columns * CELL[0] / (rows * CELL[1])
        for font, em in FONTS.items():
            for window in (1280, 520):
                for adjust in ("", "none"):  # a browser that knows no font-size-adjust
                    self.browser.size(window, 1000)
                    self.browser.run(PRE + f"p.style.fontFamily = '\"{font}\"'; p.style.fontSizeAdjust = '{adjust}'")
                    width, height, box, inside, advance, size = self.browser.run(
                        PRE + "const r = document.createRange(); r.selectNodeContents(p); const b = r.getBoundingClientRect();"
                        "const q = p.getBoundingClientRect(), d = document.documentElement; r.setEnd(p.firstChild, 1);"
                        "r.setStart(p.firstChild, 0); return [b.width, q.height, q.width, d.scrollWidth <= d.clientWidth,"
                        "b.width / 300, parseFloat(getComputedStyle(p).fontSize)]")
                    what = f"{font} {window} {adjust}"
                    self.assertAlmostEqual(width / height / wanted, 1, delta=.02, msg=what)
                    self.assertAlmostEqual(width / box, 1, delta=.01, msg=what)
                    if adjust:
                        self.assertAlmostEqual(advance / size, em, delta=.01, msg=f"{what}: the font is not there")
                    if not adjust or em < .61:
                        self.assertTrue(inside, what)
                    if not adjust:
                        self.assertGreater(width, .93 * window - 20, what)

    def test_text_is_text(self):
        def dark_above(x, y):  # two rows that the method drops: they are empty at the end
            return (0, 0, 0) if y < 2 else hues(x, y % 3)
        for more in ([], ["--color"], ["--color", "--sin-imagenes"], ["--negativo", "--color"]):
            with self.subTest(more):
                self.page(cells(8, 6, dark_above), "d.html", "--columnas", "8", *more)
                rows = self.text.replace("\x1f", " ")  # without a glyph
                self.assertEqual(self.browser.run(PRE + "return p.textContent"), rows)
                self.assertEqual(self.browser.run(PRE + "getSelection().selectAllChildren(p); return getSelection().toString()").rstrip("\n"), rows.rstrip("\n"))
                height = self.browser.run(PRE + "return p.getBoundingClientRect().height / p.getBoundingClientRect().width")
                self.assertAlmostEqual(height, 6 * CELL[1] / (8 * CELL[0]), delta=.02)
                grown = PRE + "const h = p.offsetHeight; p.style.width = '20%'; return p.offsetHeight - h"
                self.assertEqual(self.browser.run(grown), 0, "a row wraps")
        self.page(cells(8, 6, dark_above), "d.svg", "--columnas", "8", "--color")
        self.assertEqual(self.browser.run("return [...document.querySelectorAll('text')].map(t => t.textContent).join('\\n')"), self.text)

    def test_nothing_is_loaded(self):
        self.page(cells(8, 3, hues), "d.html", "--columnas", "8", "--color")
        b = self.browser
        self.assertEqual(b.run("return performance.getEntriesByType('resource').filter(e => !e.name.startsWith('data:')).length"), 0)
        b.run("document.addEventListener('securitypolicyviolation', e => window.blocked = (window.blocked || '') + e.effectiveDirective + ' ');"
              "const i = new Image(); i.src = 'http://127.0.0.1:9/i.png'; const s = document.createElement('script');"
              "s.textContent = 'window.ran = true'; document.body.append(i, s)")
        self.assertIn("img-src", b.wait("return (window.blocked || '').trim().split(' ').sort().join()", "img-src,script-src-elem"))
        self.assertIsNone(b.run("return window.ran"))

    def test_legible_on_paper_and_with_forced_colours(self):
        for more in ([], ["--sin-imagenes"]):
            for medium in ({"media": "print"}, {"forced_colors": "active"}):
                with self.subTest((more, medium)):
                    self.page(cells(8, 3, hues), "d.html", "--columnas", "8", "--color", "--negativo", "--fondo", "0,0,0", *more)
                    self.browser.media(**medium)
                    self.addCleanup(self.browser.media)
                    seen = collections.Counter(v for row in pixels(self.browser.screenshot()) for v in row).most_common(2)
                    self.browser.media()
                    self.assertEqual({seen[0][0], seen[1][0]}, {(0, 0, 0), (255, 255, 255)})

    def test_page_of_a_noisy_photograph_is_small(self):
        noise = random.Random(5)
        rows = [[tuple(min(255, max(0, round(v + noise.gauss(0, 40)))) for v in (x * 160 // 900 + 40, y // 3 + 20, 200 - x // 6))
                 for x in range(900)] for y in range(600)]
        for more in ([], ["--negativo"]):
            page = self.export(png(rows), "d.html", "--columnas", "300", "--color", *more)
            self.assertLess(page.stat().st_size, 120_000)
            self.assertGreater(page.stat().st_size, 60_000)


def hues_of_noise(seed):
    noise = random.Random(seed)
    return lambda x, y: (noise.randrange(256), noise.randrange(256), noise.randrange(256))


unittest.main(verbosity=1)
