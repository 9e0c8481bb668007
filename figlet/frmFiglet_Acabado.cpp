// What is done to the banner: trimming, mirror, frame, comment of a program, colours.
#include <tuple>

#include <QActionGroup>
#include <QMenu>
#include <QSignalBlocker>
#include <QToolButton>

#include "figlet/frmFiglet.h"
#include "platform/qt/Named.h"

namespace pixmosa {

template <typename Choose>
QAction* frmFiglet::Opcion(QMenu* menu, QActionGroup* group, const char* name, const char* text,
                           Choose choose) {
  QAction* entry = menu->addAction(QString::fromUtf8(text));
  entry->setObjectName(name);
  entry->setCheckable(true);
  if (group) {
    group->addAction(entry);
    entry->setChecked(group->actions().size() == 1);
  }
  connect(entry, &QAction::triggered, this, [this, choose](bool checked) {
    choose(checked);
    MostrarAcabado();
    Dibujar();
  });
  return entry;
}

QToolButton* frmFiglet::CrearAcabado() {
  auto* button = named<QToolButton>("cmdAcabado");
  button->setToolTip(QStringLiteral("Recortar, marco, espejo, comentario de código, colores"));
  button->setPopupMode(QToolButton::InstantPopup);
  button->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
  auto* menu = named<QMenu>("mnuAcabado", button);
  Acabado& finish = opciones_.acabado;
  mnuAlinearTexto_ = menu->addAction(QStringLiteral("Alinear en el propio texto"));
  mnuAlinearTexto_->setObjectName("mnuAlinearTexto");
  mnuAlinearTexto_->setCheckable(true);
  connect(mnuAlinearTexto_, &QAction::triggered, this, [this] {
    MostrarAcabado();
    Alinear();
  });
  Opcion(menu, nullptr, "mnuRecortar", "Recortar los blancos de alrededor",
         [&finish](bool checked) { finish.recortar = checked; });
  Opcion(menu, nullptr, "mnuEspejo", "Espejo", [&finish](bool checked) { finish.espejo = checked; });
  CrearMarcos(menu);
  CrearDegradados(menu->addMenu(QStringLiteral("Colores, al exportar")));
  button->setMenu(menu);
  cmdAcabado_ = button;
  MostrarAcabado();
  return button;
}

void frmFiglet::CrearMarcos(QMenu* menu) {
  Acabado& finish = opciones_.acabado;
  QMenu* frames = menu->addMenu(QStringLiteral("Marco"));
  auto* frame = new QActionGroup(frames);
  for (const auto& [value, name, text] : {std::tuple{MarcoDeLetrero::Ninguno, "mnuMarcoNinguno", "Ninguno"},
                                          {MarcoDeLetrero::Linea, "mnuMarcoLinea", "Línea"},
                                          {MarcoDeLetrero::Doble, "mnuMarcoDoble", "Doble"},
                                          {MarcoDeLetrero::Estrellas, "mnuMarcoEstrellas", "Estrellas"}})
    Opcion(frames, frame, name, text, [&finish, v = value](bool) { finish.marco = v; });
  QMenu* comments = menu->addMenu(QStringLiteral("Comentario de código"));
  auto* comment = new QActionGroup(comments);
  for (const auto& [value, name, text] : {std::tuple{Comentario::Ninguno, "mnuComentarioNinguno", "Ninguno"},
                                          {Comentario::C, "mnuComentarioC", "// C, C++, Java, JavaScript"},
                                          {Comentario::Sh, "mnuComentarioSh", "# Python, shell"},
                                          {Comentario::Sql, "mnuComentarioSql", "-- SQL, Lua"},
                                          {Comentario::Bloque, "mnuComentarioBloque", "/* */ C, CSS"}})
    Opcion(comments, comment, name, text, [&finish, v = value](bool) { finish.comentario = v; });
}

void frmFiglet::CrearDegradados(QMenu* menu) {
  std::optional<Degradado>& colours = opciones_.acabado.degradado;
  auto* group = new QActionGroup(menu);
  auto* down = new QAction(QStringLiteral("De arriba abajo"), menu);
  QAction* none =
      Opcion(menu, group, "mnuSinColores", "Ninguno", [&colours](bool) { colours = std::nullopt; });
  Opcion(menu, group, "mnuArcoiris", "Arco iris", [&colours, down](bool) {
    colours = Degradado{kNoColour, kNoColour, true, down->isChecked()};
  });
  auto* two = Opcion(menu, group, "mnuDosColores", "De un color a otro...", [](bool) {});
  connect(two, &QAction::triggered, this, [this, none, down] { PedirColores(none, down); });
  menu->addSeparator();
  down->setObjectName("mnuHaciaAbajo");
  down->setCheckable(true);
  menu->addAction(down);
  connect(down, &QAction::triggered, this, [&colours](bool checked) {
    if (colours) colours->haciaAbajo = checked;
  });
}

void frmFiglet::PedirColores(QAction* none, const QAction* down) {
  Dialogs& dialogs = desktop_.dialogos;
  std::optional<Degradado>& colours = opciones_.acabado.degradado;
  const bool before = colours && !colours->arcoiris;
  const Colour from = dialogs.ChooseColour(before ? colours->desde : Rgb(220, 0, 0));
  const Colour to =
      from == kNoColour ? kNoColour : dialogs.ChooseColour(before ? colours->hasta : Rgb(0, 0, 220));
  if (to != kNoColour) {
    colours = Degradado{from, to, false, down->isChecked()};
  } else if (!before) {
    colours = std::nullopt;
    none->setChecked(true);
  }
  MostrarAcabado();
}

void frmFiglet::MostrarAcabado() {
  const Acabado& f = opciones_.acabado;
  const int set = mnuAlinearTexto_->isChecked() + f.recortar + f.espejo +
                  (f.marco != MarcoDeLetrero::Ninguno) + (f.comentario != Comentario::Ninguno) +
                  f.degradado.has_value();
  cmdAcabado_->setText(set == 0 ? QStringLiteral("Acabado") : QStringLiteral("Acabado (%1)").arg(set));
}

}  // namespace pixmosa
