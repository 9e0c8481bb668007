#include "platform/qt/QtShell.h"

#include <QClipboard>
#include <QDesktopServices>
#include <QFileInfo>
#include <QGuiApplication>
#include <QMimeData>
#include <QProcess>
#include <QStandardPaths>
#include <QUrl>

#include "platform/qt/QtPicture.h"
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

void QtShell::CopyRichText(std::string_view html, std::string_view plain) {
  auto* both = new QMimeData;
  both->setHtml(Q(html));
  both->setText(Q(plain));
  QGuiApplication::clipboard()->setMimeData(both);
}

void QtShell::CopyPicture(const Picture& picture) {
  QGuiApplication::clipboard()->setImage(ImageOf(picture));
}

std::string QtShell::ClipboardUtf8() {
  return QGuiApplication::clipboard()->text().toStdString();
}

}  // namespace pixmosa
