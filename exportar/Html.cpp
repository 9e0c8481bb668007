#include <algorithm>
#include <map>

#include "exportar/Base64.h"
#include "exportar/Escritores.h"
#include "exportar/Lineal.h"
#include "exportar/Texto.h"
#include "platform/CodePage.h"

namespace pixmosa {
namespace {

// A page keeps below this many bytes where colours a few levels off make it so.
constexpr std::size_t kBytesDePagina = 118'000;

// The colours of the page's data picture may be rounded to multiples of these: off by 0, 1, 2 and 3 levels.
constexpr int kPasos[] = {1, 3, 5, 7};

bool EsOscuro(Colour colour) {
  return OklabDe(colour).l < 0.5;
}

// Names of classes, a pair of ink and paper each, in the order of their first use. Without vowels, so that
// none is a word that filters of advertisements look for.
class Clases {
 public:
  const std::string& De(const Tramo& run) {
    const auto [at, fresh] = nombres_.try_emplace({run.tinta, run.papel});
    if (fresh) {
      at->second = Nombre(nombres_.size() - 1);
      reglas_ += '.' + at->second + '{';
      if (run.tinta != kNoColour) reglas_ += "color:" + Hexadecimal(run.tinta) + ';';
      if (run.papel != kNoColour) reglas_ += "background:" + Hexadecimal(run.papel) + ';';
      reglas_.back() = '}';
      reglas_ += '\n';
    }
    return at->second;
  }
  const std::string& Reglas() const { return reglas_; }

 private:
  static std::string Nombre(std::size_t n) {
    constexpr std::string_view kSignos = "bcdfghjklmnpqrstvwxyzBCDFGHJKLMNPQRSTVWXYZ0123456789";
    constexpr std::size_t kLetras = 42;  // a name starts with a letter
    std::string name(1, kSignos[n % kLetras]);
    for (n /= kLetras; n > 0; n = (n - 1) / kSignos.size()) name += kSignos[(n - 1) % kSignos.size()];
    return name;
  }

