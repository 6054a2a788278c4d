#include "classroom/report_page.h"

#include <QCryptographicHash>
#include <algorithm>
#include <cmath>
#include <utility>

#include "batch/memory_limit.h"
#include "classroom/page_html.h"
#include "classroom/page_script.h"
#include "classroom/readable.h"
#include "classroom/report_style.h"
#include "classroom/words.h"

namespace zerimo::classroom {

namespace {

constexpr int ThumbnailWidth = 160;
constexpr int SheetWidth = 320;

QString LimitText(const RunLimits& limits, const Language& language) {
  QStringList parts;
  if (limits.Seconds > 0) parts.append(WordsOfSecondLimit(limits.Seconds, language));
  if (limits.Steps > 0) parts.append(WordsOfStepLimit(limits.Steps, language));
  if (limits.Memory > 0 && batch::MemoryLimit::IsThere()) parts.append(WordsOfMemoryLimit(limits.Memory, language));
  return parts.isEmpty() ? Utf8(language.NoLimits) : parts.join(QStringLiteral(", "));
}

QString HashOf(const char* text) {
  const QByteArray hash = QCryptographicHash::hash(QByteArray(text), QCryptographicHash::Sha256).toBase64();
  return QStringLiteral("'sha256-") + QString::fromLatin1(hash) + u'\'';
}

/// Only this style, this script and pictures that are part of the page; no address, no form.
QString ContentPolicy(bool hasPicturesBeside) {
  const QString pictures = hasPicturesBeside ? QStringLiteral("data: file: 'self'") : QStringLiteral("data:");
  return QStringLiteral("default-src 'none'; img-src ") + pictures + QStringLiteral("; style-src ") +
         HashOf(PageStyle) + QStringLiteral("; script-src ") + HashOf(PageScript) +
         QStringLiteral("; base-uri 'none'; form-action 'none'");
}

class PageWriter {
 public:
  explicit PageWriter(const Report& report, PictureSource pictures = PictureSource())
      : report_(report), language_(*report.Words), pictures_(std::move(pictures)) {}

  QByteArray Write() {
    WriteHead(Filled(language_.Title, {EscapedReadable(report_.Folder)}), true);
    WriteTask();
    if (report_.Runs.size() < report_.Wanted) Add(Warning(language_.Partial, report_.Runs.size(), report_.Wanted));
    WriteOverview();
    WriteSheet();
    WriteAlike();
    for (std::size_t i = 0; i < report_.Runs.size(); ++i)
      Add(SectionOf(report_.Runs[i], i + 1, language_, pictures_, true));
    return Finished();
  }

  QByteArray WriteIndex(const std::vector<IndexEntry>& entries) {
    WriteHead(Filled(language_.Title, {EscapedReadable(report_.Folder)}));
    const auto head = [](const char* words) { return Element("th", "", Utf8(words)); };
    WritePartial(entries);
    Add(QStringLiteral("<div class=\"overview\">\n<table id=\"index\">\n<thead><tr>") + head(language_.Pupil) +
        head(language_.Programs) + head(language_.Ended) + head(language_.WentWrong) +
        QStringLiteral("</tr></thead>\n<tbody>\n"));
    for (const IndexEntry& entry : entries) {
      Add(QStringLiteral("<tr><td><a href=\"") + Escaped(entry.File) + QStringLiteral("\">") +
          EscapedReadable(entry.First) + QStringLiteral(" \u2013 ") + EscapedReadable(entry.Last) +
          QStringLiteral("</a></td>"));
      for (const std::size_t number : {entry.Programs, entry.Ended, entry.Suspicious})
        Add(Element("td", "number", QString::number(number)));
      Add(QStringLiteral("</tr>\n"));
    }
    Add(QStringLiteral("</tbody>\n</table>\n</div>\n"));
    WriteAlike();
    return Finished();
  }

  QByteArray WriteAlone(const PupilRun& run) {
    WriteHead(EscapedReadable(PupilName(run.Who)));
    WriteTask();
    Add(SectionOf(run, 1, language_, pictures_, false));
    return Finished();
  }

