// What the window remembers from one run to the next: options, its place, the pictures loaded last.
#include <QCheckBox>
#include <QFileInfo>
#include <QMenu>
#include <QMenuBar>
#include <QScreen>
#include <QSplitter>

#include "app/MarcoDeImagen.h"
#include "app/Recuerdos.h"
#include "app/frmMain.h"
#include "app/frmOpcAlgoritmo.h"
#include "platform/qt/AreaDeTexto.h"
#include "platform/qt/Intentar.h"
#include "platform/qt/Named.h"
#include "platform/qt/QtText.h"
#include "programa/Ajustes.h"
#include "programa/Opciones.h"

namespace pixmosa {
namespace {

constexpr std::size_t kMasRecientes = 10;

QByteArray Bytes(const std::string& text) {
  return QByteArray::fromStdString(text);
}

}  // namespace

void frmMain::RecuperarOpciones() {
  LeerOpciones(p_, Recordado(desktop_.registro, Recuerdo::Opciones));
  p_.ajustes.conversion = ConversionRecordada(desktop_.registro);
}

void frmMain::MedidasDePartida() {
  resize(QSize(1180, 760).boundedTo(screen()->availableSize() - QSize(16, 48)));
  findChild<QSplitter*>("divisor")->setSizes({marco_->sizeHint().width() + 9, 840});
}

void frmMain::RecuperarVentana() {
  MedidasDePartida();
  Registry& kept = desktop_.registro;
  if (const std::string place = Recordado(kept, Recuerdo::Ventana); !place.empty())
    restoreGeometry(Bytes(place));
  if (const std::string sizes = Recordado(kept, Recuerdo::Divisor); !sizes.empty())
    findChild<QSplitter*>("divisor")->restoreState(Bytes(sizes));
}

void frmMain::GuardarRecuerdos() {
  Registry& kept = desktop_.registro;
  Recordar(kept, Recuerdo::Opciones, TextoDeOpciones(p_));
  Recordar(kept, Recuerdo::Ventana, saveGeometry().toStdString());
  Recordar(kept, Recuerdo::Divisor, findChild<QSplitter*>("divisor")->saveState().toStdString());
}

void frmMain::CrearRecuerdos() {
  QAction* keep = acciones_.at("mnuRecordar");
  keep->setCheckable(true);
  keep->setChecked(QuiereRecuerdos(desktop_.registro));
  QMenu* files = menuBar()->findChild<QMenu*>("mnuArchivo");
  auto* recent = named<QMenu>("mnuRecientes", QStringLiteral("Imágenes &recientes"), files);
  recent->setToolTipsVisible(true);
  files->insertMenu(acciones_.at("mnuPegar"), recent);
  connect(recent, &QMenu::aboutToShow, this, &frmMain::ListarRecientes);
  recientes_ = ArchivosRecientes(desktop_.registro);
  ListarRecientes();
}

void frmMain::CambiarRecuerdos() {
  PonerRecuerdos(desktop_.registro, acciones_.at("mnuRecordar")->isChecked());
}

void frmMain::ListarRecientes() {
  auto* menu = menuBar()->findChild<QMenu*>("mnuRecientes");
  menu->clear();
  for (std::size_t i = 0; i < recientes_.size(); ++i) {
    const std::string file = recientes_[i];
    QString name = Q(std::filesystem::path(file).filename().string()).replace("&", "&&");
    if (i < 9) name = QStringLiteral("&%1 %2").arg(i + 1).arg(name);
    QAction* entry = menu->addAction(name);
    entry->setToolTip(Q(file));
    entry->setStatusTip(Q(file));
    connect(entry, &QAction::triggered, this, Con(desktop_.dialogos, [this, file](bool) {
              if (!AbrirImagen(file)) OlvidarReciente(file);
            }));
  }
  menu->addSeparator();
  QAction* clear = menu->addAction(QStringLiteral("&Vaciar la lista"));
  clear->setObjectName("mnuVaciarRecientes");
  connect(clear, &QAction::triggered, this, [this] {
    recientes_.clear();
    RecordarArchivos(desktop_.registro, recientes_);
    menuBar()->findChild<QMenu*>("mnuRecientes")->menuAction()->setEnabled(false);
  });
  menu->menuAction()->setEnabled(!recientes_.empty());
}

void frmMain::AnotarReciente(const std::filesystem::path& file) {
  const std::string path = std::filesystem::absolute(file).string();
  std::erase(recientes_, path);
  recientes_.insert(recientes_.begin(), path);
  if (recientes_.size() > kMasRecientes) recientes_.resize(kMasRecientes);
  RecordarArchivos(desktop_.registro, recientes_);
  menuBar()->findChild<QMenu*>("mnuRecientes")->menuAction()->setEnabled(true);
}

void frmMain::OlvidarReciente(const std::string& file) {
  std::erase(recientes_, file);
  RecordarArchivos(desktop_.registro, recientes_);
}

void frmMain::ValoresDeFabrica() {
  if (!desktop_.dialogos.Ask(
          "Las opciones, los colores, la fuente y el tamaño de la ventana volverán a ser los "
          "del primer día. La imagen y el dibujo se quedan.\r\n¿Desea continuar?",
          "Valores de fábrica"))
    return;
  PonerOpcionesDeFabrica(p_);
  RecordarConversion(desktop_.registro, p_.ajustes.conversion);
  chkAlMomento_->setChecked(false);
  chkAsciiPrev_->setChecked(p_.vistaPrevia);
  acciones_.at("mnuRecordar")->setChecked(true);
  CambiarRecuerdos();
  Medir(p_);
  // The panel shows what the state says when it is made.
  delete opciones_;
  CrearOpciones();
  findChild<QAction*>(QString::fromUtf8(kModos[p_.modo]))->setChecked(true);
  ElegirModo(p_.modo);
  MostrarFuente();
  MostrarColores();
  MedidasDePartida();
  ActualizarAcciones();
}

void frmMain::Titular() {
  const QString name = Q(p_.archivo.filename().string());
  const QString shown = !HayImagen(p_) ? QString() : name.isEmpty() ? QStringLiteral("Imagen pegada") : name;
  setWindowTitle(shown.isEmpty() ? QStringLiteral("Pixmosa[*]") : shown + QStringLiteral("[*] - Pixmosa"));
  setWindowModified(txtAscii_->SinGuardar());
}

}  // namespace pixmosa
