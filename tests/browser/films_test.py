"""The player page as a reader uses it: its clock, keys, bar and speed; real text, nothing loaded, plain without scripts."""
import pathlib
import struct
import subprocess
import sys
import tempfile
import unittest

from browser import Browser
from pictures import pixels, png

CLI = sys.argv.pop(1)
CELL = tuple(int(v) for v in subprocess.run([CLI, "tabla"], check=True, capture_output=True, text=True)
             .stdout.split("\n")[0].split("\t")[1:])
TEXT = "return document.querySelector('pre').textContent"
COUNT = "return document.getElementById('cuenta').textContent"
# The page's clock stands still; pasar(ms) lets it run and does what falls due.
CLOCK = """
let now = 0, timers = [];
window.performance.now = () => now;
window.setTimeout = (f, ms) => { timers.push({at: now + Math.max(0, ms), f, id: timers.length + 1}); return timers.length; };
window.clearTimeout = id => { timers.forEach(t => { if (t.id === id) t.f = null; }); };
window.pasar = ms => {
  const end = now + ms;
  for (;;) {
    const next = timers.filter(t => t.f && t.at <= end).sort((a, b) => a.at - b.at)[0];
    if (!next) break;
    now = next.at;
    const f = next.f;
    next.f = null;
    f();
  }
  now = end;
};
"""


