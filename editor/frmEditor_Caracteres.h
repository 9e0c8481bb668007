// The panel beside the drawing: the current character, recent ones, tables of all, and the ink.
#pragma once

#include <QListWidget>
#include <QWidget>

#include "editor/basEditor.h"
#include "platform/Dialogs.h"
#include "platform/Font.h"

class QLabel;
class QPushButton;
class QCheckBox;

namespace pixmosa {

// As high as its rows of characters are, whatever the width.
class TablaDeCaracteres final : public QListWidget {
  Q_OBJECT

 public:
  TablaDeCaracteres(const char* name, const QFont& font);
  void Anadir(char32_t c, int at = -1);
  char32_t Caracter(const QListWidgetItem* item) const;

 protected:
  void resizeEvent(QResizeEvent* event) override;

 private:
  void Ajustar();
};

class PanelDeCaracteres final : public QWidget {
  Q_OBJECT

 public:
  PanelDeCaracteres(const Font& font, Dialogs& dialogs);

  // Shows what is painted with, as the one used last; says nothing.
  void Poner(const Pincel& brush);
  void ElegirReciente(int number);

 signals:
  void Elegido(const Pincel& brush);
  void Pulsado();  // with the pointer: the keys are for the drawing again

 private:
  TablaDeCaracteres* Tabla(const char* name, const char* caption, std::u32string_view characters);
  QWidget* CrearActual();
  QWidget* CrearTinta();
  void Elegir(char32_t c);
  void PonerTinta(Colour ink);

  Font font_;
  Dialogs& dialogs_;
  Pincel brush_;
  QLabel *lblActual_, *lblCodigo_;
  TablaDeCaracteres* lstRecientes_;
  std::vector<TablaDeCaracteres*> tables_;
  QPushButton* lblTinta_;
  QCheckBox* chkSoloTinta_;
};

}  // namespace pixmosa
