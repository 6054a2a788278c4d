/// Renders an SVG picture as square PNG pictures: render_icons PICTURE.svg SIDE FILE.png [SIDE FILE.png]...
#include <QCoreApplication>
#include <QImage>
#include <QPainter>
#include <QSvgRenderer>
#include <cstdio>

int main(int argc, char** argv) {
  const QCoreApplication application(argc, argv);
  const QStringList words = QCoreApplication::arguments();
  QSvgRenderer picture;
  if (words.size() < 4 || words.size() % 2 != 0 || !picture.load(words.at(1))) {
    std::fputs("usage: render_icons PICTURE.svg SIDE FILE.png [SIDE FILE.png]...\n", stderr);
    return 1;
  }
  for (qsizetype i = 2; i < words.size(); i += 2) {
    const int side = words.at(i).toInt();
    QImage image(side, side, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    picture.render(&painter);
    painter.end();
    if (image.isNull() || !image.save(words.at(i + 1))) {
      std::fprintf(stderr, "render_icons: %s can't be written\n", qPrintable(words.at(i + 1)));
      return 1;
    }
  }
  return 0;
}
