#include <QBuffer>
#include <QColor>
#include <QXmlStreamWriter>
#include <cmath>
#include <map>

#include "pictures/svg_hatch.h"
#include "pictures/svg_shapes.h"
#include "pictures/text_painter.h"

namespace zerimo {

namespace {

/// Points up to this width are squares.
constexpr int WidestSquare = 3;

/// A thousandth of a pixel is exact enough.
QString Number(double number) { return QString::number(std::round(number * 1000) / 1000, 'g', 12); }

QString Name(QRgb colour) { return QColor::fromRgb(colour).name(); }

bool IsPoint(const WholeLine& line) { return line.X1 == line.X2 && line.Y1 == line.Y2; }

/// Where the middle of a pen is when it is put on a pixel.
double PenMiddle(const SvgPen& pen) { return pen.Width % 2 == 0 ? 0 : 0.5; }

class Writer {
 public:
  Writer(QByteArray& target, QSize pictureSize) : xml_(&target), size_(pictureSize) {}

  void Document(const std::vector<SvgShape>& shapes, QRgb background) {
    xml_.setAutoFormatting(true);
    xml_.setAutoFormattingIndent(1);
    xml_.writeStartDocument();
    xml_.writeStartElement("svg");
    xml_.writeDefaultNamespace("http://www.w3.org/2000/svg");
    xml_.writeNamespace("http://www.w3.org/1999/xlink", "xlink");
    Sized(size_);
    xml_.writeAttribute("viewBox", QString("0 0 %1 %2").arg(size_.width()).arg(size_.height()));
    xml_.writeAttribute("shape-rendering", "crispEdges");
    xml_.writeEmptyElement("rect");
    Sized(size_);
    xml_.writeAttribute("fill", Name(background));
    for (const SvgShape& shape : shapes) std::visit([this](const auto& each) { Write(each); }, shape);
    EndPath();
    xml_.writeEndDocument();
  }

 private:
  void Attribute(const char* name, double number) { xml_.writeAttribute(name, Number(number)); }

  void Sized(QSizeF of) {
    Attribute("width", of.width());
    Attribute("height", of.height());
  }

  void Placed(QPointF at) {
    Attribute("x", at.x());
    Attribute("y", at.y());
  }

  /// Successive lines with the same pen become one path.
  void Write(const svg_shape::Line& line) {
    if (IsPoint(line.Ends)) return WritePoint(line);
    if (!path_.isEmpty() && line.Pen != pathPen_) EndPath();
    const bool goesOn = !path_.isEmpty() && line.Ends.X1 == pathEnd_.x() && line.Ends.Y1 == pathEnd_.y();
    const double middle = PenMiddle(line.Pen);
    if (!goesOn) path_ += QString("M%1 %2").arg(Number(line.Ends.X1 + middle), Number(line.Ends.Y1 + middle));
    path_ += QString("L%1 %2").arg(Number(line.Ends.X2 + middle), Number(line.Ends.Y2 + middle));
    pathPen_ = line.Pen;
    pathEnd_ = QPoint(line.Ends.X2, line.Ends.Y2);
  }

  void EndPath() {
    if (path_.isEmpty()) return;
    xml_.writeEmptyElement("path");
    xml_.writeAttribute("d", path_);
    xml_.writeAttribute("fill", "none");
    Drawn(pathPen_);
    xml_.writeAttribute("stroke-linecap", "round");
    xml_.writeAttribute("stroke-linejoin", "round");
    path_.clear();
  }

  void WritePoint(const svg_shape::Line& line) {
    EndPath();
    const double middle = PenMiddle(line.Pen);
    const QPointF at(line.Ends.X1 + middle, line.Ends.Y1 + middle);
    const double half = line.Pen.Width / 2.0;
    if (line.Pen.Width <= WidestSquare) {
      Rectangle(QRectF(at - QPointF(half, half), at + QPointF(half, half)));
    } else {
      Ellipse(QRectF(at - QPointF(half, half), at + QPointF(half, half)));
    }
    xml_.writeAttribute("fill", Name(line.Pen.Color));
  }

  void Write(const svg_shape::Box& box) {
    WriteClosed(QRectF(box.From.X, box.From.Y, box.To.X - box.From.X + 1, box.To.Y - box.From.Y + 1), box.Pen,
                box.Inside, false);
  }

