#include "tools/letras/Estilos.h"

#include <algorithm>
#include <string>

#include "tools/letras/Mapa.h"

namespace pixmosa::letras {
namespace {

// The characters of two by two pixels, see Cuartear.
constexpr std::string_view kCuartos = " .,m'|/d`\\|b\"qP8";

Filas Drawn(const Filas& shape, int /*code*/) {
  return shape;
}

// Written in one go: only what is not a small letter keeps apart.
Filas Joined(const Filas& shape, int code) {
  Filas rows = shape;
  if (!(code >= 'a' && code <= 'z') && code < 0xDF)
    for (std::string& row : rows) row.insert(row.find_last_not_of(' ') + 1, 1, '$');
  return rows;
}

// With another ink than "#".
Filas Inked(Filas rows, char ink) {
  for (std::string& row : rows) std::replace(row.begin(), row.end(), '#', ink);
  return rows;
}

// A thick letter with an edge of "#" and hatching within.
Filas Hatched(const Mapa& m) {
  const Mapa big = Orlar(Ampliar(m, 4, 2), 1, 1, 1, 1);
  const Mapa edge = Halo(big);
  Filas rows = Tramar(big, [](int x, int y) { return (x + y) % 2 ? '/' : ' '; });
  for (int y = 0; y < edge.Height(); ++y)
    for (int x = 0; x < edge.Width(); ++x)
      if (edge.At(x, y)) rows[static_cast<std::size_t>(y)][static_cast<std::size_t>(x)] = '#';
  return rows;
}

// A key with the letter itself; "$" would be a blank.
Filas Key(int code) {
  const std::string face = code == '$' ? "S|" : std::string(1, code == 0xAD ? '-' : static_cast<char>(code));
  const std::string edge(face.size() + 4, '_');
  return {" " + edge + " ", "|  " + face + "  |", "|" + edge + "|"};
}

}  // namespace

const std::vector<Estilo> kEstilos = {
    {"Redonda", "Macizas", "Curvas", "contornos redondeados con ochos", "Palo", kMargen, 2,
     [](const Filas& f, int) { return Doblar(Suavizar(DeTinta(f)), " o\"8"); }},
    {"Suave", "Macizas", "Curvas", "esquinas suavizadas con letras", "Pixel", kMargen, 2,
     [](const Filas& f, int) { return Cuartear(Suavizar(Suavizar(DeTinta(f))), kCuartos); }},
    {"Cartel", "Macizas", "Anchas", "ancha y negra, para verse de lejos", "Cartel", kMargen, 2, Drawn},
    {"Gigante", "Macizas", "Anchas", "enorme y gruesa, con esquinas cortadas", "Palo", kMargen, 2,
     [](const Filas& f, int) { return Sellar(Engrosar(Suavizar(DeTinta(f))), "##", "  "); }},
    {"Antigua", "Clásicas", "Libro", "de imprenta, con remates", "Antigua", kMargen, 2,
     [](const Filas& f, int) { return Inked(f, '8'); }},
    {"Colegial", "Clásicas", "Libro", "con remates, solo su contorno", "Antigua", kPared, 0,
     [](const Filas& f, int) { return Perfilar(DeTinta(f), 1); }},
    {"Pergamino", "Clásicas", "Pluma", "gótica de códice, con plumadas", "Pergamino", kMargen, 2,
     [](const Filas& f, int) { return Inked(f, '8'); }},
    {"Pluma", "Clásicas", "Pluma", "escrita a mano, letras enlazadas", "Pluma", kMargen, 0, Joined},
    {"Compacta", "Líneas", "Pequeñas", "cuatro filas, trazo redondo", "Compacta", kMargen, 1, Drawn},
    {"Menuda", "Líneas", "Pequeñas", "tres filas y nada más", "Menuda", kMargen, 1, Drawn},
    {"Hilo", "Líneas", "Finas", "trazo fino y recto con esquinas", "Hilo", kMargen, 1, Drawn},
    {"Tubos", "Líneas", "Finas", "tubos dobles", "Tubos", kMargen, 2, Drawn},
    {"Pixel", "Puntos", "Cuadros", "pocos puntos y cuadrados", "Pixel", kMargen, 2,
     [](const Filas& f, int) { return Sellar(DeTinta(f), "[]", "  "); }},
    {"Media", "Puntos", "Cuadros", "dos puntos en cada carácter", "Palo", kMargen, 1,
     [](const Filas& f, int) { return Doblar(Orlar(DeTinta(f), 0, 1, 0, 0), " m\"#"); }},
    {"Marcador", "Puntos", "Tableros", "luces sobre un tablero de puntos", "Palo", kMargen, 0,
     [](const Filas& f, int) { return Sellar(Orlar(DeTinta(f), 1, 0, 1, 0), "O ", ". "); }},
    {"Torre", "Carteles", "Altas", "alta y estrecha", "Torre", kMargen, 3, Drawn},
    {"Gala", "Carteles", "Altas", "de baile: trazos de rayas y de hilo", "Gala", kMargen, 2,
     [](const Filas& f, int) { return Inked(f, '|'); }},
    {"Oeste", "Carteles", "Cortadas", "de cartel del oeste, pesada arriba y abajo", "Oeste", kMargen, 2,
     Drawn},
    {"Plantilla", "Carteles", "Cortadas", "cortada con plantilla", "Plantilla", kMargen, 2, Drawn},
    {"Negativa", "Carteles", "Fondos", "letras claras sobre fondo oscuro", "Palo", kMargen, 0,
     [](const Filas& f, int) { return Sellar(Orlar(DeTinta(f), 1, 1, 1, 1), "  ", "##"); }},
    {"Teclas", "Carteles", "Fondos", "cada letra en su tecla", "Palo", kMargen, 0,
     [](const Filas&, int code) { return Key(code); }},
    {"Cursiva", "Inclinadas", "Adelante", "de imprenta, tumbada", "Antigua", kMargen, 1,
     [](const Filas& f, int) { return Sellar(Inclinar(DeTinta(f), 2), "/", " "); }},
    {"Inclinada", "Inclinadas", "Adelante", "trazo fino hacia delante", "Inclinada", kMargen, 1, Drawn},
    {"Toldo", "Contornos", "Finos", "contorno con sombra", "Palo", kMargen, 1,
     [](const Filas& f, int) { return Sombrear(DeTinta(f), 2); }},
    {"Globo", "Contornos", "Gruesos", "letras vacías y redondas", "Palo", kMargen, 1,
     [](const Filas& f, int) {
       return Doblar(Halo(Orlar(Suavizar(Ampliar(DeTinta(f), 2, 2)), 1, 2, 1, 2)), " .':");
     }},
    {"Rayada", "Contornos", "Gruesos", "borde grueso y rayas dentro", "Palo", kMargen, 2,
     [](const Filas& f, int) { return Hatched(DeTinta(f)); }},
    {"Sombra", "Relieve", "Sombras", "sombra abajo a la derecha", "Pixel", kMargen, 1,
     [](const Filas& f, int) {
       return Apilar(Ampliar(DeTinta(f), 2, 1), {{1, 1, ':'}, {0, 0, '#'}});
     }},
    {"Eco", "Relieve", "Sombras", "dos ecos que se apagan", "Palo", kMargen, 1,
     [](const Filas& f, int) {
       return Apilar(Ampliar(DeTinta(f), 3, 2), {{4, 2, '.'}, {2, 1, ':'}, {0, 0, '#'}});
     }},
    {"Cubo", "Relieve", "Volumen", "letras con fondo", "Palo", kMargen, 1,
     [](const Filas& f, int) {
       return Apilar(Ampliar(DeTinta(f), 3, 2), {{2, -2, '/'}, {1, -1, '/'}, {0, 0, '#'}});
     }},
};

}  // namespace pixmosa::letras
