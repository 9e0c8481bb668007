// The main window: the working picture, the produced text, the mode, the font, and the way to every other
// window.
#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include <QElapsedTimer>
#include <QMainWindow>

#include "app/Programa.h"
#include "platform/qt/QtProgress.h"

class QCheckBox;
class QLabel;
class QProgressBar;
class QPushButton;
class QVBoxLayout;

namespace pixmosa {

class AreaDeTexto;
class frmEditor;
class frmFiglet;
class frmOpcAlgoritmo;
class frmPreview;
class MenuDeImagen;
class MarcoDeImagen;

class frmMain final : public QMainWindow {
  Q_OBJECT

 public:
  explicit frmMain(Programa& program);
  ~frmMain() override;

  // --- frmMain_Archivo.cpp: pictures in, text out ---
  void CargarImagen();                                  // asks for the file
  bool AbrirImagen(const std::filesystem::path& file);  // false, after the message, where it cannot be loaded
  void Guardar();
  void CopiarTexto();

  // --- frmMain_Generar.cpp ---
  void Play();
  void GenerateAscii(int method);  // the driver with its window side; `picMain` holds a picture
  void ShowPreview();

  // --- frmMain_Fuentes.cpp ---
  void ChangeFontFromDialog();
  void ApplyFont(const Font& font);  // text area, status bar, character tables and column count
  void MostrarFuentesFijas();
  void AskRegenerateAfterFontChange();

  // --- frmMain_Modos.cpp ---
  void ElegirModo(const QString& mode);
  void ComputeColumnCount();
  void GrabarIni();
  void MostrarLetreros(bool shown);  // the banner panel in front of the options, or not
  void PonerEnBlancoYNegro();        // the working picture, by "Método 1"

  // --- frmMain_Web.cpp ---
  void GenerarWebArt(bool exactCopy);
  void ElegirFondoWeb(QPushButton* swatch, Colour& colour);
  void ElegirFotogramas();
  void AnimArtDeGif();
  void AnimArtDirectorio();

  // --- frmMain_Ventanas.cpp ---
  void MapaDeCaracteres();
  void MostrarImagenCompleta();
  void AcercaDe();
  void AbrirEditor();
  void MostrarEstadisticas();
  void MostrarSistema();

  // 0..5, from the text of `lblModo`.
  int IndiceDelModo() const;

  // `picMain` holds a picture.
  bool HayImagen() const;

  // The picture as it is now; shown and kept by the state that owns it.
  const Picture& Imagen() const;
  void MostrarImagen();

  Programa& programa() { return programa_; }
  AreaDeTexto& areaDeTexto() { return *txtAscii_; }
  frmOpcAlgoritmo& opciones() { return *opciones_; }
  QtProgress& progreso() { return *progreso_; }
  QCheckBox& vistaPrevia() { return *chkAsciiPrev_; }

 protected:
  void dragEnterEvent(QDragEnterEvent* event) override;
  void dropEvent(QDropEvent* event) override;
  void closeEvent(QCloseEvent* event) override;

 private:
  void CrearMenus();
  void CrearBarras();
  void CrearSelectorDeModo();
  void CrearCentro();
  void CrearBarraDeEstado();
  void Arrancar();
  void CrearLetreros(QVBoxLayout* area);

  void CortarFotogramas(const std::filesystem::path& file);  // throws FileError
  void GenerarAnimArt(const std::vector<std::filesystem::path>& frames);
  std::string& TextoDeFotograma(const std::vector<std::filesystem::path>& frames, std::size_t k);
  void AbrirPagina(const std::string& file);
  void Ocupar(bool busy);  // while a long work lets events in: nothing else can be started

  Programa& programa_;
  AreaDeTexto* txtAscii_ = nullptr;
  MarcoDeImagen* marco_ = nullptr;
  QWidget* PicAlgoritmos_ = nullptr;
  frmOpcAlgoritmo* opciones_ = nullptr;
  QLabel* lblModo_ = nullptr;
  QCheckBox* chkAsciiPrev_ = nullptr;
  QLabel* panelFuente_ = nullptr;
  QLabel* panelFiglet_ = nullptr;
  QLabel* panelTamaño_ = nullptr;
  QProgressBar* prgBar1_ = nullptr;
  std::optional<QtProgress> progreso_;
  frmPreview* preview_ = nullptr;
  frmEditor* editor_ = nullptr;
  frmFiglet* figlet_ = nullptr;
  bool ocupada_ = false;        // an animation is being written
  bool cerrarDespues_ = false;  // the user closed the window meanwhile
  QElapsedTimer desdeElTexto_;
  MenuDeImagen* imagen_ = nullptr;
};

}  // namespace pixmosa
