// Films: the frames of an animated picture or the pictures of a folder, each made into art, and the file that
// shows them one after another.
#pragma once

#include <cstddef>
#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "exportar/Peliculas.h"
#include "programa/Animacion.h"
#include "programa/Dibujar.h"

namespace pixmosa {

// A frame that is still to be read and converted.
struct Toma {
  std::string nombre;  // in messages
  int milisegundos = kMilisegundosDeSiempre;
  OrigenDeImagen origen;
};

struct Pelicula {
  std::string nombre;       // what a page of it may be called
  std::size_t cuantas = 0;  // as the source announces them, for a bar
  // One frame is kept at a time. Throws PictureError.
  std::function<std::optional<Toma>()> siguiente;
  // After the last one: a Spanish sentence if the source was not whole, or nothing.
  std::function<std::string()> aviso = [] { return std::string(); };
};

// The frames of a picture's bytes; `name`, a file's, stands for it in messages. Throws PictureError, also for
// a film of more pixels than anybody waits for.
Pelicula PeliculaDeArchivo(PictureCodec& codec, std::string bytes, const std::string& name);

// The readable pictures of a folder in natural order, each shown so many milliseconds. Throws FileError.
Pelicula PeliculaDeCarpeta(PictureCodec& codec, const std::filesystem::path& folder, int milliseconds);

// Whether a name stands before another as people count: case does not matter, "foto2" before "foto10".
bool OrdenNatural(const std::string& a, const std::string& b);

// How a film is made into art.
struct Revelado {
  int metodo = kGrayscale;
  OpcionesDeExportar opciones;  // opciones.color: the colours of the pictures
  Medios medios;
  // Threads that read and convert frames. With more than one the codec works away from the caller's thread.
  unsigned hilos = 1;
};

// Writes the film, whole or not at all, with the settings of `p`, which does not change. A frame that cannot
// be read is left out, and `seguir` told. False where `seguir` ended the work: nothing is written then.
// Throws FileError, TextoExcesivo, DibujoExcesivo, and PictureError where no frame could be read.
bool EscribirPelicula(const Programa& p, const Pelicula& film, const std::filesystem::path& file,
                      const FormatoDePelicula& format, const Revelado& how, const Seguir& seguir);

// Writes each frame as a file of its own, "NAME 001.html"; the folder is there. What is written when the work
// ends early stays.
bool EscribirFotogramas(const Programa& p, const Pelicula& film, const std::filesystem::path& folder,
                        const Formato& format, const Revelado& how, const Seguir& seguir);

}  // namespace pixmosa
