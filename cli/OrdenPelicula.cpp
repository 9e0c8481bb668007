#include <filesystem>

#include "cli/Destino.h"
#include "cli/OpcionesDeDibujo.h"
#include "cli/OpcionesDeTexto.h"
#include "cli/Ordenes.h"
#include "cli/Reproducir.h"
#include "platform/AtomicFile.h"
#include "platform/png/Png.h"

namespace pixmosa::cli {
namespace {

constexpr int kMasMilisegundos = 3'600'000;

std::string Terminaciones() {
  std::vector<std::string> endings;
  for (const FormatoDePelicula& f : FormatosDePelicula()) endings.push_back(std::string(".") + f.terminacion);
  std::string s;
  for (const std::string& e : endings) s += (s.empty() ? "" : &e == &endings.back() ? " o " : ", ") + e;
  return s;
}

const FormatoDePelicula& FormatoPedido(const std::string& file) {
  const std::string ending = std::filesystem::path(file).extension().string();
  const FormatoDePelicula* format = ending.empty() ? nullptr : FormatoDePeliculaDe(ending.substr(1));
  if (!format) throw ErrorDeUso("el archivo \"" + file + "\" debe terminar en " + Terminaciones());
  return *format;
}

// What the command line asks for: one of three.
enum class Destino { Archivo, Carpeta, Terminal };

Destino DestinoDe(const Argumentos& arguments) {
  const bool file = arguments.Tiene("-o"), folder = arguments.Tiene("--carpeta"),
             play = arguments.Tiene("--reproducir");
  if (int{file} + int{folder} + int{play} > 1)
    throw ErrorDeUso("las opciones -o, --carpeta y --reproducir no van juntas");
  if (!file && !folder && !play)
    throw ErrorDeUso("falta la opción -o con el archivo de la película, --carpeta o --reproducir");
  if (!folder && arguments.Tiene("--formato"))
    throw ErrorDeUso("la opción --formato es para los fotogramas sueltos de --carpeta");
  return file ? Destino::Archivo : folder ? Destino::Carpeta : Destino::Terminal;
}

// Nothing in the folder that is read gives way to what is written.
void ExigirOtraCarpeta(const Argumentos& arguments, Destino where) {
  namespace fs = std::filesystem;
  std::error_code none;
  if (where == Destino::Terminal || arguments.Tiene(kSobrescribir)) return;
  const fs::path to = *arguments.Texto(where == Destino::Archivo ? "-o" : "--carpeta"),
                 folder = where == Destino::Archivo ? fs::absolute(to, none).parent_path() : to;
  if (where == Destino::Archivo && !fs::exists(to, none)) return;
  if (fs::equivalent(folder, arguments.Operandos()[0], none))
    throw ErrorDeUso("\"" + to.string() + "\" está entre las imágenes de partida; con " + kSobrescribir +
                     " se sustituyen");
}

Pelicula PeliculaDe(Consola& consola, const Argumentos& arguments) {
  const std::string& operand = arguments.Operandos()[0];
  if (std::error_code none; std::filesystem::is_directory(operand, none)) {
    Pelicula film =
        PeliculaDeCarpeta(consola.Imagenes(), operand, arguments.Entero("--ritmo", kMilisegundosDeSiempre));
    if (film.cuantas == 0) throw ErrorDeTrabajo("No hay imágenes en la carpeta \"" + operand + "\".");
    return film;
  }
  return PeliculaDeArchivo(consola.Imagenes(), consola.LeerBytes(operand), operand);
}

int Hacer(Consola& consola, const Argumentos& arguments) try {
  arguments.ExigirOperandos(1, 1, "la imagen animada o la carpeta");
  const Destino where = DestinoDe(arguments);
  const Exportacion output(arguments);
  const FormatoDePelicula* format =
      where == Destino::Archivo ? &FormatoPedido(*arguments.Texto("-o")) : nullptr;
  ExigirOtraCarpeta(arguments, where);
  Programa p = PrepararPrograma(consola, arguments);
  ExigirCaracteres(p);
  const int method = MetodoDe(arguments);
  if (method == kAntiAlias) CargarPaleta3x2(p);
  if (EsDeFormas(method)) PrepararRepertorio(p.basAscii, p.ajustes, p.superficie);
  Revelado how = {method, output.opciones, Exportacion::MediosDe(consola, p.ajustes.font)};
  if (where == Destino::Carpeta) {
    how.opciones.color = output.ConColor();
  } else {
    how.medios.codificarPng = [](const Picture& picture) {
      return EscribirPng(picture, Empaquetado::Mediano);
    };
  }
  const Pelicula film = PeliculaDe(consola, arguments);
  how.hilos = HilosPara(arguments, film.cuantas);
  const Seguir go = [&](std::size_t k, const std::string& failure) {
    if (!failure.empty()) consola.Avisar(failure);
    consola.Progreso("Fotograma", k, std::max(film.cuantas, k + 2));
    return true;
  };
  if (where == Destino::Terminal) {
    Reproducir(consola, p, film, how, !arguments.Tiene("--columnas"));
  } else if (where == Destino::Carpeta) {
    EscribirFotogramas(p, film, CrearCarpeta(arguments), *output.formato, how, go);
  } else {
    EscribirPelicula(p, film, *arguments.Texto("-o"), *format, how, go);
  }
  if (where != Destino::Terminal) consola.Progreso("Fotograma", 0, 0);
  if (const std::string warning = film.aviso(); !warning.empty()) consola.Avisar(warning);
  return 0;
} catch (const DibujoExcesivo& e) {
  throw ErrorDeTrabajo("\"" + arguments.Operandos()[0] + "\": " + e.what());
}

}  // namespace

Orden OrdenPelicula() {
  return {
      "pelicula",
      "IMAGEN|CARPETA",
      "Convierte una imagen animada, o las imágenes de una carpeta, en una película de texto.",
      "pixmosa-cli pelicula baile.gif -o baile.html --columnas 80 --color",
      Juntar(
          Juntar(
              {{"-o", Tipo::Texto, "SALIDA", "la película: .html (con reproductor), .gif o .cast"},
               {"--carpeta", Tipo::Texto, "DIR", "carpeta donde se guarda un archivo de cada fotograma"},
               {"--reproducir", Tipo::Interruptor, "", "la muestra en el terminal, a su ritmo"},
               {"--ritmo", Tipo::Entero, "MS", "de una carpeta: milisegundos de cada imagen; si falta, 100",
                kMenosMilisegundos, kMasMilisegundos},
               OpcionDeHilos(),
               OpcionDeSobrescribir()},
              Juntar(OpcionesDeMetodo(), OpcionesDeTexto())),
          Juntar({OpcionDeColor()}, OpcionesDeDibujo())),
      Hacer};
}

}  // namespace pixmosa::cli
