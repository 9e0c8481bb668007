// The chosen font: by the system's dialog, by the list of fixed-pitch fonts, and what follows from a change.
#include <QLabel>

#include "app/frmFonts.h"
#include "app/frmMain.h"
#include "app/frmOpcAlgoritmo.h"
#include "conversion/TextoGuardado.h"
#include "conversion/mFontSize.h"
#include "platform/qt/AreaDeTexto.h"
#include "platform/qt/Intentar.h"
#include "platform/qt/QtText.h"
#include "programa/Ajustes.h"

namespace pixmosa {

void frmMain::ChangeFontFromDialog() {
  const Font before = p_.ajustes.font;
  const std::optional<FontChoice> choice = desktop_.dialogos.ChooseFont(before);
  if (!choice) return;
  ApplyFont(FontOfChoice(*choice, before));
  if (p_.ajustes.font == before || txtAscii_->EstaVacia()) return;
  AskRegenerateAfterFontChange();
}

void frmMain::ApplyFont(const Font& font) {
  PonerFuente(p_, font);
  MostrarFuente();
}

void frmMain::MostrarFuente() {
  const Font& font = p_.ajustes.font;
  txtAscii_->PonerFuente(font);
  opciones_->MostrarColumnas();
  panelFuente_->setText(Q(PanelFuente(font)));
  panelTamaño_->setText(Q(PanelTamaño(font)));
}

void frmMain::MostrarFuentesFijas() {
  frmFonts list(p_.superficie.ListFixedFonts(), p_.ajustes.font.name, this);
  connect(&list, &frmFonts::Elegida, this, Con(desktop_.dialogos, [this](const QString& name) {
    ApplyFont({name.toStdString(), p_.ajustes.font.points});
  }));
  list.exec();
}

void frmMain::AskRegenerateAfterFontChange() {
  if (!desktop_.dialogos.Ask("Se ha cambiado la fuente. Para un resultado óptimo es conveniente"
                             "crear de nuevo el AsciiArt\r\n¿Desea generarlo ahora?"))
    return;
  if (HayImagen(p_)) Generar(p_.ajustes.conversion);
}

}  // namespace pixmosa
