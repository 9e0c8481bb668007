"""Writes the start corpora that are easier made than kept: fonts, zips, GIFs, patterns. Usage: corpus.py FOLDER"""
import pathlib
import struct
import sys
import zipfile


def font(signature="flf2a$", height=1, end="\n", art="{c}", more="", comments=("Hecha, para probar",)):
    lines = [f"{signature} {height} 1 8 -1 {len(comments)}", *comments]
    for code in range(32, 127):
        rows = [art.format(c=chr(code))] * height
        lines += [row + "@" for row in rows[:-1]] + [rows[-1] + "@@"]
    return end.join(lines) + end + more


FONTS = {
    "lf": font(height=2),
    "crlf": font(end="\r\n", comments=()),
    "bloques": font("tlf2a\x7f", art="█▀░╭\x7f", more="0xF1 N\n▄@@\n8364\nE@@\n-5 x\n?@@\n"),
    "adicionales": "\ufeff" + font(more="a@@\n" * 7 + "0277  SIGNO\n¿@@\nfin\x1a"),
    "reglas": font("flf2a$", 2, art="|{c}_/", comments=()).replace(" -1 0", " 0 0 1 32767", 1),
    "sin-final": font(height=3)[:-6],
}


def write_zip(path, files, method):
    with zipfile.ZipFile(path, "w", method) as archive:
        for name, text in files.items():
            archive.writestr(zipfile.ZipInfo(name, (2000, 1, 1, 0, 0, 0)), text, method)


def chain(*pieces):
    return b"".join(bytes([len(piece)]) + piece for piece in pieces) + b"\0"


def frame(place, flags, colours=0, data=(b"\x84\x51",)):
    table = bytes(range(3 * colours))
    return b"\x21\xF9" + chain(b"\0\x0A\0\0") + b"\x2C" + struct.pack("<4HB", *place, flags) + table + b"\2" + chain(*data)


def gif(flags, *blocks, behind=b"\x3B"):
    table = bytes(3 * (2 << (flags & 7))) if flags & 0x80 else b""
    return b"GIF89a" + struct.pack("<HHBBB", 20, 16, flags, 0, 0) + table + b"".join(blocks) + behind


LOOP = b"\x21\xFF" + chain(b"NETSCAPE2.0", b"\1\0\0")
REMARK = b"\x21\xFE" + chain(b"una nota", b"\x21\xF9 dentro")
GIFS = {
    "paletas-propias": gif(0, LOOP, frame((0, 0, 20, 16), 0x81, 4), frame((3, 2, 8, 8), 0xC2, 8)),
    "entrelazado": gif(0x91, REMARK, frame((0, 0, 20, 16), 0x40, data=(b"x" * 255, b"y" * 3)), b"\0", REMARK),
    "cien": gif(0x80, *[frame((k % 20, 0, 1, 1), 0) for k in range(101)], behind=b"\x3B detr\xE1s"),
    "sin-cola": gif(0x87, LOOP, frame((0, 0, 1, 1), 0), behind=b"\x21\xF9"),
    "solo-cabeza": gif(0x80, behind=b""),
}


def pattern(number, character, end):
    dots = "".join("@" if number >> bit & 1 else "." for bit in range(5, -1, -1))
    return end.join([dots[0:2], dots[2:4], dots[4:6], character, "", ""])


def patterns(end, characters):
    return "".join(pattern(n, characters[n % len(characters)], end) for n in range(64))


PATTERNS = {
    "lf": patterns("\n", "abcdefg"),
    "cr": patterns("\r", "ñ@."),
    "otras-claves": "aB\r\nCd\r\n..\r\nx\r\n\r\n" + patterns("\r\n", ["", "largo", " "]),
    "repetida": patterns("\n", "z") + pattern(7, "y", "\n"),
    "sin-final": patterns("\r\n", "0123456789")[:-9],
}


def main(folder):
    for name in ("fuente", "zip", "gif", "paleta"):
        (folder / name).mkdir(parents=True, exist_ok=True)
    for name, content in GIFS.items():
        (folder / "gif" / name).write_bytes(content)
    for name, text in PATTERNS.items():
        (folder / "paleta" / name).write_bytes(text.encode("latin-1"))
    for name, text in FONTS.items():
        (folder / "fuente" / name).write_bytes(text.encode())
    (folder / "fuente" / "pagina").write_bytes(font(art="Û°").encode("latin-1"))
    fonts = {name + ".flf": text for name, text in FONTS.items()}
    write_zip(folder / "zip" / "guardado", {"LEEME": "hola", "c/": "", "c/a.flf": "flf2a$ 1 1 1 1 0\n"}, zipfile.ZIP_STORED)
    write_zip(folder / "zip" / "comprimido", fonts, zipfile.ZIP_DEFLATED)
    write_zip(folder / "zip" / "bzip2", {"a.flf": FONTS["crlf"]}, zipfile.ZIP_BZIP2)
    write_zip(folder / "zip" / "vacio", {}, zipfile.ZIP_STORED)


main(pathlib.Path(sys.argv[1]))
