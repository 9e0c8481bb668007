#include <algorithm>

#include "exportar/Escritores.h"
#include "exportar/Pagina.h"

namespace pixmosa {
namespace {

// A page keeps below this many bytes where colours a few levels off make it so.
constexpr std::size_t kBytesDePagina = 118'000;

// The colours of the page's data picture may be rounded to multiples of these: off by 0, 1, 2 and 3 levels.
constexpr int kPasos[] = {1, 3, 5, 7};

bool HayPapel(const Dibujo& drawing) {
  return std::ranges::any_of(drawing.filas, [](const Fila& row) {
    return std::ranges::any_of(row, [](const Celda& c) { return c.papel != kNoColour; });
  });
}

// The colours as a picture behind the text that only the text lets through.
std::string ReglasDeImagen(const Dibujo& drawing, const OpcionesDeExportar& o, const Medios& means,
                           std::size_t otherBytes) {
  const std::size_t columns = drawing.Columnas();
  std::string papers, clip = "text";
  if (HayPapel(drawing)) {
    papers = "," + DireccionDe(ImagenDeCeldas(drawing, columns, &Celda::papel, o.papel, 1), means);
    clip = "text,border-box";
  }
  std::string inks;
  const bool hopeless = papers.size() + otherBytes > kBytesDePagina;
  for (const int step : kPasos) {
    if (hopeless && step != std::end(kPasos)[-1]) continue;
    inks = DireccionDe(ImagenDeCeldas(drawing, columns, &Celda::tinta, o.tinta, step), means);
    if (inks.size() + papers.size() + otherBytes <= kBytesDePagina) break;
  }
  return ReglaDeImagenes(inks + papers, clip);
}

}  // namespace

std::string ComoHtml(const Dibujo& drawing, const OpcionesDeExportar& o, const Medios& means) {
  Clases classes;
  const bool papers = HayPapel(drawing);
  const bool image = (o.color || papers) && !o.sinImagenes && drawing.Columnas() > 0;
  std::string content = Contenido(drawing, o.color, image ? nullptr : &classes);
  if (content.starts_with('\n')) content.insert(0, 1, '\n');
  std::string page = PrincipioDePagina(o, "img-src data:; ");
  page += "<style>\n" + ReglasDePagina(o) + ReglasDeTexto(drawing.Columnas(), means) + classes.Reglas();
  if (image) page += ReglasDeImagen(drawing, o, means, page.size() + content.size());
  page += kReglasLegibles;
  return page + "</style>\n</head>\n<body>\n<pre>" + content + "</pre>\n</body>\n</html>\n";
}

}  // namespace pixmosa
