// Generating the text and showing it.
#include <QAction>
#include <QCheckBox>
#include <QLabel>
#include <QScrollBar>
#include <QToolBar>

#include "app/MarcoDeImagen.h"
#include "app/MenuDeImagen.h"
#include "app/Recuerdos.h"
#include "app/frmMain.h"
#include "app/frmOpcAlgoritmo.h"
#include "app/frmPreview.h"
#include "platform/qt/AreaDeTexto.h"
#include "platform/qt/Intentar.h"
#include "platform/qt/Muestra.h"
#include "platform/qt/Named.h"
#include "platform/qt/QtText.h"
#include "programa/Fotografia.h"
#include "programa/Generar.h"
#include "programa/Recetas.h"

namespace pixmosa {

void frmMain::Play() {
  switch (QueGenerar(p_)) {
    case Trabajo::PedirImagen:
      if (desktop_.dialogos.Ask("Antes debe cargar una imagen\r\n¿Desea cargarla ahora?")) CargarImagen();
      break;
    case Trabajo::Texto:
      if (const int method = MetodoDe(p_); QuiereElTexto(method)) {
        Generar(method);
        OfrecerFormas(method);
      }
      break;
    case Trabajo::AnimArt:
      AnimArtDeGif();
      break;
    case Trabajo::WebArt:
      GenerarWebArt();
      break;
    case Trabajo::Ninguno:
      break;
  }
}

bool frmMain::QuiereElTexto(int method) {
  const std::optional<Extent> huge = TextoEnorme(p_, method);
  return !huge ||
         desktop_.dialogos.Ask("El dibujo tendría " + std::to_string(huge->width) + " columnas y " +
                               std::to_string(huge->height) +
                               " filas: puede tardar mucho y no caber en la memoria.\r\n¿Desea generarlo?");
}

void frmMain::Regenerar() {
  if (!HayImagen(p_) || caducadoPor_ < 0) return;
  if (const std::optional<Extent> huge = TextoEnorme(p_, caducadoPor_)) {
    Decir(QStringLiteral("El dibujo tendría %1 columnas y %2 filas: no se genera solo.")
              .arg(huge->width)
              .arg(huge->height));
  } else {
    Generar(caducadoPor_);
  }
}

void frmMain::CrearAlMomento(QToolBar* bar) {
  chkAlMomento_ = named<QCheckBox>("chkAlMomento", QStringLiteral("Generar al m&omento"));
  chkAlMomento_->setToolTip(
      QStringLiteral("Vuelve a dibujar sin pulsar Generar al cargar una imagen, retocarla o elegir un modo"));
  chkAlMomento_->setChecked(AlMomentoRecordado(desktop_.registro));
  bar->addWidget(chkAlMomento_);
  connect(chkAlMomento_, &QCheckBox::toggled, this, [this](bool atOnce) {
    RecordarAlMomento(desktop_.registro, atOnce);
    AlMomento();
  });
}

void frmMain::AlMomento() {
  // Pages and animations ask for a file: they are never made by themselves.
  if (!chkAlMomento_->isChecked() || QueGenerar(p_) != Trabajo::Texto) return;
  caducadoPor_ = MetodoDe(p_);
  try {
    Regenerar();
    OfrecerFormas(caducadoPor_);
  } catch (const std::exception& e) {
    Decir(Q(FraseDe(e)));
  }
}

void frmMain::Generar(int method) {
  if (!pixmosa::Generar(p_, method)) return;
  if (!txtAscii_->PuedeDeshacer()) Decir({});
  txtAscii_->Alinear(Qt::AlignLeft);
  MostrarTexto();
  AvisarSiHaSalidoEnBlanco(method);
  if (p_.vistaPrevia && !p_.animArt) ShowPreview();
}

void frmMain::Caducar(int method) {
  chkAsciiPrev_->setChecked(p_.vistaPrevia);
  caducadoPor_ = method;
  regeneracion_.Pedir();
}

void frmMain::ShowPreview() {
  if (p_.basAscii.ProducedText.empty()) return;
  if (!preview_) preview_ = new frmPreview(this);
  preview_->Mostrar(TextoEnUtf8(p_.basAscii), p_.ajustes.font, p_.fondoTexto, p_.colorTexto);
}

void frmMain::MostrarImagen() {
  marco_->Mostrar(p_.imagen.picMain);
  ActualizarAcciones();
}

void frmMain::AvisarSiHaSalidoEnBlanco(int method) {
  const bool blank = p_.basAscii.ProducedText.find_first_not_of(" \r\n") == std::string::npos;
  if (method == kGrayscale || EsDeFormas(method) || !blank) return;
  Decir(
      QStringLiteral("El dibujo ha salido en blanco: este modo necesita una imagen en blanco y negro puros."),
      QStringLiteral("Ponerla en blanco y negro"), [this, method] {
        imagen_->PonerEnBlancoYNegro();
        Generar(method);
      });
}

void frmMain::OfrecerFormas(int method) {
  if (method != kGrayscale || FormasOfrecida(desktop_.registro) || !lblEnlace_->text().isEmpty()) return;
  if (!EsFotografia(p_.imagen.picMain)) return;
  RecordarOferta(desktop_.registro);
  Decir(QStringLiteral("De una fotografía, la conversión Formas hace un dibujo más parecido."),
        QStringLiteral("Probarla"), [this] {
          Decir({});
          ElegirConversion(kFormas);
        });
}

void frmMain::ElegirConversion(int method) {
  if (p_.modo != kModoGrises) findChild<QAction*>(QString::fromUtf8(kModos[kModoGrises]))->trigger();
  opciones_->ElegirConversion(method);
  Caducar(method);
}

void frmMain::ActualizarAcciones() {
  Titular();
  const bool picture = HayImagen(p_), text = !txtAscii_->EstaVacia();
  imagen_->PonerDisponible(picture);
  cmdMuestra_->setVisible(!picture && !text);
  opciones_->PonerImagenDisponible(picture);
  opciones_->MostrarColumnas();
  acciones_.at("mnuComparar")->setEnabled(picture);
  acciones_.at("mnuGuardar")->setEnabled(text);
  acciones_.at("mnuDeshacerImagen")->setEnabled(PuedeDeshacerPaso(p_));
  acciones_.at("mnuRehacerImagen")->setEnabled(PuedeRehacerPaso(p_));
  for (const char* name : {"mnuHistorial", "mnuGuardarImagen", "mnuRecortar", "mnuRecetas"})
    acciones_.at(name)->setEnabled(picture);
  acciones_.at("mnuRepetirEfecto")->setEnabled(picture && imagen_->PuedeRepetir());
  acciones_.at("mnuGuardarReceta")->setEnabled(!PasosDados(p_).empty());
  for (const char* name : {"mnuClipboard", "mnuExportar", "mnuCopiarComo"})
    acciones_.at(name)->setEnabled(text);
  acciones_.at("mnuPreviewAsciiArt")->setEnabled(!p_.basAscii.ProducedText.empty());
}

void frmMain::MostrarTexto() {
  // The part in view stays in view, so that a dragged slider shows its effect there.
  QScrollBar *across = txtAscii_->horizontalScrollBar(), *down = txtAscii_->verticalScrollBar();
  const int x = across->value(), y = down->value();
  txtAscii_->PonerUtf8(TextoEnUtf8(p_.basAscii));
  across->setValue(x);
  down->setValue(y);
}

void frmMain::MostrarColores() {
  txtAscii_->PonerColores(QColorOf(p_.fondoTexto), QColorOf(p_.colorTexto));
}

}  // namespace pixmosa
