"""The pages as a reader sees them: the animation plays, stops and steps; the coloured pages have a character a pixel."""
import pathlib
import subprocess
import sys
import tempfile
import time
import unittest

from browser import Browser
from pictures import png

CLI = sys.argv.pop(1)
PENDING = 0.4  # the step that was already under way, at a delay of 80 ms, is over after this
VISIBLE = "return [...document.querySelectorAll('div[id^=text]')].filter(d => d.style.visibility == 'visible').map(d => d.id).join()"


def gif(colours):
    """Frames of 1 x 1 in black (0) or white (1)."""
    frames = b"".join(b"\x21\xf9\x04\0\x0a\0\0\0\x2c\0\0\0\0\1\0\1\0\0\2\2" +
                      (4 | c << 3 | 5 << 6).to_bytes(2, "little") + b"\0" for c in colours)
    return b"GIF89a\1\0\1\0\x80\0\0\0\0\0\xff\xff\xff" + frames + b";"


class Pages(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.browser = cls.enterClassContext(Browser())

    def page(self, order, content, name, *options):
        folder = pathlib.Path(self.enterContext(tempfile.TemporaryDirectory()))
        source, page = folder / name, folder / "pagina.html"
        source.write_bytes(content)
        subprocess.run([CLI, order, str(source), "-o", str(page), *options], check=True)
        self.browser.open(page)
        return self.browser

    def test_animation_plays_in_order_and_wraps(self):
        b = self.page("anim", gif([1, 0, 1]), "a.gif", "--columnas", "4")
        b.run("run = false")  # from here on the test gives the time
        time.sleep(PENDING)
        first = b.run(VISIBLE)
        seen = [first]
        for _ in range(4):
            b.run("show()")
            seen.append(b.run(VISIBLE))
        order = ["text1", "text2", "text3"]
        start = order.index(first)
        self.assertEqual(seen, [order[(start + i) % 3] for i in range(5)])

    def test_animation_runs_by_itself_and_its_buttons_work(self):
        b = self.page("anim", gif([1, 0]), "a.gif", "--columnas", "4")
        self.assertEqual(b.run("return document.F0.D0.value"), "80")
        for block in ("text1", "text2", "text1"):
            self.assertEqual(b.wait(VISIBLE, block), block)
        b.run("document.F0.B0.click()")
        self.assertEqual(b.run("return document.F0.B0.value"), " Play  ")
        time.sleep(PENDING)
        stopped = b.run(VISIBLE)
        b.run("document.F0.button.click()")
        stepped = b.run(VISIBLE)
        self.assertEqual({stopped, stepped}, {"text1", "text2"})
        b.run("document.F0.D0.value = '33'; document.F0.Submit.click()")
        self.assertEqual(b.run("return String(delay)"), "33")
        b.run("document.F0.B0.click()")
        self.assertEqual(b.run("return document.F0.B0.value"), " Pausa ")
        other = {"text1": "text2", "text2": "text1"}[b.run(VISIBLE)]
        self.assertEqual(b.wait(VISIBLE, other), other)

    def test_animation_text_is_shown_as_it_is(self):
        b = self.page("anim", gif([0]), "a.gif", "--columnas", "3", "--paleta", "3")
        self.assertRegex(b.run("return document.getElementById('text1').textContent"), r"^\s*[\d\s]*$")

    def test_exact_copy_has_a_character_a_pixel_in_its_colour(self):
        rows = [[(x * 20, y * 40, 7) for x in range(5)] for y in range(3)]
        b = self.page("web", png(rows), "i.png", "--copia-exacta", "--detalle", "5", "--fondo", "1,2,3")
        self.assertEqual(b.run("return document.querySelector('div').innerText.split('\\n').map(s => s.trim()).filter(s => s)"),
                         ["00000"] * 3)
        tags = b.run("return [...document.querySelectorAll('div font')].map(f => f.getAttribute('color'))")
        self.assertEqual(tags, [f"rgb({r},{g},{bl})" for row in rows for r, g, bl in row])
        self.assertEqual(b.run("return document.title"), "Pixmosa")
        self.assertEqual(b.run("return document.body.getAttribute('bgcolor')"), "#010203")

    def test_mosaic_cycles_through_the_text(self):
        rows = [[(255, 255, 255)] * 6 for _ in range(5)]
        b = self.page("web", png(rows), "i.png", "--detalle", "5", "--texto", "abcd")
        self.assertEqual(b.run("return document.querySelector('div').innerText.split('\\n').map(s => s.trim()).filter(s => s)"),
                         ["abcdab", "cdabcd", "abcdab"])
        self.assertEqual(b.run("return document.querySelector('div font').getAttribute('face')"), "Courier New ")


unittest.main(verbosity=1)