  void Write(const svg_shape::Ellipse& oval) {
    WriteClosed(QRectF(oval.Centre.X - oval.HalfWidth, oval.Centre.Y - oval.HalfHeight, 2 * oval.HalfWidth + 1,
                       2 * oval.HalfHeight + 1),
                oval.Pen, oval.Inside, true);
  }

  /// The inside of a hatched shape goes below its outline.
  void WriteClosed(const QRectF& bounds, const SvgPen& pen, const SvgInside& inside, bool isEllipse) {
    EndPath();
    const double width = pen.Width;
    const QRectF hollow = bounds.adjusted(width, width, -width, -width);
    if (hollow.width() <= 0 || hollow.height() <= 0) {
      Closed(bounds, isEllipse);
      xml_.writeAttribute("fill", Name(pen.Color));
      return;
    }
    WriteHatch(HatchLines(inside.Style, hollow, isEllipse, size_), inside);
    Closed(bounds.adjusted(width / 2, width / 2, -width / 2, -width / 2), isEllipse);
    xml_.writeAttribute("fill", inside.Style == FillPattern::Solid ? Name(inside.Color) : "none");
    Drawn(pen);
  }

  void WriteHatch(const std::vector<QLineF>& lines, const SvgInside& inside) {
    if (lines.empty()) return;
    QString hatch;
    for (const QLineF& line : lines) {
      hatch += QString("M%1 %2L%3 %4").arg(Number(line.x1()), Number(line.y1()), Number(line.x2()), Number(line.y2()));
    }
    xml_.writeEmptyElement("path");
    xml_.writeAttribute("d", hatch);
    xml_.writeAttribute("fill", "none");
    Drawn({inside.Color, 1});
  }

  void Write(const svg_shape::Text& text) {
    EndPath();
    const TextFont& font = FontOf(text.PointSize);
    xml_.writeStartElement("text");
    Placed({text.At.X, text.At.Y + font.Ascent()});
    xml_.writeAttribute("font-family", "Arial, Liberation Sans, sans-serif");
    Attribute("font-size", text.PointSize * PixelsPerPoint);
    Attribute("textLength", font.WidthOf(text.Characters));
    xml_.writeAttribute("xml:space", "preserve");
    xml_.writeAttribute("fill", Name(text.Color));
    xml_.writeCharacters(PrintableText(text.Characters));
    xml_.writeEndElement();
  }

  void Write(const svg_shape::Patch& patch) {
    EndPath();
    QByteArray bytes;
    QBuffer buffer(&bytes);
    patch.Pixels.save(&buffer, "PNG");
    xml_.writeEmptyElement("image");
    Placed(patch.At);
    Sized(patch.Pixels.size());
    xml_.writeAttribute("image-rendering", "optimizeSpeed");
    xml_.writeAttribute("xlink:href", "data:image/png;base64," + QString::fromLatin1(bytes.toBase64()));
  }

  void Closed(const QRectF& bounds, bool isEllipse) {
    if (isEllipse) {
      Ellipse(bounds);
    } else {
      Rectangle(bounds);
    }
  }

  void Rectangle(const QRectF& bounds) {
    xml_.writeEmptyElement("rect");
    Placed(bounds.topLeft());
    Sized(bounds.size());
  }

  void Ellipse(const QRectF& bounds) {
    xml_.writeEmptyElement("ellipse");
    Attribute("cx", bounds.center().x());
    Attribute("cy", bounds.center().y());
    Attribute("rx", bounds.width() / 2);
    Attribute("ry", bounds.height() / 2);
  }

  void Drawn(const SvgPen& pen) {
    xml_.writeAttribute("stroke", Name(pen.Color));
    Attribute("stroke-width", pen.Width);
  }

  const TextFont& FontOf(double pointSize) { return fonts_.try_emplace(pointSize, pointSize).first->second; }

  QXmlStreamWriter xml_;
  QSize size_;
  /// The path being written, with its pen and the place that it has reached.
  QString path_;
  SvgPen pathPen_;
  QPoint pathEnd_;
  std::map<double, TextFont> fonts_;
};

}  // namespace

QByteArray SvgDocument(const std::vector<SvgShape>& shapes, QSize size, QRgb background) {
  QByteArray document;
  Writer(document, size).Document(shapes, background);
  return document;
}

}  // namespace zerimo
