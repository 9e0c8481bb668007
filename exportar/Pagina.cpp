#include "exportar/Pagina.h"

#include <algorithm>

#include "exportar/Base64.h"
#include "exportar/Lineal.h"
#include "platform/CodePage.h"

namespace pixmosa {
namespace {

bool EsOscuro(Colour colour) {
  return OklabDe(colour).l < 0.5;
}

std::string Nombre(std::size_t n) {
  constexpr std::string_view kSignos = "bcdfghjklmnpqrstvwxyzBCDFGHJKLMNPQRSTVWXYZ0123456789";
  constexpr std::size_t kLetras = 42;  // a name starts with a letter
  std::string name(1, kSignos[n % kLetras]);
  for (n /= kLetras; n > 0; n = (n - 1) / kSignos.size()) name += kSignos[(n - 1) % kSignos.size()];
  return name;
}

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

int AlMultiplo(int part, int step) {
  return std::min(255, (part + step / 2) / step * step);
}

Colour Redondeado(Colour colour, int step) {
  const ColourParts p = SplitColour(colour);
  return Rgb(AlMultiplo(p.red, step), AlMultiplo(p.green, step), AlMultiplo(p.blue, step));
}

}  // namespace

const std::string& Clases::De(const Tramo& run) {
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
  return s;
}

Picture ImagenDeCeldas(const Dibujo& drawing, std::size_t columns, Colour Celda::*part, Colour otherwise,
                       int step) {
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

std::string DireccionDe(const Picture& picture, const Medios& means) {
  return "url(data:image/png;base64," + Base64(means.codificarPng(picture)) + ")";
}

std::string ReglaDeImagenes(const std::string& images, const std::string& clip) {
  return "pre{color:transparent;background-image:" + images +
         ";background-size:100% 100%;-webkit-background-clip:" + clip + ";background-clip:" + clip +
         ";image-rendering:pixelated}\n";
}

std::string PrincipioDePagina(const OpcionesDeExportar& o, const std::string& policy) {
  std::string page =
      "<!DOCTYPE html>\n<html lang=\"es\">\n<head>\n<meta charset=\"utf-8\">\n"
      "<meta http-equiv=\"Content-Security-Policy\" content=\"default-src 'none'; " +
      policy +
      "style-src 'unsafe-inline'\">\n<meta name=\"viewport\" content=\"width=device-width\">\n"
      "<meta name=\"color-scheme\" content=\"";
  page += EsOscuro(o.papel) ? "dark" : "light";
  return page + "\">\n<title>" + Escapado(o.titulo) + "</title>\n";
}

// The measures of the text: a cell is 1ch wide and, by that, as high as the measured one, whatever font shows
// it. font-size-adjust makes every font, also one that stands in for a single character, 0.6 em wide, so that
// the columns fill the window; where a browser lacks it, a font of another width fills somewhat less or more.
std::string ReglasDeTexto(std::size_t most, const Medios& means) {
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
const char* const kReglasLegibles =
    "@media (forced-colors:active){pre,pre *{background:none!important;color:CanvasText!important}}\n"
    "@media print{html{background:#fff!important;color-scheme:light}"
    "pre,pre *{background:none!important;color:#000!important}}\n";

}  // namespace pixmosa
