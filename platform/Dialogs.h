// The system's dialogs and message boxes. All texts and paths are UTF-8; modal, on the main window.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "platform/Colour.h"
#include "platform/Font.h"

namespace pixmosa {

struct FontChoice {
  std::string name;
  int pixelHeight;  // its sign does not count
};

// What becomes of work that is not saved: it is saved, dropped, or kept and nothing else happens.
enum class Respuesta { Guardar, Descartar, Cancelar };

class Dialogs {
 public:
  virtual ~Dialogs() = default;

  // Filters alternate description and patterns with "|" separators. An empty path on cancel.
  virtual std::string OpenFile(const std::string& title, const std::string& filter) = 0;
  // Several files; none on cancel.
  virtual std::vector<std::string> OpenFiles(const std::string& title, const std::string& filter) = 0;
  // `proposal` is the file name that stands there at first.
  virtual std::string SaveFile(const std::string& title, const std::string& filter,
                               const std::string& defaultExtension, const std::string& proposal = {}) = 0;
  virtual std::string ChooseFolder(const std::string& title) = 0;

  // A line of text, which begins as `proposal`; nothing on cancel.
  virtual std::optional<std::string> AskText(const std::string& text, const std::string& title,
                                             const std::string& proposal) = 0;

  // The chosen colour, or kNoColour on cancel.
  virtual Colour ChooseColour(Colour current) = 0;
  virtual std::optional<FontChoice> ChooseFont(const Font& current) = 0;

  // Yes and No with the information icon; true on Yes only.
  virtual bool Ask(const std::string& text, const std::string& title = {}) = 0;
  // "Guardar", "Descartar" and "Cancelar", over the window in use; the first is the default, and to close the
  // question is the last.
  virtual Respuesta AskToSave(const std::string& text, const std::string& title) = 0;
  // Information icon and OK.
  virtual void Inform(const std::string& text, const std::string& title = {}) = 0;
  // Critical icon and OK; `detail` says more below the text.
  virtual void Fail(const std::string& text, const std::string& title = {},
                    const std::string& detail = {}) = 0;
};

}  // namespace pixmosa
