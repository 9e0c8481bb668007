// What an order works with: the three streams and the platform's services, each made when first asked for.
#pragma once

#include <functional>
#include <iosfwd>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "cli/Argumentos.h"
#include "programa/Dibujar.h"

namespace pixmosa::cli {

// Takes a sentence for standard error.
using Aviso = std::function<void(std::string_view)>;

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

  // The picture of an operand; "-" is standard input. One that is not whole is said, by Avisar unless `say`
  // is given. Throws PictureError or FileError. As LeerImagenReducida for several threads at once.
  Picture LeerImagen(const std::string& operand, const Aviso& say = {});

  // Stretch(LeerImagen(operand), size(its size)), quicker where the format allows.
  // PictureCodec::ReadReduced where `how` says so.
  Picture LeerImagenReducida(const std::string& operand, Lectura how,
                             const std::function<Extent(Extent)>& size, const Aviso& say = {});

  // Either, of an operand; for as long as this and the operand live.
  OrigenDeImagen Origen(const std::string& operand, const Aviso& say = {});

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

  // Its rows, or 0.
  int AltoDeTerminal() const;

 private:
  struct Servicios;
  Servicios& Arrancar();
  std::unique_ptr<Servicios> servicios_;
  bool hayProgreso_ = false;
};

// The option that says how many threads work, and their number for so much work; all cores without it.
Opcion OpcionDeHilos();
unsigned HilosPara(const Argumentos& arguments, std::size_t pieces);

// Makes the folder of --carpeta if it is missing; its path. Throws ErrorDeTrabajo.
std::string CrearCarpeta(const Argumentos& arguments);

// What is done with one picture: the file is DIR/NAME.ending with DIR the folder of --carpeta, made if
// missing, and NAME the operand's name without its ending. `thread` counts from 0; `say` takes what there is
// to say of it.
using TrabajoDeCarpeta = std::function<void(const std::string& operand, const std::string& file,
                                            unsigned thread, const Aviso& say)>;

// Runs `work` for each of the operands that are pictures, HilosPara(their number) at a time; what is said
// comes in the order of the operands. One that fails is reported and the others go on. The status. Throws
// ErrorDeUso where a file would be written twice or is an operand's own.
int ConvertirACarpeta(Consola& consola, const Argumentos& arguments, const std::vector<std::string>& pictures,
                      const std::string& ending, const TrabajoDeCarpeta& work);

}  // namespace pixmosa::cli
