// The desktop's dialogs, on a window of the program.
#pragma once

#include <QPointer>
#include <QWidget>

#include "platform/Dialogs.h"

namespace pixmosa {

class QtDialogs final : public Dialogs {
 public:
  // Dialogs open on the window in use, or on `owner` where none of the program's is.
  void SetOwner(QWidget* owner) { owner_ = owner; }

  // Where the dialogs for files open: the folder of the last file or folder chosen, before that the user's
  // pictures.
  const QString& Carpeta() const { return carpeta_; }
  void PonerCarpeta(const QString& folder) { carpeta_ = folder; }

  std::string OpenFile(const std::string& title, const std::string& filter) override;
  std::vector<std::string> OpenFiles(const std::string& title, const std::string& filter) override;
  std::string SaveFile(const std::string& title, const std::string& filter,
                       const std::string& defaultExtension, const std::string& proposal) override;
  std::string ChooseFolder(const std::string& title) override;
  std::optional<std::string> AskText(const std::string& text, const std::string& title,
                                     const std::string& proposal) override;
  Colour ChooseColour(Colour current) override;
  std::optional<FontChoice> ChooseFont(const Font& current) override;
  bool Ask(const std::string& text, const std::string& title) override;
  Respuesta AskToSave(const std::string& text, const std::string& title) override;
  void Inform(const std::string& text, const std::string& title) override;
  void Fail(const std::string& text, const std::string& title, const std::string& detail) override;

 private:
  // The window in use: a question about the editor's drawing stands over the editor.
  QWidget* Encima() const;

  QString Donde() const;
  std::string Elegido(const QString& file);

  QPointer<QWidget> owner_;
  QString carpeta_;
};

// "Imagenes (*.bmp;*.gif)|*.bmp;*.gif" as "Imagenes (*.bmp *.gif)"; a pattern alone stays one.
QString QtFilterOf(const std::string& filter);

}  // namespace pixmosa
