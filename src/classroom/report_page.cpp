#include "classroom/report_page.h"

#include <QCryptographicHash>
#include <QImageReader>
#include <algorithm>
#include <optional>

#include "classroom/process_limits.h"
#include "classroom/readable.h"
#include "classroom/report_style.h"
#include "classroom/words.h"
#include "files/disk_files.h"

namespace zerimo::classroom {

namespace {

/// Bytes of all pictures together. Those that follow are left out.
constexpr std::size_t MostPictureBytes = std::size_t{128} << 20;

/// A text as it may stand in the page, also between quotes.
QString Escaped(const QString& text) { return text.toHtmlEscaped(); }

QString EscapedName(const std::filesystem::path& path) { return Escaped(ReadableName(path)); }

QString EscapedLines(const QString& text) { return Escaped(ReadableLines(text)); }

QString Paragraph(const QString& html) { return QStringLiteral("<p>") + html + QStringLiteral("</p>\n"); }

QString Heading(const char* words) { return QStringLiteral("<h3>%1</h3>\n").arg(QLatin1String(words)); }

QString LimitText(const RunLimits& limits) {
  QStringList parts;
  if (limits.Seconds > 0) parts.append(WordsOfSecondLimit(limits.Seconds));
  if (limits.Steps > 0) parts.append(QStringLiteral("%1 steps in one line").arg(limits.Steps));
  if (limits.Memory > 0 && CanLimitMemory()) parts.append(QStringLiteral("%1 MB of memory").arg(limits.Memory));
  return parts.isEmpty() ? QStringLiteral("none") : parts.join(QStringLiteral(", "));
}

/// Only this style and pictures that are part of the page; no script, no address, no form.
QString ContentPolicy() {
  const QByteArray style(PageStyle);
  const QByteArray hash = QCryptographicHash::hash(style, QCryptographicHash::Sha256).toBase64();
  return QStringLiteral("default-src 'none'; img-src data:; style-src 'sha256-%1'; base-uri 'none'; form-action 'none'")
      .arg(QString::fromLatin1(hash));
}

class PageWriter {
 public:
  explicit PageWriter(const Report& report) : report_(report) {}

  QByteArray Write() {
    WriteHead();
    WriteOverview();
    for (std::size_t i = 0; i < report_.Runs.size(); ++i) WriteRun(report_.Runs[i], i + 1);
    page_ += "</main>\n</body>\n</html>\n";
    return std::move(page_);
  }

 private:
  void Add(const QString& html) { page_ += html.toUtf8(); }

  void WriteHead() {
    Add(QStringLiteral("<!DOCTYPE html>\n<html lang=\"en\">\n<head>\n<meta charset=\"utf-8\">\n"));
    Add(QStringLiteral("<meta http-equiv=\"Content-Security-Policy\" content=\"%1\">\n").arg(ContentPolicy()));
    Add(
        QStringLiteral("<meta name=\"referrer\" content=\"no-referrer\">\n"
                       "<meta name=\"viewport\" content=\"width=device-width, initial-scale=1\">\n"));
    Add(QStringLiteral("<title>") + Title() + QStringLiteral("</title>\n<style>"));
    page_ += PageStyle;
    Add(QStringLiteral("</style>\n</head>\n<body>\n<header>\n<h1 id=\"top\">") + Title() + QStringLiteral("</h1>\n"));
    Add(Paragraph(Escaped(QString(report_.Made).replace(u'T', u' ')) + QStringLiteral(", zerimo-batch ") +
                  Escaped(report_.Version)));
    Add(Paragraph(QStringLiteral("Limits of each program: ") + LimitText(report_.Limits) + u'.'));
    Add(QStringLiteral("</header>\n<main>\n"));
  }

  QString Title() const { return QStringLiteral("Programs of ") + Escaped(Readable(report_.Folder)); }

  void WriteOverview() {
    if (report_.Runs.empty()) return Add(Paragraph(QStringLiteral("There is no program (.ZRM) in the folder.")));
    Add(
        QStringLiteral("<h2>Overview</h2>\n<div class=\"table\">\n<table>\n<thead><tr><th scope=\"col\">Program</th>"
                       "<th scope=\"col\">How it went</th><th scope=\"col\" class=\"number\">Boxes</th>"
                       "<th scope=\"col\" class=\"number\">Time</th></tr></thead>\n<tbody>\n"));
    for (std::size_t i = 0; i < report_.Runs.size(); ++i) WriteRow(report_.Runs[i], i + 1);
    Add(QStringLiteral("</tbody>\n</table>\n</div>\n"));
  }

  void WriteRow(const PupilRun& run, std::size_t number) {
    Add(QStringLiteral("<tr><th scope=\"row\"><a href=\"#p%1\">").arg(number));
    Add(EscapedName(run.Who.Program) + QStringLiteral("</a></th><td>") + ResultText(run));
    for (const QString& note : run.Went.Notes) Add(QStringLiteral("<br>") + Span("quiet", Escaped(Readable(note))));
    Add(QStringLiteral("</td>"));
    const QString more = run.Told.BoxesAreCut ? QStringLiteral(" or more") : QString();
    Add(QStringLiteral("<td class=\"number\">%1%2</td>").arg(run.Told.Boxes.size()).arg(more));
    Add(QStringLiteral("<td class=\"number\">%1</td></tr>\n").arg(WordsOfSeconds(run.Seconds)));
  }

