#include "platform/qt/QtShell.h"

#include <QClipboard>
#include <QDesktopServices>
#include <QFileInfo>
#include <QGuiApplication>
#include <QProcess>
#include <QStandardPaths>
#include <QUrl>

#include "platform/qt/QtText.h"

namespace pixmosa {

bool QtShell::Open(const std::string& fileOrLink) {
  const QString target = Q(fileOrLink);
  const bool link = target.contains("://") || target.startsWith("mailto:");
  return QDesktopServices::openUrl(link ? QUrl(target)
                                        : QUrl::fromLocalFile(QFileInfo(target).absoluteFilePath()));
}

bool QtShell::StartCharacterMap() {
  // The character maps of the common desktops, the system's own names first.
  for (const char* name : {"charmap", "gnome-characters", "gucharmap", "kcharselect"}) {
    const QString program = QStandardPaths::findExecutable(name);
    if (!program.isEmpty() && QProcess::startDetached(program, {})) return true;
  }
  return false;
}

void QtShell::CopyText(std::string_view text) {
  QGuiApplication::clipboard()->setText(QStringOfBytes(text));
}

void QtShell::CopyUtf8(std::string_view utf8) {
  QGuiApplication::clipboard()->setText(Q(utf8));
}

}  // namespace pixmosa
