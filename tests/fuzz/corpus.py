"""Writes the start corpora that are easier made than kept: standard fonts and zips. Usage: corpus.py FOLDER"""
import pathlib
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
    "sin-final": font(height=3)[:-6],
}


def write_zip(path, files, method):
    with zipfile.ZipFile(path, "w", method) as archive:
        for name, text in files.items():
            archive.writestr(zipfile.ZipInfo(name, (2000, 1, 1, 0, 0, 0)), text, method)


def main(folder):
    for name in ("fuente", "zip"):
        (folder / name).mkdir(parents=True, exist_ok=True)
    for name, text in FONTS.items():
        (folder / "fuente" / name).write_bytes(text.encode())
    (folder / "fuente" / "pagina").write_bytes(font(art="Û°").encode("latin-1"))
    fonts = {name + ".flf": text for name, text in FONTS.items()}
    write_zip(folder / "zip" / "guardado", {"LEEME": "hola", "c/": "", "c/a.flf": "flf2a$ 1 1 1 1 0\n"}, zipfile.ZIP_STORED)
    write_zip(folder / "zip" / "comprimido", fonts, zipfile.ZIP_DEFLATED)
    write_zip(folder / "zip" / "bzip2", {"a.flf": FONTS["crlf"]}, zipfile.ZIP_BZIP2)
    write_zip(folder / "zip" / "vacio", {}, zipfile.ZIP_STORED)


main(pathlib.Path(sys.argv[1]))
