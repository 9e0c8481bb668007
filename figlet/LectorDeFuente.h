// What reads a standard font: its lines, its header, its rows of artwork.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "figlet/FuenteFiglet.h"

namespace pixmosa {

// Reads a font line by line and names the line in every failure.
class LectorDeFuente {
 public:
  // `name` has to outlive the reader; `complaint` begins the sentence of every failure.
  LectorDeFuente(std::string_view font, const std::string& name, const char* complaint)
      : rest_(font), name_(&name), complaint_(complaint) {}

  bool AlFinal() const { return rest_.empty(); }
  std::string_view Resto() const { return rest_; }

  // The next line without its end; `what` completes the failure "el archivo termina antes de ...".
  std::string_view Linea(const char* what);

  // Throws FuenteRechazada for `line`, or the line read last.
  [[noreturn]] void Rechazar(const std::string& fault, std::size_t line = 0) const;

 private:
  std::string_view rest_;
  const std::string* name_;
  const char* complaint_;
  std::size_t line_ = 0;
};

struct CabeceraDeFuente {
  std::string hardBlank = "$";  // one character; several bytes in UTF-8
  std::int32_t height = 0, baseline = 0, comments = 0;
  Disposicion disposicion;
  std::string propia;  // the line as a font of the specified reader's own form begins it
};

// Reads the header line. The numbers stay within what a font can have.
CabeceraDeFuente LeerCabecera(LectorDeFuente& in);

// A character's rows without end marks, as they are long.
struct Dibujada {
  Glifo rows;
  std::string mark;      // the end mark of all rows; empty where they differ
  bool doubled = false;  // the last row has it twice
};

// Reads a character of the header's height. One that ends the file may lack its last row. `utf8`: the artwork
// is UTF-8, otherwise each byte is a character of the code page.
Dibujada LeerDibujada(LectorDeFuente& in, const CabeceraDeFuente& header, bool utf8);

// Well-formed throughout; plain ASCII is too.
bool EsUtf8(std::string_view text);

}  // namespace pixmosa