  QString ResultText(const PupilRun& run) const {
    const QLatin1String kind(run.Went.How == Result::Ended ? "good" : "bad");
    return QStringLiteral("<span class=\"%1\">").arg(kind) + Escaped(WordsOf(run.Went, report_.Limits)) +
           QStringLiteral("</span>");
  }

  void WriteRun(const PupilRun& run, std::size_t number) {
    Add(QStringLiteral("<section id=\"p%1\" aria-labelledby=\"h%1\">\n<h2 id=\"h%1\">").arg(number));
    Add(EscapedName(run.Who.Program) + QStringLiteral("</h2>\n"));
    const QString place = WordsOf(run.Went.Where);
    const QString where = place.isEmpty() ? QString() : QStringLiteral(", ") + Escaped(place);
    Add(Paragraph(ResultText(run) + where + QStringLiteral(" <span class=\"quiet\">(") + WordsOfSeconds(run.Seconds) +
                  QStringLiteral(")</span>")));
    WriteStart(run);
    for (const QString& note : run.Went.Notes) Add(Paragraph(Escaped(Readable(note))));
    WritePicture(run);
    WriteLines(run.Told);
    WriteBoxes(run.Told);
    Add(QStringLiteral("<p class=\"screen\"><a href=\"#top\">Back to the overview</a></p>\n</section>\n"));
  }

  void WriteStart(const PupilRun& run) {
    QString words;
    if (!run.Who.Session.empty()) {
      words = QStringLiteral("Run by the session ") + EscapedName(run.Who.Session);
    } else if (!run.Went.Typed.isEmpty()) {
      words = QStringLiteral("Typed: ") + Escaped(Readable(run.Went.Typed.join(QStringLiteral(", "))));
    }
    if (!words.isEmpty()) Add(QStringLiteral("<p class=\"quiet\">") + words + QStringLiteral("</p>\n"));
  }

  void WritePicture(const PupilRun& run) {
    const std::optional<std::string> bytes = run.Picture.empty() ? std::nullopt : BytesOf(run.Picture);
    if (!bytes) return Add(Paragraph(QStringLiteral("There is no picture.")));
    pictureBytes_ += bytes->size();
    if (pictureBytes_ > MostPictureBytes)
      return Add(
          Paragraph(QStringLiteral("The picture is left out: the pictures of the page are too large together.")));
    const QSize size = QImageReader(NameOf(run.Picture)).size();
    Add(QStringLiteral("<img width=\"%1\" height=\"%2\" alt=\"Picture drawn by ").arg(size.width()).arg(size.height()));
    Add(EscapedName(run.Who.Program) + QStringLiteral("\" src=\"data:image/png;base64,"));
    page_ += QByteArray::fromStdString(*bytes).toBase64();
    Add(QStringLiteral("\">\n"));
  }

  void WriteLines(const Said& told) {
    if (told.Lines.isEmpty()) return;
    Add(Heading("Printed and said"));
    Add(QStringLiteral("<pre>\n") + EscapedLines(told.Lines.join(u'\n')) + QStringLiteral("</pre>\n"));
    if (told.LinesAreCut) Add(Paragraph(QStringLiteral("More was printed; it is left out here.")));
  }

  void WriteBoxes(const Said& told) {
    if (told.Boxes.empty()) return;
    Add(Heading("Boxes shown"));
    Add(QStringLiteral("<ul class=\"boxes\">\n"));
    for (const ShownBox& shown : told.Boxes) WriteBox(shown);
    Add(QStringLiteral("</ul>\n"));
    if (told.BoxesAreCut) Add(Paragraph(QStringLiteral("More boxes were shown; they are left out here.")));
  }

  void WriteBox(const ShownBox& shown) {
    Add(QStringLiteral("<li>"));
    if (!shown.Title.isEmpty()) Add(Span("title", EscapedLines(shown.Title)));
    if (!shown.Text.isEmpty()) Add(Span("text", EscapedLines(shown.Text)));
    Add(Span("quiet", Escaped(AnswerWords(shown))));
    Add(QStringLiteral("</li>\n"));
  }

  static QString Span(const char* kind, const QString& html) {
    return QStringLiteral("<span class=\"%1\">").arg(QLatin1String(kind)) + html + QStringLiteral("</span>");
  }

  static QString AnswerWords(const ShownBox& shown) {
    QString answer = shown.Answer.isEmpty() ? QStringLiteral("nothing") : Readable(shown.Answer);
    if (shown.Kind == "box" && shown.Buttons == shown.Answer) return answer;
    if (shown.Kind == "box") return Readable(shown.Buttons) + QStringLiteral(" \u2192 ") + answer;
    if (shown.Kind == "input") return QStringLiteral("Question, answered: ") + answer;
    return QStringLiteral("File window, answered: ") + answer;
  }

  const Report& report_;
  QByteArray page_;
  std::size_t pictureBytes_ = 0;
};

}  // namespace

QByteArray PageOf(const Report& report) { return PageWriter(report).Write(); }

}  // namespace zerimo::classroom