 private:
  void Add(const QString& html) { page_ += html.toUtf8(); }

  QByteArray Finished() {
    const QString policy = ContentPolicy(pictures_.HasPicturesBeside());
    page_.insert(policyAt_,
                 QStringLiteral("<meta http-equiv=\"Content-Security-Policy\" content=\"%1\">\n").arg(policy).toUtf8());
    page_ += "</main>\n<script>";
    page_ += PageScript;
    page_ += "</script>\n</body>\n</html>\n";
    return std::move(page_);
  }

  /// Only a page with a sheet of all pictures can be printed in two ways.
  void WriteHead(const QString& title, bool hasSheet = false) {
    Add(QStringLiteral("<!DOCTYPE html>\n<html lang=\"%1\">\n<head>\n<meta charset=\"utf-8\">\n")
            .arg(Utf8(language_.Code)));
    policyAt_ = page_.size();
    Add(
        QStringLiteral("<meta name=\"referrer\" content=\"no-referrer\">\n"
                       "<meta name=\"viewport\" content=\"width=device-width, initial-scale=1\">\n"));
    Add(QStringLiteral("<title>") + title + QStringLiteral("</title>\n<style>"));
    page_ += PageStyle;
    Add(QStringLiteral("</style>\n</head>\n<body>\n<header>\n<h1 id=\"top\">") + title + QStringLiteral("</h1>\n"));
    Add(Paragraph(Escaped(QString(report_.Made).replace(u'T', u' ')) + QStringLiteral(", zerimo-batch ") +
                  Escaped(report_.Version)));
    if (report_.Limits) Add(Paragraph(Filled(language_.Limits, {LimitText(*report_.Limits, language_)})));
    Add(QStringLiteral("</header>\n"));
    if (hasSheet) WritePrintChoice();
    Add(QStringLiteral("<main>\n"));
  }

  void WritePrintChoice() {
    const auto choice = [this](const char* id, const char* words, const char* checked) {
      Add(QStringLiteral("<input class=\"print-choice\" type=\"radio\" name=\"print\" id=\"%1\"%2>"
                         "<label class=\"print-choice\" for=\"%1\">%3</label>\n")
              .arg(QLatin1String(id), QLatin1String(checked), Utf8(words)));
    };
    choice("print-one", language_.PrintOne, " checked");
    choice("print-twelve", language_.PrintTwelve, "");
  }

  static QString Warning(const char* words, std::size_t programs, std::size_t wanted, const QString& part = {}) {
    return Element("p", "bad",
                   Filled(words, {QString::number(programs), QString::number(wanted), EscapedReadable(part)})) +
           u'\n';
  }

  void WritePartial(const std::vector<IndexEntry>& entries) {
    if (!report_.IsOfTornParts()) return;
    std::size_t programs = 0;
    for (const IndexEntry& entry : entries) programs += entry.Programs;
    Add(Warning(language_.PartialParts, programs, report_.Wanted));
    for (const MissingParts& missing : report_.Missing)
      Add(Element("p", "bad", Filled(language_.MissingParts, ValuesOf(missing))) + u'\n');
    for (const PartialPart& part : report_.Partial)
      Add(Warning(part.Wanted == 0 ? language_.EmptyPart : language_.PartialPart, part.Programs, part.Wanted,
                  part.Name));
  }

  void WriteTask() {
    if (!report_.TaskTitle.isEmpty()) Add(Element("h2", "", EscapedReadable(report_.TaskTitle)) + u'\n');
    if (!report_.TaskWords.isEmpty()) Add(Element("div", "task", EscapedLines(report_.TaskWords)) + u'\n');
  }

