// Menus and toolbars as tables: a row is an entry, a menu is a list of rows.
#pragma once

#include <functional>
#include <span>

#include <QAction>
#include <QMenu>
#include <QToolBar>

namespace pixmosa {

// One entry. An empty name is a separator.
struct EntradaDeMenu {
  const char* nombre;           // objectName of the action
  const char* texto;            // with "&" before the access key
  const char* icono = nullptr;  // name in the desktop's icon theme and in the packaged icons
  const char* atajo = nullptr;  // "Ctrl+O"
  const char* ayuda = nullptr;  // tool tip and status bar text
};

// The icon of the desktop's theme, or the packaged one of that name.
QIcon Icono(const char* name);

// Appends the rows to a menu; `hacer(row)` is connected to each entry with `context` as its receiver.
template <typename Row, typename Do>
void LlenarMenu(QMenu* menu, std::span<const Row> rows, QObject* context, Do hacer);

// The action of a row, not yet connected.
QAction* AccionDe(const EntradaDeMenu& row, QObject* parent);

template <typename Row, typename Do>
void LlenarMenu(QMenu* menu, std::span<const Row> rows, QObject* context, Do hacer) {
  for (const Row& row : rows) {
    if (!*row.nombre) {
      menu->addSeparator();
      continue;
    }
    QAction* action = AccionDe(row, menu);
    menu->addAction(action);
    QObject::connect(action, &QAction::triggered, context, [hacer, row] { hacer(row); });
  }
}

}  // namespace pixmosa
