// The menus of the main window as a table.
#include "app/frmMain.h"

namespace pixmosa {

const std::vector<frmMain::Menu>& frmMain::Menus() {
  static constexpr Entrada kSeparador = {{"", ""}, nullptr};
  static const std::vector<Menu> menus = {
      {"mnuArchivo",
       "&Archivo",
       {{{"mnuLoadImage", "&Cargar imagen...", "document-open", "Ctrl+O",
          "Carga una imagen para convertirla"},
         &frmMain::CargarImagen},
        {{"mnuGuardar", "&Guardar el AsciiArt...", "document-save", "Ctrl+S",
          "Guarda el texto en un archivo"},
         &frmMain::GuardarTexto},
        {{"mnuExportar", "&Exportar...", "document-export", "Ctrl+Shift+S",
          "Guarda el dibujo como página web, imagen, vector o texto de terminal, con sus colores"},
         &frmMain::Exportar},
        {{"mnuExportarPelicula", "Exportar pelíc&ula...", "video-x-generic", nullptr,
          "Convierte una imagen animada, o las imágenes de una carpeta, en una película de texto"},
         &frmMain::ExportarPelicula},
        {{"mnuGrabarIni", "Grabar la con&figuración", "document-properties", nullptr,
          "Escribe las opciones y la fuente en KTV.ini"},
         &frmMain::GrabarIni},
        kSeparador,
        {{"mnuSalir", "&Salir", "application-exit", "Ctrl+Q", "Cierra el programa"}, &frmMain::Salir}}},
      {"mnuAsciiArt",
       "As&ciiArt",
       {{{"mnuPlay", "&Generar", "media-playback-start", "F5", "Convierte la imagen según el modo elegido"},
         &frmMain::Play},
        {{"mnuPreviewAsciiArt", "&Vista previa", "zoom-fit-best", "F6",
          "Muestra el texto en una ventana grande"},
         &frmMain::ShowPreview},
        {{"mnuClipboard", "&Copiar en el portapapeles", "edit-copy", "Ctrl+Shift+C",
          "Copia el último dibujo generado"},
         &frmMain::CopiarTexto},
        kSeparador,
        {{"mnuAnimArtDirectorio", "Animación de una car&peta...", "video-x-generic", nullptr,
          "Crea una página que muestra en orden las imágenes de una carpeta"},
         &frmMain::AnimArtDirectorio}}},
      {"mnuFuentes",
       "&Fuentes",
       {{{"mnuFontsChange", "Cambiar la &fuente...", "preferences-desktop-font", "Ctrl+T",
          "Elige la fuente con la que se mide y se muestra el dibujo"},
         &frmMain::ChangeFontFromDialog},
        {{"mnuFixedFonts", "Fuentes de &ancho fijo...", nullptr, nullptr,
          "Lista las fuentes de ancho fijo del sistema"},
         &frmMain::MostrarFuentesFijas},
        {{"mnuCharMap", "&Mapa de caracteres", "accessories-character-map", nullptr,
          "Abre el mapa de caracteres del sistema"},
         &frmMain::MapaDeCaracteres}}},
      {"mnuHerramientas",
       "&Herramientas",
       {{{"mnuEditor", "Abrir el AsciiArt en un editor", "accessories-text-editor", "Ctrl+E",
          "Retoca el dibujo carácter a carácter"},
         &frmMain::AbrirEditor},
        {{"mnuEstadisticas", "E&stadísticas", "view-statistics", "Ctrl+I",
          "Cuenta los caracteres del dibujo"},
         &frmMain::MostrarEstadisticas},
        {{"mnuSistema", "&Configuración de aplicaciones del sistema", "preferences-system", nullptr,
          "Muestra cómo se ven los textos en el bloc de notas y en el navegador"},
         &frmMain::MostrarSistema}}},
      {"mnuVer",
       "&Ver",
       {{{"mnuImagePreview", "&Imagen a tamaño real", "image-x-generic", "F7",
          "Muestra la imagen entera en otra ventana"},
         &frmMain::MostrarImagenCompleta},
        {{"mnuComparar", "&Comparar conversiones...", "view-split-left-right", "F8",
          "Muestra la imagen junto a lo que hacen de ella dos conversiones, y cuánto se parecen"},
         &frmMain::Comparar}}},
      {"mnuAyuda",
       "A&yuda",
       {{{"mnuAcercaDe", "&Acerca de Pixmosa", "help-about", "F1", "Qué es este programa y quién lo hace"},
         &frmMain::AcercaDe}}},
  };
  return menus;
}

const std::vector<frmMain::Entrada>& frmMain::CopiarComo() {
  static const std::vector<Entrada> entries = {
      {{"mnuCopiarComoTexto", "&Texto", "edit-copy", nullptr, "Copia el texto tal como se ve"},
       &frmMain::CopiarComoTexto},
      {{"mnuCopiarConFormato", "Texto con &formato", "edit-copy", "Ctrl+Alt+C",
        "Copia el dibujo con su fuente y sus colores, para procesadores de texto y correos"},
       &frmMain::CopiarConFormato},
      {{"mnuCopiarComoImagen", "&Imagen", "image-x-generic", "Ctrl+Alt+I", "Copia una imagen del dibujo"},
       &frmMain::CopiarComoImagen},
  };
  return entries;
}

}  // namespace pixmosa
