// What an order works with: the three streams and the platform's services, each made when first asked for.
#pragma once

#include <functional>
#include <future>
#include <iosfwd>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "cli/Argumentos.h"
#include "programa/Generar.h"

namespace pixmosa::cli {

class Consola {
 public:
  Consola();
  ~Consola();
  Consola(const Consola&) = delete;
  Consola& operator=(const Consola&) = delete;

  // Fonts and picture files, without a display.
  TextSurface& Superficie();
  PictureCodec& Imagenes();

  // A fresh state over those and the shipped files.
  Programa NuevoPrograma();

  // The picture of an operand; "-" is standard input. One that is not whole is said on standard error. Throws
  // PictureError or FileError.
  Picture LeerImagen(const std::string& operand);

  // Stretch(LeerImagen(operand), size(its size)), quicker where the format allows.
  // PictureCodec::ReadReduced where `how` says so.
  Picture LeerImagenReducida(const std::string& operand, Lectura how,
                             const std::function<Extent(Extent)>& size);

  // Begins to read a photograph that LeerImagenReducida will be asked for with Lectura::Reducida and a size
  // that is `wanted` for every picture, while the caller does something else.
  // False where that would save nothing.
  bool AdelantarLectura(const std::string& operand, Extent wanted);

  // The bytes of an operand; "-" is standard input. Throws FileError or ErrorDeTrabajo.
  std::string LeerBytes(const std::string& operand);

  // Writes to standard output as it stands. Throws ErrorDeTrabajo.
  void Escribir(std::string_view utf8);

  // Rows with CR LF between them as rows with LF; a terminal gets its last line ended.
  void EscribirLineas(std::string_view utf8);

  // A file's bytes as they stand; a terminal gets its last line ended.
  void EscribirArchivoEntero(std::string bytes);

  // One line "pixmosa-cli: sentence." on standard error, in place of a progress line that is shown.
  void Avisar(std::string_view sentence);

  // "what n/of" on standard error where that is a terminal; n == of clears the line.
  void Progreso(std::string_view what, std::size_t n, std::size_t of);

  // Columns of the terminal on standard output, or 80.
  int AnchoDeTerminal() const;

 private:
  struct Servicios;
  Servicios& Arrancar();
  std::unique_ptr<Servicios> servicios_;
  bool hayProgreso_ = false;
  std::string adelantada_;  // the operand of a reading that has begun
  struct Adelanto {
    std::optional<Picture> imagen;
    Extent entera;  // the whole picture's size
  };
  std::future<Adelanto> lectura_;
};

// Runs `work(operand, file)` for each of the operands that are pictures, the file being DIR/NAME.ending with
// DIR the folder of --carpeta, made if missing, and NAME the operand's name without its ending. One that
// fails is reported and the next one goes on. The status. Throws ErrorDeUso where a file would be written
// twice or is an operand's own.
int ConvertirACarpeta(Consola& consola, const Argumentos& arguments, const std::vector<std::string>& pictures,
                      const std::string& ending,
                      const std::function<void(const std::string& operand, const std::string& file)>& work);

}  // namespace pixmosa::cli
