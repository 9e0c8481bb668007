#include "platform/qt/QtDialogs.h"

#include <QApplication>
#include <QColorDialog>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QFontDialog>
#include <QInputDialog>
#include <QMessageBox>
#include <QPushButton>
#include <QStandardPaths>

#include "platform/qt/QtFont.h"
#include "platform/qt/QtText.h"

namespace pixmosa {
namespace {

// The part of a filter's description before its patterns in brackets.
QString Description(const QString& text) {
  const qsizetype bracket = text.indexOf(u" (");
  return bracket < 0 ? text : text.left(bracket);
}

void Show(QWidget* owner, QMessageBox::Icon icon, const std::string& text, const std::string& title,
          const std::string& detail = {}) {
  QMessageBox box(icon, Q(title), Q(text), QMessageBox::Ok, owner);
  box.setTextFormat(Qt::PlainText);
  box.setInformativeText(Q(detail));
  box.button(QMessageBox::Ok)->setText(QStringLiteral("Aceptar"));
  box.exec();
}

}  // namespace

QString QtFilterOf(const std::string& filter) {
  const QStringList parts = Q(filter).split(u'|');
  if (parts.size() < 2) return Q(filter).replace(u';', u' ');
  QStringList filters;
  for (qsizetype i = 0; i + 1 < parts.size(); i += 2)
    filters += Description(parts[i]) + " (" + QString(parts[i + 1]).replace(u';', u' ') + ")";
  return filters.join(";;");
}

QWidget* QtDialogs::Encima() const {
  QWidget* active = QApplication::activeWindow();
  return active && active->isVisible() ? active : owner_.data();
}

QString QtDialogs::Donde() const {
  if (QFileInfo(carpeta_).isDir()) return carpeta_;
  const QString pictures = QStandardPaths::writableLocation(QStandardPaths::PicturesLocation);
  return QFileInfo(pictures).isDir() ? pictures : QDir::homePath();
}

std::string QtDialogs::Elegido(const QString& file) {
  if (!file.isEmpty()) carpeta_ = QFileInfo(file).absolutePath();
  return file.toStdString();
}

std::string QtDialogs::OpenFile(const std::string& title, const std::string& filter) {
  return Elegido(QFileDialog::getOpenFileName(Encima(), Q(title), Donde(), QtFilterOf(filter)));
}

std::vector<std::string> QtDialogs::OpenFiles(const std::string& title, const std::string& filter) {
  std::vector<std::string> files;
  for (const QString& file : QFileDialog::getOpenFileNames(Encima(), Q(title), Donde(), QtFilterOf(filter)))
    files.push_back(Elegido(file));
  return files;
}

std::string QtDialogs::SaveFile(const std::string& title, const std::string& filter,
                                const std::string& defaultExtension, const std::string& proposal) {
  QFileDialog dialog(Encima(), Q(title), Donde(), QtFilterOf(filter));
  dialog.setAcceptMode(QFileDialog::AcceptSave);
  dialog.setDefaultSuffix(Q(defaultExtension));
  if (!proposal.empty()) dialog.selectFile(Q(proposal));
  return dialog.exec() == QDialog::Accepted ? Elegido(dialog.selectedFiles().value(0)) : std::string();
}

std::string QtDialogs::ChooseFolder(const std::string& title) {
  const QString folder = QFileDialog::getExistingDirectory(Encima(), Q(title), Donde());
  if (!folder.isEmpty()) carpeta_ = folder;
  return folder.toStdString();
}

std::optional<std::string> QtDialogs::AskText(const std::string& text, const std::string& title,
                                              const std::string& proposal) {
  bool accepted = false;
  const QString answer =
      QInputDialog::getText(Encima(), Q(title), Q(text), QLineEdit::Normal, Q(proposal), &accepted);
  return accepted ? std::optional(answer.trimmed().toStdString()) : std::nullopt;
}

Colour QtDialogs::ChooseColour(Colour current) {
  const ColourParts c = SplitColour(current);
  const QColor chosen = QColorDialog::getColor(QColor(c.red, c.green, c.blue), Encima());
  return chosen.isValid() ? Rgb(chosen.red(), chosen.green(), chosen.blue()) : kNoColour;
}

std::optional<FontChoice> QtDialogs::ChooseFont(const Font& current) {
  QFont start(FamilyFor(current.name));
  start.setPixelSize(PixelHeight(current));
  bool accepted = false;
  const QFont chosen = QFontDialog::getFont(&accepted, start, Encima());
  if (!accepted) return std::nullopt;
  // Dialogs speak in points of 1/72 inch at 96 dots, which are pixels x 0.75.
  const int pixels = chosen.pixelSize() > 0 ? chosen.pixelSize() : RoundHalfEven(chosen.pointSizeF() / 0.75);
  // The name that the stand-in stands for stays, so that leaving the dialog as it opened changes nothing.
  const bool same = chosen.family() == start.family();
  return FontChoice{same ? current.name : chosen.family().toStdString(), pixels};
}

bool QtDialogs::Ask(const std::string& text, const std::string& title) {
  QMessageBox box(QMessageBox::Information, Q(title), Q(text), QMessageBox::Yes | QMessageBox::No, Encima());
  box.setTextFormat(Qt::PlainText);
  box.button(QMessageBox::Yes)->setText(QStringLiteral("&Sí"));
  box.button(QMessageBox::No)->setText(QStringLiteral("&No"));
  box.setDefaultButton(QMessageBox::Yes);
  return box.exec() == QMessageBox::Yes;
}

Respuesta QtDialogs::AskToSave(const std::string& text, const std::string& title) {
  QMessageBox box(QMessageBox::Question, Q(title), Q(text),
                  QMessageBox::Save | QMessageBox::Discard | QMessageBox::Cancel, Encima());
  box.setTextFormat(Qt::PlainText);
  box.button(QMessageBox::Save)->setText(QStringLiteral("Guardar"));
  box.button(QMessageBox::Discard)->setText(QStringLiteral("Descartar"));
  box.button(QMessageBox::Cancel)->setText(QStringLiteral("Cancelar"));
  box.setDefaultButton(QMessageBox::Save);
  box.setEscapeButton(QMessageBox::Cancel);
  const int answer = box.exec();
  return answer == QMessageBox::Save      ? Respuesta::Guardar
         : answer == QMessageBox::Discard ? Respuesta::Descartar
                                          : Respuesta::Cancelar;
}

void QtDialogs::Inform(const std::string& text, const std::string& title) {
  Show(Encima(), QMessageBox::Information, text, title);
}

void QtDialogs::Fail(const std::string& text, const std::string& title, const std::string& detail) {
  Show(Encima(), QMessageBox::Critical, text, title, detail);
}

}  // namespace pixmosa
