// The fonts of the panel: its lists, and what is added to them.
#include <algorithm>
#include <map>
#include <set>
#include <tuple>

#include <QDragEnterEvent>
#include <QDropEvent>
#include <QGuiApplication>
#include <QListWidget>
#include <QMenu>
#include <QMimeData>
#include <QScrollBar>
#include <QSignalBlocker>
#include <QTreeWidget>
#include <QTreeWidgetItemIterator>
#include <QUrl>

#include "figlet/AgregarFuentes.h"
#include "figlet/Reescribir.h"
#include "figlet/frmFiglet.h"
#include "figlet/frmGaleria.h"
#include "platform/AtomicFile.h"
#include "platform/qt/Menus.h"
#include "platform/qt/Named.h"
#include "platform/qt/QtText.h"
#include "platform/zip/Descomprimir.h"

namespace pixmosa {
namespace {

namespace fs = std::filesystem;

constexpr char kAgregar[] = "Añadir fuentes FIGlet";
constexpr std::uintmax_t kMayorArchivo = 64 << 20;

// The fonts among what is dragged: files named as fonts or zips, and folders.
std::vector<fs::path> FuentesDe(const QMimeData& data) {
  std::vector<fs::path> files;
  for (const QUrl& url : data.urls()) {
    const std::string name = url.toLocalFile().toStdString();
    std::error_code ec;
    if (!name.empty() &&
        (PareceFuente(name) || LowerCase(name).ends_with(".zip") || fs::is_directory(name, ec)))
      files.emplace_back(name);
  }
  return files;
}

}  // namespace

void frmFiglet::LlenarListas() {
  const QSignalBlocker quietList(lsvFuentesFig_), quietTree(tvwFigFonts_);
  const int place = lsvFuentesFig_->verticalScrollBar()->value();
  lsvFuentesFig_->clear();
  for (const std::string& name : FillFontList(folders_)) {
    auto* item = new QListWidgetItem(Icono("preferences-desktop-font"), Q(name), lsvFuentesFig_);
    item->setData(Qt::UserRole, Q(name));
  }
  lsvFuentesFig_->verticalScrollBar()->setValue(place);
  LlenarArbol();
  emit ListaCambiada(Cuantas());
}

void frmFiglet::LlenarArbol() {
  const int place = tvwFigFonts_->verticalScrollBar()->value();
  std::set<QString> open;
  for (QTreeWidgetItemIterator at(tvwFigFonts_); *at; ++at)
    if ((*at)->isExpanded()) open.insert((*at)->data(0, Qt::UserRole).toString());
  tvwFigFonts_->clear();
  constexpr const char* kIcons[] = {"folder", "folder-open", "preferences-desktop-font"};
  std::map<std::string, QTreeWidgetItem*> items;
  for (const NodoDeFuentes& node : ArbolDeFuentes(folders_)) {
    auto* item =
        node.parent.empty() ? new QTreeWidgetItem(tvwFigFonts_) : new QTreeWidgetItem(items.at(node.parent));
    item->setText(0, QStringOfBytes(node.text));
    item->setData(0, Qt::UserRole, QStringOfBytes(node.key));
    item->setIcon(0, Icono(kIcons[node.nivel]));
    items[node.key] = item;
  }
  for (const auto& [key, item] : items) item->setExpanded(open.contains(QStringOfBytes(key)));
  tvwFigFonts_->verticalScrollBar()->setValue(place);
}

int frmFiglet::Cuantas() const {
  return lsvFuentesFig_->count();
}

void frmFiglet::Senalar(const std::string& name) {
  const QSignalBlocker quietList(lsvFuentesFig_), quietTree(tvwFigFonts_);
  const QString file = Q(name), text = file.section('.', 0, -2);
  for (int row = 0; row < lsvFuentesFig_->count(); ++row)
    if (lsvFuentesFig_->item(row)->data(Qt::UserRole).toString() == file) lsvFuentesFig_->setCurrentRow(row);
  const QTreeWidgetItem* current = tvwFigFonts_->currentItem();
  if (current && current->text(0) == text && current->childCount() == 0) return;
  tvwFigFonts_->setCurrentItem(nullptr);
  for (QTreeWidgetItemIterator at(tvwFigFonts_); *at; ++at) {
    if ((*at)->text(0) != text || !(*at)->parent() || (*at)->childCount() > 0) continue;
    tvwFigFonts_->setCurrentItem(*at);
    return;
  }
}

QMenu* frmFiglet::CrearMenuDeAgregar() {
  auto* menu = named<QMenu>("mnuAgregarFIG", this);
  for (const auto& [name, text, work] :
       {std::tuple{"mnuAgregarFuentes", "Añadir fuentes FIGlet...", &frmFiglet::PedirFuentes},
        {"mnuAgregarCarpeta", "Añadir una carpeta de fuentes...", &frmFiglet::PedirCarpeta}}) {
    QAction* action = menu->addAction(QString::fromUtf8(text));
    action->setObjectName(name);
    connect(action, &QAction::triggered, this, work);
  }
  return menu;
}

void frmFiglet::PedirFuentes() {
  const std::vector<std::string> chosen =
      desktop_.dialogos.OpenFiles(kAgregar, "Fuentes FIGlet (*.flf;*.tlf;*.zip)|*.flf;*.tlf;*.zip");
  if (!chosen.empty()) Agregar({chosen.begin(), chosen.end()});
}

void frmFiglet::PedirCarpeta() {
  const std::string folder = desktop_.dialogos.ChooseFolder(kAgregar);
  if (!folder.empty()) Agregar({folder});
}

void frmFiglet::Agregar(const std::vector<fs::path>& chosen) {
  QGuiApplication::setOverrideCursor(Qt::WaitCursor);
  const std::vector<FuenteAgregada> fonts = AgregarFuentes(folders_, chosen, DescomprimirZip);
  QGuiApplication::restoreOverrideCursor();
  LlenarListas();
  if (galeria_) galeria_->Releer();
  const auto there = std::ranges::find_if(fonts, [](const FuenteAgregada& f) { return !f.nombre.empty(); });
  if (there != fonts.end()) {
    Cargar(there->nombre + ".flf");
    lsvFuentesFig_->scrollToItem(lsvFuentesFig_->currentItem());
  } else {
    Senalar(cargada_);
  }
  const std::string summary = ResumenDeFuentes(fonts);
  const bool refused = std::ranges::any_of(
      fonts, [](const FuenteAgregada& f) { return f.suceso == FuenteAgregada::kRechazada; });
  if (refused) {
    desktop_.dialogos.Fail(summary, kAgregar);
  } else if (!summary.empty()) {
    desktop_.dialogos.Inform(summary, kAgregar);
  }
}

void frmFiglet::dragEnterEvent(QDragEnterEvent* event) {
  if (!FuentesDe(*event->mimeData()).empty()) event->acceptProposedAction();
}

void frmFiglet::dropEvent(QDropEvent* event) {
  const std::vector<fs::path> files = FuentesDe(*event->mimeData());
  event->acceptProposedAction();
  Agregar(files);
  if (files.size() == 1) AbrirDirecta(files[0]);
}

// A single font that was dropped is drawn straight from its file, with the characters that its place in the
// list has to do without.
void frmFiglet::AbrirDirecta(const fs::path& file) {
  std::error_code ec;
  if (!fs::is_regular_file(file, ec)) return;
  try {
    enUso_ = FuenteEnUso(AbrirFuente(LeerArchivo(file, kMayorArchivo), file.string(), DescomprimirZip));
    directa_ = true;
    Dibujar();
  } catch (const ErrorDelPrograma&) {
    // It was said when it was not added.
  }
}

}  // namespace pixmosa