  void WriteOverview() {
    if (report_.Runs.empty()) return Add(Paragraph(Utf8(language_.NoPrograms)));
    const auto head = [](const char* words, const char* kind = "text") {
      return QStringLiteral("<th scope=\"col\" class=\"%1\">%2</th>").arg(QLatin1String(kind), Utf8(words));
    };
    Add(QStringLiteral("<div class=\"overview\">\n") + Element("h2", "", Utf8(language_.Overview)));
    Add(QStringLiteral("\n<div id=\"filter\" class=\"screen\" data-label=\"%1\" data-all=\"%2\"></div>\n")
            .arg(Utf8(language_.Filter), Utf8(language_.All)));
    Add(QStringLiteral("<div class=\"table\">\n<table id=\"overview\">\n<thead><tr>") + head(language_.Pupil) +
        head(language_.HowItWent) + head(language_.WentWrong) + head(language_.GoalsHead, "number") +
        head(language_.Boxes, "number") + head(language_.Time, "number") + QStringLiteral("</tr></thead>\n<tbody>\n"));
    for (std::size_t i = 0; i < report_.Runs.size(); ++i) WriteRow(report_.Runs[i], i + 1);
    Add(QStringLiteral("</tbody>\n</table>\n</div>\n</div>\n"));
  }

  /// The notes of a run, as the filter offers them.
  QString NotesOf(const PupilRun& run) const {
    QStringList notes = {language_.NameOf(run.Outcome.How)};
    for (const Finding& finding : run.Outcome.Findings) notes.append(language_.NameOf(finding.What));
    for (const QString& note : run.Outcome.Notes) notes.append(language_.Of(note));
    if (run.GoalsMet() != run.Outcome.Goals.size()) notes.append(Utf8(language_.GoalsNotMet));
    if (!run.IsSuspicious()) notes.append(Utf8(language_.NothingSuspicious));
    notes.removeDuplicates();
    return notes.join(u'|');
  }

  void WriteRow(const PupilRun& run, std::size_t number) {
    Add(QStringLiteral("<tr data-notes=\"") + EscapedReadable(NotesOf(run)) +
        QStringLiteral("\"><th scope=\"row\"><a href=\"#p%1\">").arg(number));
    Add(EscapedReadable(PupilName(run.Who)) + QStringLiteral("</a>"));
    if (const auto image = pictures_.Image(run.Picture, {}, ThumbnailWidth)) Add(QStringLiteral("<br>") + *image);
    Add(QStringLiteral("</th>") + Element("td", "", ResultHtml(run, language_)) + NotesCell(run));
    Add(GoalsCell(run));
    const QString more = run.Told.BoxesAreCut ? Utf8(language_.OrMore) : QString();
    Add(Element("td", "number", QString::number(run.Told.Boxes.size()) + more));
    Add(Element("td", "number", WordsOfSeconds(run.Seconds, language_)) + QStringLiteral("</tr>\n"));
  }

  QString NotesCell(const PupilRun& run) const {
    QStringList notes;
    for (const Finding& finding : run.Outcome.Findings) {
      const QString line = finding.Line == 0 ? QString() : QString::number(finding.Line) + QStringLiteral(": ");
      notes.append(line + EscapedReadable(language_.Of(finding)));
    }
    for (const QString& note : run.Outcome.Notes) notes.append(EscapedReadable(language_.Of(note)));
    AddGoalNotes(run, notes);
    const QString words = run.IsSuspicious()
                              ? notes.join(QStringLiteral("<br>"))
                              : Element("span", "good", QStringLiteral("\u2713 ") + Utf8(language_.NothingSuspicious));
    return QStringLiteral("<td data-value=\"%1\">").arg(notes.size()) + words + QStringLiteral("</td>");
  }

  void AddGoalNotes(const PupilRun& run, QStringList& notes) const {
    const std::vector<GoalOutcome>& goals = run.Outcome.Goals;
    if (run.GoalsMet() == goals.size()) return;
    notes.append(Filled(language_.GoalsMet, {QString::number(run.GoalsMet()), QString::number(goals.size())}));
    const auto near =
        std::ranges::find_if(goals, [this](const GoalOutcome& goal) { return !WordsOf(goal, language_).isEmpty(); });
    if (near == goals.end()) return;
    const QString title = goals.size() == 1 ? QString() : TitleOf(*near, language_) + QStringLiteral(": ");
    notes.append(EscapedReadable(title) + WordsOf(*near, language_));
  }

