// Dialogs and desktop that answer from a script and log every call, so that the exact texts are asserted.
#pragma once

#include <deque>
#include <string>
#include <vector>

#include "platform/CodePage.h"
#include "platform/Dialogs.h"
#include "platform/Shell.h"

namespace pixmosa::test {

// Each call is logged as "Kind|part|part"; answers are taken from the front, an empty script cancels.
class RecordingDialogs final : public Dialogs {
 public:
  std::vector<std::string> log;
  std::vector<std::string> proposals, details;  // of SaveFile and Fail
  std::deque<std::string> paths;
  std::deque<Colour> colours;
  std::deque<FontChoice> fonts;
  std::deque<bool> answers;
  std::deque<Respuesta> respuestas;  // to AskToSave

  std::string OpenFile(const std::string& title, const std::string& filter) override {
    log.push_back("OpenFile|" + title + "|" + filter);
    return Take(paths, {});
  }
  std::vector<std::string> OpenFiles(const std::string& title, const std::string& filter) override {
    log.push_back("OpenFiles|" + title + "|" + filter);
    const std::vector<std::string> all(paths.begin(), paths.end());
    paths.clear();
    return all;
  }
  std::string SaveFile(const std::string& title, const std::string& filter, const std::string& extension,
                       const std::string& proposal) override {
    log.push_back("SaveFile|" + title + "|" + filter + "|" + extension);
    proposals.push_back(proposal);
    return Take(paths, {});
  }
  std::string ChooseFolder(const std::string& title) override {
    log.push_back("ChooseFolder|" + title);
    return Take(paths, {});
  }
  Colour ChooseColour(Colour current) override {
    log.push_back("ChooseColour|" + std::to_string(current));
    return Take(colours, kNoColour);
  }
  std::optional<FontChoice> ChooseFont(const Font& current) override {
    log.push_back("ChooseFont|" + current.name + "|" + std::to_string(current.points));
    if (fonts.empty()) return std::nullopt;
    return Take(fonts, {});
  }
  bool Ask(const std::string& text, const std::string& title) override {
    log.push_back("Ask|" + title + "|" + text);
    return Take(answers, false);
  }
  Respuesta AskToSave(const std::string& text, const std::string& title) override {
    log.push_back("AskToSave|" + title + "|" + text);
    return Take(respuestas, Respuesta::Cancelar);
  }
  void Inform(const std::string& text, const std::string& title) override {
    log.push_back("Inform|" + title + "|" + text);
  }
  void Fail(const std::string& text, const std::string& title, const std::string& detail) override {
    log.push_back("Fail|" + title + "|" + text);
    if (!detail.empty()) details.push_back(detail);
  }

 private:
  template <typename T>
  static T Take(std::deque<T>& script, T otherwise) {
    if (script.empty()) return otherwise;
    T answer = script.front();
    script.pop_front();
    return answer;
  }
};

class RecordingShell final : public Shell {
 public:
  std::vector<std::string> log;
  std::string clipboard;  // 8-bit code page
  bool found = true;      // what Open and StartCharacterMap answer

  bool Open(const std::string& fileOrLink) override {
    log.push_back("Open|" + fileOrLink);
    return found;
  }
  bool StartCharacterMap() override {
    log.push_back("StartCharacterMap");
    return found;
  }
  void CopyText(std::string_view text) override {
    log.push_back("CopyText");
    clipboard = text;
  }
};

}  // namespace pixmosa::test
