// The main window: builds the panels and windows, connects what they say to what has to be shown, and starts
// every generation. What is done to the state is done by the procedures of programa/.
#pragma once

#include <filesystem>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include <QElapsedTimer>
#include <QMainWindow>

#include "platform/Escritorio.h"
#include "platform/qt/Menus.h"
#include "platform/qt/QtProgress.h"
#include "platform/qt/UltimoValor.h"
#include "programa/Animacion.h"
#include "programa/Programa.h"

class QCheckBox;
class QLabel;
class QProgressBar;
class QPushButton;
class QShortcut;
class QToolBar;
class QToolButton;

namespace pixmosa {

class AreaDeTexto;
class frmEditor;
class frmFiglet;
class frmHistorial;
class frmOpcAlgoritmo;
class frmPreview;
class MenuDeImagen;
class MarcoDeImagen;
struct Dibujo;
struct Pelicula;

class frmMain final : public QMainWindow {
  Q_OBJECT

 public:
  frmMain(Programa& program, const Escritorio& desktop);
  ~frmMain() override;

 public slots:
  // False, after the message, where the file cannot be loaded.
  bool AbrirImagen(const std::filesystem::path& file);

 protected:
  void dragEnterEvent(QDragEnterEvent* event) override;
  void dropEvent(QDropEvent* event) override;
  void closeEvent(QCloseEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  // --- frmMain.cpp, frmMain_Menus.cpp: what there is ---
  struct Entrada : EntradaDeMenu {
    void (frmMain::*hacer)();
  };
  struct Menu {
    const char* nombre;
    const char* texto;
    std::vector<Entrada> entradas;
  };
  static const std::vector<Menu>& Menus();
  static const std::vector<Entrada>& CopiarComo();
  void CrearMenus();
  void CrearBarras();
  void CrearSelectorDeModo();
  void CrearCentro();
  void CrearBarraDeEstado();
  void CrearPaneles();
  void CrearEstados();
  void CrearLetreros();

  // --- frmMain_Archivo.cpp: pictures in, text out ---
  void CargarImagen();
  void CargarMuestra();  // and draws it, and from then on at once
  void Pegar();          // a picture, a file of one or its address
  void SeguirCarga(const std::string& warning);
  void CrearPrimerosPasos();
  std::string ElegirArchivoDeImagen();
  void GuardarTexto();
  bool Guardar();  // false where nothing was saved
  void CopiarTexto();
  void GrabarIni();

  // --- frmMain_Exportar.cpp ---
  void Exportar();
  void ExportarPelicula();
  std::optional<Pelicula> PeliculaDeLaImagen() const;  // of the file at hand, where it moves
  void EscribirPelicula(const Pelicula& film, const std::string& ending);
  void CopiarComoTexto();
  void CopiarConFormato();
  void CopiarComoImagen();
  Medios MediosDeExportar();
  std::string EnFormato(const Dibujo& drawing, const Formato& format);
  void EscribirDibujo(const std::function<Dibujo()>& drawing);  // as the settings of export say

  // --- frmMain_Editor.cpp ---
  void AbrirEditor();
  void ExportarDelEditor(const Dibujo& drawing);
  void AvisarDeDibujo();  // that an earlier run did not get to keep

  // --- frmMain_Imagen.cpp ---
  static const std::vector<Entrada>& EntradasDeHistorial();
  void CrearEntradasDeHistorial();
  void PasoDado(const QString& name);  // the working picture was changed
  void MostrarPasos();
  void IrA(std::size_t step);
  void DeshacerPaso();
  void RehacerPaso();
  void MostrarHistorial();
  void GuardarImagen();

  // --- frmMain_Generar.cpp ---
  void Play();
  void Generar(int method);        // and shows the text; there is a picture
  bool QuiereElTexto(int method);  // asks before one that is far too large
  void Regenerar();
  void CrearAlMomento(QToolBar* bar);
  void AlMomento();          // the text once more, where that is wanted of what changes by itself
  void Caducar(int method);  // the text is made again once the waiting events are handled
  void ShowPreview();
  void OfrecerFormas(int method);  // once, for a photograph
  void ElegirConversion(int method);
  void MostrarImagen();
  void MostrarTexto();        // the produced text; the part in view stays in view
  void ActualizarAcciones();  // what has nothing to work on cannot be chosen
  void AvisarSiHaSalidoEnBlanco(int method);
  void MostrarColores();

  // --- frmMain_Fuentes.cpp ---
  void ChangeFontFromDialog();
  void ApplyFont(const Font& font);
  void MostrarFuente();
  void MostrarFuentesFijas();
  void AskRegenerateAfterFontChange();

  // --- frmMain_Modos.cpp ---
  void ElegirModo(Modo mode);
  void PresentarModo();  // the chosen one's icon and sentence
  void PonerLetrero(const std::string& banner);
  void MostrarLetreros(bool shown);  // the banner panel in front of the options, or not

  // --- frmMain_Web.cpp ---
  void GenerarWebArt();
  void ElegirFotogramas();
  void AnimArtDeGif();
  void AnimArtDirectorio();
  void GenerarAnimArt(const Serie& frames);
  bool SeguirAnimacion(std::size_t k, std::size_t frames);
  void AbrirPagina(const std::string& file);
  void TerminarPagina(const QString& done, const QString& cancelled, bool written, const std::string& file);

  // --- frmMain_Estado.cpp: the left part of the status bar, and what long work shows ---
  void Decir(const QString& text, const QString& link = {}, std::function<void()> follow = {});
  void HacerSitio();       // the panels at its right give way to a sentence that would be cut
  void Ocupar(bool busy);  // while a long work lets events in: nothing else can be started
  void Cancelar();
  void NombrarArchivo(const QString& what, const std::string& file);

  // --- frmMain_Ver.cpp: how near picture and drawing are seen ---
  void PrepararVista();
  QLabel* CrearMedidas();
  void MostrarMedidas(QPoint cell);
  void AjustarImagen();
  void VerTodo();
  void Acercar();
  void Alejar();
  void TamañoReal();

  // --- frmMain_Ventanas.cpp ---
  void Salir();
  bool PuedePerderseElTexto();  // asks where it was edited by hand
  void MapaDeCaracteres();
  void MostrarImagenCompleta();
  void AcercaDe();
  void Comparar();
  void MostrarEstadisticas();
  void MostrarSistema();

  Programa& p_;
  Escritorio desktop_;
  QProgressBar* prgBar1_;
  QtProgress progreso_;
  std::map<std::string_view, QAction*> acciones_;  // of the menus, by name
  std::vector<QToolBar*> barras_;
  AreaDeTexto* txtAscii_ = nullptr;
  MarcoDeImagen* marco_ = nullptr;
  QPushButton* cmdMuestra_ = nullptr;
  QLabel* lblMedidas_ = nullptr;
  QWidget* PicAlgoritmos_ = nullptr;
  frmOpcAlgoritmo* opciones_ = nullptr;
  QToolButton* cmdModo_ = nullptr;
  QLabel* lblModo_ = nullptr;
  QCheckBox* chkAsciiPrev_ = nullptr;
  QCheckBox* chkAlMomento_ = nullptr;
  QLabel* panelFuente_ = nullptr;
  QLabel* panelFiglet_ = nullptr;
  QLabel* panelTamaño_ = nullptr;
  QLabel* panelModo_ = nullptr;
  frmPreview* preview_ = nullptr;
  frmEditor* editor_ = nullptr;
  frmFiglet* figlet_ = nullptr;
  frmHistorial* historial_ = nullptr;
  QLabel* lblEnlace_ = nullptr;
  std::function<void()> alSeguirEnlace_;
  QPushButton* cmdCancelar_ = nullptr;
  QShortcut* escape_ = nullptr;
  bool ocupada_ = false;        // a page is being written
  bool cancelada_ = false;      // the user wants it no longer
  bool cerrarDespues_ = false;  // and closed the window
  QElapsedTimer desdeElTexto_;
  Qt::Alignment alineacion_ = Qt::AlignLeft;  // of banners; pictures' texts lie at the left
  int caducadoPor_ = 0;
  UltimoValor regeneracion_;  // a dragged slider costs one text however many values it sent
  MenuDeImagen* imagen_ = nullptr;
};

}  // namespace pixmosa