  std::map<std::pair<Colour, Colour>, std::string> nombres_;
  std::string reglas_;
};

// Whether "&" and then `c` might be a reference.
bool SigueReferencia(char32_t c) {
  return c == U'#' || (c >= U'0' && c <= U'9') || ((c | 32) >= U'a' && (c | 32) <= U'z');
}

// In HTML an "&" stands as it is where nothing behind it makes it a reference, which is most of them: pages
// keep small. What the usual fonts lack stands in a box of a cell's width.
void AppendCeldas(std::string& to, const Fila& row, const Tramo& run) {
  for (std::size_t x = run.desde; x < run.hasta; ++x) {
    const char32_t c = Dibujable(row[x].caracter);
    if (c == U'&' && (x + 1 == row.size() || !SigueReferencia(row[x + 1].caracter))) {
      to += '&';
    } else if (EsUsual(c)) {
      AppendEscapado(to, c);
    } else {
      to += "<i>";
      AppendUtf8(to, c);
      to += "</i>";
    }
  }
}

// What stands in the <pre>: the rows, and with `classes` the spans of their colours.
std::string Contenido(const Dibujo& drawing, bool color, Clases* classes) {
  std::string s;
  for (const Fila& row : drawing.filas) {
    if (&row != drawing.filas.data()) s += '\n';
    for (const Tramo& run : TramosDe(row, color)) {
      const bool span = classes && (run.tinta != kNoColour || run.papel != kNoColour);
      if (span) s += "<span class=" + classes->De(run) + '>';
      AppendCeldas(s, row, run);
      if (span) s += "</span>";
    }
  }
  // A line end right behind <pre> does not count.
  return s.starts_with('\n') ? '\n' + s : s;
}

bool HayPapel(const Dibujo& drawing) {
  return std::ranges::any_of(drawing.filas, [](const Fila& row) {
    return std::ranges::any_of(row, [](const Celda& c) { return c.papel != kNoColour; });
  });
}

int AlMultiplo(int part, int step) {
  return std::min(255, (part + step / 2) / step * step);
}

Colour Redondeado(Colour colour, int step) {
  const ColourParts p = SplitColour(colour);
  return Rgb(AlMultiplo(p.red, step), AlMultiplo(p.green, step), AlMultiplo(p.blue, step));
}

// One pixel a cell of the colour that `part` is of it, `otherwise` where it has none. Where nothing shows it,
// it repeats its neighbour, which takes fewer bytes.
Picture ImagenDeCeldas(const Dibujo& drawing, Colour Celda::*part, Colour otherwise, int step) {
  const std::size_t columns = drawing.Columnas();
  Picture p(static_cast<int>(columns), static_cast<int>(drawing.filas.size()));
  std::uint32_t* to = p.Writable();
  Colour last = Redondeado(otherwise, step);
  for (const Fila& row : drawing.filas)
    for (std::size_t x = 0; x < columns; ++x) {
      const bool shown = x < row.size() && (part == &Celda::papel || !EsBlanco(row[x].caracter));
      if (shown || part == &Celda::papel) {
        const Colour c = x < row.size() ? row[x].*part : kNoColour;
        last = Redondeado(c == kNoColour ? otherwise : c, step);
      }
      *to++ = PixelOfColour(last);
    }
  return p;
}

std::string Direccion(const Picture& picture, const Medios& means) {
  return "url(data:image/png;base64," + Base64(means.codificarPng(picture)) + ")";
}

// The colours as a picture behind the text that only the text lets through.
std::string ReglasDeImagen(const Dibujo& drawing, const OpcionesDeExportar& o, const Medios& means,
                           std::size_t otherBytes) {
  std::string papers, clip = "text";
  if (HayPapel(drawing)) {
    papers = "," + Direccion(ImagenDeCeldas(drawing, &Celda::papel, o.papel, 1), means);
    clip = "text,border-box";
  }
  std::string inks;
  const bool hopeless = papers.size() + otherBytes > kBytesDePagina;
  for (const int step : kPasos) {
    if (hopeless && step != std::end(kPasos)[-1]) continue;
    inks = Direccion(ImagenDeCeldas(drawing, &Celda::tinta, o.tinta, step), means);
    if (inks.size() + papers.size() + otherBytes <= kBytesDePagina) break;
  }
  return "pre{color:transparent;background-image:" + inks + papers +
         ";background-size:100% 100%;-webkit-background-clip:" + clip + ";background-clip:" + clip +
         ";image-rendering:pixelated}\n";
}

// The measures of the text: a cell is 1ch wide and, by that, as high as the measured one, whatever font shows
// it. font-size-adjust makes every font, also one that stands in for a single character, 0.6 em wide, so that
// the columns fill the window; where a browser lacks it, a font of another width fills somewhat less or more.
std::string ReglasDeTexto(const Dibujo& drawing, const Medios& means) {
  const std::size_t most = drawing.Columnas();
  const std::string columns = std::to_string(most > 0 ? most : 80);  // an empty page is no huge one
  return "body{margin:0;container-type:inline-size}\n"
         "pre{margin:2vw auto;width:calc(" +
         columns + "*1ch);font-family:" + CadenaCss(means.fuente.name) +
         ",\"DejaVu Sans Mono\",Menlo,Consolas,monospace;font-size:calc(96vw/" + columns +
         "/.6);font-size:calc(96cqw/" + columns + "/.6);font-size-adjust:ch-width .6;line-height:calc(1ch*" +
         std::to_string(means.celda.height) + "/" + std::to_string(means.celda.width) +
         ");letter-spacing:0;white-space:pre;tab-size:1;direction:ltr;unicode-bidi:bidi-override;"
         "text-rendering:geometricPrecision;font-kerning:none;font-variant-ligatures:none;"
         "-webkit-text-size-adjust:none;text-size-adjust:none}\n"
         "pre i{display:inline-flex;justify-content:center;width:1ch;font-style:normal}\n"
         "pre::after{content:\"\\200b\"}\n";  // gives an empty last row its height
}

std::string ReglasDePagina(const OpcionesDeExportar& o) {
  const std::string paper = Hexadecimal(o.papel), ink = Hexadecimal(o.tinta);
  return "html{background:" + paper + ";color:" + ink + "}\n::selection{background:" + ink +
         ";color:" + paper + "}\n";
}

// Where the reader's own colours rule, or paper has none, the text is plain.
constexpr const char* kReglasLegibles =
    "@media (forced-colors:active){pre,pre *{background:none!important;color:CanvasText!important}}\n"
    "@media print{html{background:#fff!important;color-scheme:light}"
    "pre,pre *{background:none!important;color:#000!important}}\n";

}  // namespace

std::string ComoHtml(const Dibujo& drawing, const OpcionesDeExportar& o, const Medios& means) {
  Clases classes;
  const bool papers = HayPapel(drawing);
  const bool image = (o.color || papers) && !o.sinImagenes && drawing.Columnas() > 0;
  const std::string content = Contenido(drawing, o.color, image ? nullptr : &classes);
  std::string page =
      "<!DOCTYPE html>\n<html lang=\"es\">\n<head>\n<meta charset=\"utf-8\">\n"
      "<meta http-equiv=\"Content-Security-Policy\" content=\"default-src 'none'; img-src data:; "
      "style-src 'unsafe-inline'\">\n<meta name=\"viewport\" content=\"width=device-width\">\n"
      "<meta name=\"color-scheme\" content=\"";
  page += EsOscuro(o.papel) ? "dark" : "light";
  page += "\">\n<title>" + Escapado(o.titulo) + "</title>\n<style>\n" + ReglasDePagina(o) +
          ReglasDeTexto(drawing, means) + classes.Reglas();
  if (image) page += ReglasDeImagen(drawing, o, means, page.size() + content.size());
  page += kReglasLegibles;
  return page + "</style>\n</head>\n<body>\n<pre>" + content + "</pre>\n</body>\n</html>\n";
}

}  // namespace pixmosa
