// The chosen font: by the system's dialog, by the list of fixed-pitch fonts, and what follows from a change.
#include <QLabel>

#include "app/frmFonts.h"
#include "app/frmMain.h"
#include "conversion/TextoGuardado.h"
#include "conversion/mFontSize.h"
#include "platform/qt/AreaDeTexto.h"
#include "platform/qt/QtText.h"

namespace pixmosa {

void frmMain::ChangeFontFromDialog() {
  const Font before = programa_.ajustes.font;
  const std::optional<FontChoice> choice = programa_.plataforma.dialogos.ChooseFont(before);
  if (!choice) return;
  ApplyFont(FontOfChoice(*choice, before));
  if (programa_.ajustes.font == before || txtAscii_->EstaVacia()) return;
  AskRegenerateAfterFontChange();
}

void frmMain::ApplyFont(const Font& font) {
  programa_.ajustes.font = font;
  txtAscii_->PonerFuente(font);
  panelFuente_->setText(Q(PanelFuente(font)));
  panelTamaño_->setText(Q(PanelTamaño(font)));
  BasAscii& ascii = programa_.basAscii;
  TextSurface& surface = programa_.plataforma.superficie;
  MeasureCharacterSet(ascii, font, surface);
  BuildGrayLookup(ascii);
  ComputeColumnCount();
}

void frmMain::MostrarFuentesFijas() {
  frmFonts list(programa_.plataforma.superficie.ListFixedFonts(), programa_.ajustes.font.name, this);
  connect(&list, &frmFonts::Elegida, this, [this](const QString& name) {
    ApplyFont({name.toStdString(), programa_.ajustes.font.points});
  });
  list.exec();
}

void frmMain::AskRegenerateAfterFontChange() {
  if (!programa_.plataforma.dialogos.Ask("Se ha cambiado la fuente. Para un resultado óptimo es conveniente"
                                         "crear de nuevo el AsciiArt\r\n¿Desea generarlo ahora?"))
    return;
  if (HayImagen()) GenerateAscii(kGrayscale);
}

}  // namespace pixmosa
