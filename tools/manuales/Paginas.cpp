#include <sstream>

#include "cli/Orden.h"
#include "tools/manuales/Manuales.h"

namespace pixmosa::manuales {
namespace {

constexpr char kCarpetas[] =
    ".SH ARCHIVOS\n"
    ".TP\n\\fI~/.local/share/pixmosa/Fonts\\fR\n"
    "Las fuentes FIGlet añadidas por el usuario.\n"
    ".TP\n\\fI~/.local/share/pixmosa/recetas\\fR\n"
    "Sus recetas de efectos.\n"
    ".PP\nSi la variable \\fBXDG_DATA_HOME\\fR da otra carpeta, ocupa el lugar de \\fI~/.local/share\\fR.\n";

// Text that the macros leave as it is: no escapes, no requests, dashes that can be searched for and copied.
std::string Literal(const std::string& text) {
  std::string s;
  bool begins = true;  // of a line
  for (const char c : text) {
    if (begins && (c == '.' || c == '\'')) s += "\\&";
    if (c == '\\') {
      s += "\\e";
    } else if (c == '-') {
      s += "\\-";
    } else {
      s += c;
    }
    begins = c == '\n';
  }
  return s;
}

std::string Negrita(const std::string& text) {
  return "\\fB" + Literal(text) + "\\fR";
}

// Lines as they are, from a line of their own.
std::string Tal(const std::string& lines) {
  return ".PP\n.nf\n" + Literal(lines) + (lines.ends_with('\n') ? "" : "\n") + ".fi\n";
}

std::string Titulo(const std::string& program, const std::string& version, const std::string& what) {
  std::string upper = program;
  for (char& c : upper) c = static_cast<char>(c >= 'a' && c <= 'z' ? c - 'a' + 'A' : c);
  return ".TH " + Literal(upper) + " 1 \"\" \"Pixmosa " + version +
         "\" \"Órdenes de usuario\"\n.nh\n.ad l\n.SH NOMBRE\n" + Literal(program) + " \\- " + what + "\n";
}

// A row of options, "  --name  text", or nothing for other lines.
std::string FilaDeOpcion(const std::string& line) {
  if (!line.starts_with("  -")) return "";
  const std::size_t end = line.find("  ", 2), text = line.find_first_not_of(' ', end);
  if (end == std::string::npos || text == std::string::npos) return "";
  return ".TP\n" + Negrita(line.substr(2, end - 2)) + "\n" + Literal(line.substr(text)) + "\n";
}

std::string SeccionDe(const cli::Orden& order) {
  std::string s = ".SS " + Literal(order.nombre) + "\n" + Literal(order.resumen) + "\n.PP\n" +
                  Negrita("pixmosa-cli " + std::string(order.nombre)) + " \\fI" + Literal(order.operandos) +
                  "\\fR";
  s += order.opciones.empty() ? "\n" : " [\\fIOPCIONES\\fR]\n";
  for (const cli::Opcion& o : order.opciones)
    s += ".TP\n" + Negrita(cli::Encabezado(o)) + "\n" + Literal(cli::Explicacion(o)) + "\n";
  if (order.masAyuda) s += Tal(order.masAyuda());
  return s + ".PP\nEjemplo:\n" + Tal("    " + std::string(order.ejemplo));
}

}  // namespace

std::string PaginaDeVentana(const std::string& version, const std::string& help) {
  std::string s = Titulo("pixmosa", version, "dibujos hechos con caracteres, en una ventana");
  std::istringstream lines(help);
  std::string line;
  std::getline(lines, line);
  const std::string usage = line.substr(line.find(": ") + 2);
  const std::size_t blank = usage.find(' ');
  s += ".SH SINOPSIS\n" + Negrita(usage.substr(0, blank)) + Literal(usage.substr(blank)) +
       "\n.SH DESCRIPCIÓN\n";
  bool options = false;
  while (std::getline(lines, line)) {
    if (line.empty()) continue;
    const std::string row = FilaDeOpcion(line);
    if (!row.empty() && !options) s += ".SH OPCIONES\n";
    options = options || !row.empty();
    s += row.empty() ? Literal(line) + "\n" : row;
  }
  return s + kCarpetas + ".SH VÉASE TAMBIÉN\n.BR pixmosa\\-cli (1)\n";
}

std::string PaginaDeOrdenes(const std::string& version) {
  std::string s = Titulo("pixmosa-cli", version, "dibujos hechos con caracteres, sin ventana");
  s += ".SH SINOPSIS\n" + Negrita("pixmosa-cli") + " \\fIORDEN\\fR [\\fIOPCIONES\\fR]\n.br\n" +
       Negrita("pixmosa-cli") + " \\fIORDEN\\fR " + Negrita("--help") + "\n.br\n" +
       Negrita("pixmosa-cli --version") + "\n.SH DESCRIPCIÓN\n";
  // The help is paragraphs: usage, what it is for, orders, examples, rules for all of them.
  const std::string help = cli::AyudaGeneral();
  const std::size_t what = help.find("\n\n") + 2;
  s += Literal(help.substr(what, help.find("\n\n", what) - what)) + "\n";
  std::istringstream rules(help.substr(help.rfind("\n\n") + 2));
  for (std::string line; std::getline(rules, line);) s += ".PP\n" + Literal(line) + "\n";
  s += ".SH ÓRDENES\n";
  for (const cli::Orden& order : cli::Ordenes()) s += SeccionDe(order);
  return s + kCarpetas + ".SH VÉASE TAMBIÉN\n.BR pixmosa (1)\n";
}

}  // namespace pixmosa::manuales
