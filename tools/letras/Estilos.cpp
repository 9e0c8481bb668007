#include "tools/letras/Estilos.h"

#include "tools/letras/Maestra.h"

namespace pixmosa::letras {
namespace {

// The characters of two by two pixels, see Cuartear.
constexpr std::string_view kCuartos = " .,m'|/d`\\|b\"qP8";

// With the blank that parts it from the next letter.
Mapa Spaced(const Mapa& m, int columns = 1) {
  return Orlar(m, 0, 0, columns, 0);
}

Filas Padded(Filas rows, std::size_t columns = 1) {
  for (std::string& row : rows) row.append(columns, ' ');
  return rows;
}

// The letter itself as ink; those that would not be seen give place to one that is like them.
char OwnInk(int code) {
  return code == '$' ? 'S' : code == 0xAD ? '-' : static_cast<char>(code);
}

// The first row of the ink heavy, the last light.
char Dusk(int /*x*/, int y) {
  constexpr std::string_view kInk = "@@@M%#*+=-:.";
  return kInk[static_cast<std::size_t>(y)];
}

char Brick(int x, int y) {
  return x % 4 == (y % 2 ? 3 : 1) ? '|' : '_';
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

// Leaning, with a trail behind the first stroke of every row.
Filas Fast(const Mapa& m) {
  Filas rows = Sellar(Orlar(Inclinar(Ampliar(m, 2, 1), 2), 3, 0, 1, 0), "#", " ");
  for (std::string& row : rows)
    if (const std::size_t first = row.find('#'); first != std::string::npos) row.replace(first - 3, 2, "--");
  return rows;
}

Filas Tile(const Mapa& m) {
  const Filas rows = Sellar(Orlar(m, 1, 0, 1, 0), "#", " ");
  return Padded(Enmarcar(rows));
}

}  // namespace

const std::vector<Estilo> kEstilos = {
    {"Bloque", "Macizas", "Lisas", "letras macizas de proporciones normales",
     [](const Mapa& m, int) { return Sellar(Spaced(m), "##", "  "); }},
    {"Sencilla", "Macizas", "Lisas", "un carácter por punto",
     [](const Mapa& m, int) { return Sellar(Spaced(m), "#", " "); }},
    {"Gruesa", "Macizas", "Lisas", "trazo vertical doble",
     [](const Mapa& m, int) { return Sellar(Spaced(Engrosar(Ampliar(m, 2, 1)), 2), "M", " "); }},
    {"Redonda", "Macizas", "Curvas", "contornos redondeados con ochos",
     [](const Mapa& m, int) { return Doblar(Suavizar(Spaced(m)), " o\"8"); }},
    {"Suave", "Macizas", "Curvas", "esquinas suavizadas con letras",
     [](const Mapa& m, int) { return Cuartear(Suavizar(Suavizar(Spaced(m))), kCuartos); }},
    {"Muro", "Texturas", "Materiales", "ladrillos",
     [](const Mapa& m, int) { return Tramar(Ampliar(Spaced(m), 4, 2), Brick); }},
    {"Bordada", "Texturas", "Materiales", "punto de cruz",
     [](const Mapa& m, int) { return Sellar(Spaced(m), "><", "  "); }},
    {"Ocaso", "Texturas", "Tramas", "tinta que se aclara hacia abajo",
     [](const Mapa& m, int) { return Tramar(Ampliar(Spaced(m), 2, 1), Dusk); }},
    {"Ajedrez", "Texturas", "Tramas", "cuadros alternos",
     [](const Mapa& m, int) {
       return Tramar(Ampliar(Spaced(m), 4, 2), [](int x, int y) { return (x / 2 + y) % 2 ? '#' : '.'; });
     }},
    {"Rayada", "Texturas", "Tramas", "borde grueso y rayas dentro",
     [](const Mapa& m, int) { return Padded(Hatched(m)); }},
    {"Binaria", "Texturas", "Signos", "ceros y unos",
     [](const Mapa& m, int) {
       return Tramar(Ampliar(Spaced(m), 2, 1), [](int x, int y) { return (x * 7 + y * 5) % 3 ? '0' : '1'; });
     }},
    {"Propia", "Texturas", "Signos", "cada letra dibujada con ella misma",
     [](const Mapa& m, int code) { return Sellar(Spaced(m), std::string(2, OwnInk(code)), "  "); }},
    {"Perfil", "Contornos", "Finos", "contorno de líneas", [](const Mapa& m, int) { return Perfilar(m, 2); }},
    {"Filo", "Contornos", "Finos", "contorno de líneas estrecho",
     [](const Mapa& m, int) { return Perfilar(m, 1); }},
    {"Trazo", "Contornos", "Finos", "letras de un solo trazo",
     [](const Mapa& m, int) { return Padded(Trazar(m), 2); }},
    {"Hueca", "Contornos", "Gruesos", "letras vacías de borde grueso",
     [](const Mapa& m, int) { return Padded(Sellar(Halo(Orlar(Ampliar(m, 2, 1), 1, 1, 1, 1)), "#", " ")); }},
    {"Globo", "Contornos", "Gruesos", "letras vacías y redondas",
     [](const Mapa& m, int) { return Doblar(Halo(Orlar(Suavizar(Ampliar(m, 2, 2)), 1, 2, 1, 2)), " .':"); }},
    {"Sombra", "Relieve", "Sombras", "sombra abajo a la derecha",
     [](const Mapa& m, int) {
       return Padded(Apilar(Ampliar(m, 2, 1), {{1, 1, ':'}, {0, 0, '#'}}));
     }},
    {"Eco", "Relieve", "Sombras", "dos ecos que se apagan",
     [](const Mapa& m, int) {
       return Padded(Apilar(Ampliar(m, 3, 2), {{4, 2, '.'}, {2, 1, ':'}, {0, 0, '#'}}));
     }},
    {"Relieve", "Relieve", "Volumen", "luz y sombra alrededor de la letra",
     [](const Mapa& m, int) {
       return Apilar(Ampliar(m, 4, 2), {{-1, -1, '.'}, {1, 1, '#'}, {0, 0, ' '}});
     }},
    {"Cubo", "Relieve", "Volumen", "letras con fondo",
     [](const Mapa& m, int) {
       return Padded(Apilar(Ampliar(m, 3, 2), {{2, -2, '/'}, {1, -1, '/'}, {0, 0, '#'}}));
     }},
    {"Cursiva", "Inclinadas", "Adelante", "inclinada a la derecha",
     [](const Mapa& m, int) { return Sellar(Inclinar(Spaced(m), 4), "//", "  "); }},
    {"Veloz", "Inclinadas", "Adelante", "inclinada y con estela", [](const Mapa& m, int) { return Fast(m); }},
    {"Recostada", "Inclinadas", "Atrás", "inclinada a la izquierda",
     [](const Mapa& m, int) { return Sellar(Inclinar(Spaced(m), -4), "\\\\", "  "); }},
    {"Chica", "Tamaños", "Pequeñas", "la mitad de alta, con puntos",
     [](const Mapa& m, int) { return Doblar(Spaced(m), " .':"); }},
    {"Nota", "Tamaños", "Pequeñas", "la mitad de alta, inclinada",
     [](const Mapa& m, int) { return Doblar(Inclinar(Spaced(m), 4), " ,\"#"); }},
    {"Gigante", "Tamaños", "Grandes", "el doble, con esquinas cortadas",
     [](const Mapa& m, int) { return Sellar(Suavizar(Spaced(m)), "##", "  "); }},
    {"Alta", "Tamaños", "Grandes", "el doble de alta",
     [](const Mapa& m, int) { return Sellar(Ampliar(Spaced(m), 1, 2), "||", "  "); }},
    {"Ancha", "Tamaños", "Grandes", "el doble de ancha",
     [](const Mapa& m, int) { return Sellar(Spaced(m), "====", "    "); }},
    {"Puntos", "Puntos", "Luces", "bombillas sueltas",
     [](const Mapa& m, int) { return Sellar(Spaced(m), "o ", "  "); }},
    {"Estrellas", "Puntos", "Luces", "estrellas sueltas",
     [](const Mapa& m, int) {
       return Tramar(Ampliar(Spaced(m), 4, 2), [](int x, int y) { return (x + 2 * y) % 4 ? ' ' : '*'; });
     }},
    {"Perlas", "Puntos", "Hilos", "perlas en hilos",
     [](const Mapa& m, int) {
       Filas rows = Padded(Trazar(m), 2);
       for (std::size_t y = 0; y < rows.size(); ++y)
         for (std::size_t x = 0; x < rows[y].size(); x += 2)
           if (rows[y][x] != ' ') rows[y][x] = 'O';
       return rows;
     }},
    {"Marcador", "Carteles", "Tableros", "luces sobre un tablero de puntos",
     [](const Mapa& m, int) { return Sellar(Orlar(m, 1, 0, 1, 0), "O ", ". "); }},
    {"Fichas", "Carteles", "Tableros", "cada letra en su ficha", [](const Mapa& m, int) { return Tile(m); }},
    {"Negativa", "Carteles", "Fondos", "letras claras sobre fondo oscuro",
     [](const Mapa& m, int) { return Sellar(Orlar(m, 1, 1, 1, 1), "  ", "##"); }},
};

}  // namespace pixmosa::letras
