// Other ways to a picture than its dialog: the clipboard, and the sample beside the first steps.
#include <QApplication>
#include <QCheckBox>
#include <QClipboard>
#include <QDrag>
#include <QFileInfo>
#include <QMimeData>
#include <QPushButton>
#include <QTemporaryDir>
#include <QUrl>
#include <QVBoxLayout>

#include "app/MenuDeImagen.h"
#include "app/frmMain.h"
#include "app/frmOpcAlgoritmo.h"
#include "platform/AtomicFile.h"
#include "platform/qt/AreaDeTexto.h"
#include "platform/qt/Intentar.h"
#include "platform/qt/Menus.h"
#include "platform/qt/Named.h"
#include "platform/qt/QtPicture.h"
#include "platform/qt/QtText.h"
#include "programa/CargarImagen.h"
#include "programa/Recetas.h"

namespace pixmosa {
namespace {

constexpr char kMuestra[] = "muestra.png";

// The file that was copied, or whose path or address was; empty where there is none.
QString ArchivoCopiado(const QMimeData& data) {
  for (const QUrl& url : data.urls())
    if (url.isLocalFile()) return url.toLocalFile();
  const QString text = data.text().trimmed();
  const QUrl url(text);
  const QString path = url.isLocalFile() ? url.toLocalFile() : text;
  return QFileInfo(path).isFile() ? path : QString();
}

}  // namespace

void frmMain::CrearPrimerosPasos() {
  txtAscii_->PonerPista(
      QStringLiteral("1. Cargue una imagen: con Cargar, pegándola (Ctrl+V) o arrastrándola hasta aquí.\n"
                     "2. Elija el modo y pulse Generar.\n"
                     "3. Ajuste las opciones, y guarde o copie el dibujo."));
  cmdMuestra_ = named<QPushButton>("cmdMuestra", QStringLiteral("Probar con una imagen de muestra"));
  cmdMuestra_->setIcon(Icono("image-x-generic"));
  cmdMuestra_->setToolTip(acciones_.at("mnuMuestra")->toolTip());
  QPalette colours = QApplication::palette();
  colours.setResolveMask(~QPalette::ResolveMask{0});
  cmdMuestra_->setPalette(colours);
  cmdMuestra_->setFont(FuenteDeVentana());
  cmdMuestra_->setCursor(Qt::ArrowCursor);
  connect(cmdMuestra_, &QAbstractButton::clicked, acciones_.at("mnuMuestra"), &QAction::trigger);
  // Below the steps, which stand in the middle.
  auto* place = new QVBoxLayout(txtAscii_->viewport());
  place->addStretch(3);
  place->addWidget(cmdMuestra_, 0, Qt::AlignHCenter);
  place->addStretch(2);
}

void frmMain::CargarMuestra() {
  if (!AbrirImagen(p_.carpeta / kMuestra)) return;
  if (chkAlMomento_->isChecked()) return;  // it is drawn
  chkAlMomento_->setChecked(true);
}

void frmMain::Pegar() {
  const QMimeData* copied = QApplication::clipboard()->mimeData();
  if (!copied) return;
  if (const QString file = ArchivoCopiado(*copied); !file.isEmpty()) {
    AbrirImagen(file.toStdString());
    return;
  }
  const auto image = copied->hasImage() ? qvariant_cast<QImage>(copied->imageData()) : QImage();
  if (image.isNull()) {
    Decir(QStringLiteral("No hay ninguna imagen que pegar: copie una imagen, su archivo o la ruta de este."));
    return;
  }
  PonerImagen(p_, PictureOf(image));
  SeguirCarga({});
}

void frmMain::ArrastrarImagen() {
  // The file itself where the picture is as it was loaded, else a new one of the same name.
  std::filesystem::path file = p_.archivo;
  std::error_code none;
  if (!PasosDados(p_).empty() || !std::filesystem::exists(file, none)) {
    if (!arrastres_) arrastres_ = std::make_unique<QTemporaryDir>();
    file = std::filesystem::path(arrastres_->path().toStdString()) /
           ((p_.archivo.empty() ? "imagen" : NombreDeImagen(p_)) + ".png");
    EscribirArchivo(file, p_.codec.Encode(p_.imagen.picMain, "png"));
  }
  auto* carried = new QMimeData;
  carried->setUrls({QUrl::fromLocalFile(QString::fromStdString(std::filesystem::absolute(file).string()))});
  carried->setImageData(ImageOf(p_.imagen.picMain).copy());
  auto* drag = new QDrag(this);
  drag->setMimeData(carried);
  drag->setPixmap(QPixmap::fromImage(Vista(
      p_.imagen.picMain, QSize(96, 96).boundedTo(QSize(p_.imagen.picMain.Width(), p_.imagen.picMain.Height())
                                                     .scaled(96, 96, Qt::KeepAspectRatio)))));
  drag->exec(Qt::CopyAction);
}

void frmMain::SeguirCarga(const std::string& warning) {
  Decir({});
  opciones_->MostrarAnimArt();
  const std::string name = p_.archivo.filename().string();
  if (!name.empty() && p_.archivo != p_.carpeta / kMuestra) AnotarReciente(p_.archivo);
  PasoDado(name.empty() ? QStringLiteral("Pegar") : Q("Cargar " + name));
  imagen_->SeguirImagen();
  AlMomento();
  if (!warning.empty()) Decir(Q(warning));
}

}  // namespace pixmosa
