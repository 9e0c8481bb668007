#include "platform/qt/Menus.h"

#include <QIcon>

// The packaged icons are linked in from a library; this makes the linker keep them. The macro wants no
// namespace.
static void AbrirIconos() {
  Q_INIT_RESOURCE(icons);
}

namespace pixmosa {

QIcon Icono(const char* name) {
  static const bool opened = (AbrirIconos(), true);
  static_cast<void>(opened);
  const QString n = QString::fromLatin1(name);
  return QIcon::fromTheme(n, QIcon(":/icons/" + n + ".svg"));
}

QAction* AccionDe(const EntradaDeMenu& row, QObject* parent) {
  auto* action = new QAction(QString::fromUtf8(row.texto), parent);
  action->setObjectName(QString::fromUtf8(row.nombre));
  if (row.icono) action->setIcon(Icono(row.icono));
  if (row.atajo) action->setShortcut(QKeySequence(QString::fromLatin1(row.atajo)));
  if (row.ayuda) {
    action->setToolTip(QString::fromUtf8(row.ayuda));
    action->setStatusTip(QString::fromUtf8(row.ayuda));
  }
  return action;
}

}  // namespace pixmosa