  QString GoalsCell(const PupilRun& run) const {
    if (run.Outcome.Goals.empty()) return Element("td", "number", {});
    double percent = 0;
    for (const GoalOutcome& goal : run.Outcome.Goals) percent += goal.Percent;
    percent = std::floor(percent / static_cast<double>(run.Outcome.Goals.size()));
    const double points = PointsOf(run);
    const char* const kind = points == MostPointsOf(run) ? "good" : "bad";
    return QStringLiteral("<td class=\"number\" data-value=\"%1\">").arg(points) +
           Element("span", kind,
                   Filled(language_.Points,
                          {WordOfNumber(points, language_), WordOfNumber(MostPointsOf(run), language_)})) +
           QStringLiteral("<br>%1 %</td>").arg(percent);
  }

  void WriteSheet() {
    if (report_.Runs.empty()) return;
    Add(QStringLiteral("<div class=\"contact\">\n") + Element("h2", "", Utf8(language_.ContactSheet)) +
        QStringLiteral("\n<div class=\"sheet\">\n"));
    for (std::size_t i = 0; i < report_.Runs.size(); ++i) {
      const PupilRun& run = report_.Runs[i];
      const QString name =
          QStringLiteral("<a href=\"#p%1\">").arg(i + 1) + EscapedReadable(PupilName(run.Who)) + QStringLiteral("</a>");
      const QString image = pictures_.Image(run.Picture, {}, SheetWidth).value_or(QString());
      Add(Element("figure", "", image + Element("figcaption", "", name)) + u'\n');
    }
    Add(QStringLiteral("</div>\n</div>\n"));
  }

  void WriteAlike() {
    if (report_.Alike.empty()) return;
    Add(QStringLiteral("<div class=\"overview\">\n") + Element("h2", "", Utf8(language_.AlikeHead)) + u'\n');
    for (const AlikePrograms& pair : report_.Alike) {
      const auto link = [](const PupilLink& pupil) {
        return QStringLiteral("<a href=\"") + Escaped(pupil.Address) + QStringLiteral("\">") +
               EscapedReadable(pupil.Name) + QStringLiteral("</a>");
      };
      Add(QStringLiteral("<details><summary>") +
          Filled(language_.AlikePair, {link(pair.One), link(pair.Other), QString::number(std::floor(pair.Percent))}) +
          QStringLiteral("</summary>\n") + SideBySide(pair) + QStringLiteral("</details>\n"));
    }
    Add(QStringLiteral("</div>\n"));
  }

  /// The lines that two programs have in common, with their numbers in both.
  static QString SideBySide(const AlikePrograms& pair) {
    const auto cells = [](int number, const QString& text) {
      return Element("td", "number", QString::number(number)) +
             Element("td", "", Element("code", "", EscapedReadable(text)));
    };
    const auto head = [](const PupilLink& pupil) {
      return QStringLiteral("<th colspan=\"2\">") + EscapedReadable(pupil.Name) + QStringLiteral("</th>");
    };
    QString rows = Element("tr", "", head(pair.One) + head(pair.Other)) + u'\n';
    for (const SharedLine& line : pair.Lines)
      rows += Element("tr", "", cells(line.Number, line.Text) + cells(line.OtherNumber, line.OtherText)) + u'\n';
    return Element("div", "table", Element("table", "", u'\n' + rows)) + u'\n';
  }

  const Report& report_;
  const Language& language_;
  PictureSource pictures_;
  QByteArray page_;
  /// Which pictures the page has is known only at its end.
  qsizetype policyAt_ = 0;
};

}  // namespace

QByteArray PageOf(const Report& report, PictureSource pictures) {
  return PageWriter(report, std::move(pictures)).Write();
}

QByteArray IndexPage(const Report& report, const std::vector<IndexEntry>& entries) {
  return PageWriter(report).WriteIndex(entries);
}

QByteArray PageOfPupil(const Report& report, const PupilRun& run) { return PageWriter(report).WriteAlone(run); }

}  // namespace zerimo::classroom
