// The main window: builds the panels and windows, connects what they say to what has to be shown, and starts
// every generation. What is done to the state is done by the procedures of programa/.
#pragma once

#include <filesystem>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include <QElapsedTimer>
#include <QMainWindow>

#include "effects/Recorte.h"
#include "platform/Escritorio.h"
#include "platform/qt/Menus.h"
#include "platform/qt/QtProgress.h"
#include "platform/qt/UltimoValor.h"
#include "programa/Animacion.h"
#include "programa/Programa.h"

class QCheckBox;
class QLabel;
class QProgressBar;
class QTemporaryDir;
class QPushButton;
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
  void CrearOpciones();
  void CrearEstados();
  void CrearLetreros();

  // --- frmMain_Archivo.cpp: pictures in, text out ---
  void CargarImagen();
  void CargarMuestra();  // and draws it, and from then on at once
  void Pegar();          // a picture, a file of one or its address
  void SeguirCarga(const std::string& warning);
  void ArrastrarImagen();  // out of the window: a file and a picture
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
  // The working picture was changed, by these words.
  void PasoDado(const QString& name, const std::vector<std::string>& words = {});
  void MostrarPasos();
  void IrA(std::size_t step);
  void DeshacerPaso();
  void RehacerPaso();
  void MostrarHistorial();
  void GuardarImagen();
  void RepetirEfecto();
  void Recortar();
  void TerminarRecorte(const Zona& zone);

  // --- frmMain_Recuerdos.cpp: what stays from one run to the next ---
  void RecuperarOpciones();  // before anything is made of them
  void RecuperarVentana();
  void MedidasDePartida();
  void GuardarRecuerdos();
  void CrearRecuerdos();
  void CambiarRecuerdos();
  void ListarRecientes();
  void AnotarReciente(const std::filesystem::path& file);
  void OlvidarReciente(const std::string& file);
  void ValoresDeFabrica();
  void Titular();  // the picture's name, and the mark of a text that is not saved

  // --- frmMain_Recetas.cpp ---
  void CrearRecetas();
  void ListarRecetas();
  void GuardarReceta();
  void AplicarReceta(const std::string& name);

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
  void PonerLetrero(const std::string& banner, const std::string& utf8);
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

  // --- frmMain_Espera.cpp ---
  // Runs work beside the window, whose bar and button appear where it takes longer than a moment, and gives
  // its result. Given up it ends unseen: it owns what it touches, apart from the codec and the text surface.
  // Throws what it throws, and TrabajoCancelado.
  template <typename Work>
  auto Esperar(Work work) {
    auto result = std::make_shared<decltype(work())>();
    EsperarA([result, work] { *result = work(); });
    return std::move(*result);
  }
  struct Espera;
  void EsperarA(const std::function<void()>& work);
  void EsperarMirando(const std::shared_ptr<Espera>& wait, int milliseconds);
  void EsperarAbandonadas();
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
  void Guia();
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
  bool ocupada_ = false;        // a page is being written
  bool cancelada_ = false;      // the user wants it no longer
  bool cerrarDespues_ = false;  // and closed the window
  std::vector<std::shared_ptr<Espera>> abandonadas_;
  QElapsedTimer desdeElTexto_;
  std::unique_ptr<QTemporaryDir> arrastres_;  // files of pictures that were dragged out
  std::vector<std::string> recientes_;        // pictures by path, the newest first
  Qt::Alignment alineacion_ = Qt::AlignLeft;  // of banners; pictures' texts lie at the left
  int caducadoPor_ = 0;
  UltimoValor regeneracion_;  // a dragged slider costs one text however many values it sent
  MenuDeImagen* imagen_ = nullptr;
};

}  // namespace pixmosa
