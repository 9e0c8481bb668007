// Draws a vector icon in the sizes that desktops ask for. Run by the build:
//   iconos DRAWING.svg FOLDER SIZE...      writes FOLDER/SIZE.png
#include <iostream>

#include <QCoreApplication>
#include <QDir>
#include <QImageReader>

int main(int argc, char** argv) {
  const QCoreApplication app(argc, argv);
  const QStringList words = QCoreApplication::arguments();
  if (words.size() < 4 || !QDir().mkpath(words[2])) {
    std::cerr << "iconos DIBUJO.svg CARPETA TAMAÑO...\n";
    return 2;
  }
  for (const QString& size : words.mid(3)) {
    QImageReader reader(words[1]);
    reader.setScaledSize({size.toInt(), size.toInt()});
    const QString file = words[2] + "/" + size + ".png";
    if (const QImage icon = reader.read(); icon.isNull() || !icon.save(file)) {
      std::cerr << "No se ha podido dibujar " << file.toStdString() << ".\n";
      return 1;
    }
  }
  return 0;
}