def colours(k):
    return [[(40 * k, 250 - 30 * k, 20 + 60 * ((x // CELL[0] + k) % 4)) for x in range(6 * CELL[0])] for _ in range(2 * CELL[1])]


def gif(delays):
    """A frame of 1 x 1 for each delay in hundredths, by turns in black, white and grey."""
    frames = b"".join(b"\x21\xf9\x04\0" + struct.pack("<H", d) + b"\0\0\x2c\0\0\0\0\1\0\1\0\0\2\2" +
                      (4 | (k % 3) << 3 | 5 << 6).to_bytes(2, "little") + b"\0" for k, d in enumerate(delays))
    return b"GIF89a\1\0\1\0\x81\0\0\0\0\0\xff\xff\xff\x80\x80\x80\0\0\0" + frames + b";"


class Films(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.browser = cls.enterClassContext(Browser())

    def setUp(self):
        self.browser.size(1000, 1000)

    def cdp(self, command, **parameters):
        return self.browser.call("POST", "/goog/cdp/execute", {"cmd": command, "params": parameters})

    def film(self, content, *options, clock=True):
        """Opens the page of a film, of a GIF's bytes or of pictures, its clock in the test's hands."""
        self.folder = pathlib.Path(self.enterContext(tempfile.TemporaryDirectory()))
        source = self.folder / "a.gif"
        if isinstance(content, bytes):
            source.write_bytes(content)
        else:
            source = self.folder / "fotos"
            source.mkdir()
            for name, rows in content.items():
                (source / name).write_bytes(png(rows))
        self.page = self.folder / "p.html"
        subprocess.run([CLI, "pelicula", str(source), "-o", str(self.page), *options], check=True)
        if clock:
            script = self.cdp("Page.addScriptToEvaluateOnNewDocument", source=CLOCK)["identifier"]
            self.addCleanup(self.cdp, "Page.removeScriptToEvaluateOnNewDocument", identifier=script)
        self.browser.open(self.page)
        return self.browser

    def key(self, name):
        text = {"Space": " "}.get(name, name)
        for kind in ("keyDown", "keyUp"):
            self.cdp("Input.dispatchKeyEvent", type=kind, key=text, code=name)

    def test_frames_follow_their_delays(self):
        b = self.film(gif([10, 30, 1]), "--columnas", "2")
        self.assertEqual(b.run("return [pixmosa.frames, pixmosa.delays]"), [3, [100, 300, 100]])
        texts = [b.run(f"pixmosa.show({k});" + TEXT) for k in range(3)]
        self.assertEqual(len(set(texts)), 3)
        b.open(self.page)
        seen = []
        for step in (0, 99, 1, 299, 1, 99, 1, 100, 1000):
            b.run(f"pasar({step})")
            seen.append(texts.index(b.run(TEXT)))
        self.assertEqual(seen, [0, 0, 1, 1, 2, 2, 0, 1, 1], "two rounds of 500 ms later it is the same frame")
        self.assertEqual(b.run(COUNT), "fotograma 2 de 3")

    def test_equal_frames_are_one(self):
        b = self.film({f"{k}.png": [[(v, v, v)] * 9] * 9 for k, v in enumerate([0, 0, 200, 200, 200, 0])}, "--columnas", "3", "--ritmo", "40")
        self.assertEqual(b.run("return [pixmosa.frames, pixmosa.delays]"), [3, [80, 120, 40]])

    def test_keys_bar_speed_and_loop(self):
        b = self.film(gif([10] * 3), "--columnas", "2")
        shown = lambda: int(b.run(COUNT).split()[1])
        self.key("Space")
        b.run("pasar(1000)")
        self.assertEqual(shown(), 1, "it stands still")
        self.key("ArrowLeft")
        self.assertEqual(shown(), 3)
        self.key("ArrowRight")
        self.key("ArrowRight")
        self.assertEqual(shown(), 2)
        b.run("const p = document.getElementById('posicion'); p.value = 3; p.dispatchEvent(new Event('input', {bubbles: true}))")
        self.assertEqual(shown(), 3)
        self.assertEqual(b.run("return document.getElementById('posicion').getAttribute('aria-valuetext')"), "fotograma 3 de 3")
        b.run("pixmosa.show(0); const v = document.getElementById('velocidad'); v.value = '0.25'; v.dispatchEvent(new Event('change'))")
        self.key("Space")
        b.run("pasar(399)")
        self.assertEqual(shown(), 1)
        b.run("pasar(1)")
        self.assertEqual(shown(), 2)
        b.run("document.getElementById('bucle').click(); pasar(5000)")
        self.assertEqual(shown(), 3)
        button = "return document.getElementById('marcha').textContent"
        self.assertEqual(b.run(button), "Reproducir", "without repeating it ends")
        b.run("document.getElementById('marcha').click()")
        self.assertEqual([shown(), b.run(button)], [1, "Pausa"])
        names = "return [...document.querySelectorAll('button,input,select')].every(e => e.labels.length || e.textContent)"
        self.assertTrue(b.run(names))

    def test_colours_of_each_frame(self):
        b = self.film({f"foto{n}.png": colours(k) for k, n in enumerate([2, 10, 9])}, "--columnas", "6", "--color")
        for k, wanted in enumerate([0, 2, 1]):  # foto2, foto9, foto10
            b.run(f"pixmosa.show({k})")
            left, top, width, height = b.run("const r = document.querySelector('pre').getBoundingClientRect(); return [r.x, r.y, r.width, r.height]")
            self.assertAlmostEqual(height / width, 2 * CELL[1] / (6 * CELL[0]), delta=.02)
            picture = pixels(b.screenshot())
            for x in range(6):
                seen = {}
                for v in range(round(top) + 2, round(top + height) - 2):
                    for u in range(round(left + x * width / 6) + 2, round(left + (x + 1) * width / 6) - 2):
                        seen[picture[v][u]] = seen.get(picture[v][u], 0) + 1
                seen.pop((255, 255, 255), None)
                colour = max(seen, key=seen.get)
                meant = colours(wanted)[0][x * CELL[0]]
                self.assertLessEqual(max(abs(a - c) for a, c in zip(colour, meant)), 3, f"frame {k}, cell {x}: {colour}, not {meant}")
        plain = b.run("pixmosa.show(1);" + TEXT)
        b = self.film({f"foto{n}.png": colours(k) for k, n in enumerate([2, 10, 9])}, "--columnas", "6", "--color", "--sin-imagenes")
        self.assertEqual(b.run("pixmosa.show(1);" + TEXT), plain)
        ink = b.run("return getComputedStyle(document.querySelector('pre span')).color")
        self.assertEqual(ink, "rgb({}, {}, {})".format(*colours(2)[0][0]))

    def test_text_is_that_of_the_still_method(self):
        pictures = {f"{k}.png": [[((x * 9 + k * 40) % 256, y * 7, 90) for x in range(30)] for y in range(30)] for k in range(3)}
        for method in ("grises", "formas"):
            options = ("--columnas", "12", "--metodo", method)
            b = self.film(pictures, *options)
            for k in range(3):
                still = subprocess.run([CLI, "ascii", str(self.folder / "fotos" / f"{k}.png"), *options], check=True, capture_output=True, text=True).stdout
                self.assertEqual(b.run(f"pixmosa.show({k});" + TEXT), still.replace("\x1f", " "))

    def test_nothing_is_loaded_and_nobody_is_hurried(self):
        b = self.film({f"{k}.png": colours(k) for k in range(3)}, "--columnas", "6", "--color")
        loaded = "return performance.getEntriesByType('resource').filter(e => !e.name.startsWith('data:')).length"
        self.assertEqual(b.run(loaded), 0)
        self.assertNotRegex(self.page.read_text(), r"https?://")
        b.media(prefers_reduced_motion="reduce")
        b.open(self.page)
        b.run("pasar(1000)")
        self.assertEqual(b.run(COUNT), "fotograma 1 de 3")
        b.media()
        first = b.run(TEXT)
        self.cdp("Emulation.setScriptExecutionDisabled", value=True)
        self.addCleanup(self.cdp, "Emulation.setScriptExecutionDisabled", value=False)
        b.open(self.page)
        self.assertEqual(b.run(TEXT), first)
        self.assertTrue(b.run("return document.getElementById('mandos').hidden"), "no dead buttons")


unittest.main(verbosity=1)
