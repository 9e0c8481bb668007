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
  std::vector<std::string> details;  // of Fail
  std::deque<std::string> paths;
  std::deque<Colour> colours;
  std::deque<FontChoice> fonts;
  std::deque<bool> answers;
  std::deque<std::string> textos;    // to AskText
  std::deque<Respuesta> respuestas;  // to AskToSave

  std::string OpenFile(const std::string& title, const std::string& filter) override {
    return Path("OpenFile|" + title + "|" + filter);
  }
  std::vector<std::string> OpenFiles(const std::string& title, const std::string& filter) override {
    log.push_back("OpenFiles|" + title + "|" + filter);
    const std::vector<std::string> all(paths.begin(), paths.end());
    paths.clear();
    return all;
  }
  std::string SaveFile(const std::string& title, const std::string& filter, const std::string& extension,
                       const std::string&) override {
    return Path("SaveFile|" + title + "|" + filter + "|" + extension);
  }
  std::string ChooseFolder(const std::string& title) override { return Path("ChooseFolder|" + title); }
  std::optional<std::string> AskText(const std::string& text, const std::string& title,
                                     const std::string& proposal) override {
    const bool any = !textos.empty();
    const std::string answer = Take(textos, {}, "AskText|" + title + "|" + text + "|" + proposal);
    return any ? std::optional(answer) : std::nullopt;
  }
  Colour ChooseColour(Colour current) override {
    return Take(colours, kNoColour, "ChooseColour|" + std::to_string(current));
  }
  std::optional<FontChoice> ChooseFont(const Font& current) override {
    const bool any = !fonts.empty();
    const FontChoice chosen =
        Take(fonts, {}, "ChooseFont|" + current.name + "|" + std::to_string(current.points));
    return any ? std::optional(chosen) : std::nullopt;
  }
  bool Ask(const std::string& text, const std::string& title) override {
    return Take(answers, false, "Ask|" + title + "|" + text);
  }
  Respuesta AskToSave(const std::string& text, const std::string& title) override {
    return Take(respuestas, Respuesta::Cancelar, "AskToSave|" + title + "|" + text);
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
  T Take(std::deque<T>& script, T otherwise, const std::string& call) {
    log.push_back(call);
    if (script.empty()) return otherwise;
    const T answer = script.front();
    script.pop_front();
    return answer;
  }
  std::string Path(const std::string& call) { return Take(paths, {}, call); }
};

class RecordingShell final : public Shell {
 public:
  std::vector<std::string> log;
  std::string clipboard;  // as it was given
  bool found = true;      // what Open and StartCharacterMap answer

  bool Open(const std::string& fileOrLink) override { return Log("Open|" + fileOrLink); }
  bool StartCharacterMap() override { return Log("StartCharacterMap"); }
  void CopyText(std::string_view text) override {
    Log("CopyText");
    clipboard = text;
  }
  void CopyUtf8(std::string_view utf8) override {
    Log("CopyUtf8");
    clipboard = utf8;
  }
  void CopyRichText(std::string_view html, std::string_view plain) override {
    Log("CopyRichText|" + std::string(html));
    clipboard = plain;
  }
  void CopyPicture(const Picture& picture) override {
    Log("CopyPicture|" + std::to_string(picture.Width()) + "x" + std::to_string(picture.Height()));
  }
  std::string ClipboardUtf8() override { return clipboard; }

 private:
  bool Log(const std::string& call) {
    log.push_back(call);
    return found;
  }
};

}  // namespace pixmosa::test
