#include <QSet>
#include <algorithm>
#include <cmath>

#include "classroom/goal_judge.h"
#include "classroom/order.h"
#include "classroom/page_html.h"
#include "classroom/readable.h"
#include "classroom/words.h"

namespace zerimo::classroom {

namespace {

/// How much of what a program said is printed on paper, where an endless one would fill sheets.
constexpr int LinesOnPaper = 10;
constexpr int CharactersOnPaper = 2000;

/// The beginning of an element that is only on the screen if enough others are on paper.
QString Tag(const char* name, qsizetype index) {
  return u'<' + QLatin1String(name) + QLatin1String(index < LinesOnPaper ? ">" : " class=\"screen\">");
}

/// Writes the section of one run.
class SectionWriter {
 public:
  SectionWriter(const PupilRun& run, std::size_t number, const Language& language, PictureSource& pictures)
      : run_(run), number_(number), language_(language), pictures_(pictures) {}

  QString Write(bool hasOverview) {
    html_ =
        QStringLiteral("<section class=\"pupil\" id=\"p%1\" aria-labelledby=\"h%1\">\n<h2 id=\"h%1\">").arg(number_);
    html_ += EscapedReadable(PupilName(run_.Who)) + QStringLiteral("</h2>\n");
    WriteResult();
    WriteStart();
    WriteFindings();
    WriteGoals();
    WritePicture();
    WriteLines();
    WriteBoxes();
    WriteProgram();
    if (hasOverview)
      html_ += QStringLiteral("<p class=\"screen\"><a href=\"#top\">") + Utf8(language_.BackToOverview) +
               QStringLiteral("</a></p>\n");
    return html_ + QStringLiteral("</section>\n");
  }

 private:
  QString LineId(int line) const { return QStringLiteral("p%1l%2").arg(number_).arg(line); }

  void WriteResult() {
    const QString place = WordsOf(run_.Outcome.Where, language_);
    const QString where = place.isEmpty() ? QString() : QStringLiteral(", ") + Escaped(place);
    html_ += Paragraph(ResultHtml(run_, language_) + where + u' ' +
                       Element("span", "quiet", u'(' + WordsOfSeconds(run_.Seconds, language_) + u')'));
  }

  void WriteStart() {
    if (!run_.Who.Session.empty()) {
      html_ += Element("p", "quiet", Filled(language_.RunBySession, {Escaped(ReadableName(run_.Who.Session))})) + u'\n';
    } else if (!run_.Outcome.Typed.isEmpty()) {
      const QString typed = EscapedReadable(run_.Outcome.Typed.join(QStringLiteral(", ")));
      html_ += Element("p", "quiet", Filled(language_.Typed, {typed})) + u'\n';
    }
  }

  void WriteFindings() {
    if (run_.Outcome.Findings.empty() && run_.Outcome.Notes.isEmpty()) return;
    html_ += Heading(language_.WentWrong) + QStringLiteral("<ul class=\"findings\">\n");
    for (const Finding& finding : run_.Outcome.Findings) WriteFinding(finding);
    for (const QString& note : run_.Outcome.Notes)
      html_ += Element("li", "", EscapedReadable(language_.Of(note))) + u'\n';
    html_ += QStringLiteral("</ul>\n");
  }

  void WriteFinding(const Finding& finding) {
    html_ += QStringLiteral("<li>");
    if (finding.Line > 0)
      html_ += QStringLiteral("<a href=\"#") + LineId(finding.Line) + QStringLiteral("\">") +
               Filled(language_.LineNumber, {QString::number(finding.Line)}) + QStringLiteral("</a>: ");
    html_ += EscapedReadable(language_.Of(finding));
    const QString quirk = Utf8(FactsOf(finding.What).Quirk);
    if (!quirk.isEmpty())
      html_ += QStringLiteral(" <a class=\"why\" rel=\"noreferrer\" href=\"" ZERIMO_QUIRKS "#") + quirk +
               QStringLiteral("\">") + Utf8(language_.Why) + QStringLiteral("</a>");
    html_ += QStringLiteral("</li>\n");
  }

  void WriteGoals() {
    if (run_.Outcome.Goals.empty()) return;
    html_ += Heading(language_.GoalsHead);
    for (std::size_t i = 0; i < run_.Outcome.Goals.size(); ++i) WriteGoal(run_.Outcome.Goals[i], i);
  }

  void WriteGoal(const GoalOutcome& goal, std::size_t index) {
    // Rounded down: only a complete drawing has 100 per cent.
    const QString percent = QString::number(std::floor(goal.Percent)) + QStringLiteral(" %");
    html_ += Paragraph(Element("strong", "", EscapedReadable(TitleOf(goal, language_))) + QStringLiteral(": ") +
                       Element("span", goal.Met ? "good" : "bad", Utf8(goal.Met ? language_.Met : language_.NotMet)) +
                       QStringLiteral(", ") + percent + QStringLiteral(", ") +
                       Filled(language_.Points, {WordOfNumber(goal.Met ? goal.Points : 0, language_),
                                                 WordOfNumber(goal.Points, language_)}));
    const QString words = WordsOf(goal, language_);
    if (!words.isEmpty()) html_ += Paragraph(words);
    if (!goal.Met && words.isEmpty() && goal.Percent == 100) html_ += Paragraph(Utf8(language_.TooMuchDrawn));
    if (goal.Way == GoalWay::Texts) return WriteTexts(goal);
    if (run_.Picture.empty()) return;
    const std::filesystem::path folder = run_.Picture.parent_path();
    html_ += QStringLiteral("<div class=\"goal\">\n");
    AddFigure(folder / run_file::ModelPicture(index), language_.GoalPicture);
    AddFigure(folder / run_file::GoalPicture(index), language_.PupilsPicture);
    AddFigure(folder / run_file::Difference(index), language_.Difference);
    html_ += QStringLiteral("</div>\n");
  }

  /// The lines side by side. Of a program that was killed, none are known.
  void WriteTexts(const GoalOutcome& goal) {
    if (goal.Wanted.isEmpty()) return;
    if (goal.Printed.isEmpty()) html_ += Paragraph(Utf8(language_.NothingPrinted));
    const auto head = [](const char* words) {
      return QStringLiteral("<th scope=\"col\">") + Utf8(words) + QStringLiteral("</th>");
    };
    html_ += QStringLiteral("<table class=\"texts\">\n<thead><tr>") + head(language_.GoalTexts) +
             head(language_.PupilsTexts) + QStringLiteral("</tr></thead>\n<tbody>\n");
    const qsizetype lines = std::max(goal.Wanted.size(), goal.Printed.size());
    for (qsizetype i = 0; i < lines; ++i) {
      const char* const note = NoteOfTexts(goal, i);
      const QString mark =
          *note == '\0' ? QString() : u' ' + Element("strong", "bad", QStringLiteral("\u2190 ") + Utf8(note));
      html_ += Tag("tr", i) + Element("td", "", Element("code", "", EscapedLines(goal.Wanted.value(i)))) +
               Element("td", "", Element("code", "", EscapedLines(goal.Printed.value(i))) + mark) +
               QStringLiteral("</tr>\n");
    }
    html_ += QStringLiteral("</tbody>\n</table>\n");
    if (lines > LinesOnPaper) WritePaperNote();
    if (goal.TextsAreCut) html_ += Paragraph(Filled(language_.TextsLeftOut, {QString::number(MostTexts)}));
  }

  const char* NoteOfTexts(const GoalOutcome& goal, qsizetype line) const {
    if (line >= goal.Printed.size()) return language_.TextIsMissing;
    if (line >= goal.Wanted.size()) return language_.TextIsTooMuch;
    return PlainText(goal.Wanted[line]) == PlainText(goal.Printed[line]) ? "" : language_.TextDiffers;
  }

  void AddFigure(const std::filesystem::path& file, const char* words) {
    constexpr int width = 420;
    const std::optional<QString> image = pictures_.Image(file, Utf8(words), width);
    if (image) html_ += Element("figure", "", *image + Element("figcaption", "", Utf8(words))) + u'\n';
  }

  void WritePicture() {
    const QString alternative = Filled(language_.DrawnBy, {EscapedReadable(PupilName(run_.Who))});
    const std::optional<QString> image = pictures_.Image(run_.Picture, alternative);
    if (image) {
      html_ += *image + u'\n';
    } else {
      html_ += Paragraph(Utf8(pictures_.IsFull() ? language_.PictureLeftOut : language_.NoPicture));
    }
  }

  void WriteLines() {
    const Said& told = run_.Told;
    if (told.Lines.isEmpty()) return;
    html_ += Heading(language_.PrintedAndSaid);
    const QString text = told.Lines.join(u'\n');
    const QString onPaper = text.section(u'\n', 0, LinesOnPaper - 1).left(CharactersOnPaper);
    const QString rest = text.sliced(onPaper.size());
    html_ += QStringLiteral("<pre>\n") + EscapedLines(onPaper);
    if (!rest.isEmpty()) html_ += Element("span", "screen", EscapedLines(rest));
    html_ += QStringLiteral("</pre>\n");
    if (!rest.isEmpty()) WritePaperNote();
    if (told.LinesAreCut) html_ += Paragraph(Utf8(language_.LinesLeftOut));
  }

  void WriteBoxes() {
    const Said& told = run_.Told;
    if (told.Boxes.empty()) return;
    html_ += Heading(language_.BoxesShown) + QStringLiteral("<ul class=\"boxes\">\n");
    for (std::size_t i = 0; i < told.Boxes.size(); ++i) {
      html_ += Tag("li", static_cast<qsizetype>(i));
      WriteBox(told.Boxes[i]);
    }
    html_ += QStringLiteral("</ul>\n");
    if (told.Boxes.size() > LinesOnPaper) WritePaperNote();
    if (told.BoxesAreCut) html_ += Paragraph(Utf8(language_.BoxesLeftOut));
  }

  void WritePaperNote() { html_ += Element("p", "paper", Utf8(language_.MoreOnScreen)) + u'\n'; }

  void WriteBox(const ShownBox& shown) {
    if (!shown.Title.isEmpty()) html_ += Element("span", "title", EscapedLines(shown.Title));
    if (!shown.Text.isEmpty()) html_ += Element("span", "text", EscapedLines(shown.Text));
    html_ += Element("span", "quiet", Escaped(AnswerWords(shown))) + QStringLiteral("</li>\n");
  }

  QString AnswerWords(const ShownBox& shown) const {
    QString answer = shown.Answer.isEmpty() ? Utf8(language_.Nothing) : Readable(shown.Answer);
    if (shown.Kind == "box" && shown.Buttons == shown.Answer) return answer;
    if (shown.Kind == "box") return Readable(shown.Buttons) + QStringLiteral(" \u2192 ") + answer;
    return Utf8(shown.Kind == "input" ? language_.Question : language_.FileWindow) + answer;
  }

  void WriteProgram() {
    if (run_.Outcome.Source.empty()) return;
    html_ += Heading(language_.Program) + QStringLiteral("<ol class=\"program\">\n");
    QSet<int> marked;
    for (const Finding& finding : run_.Outcome.Findings) marked.insert(finding.Line);
    for (std::size_t i = 0; i < run_.Outcome.Source.size(); ++i) {
      const int line = static_cast<int>(i) + 1;
      const bool isStop = line == run_.Outcome.Where.ProgramLine;
      const char* const kind = isStop ? "stop" : marked.contains(line) ? "mark" : "line";
      html_ += QStringLiteral("<li id=\"") + LineId(line) + QStringLiteral("\">") +
               Element("code", kind, EscapedReadable(run_.Outcome.Source[i].Text));
      if (isStop) html_ += u' ' + Element("strong", "bad", QStringLiteral("\u2190 ") + Utf8(language_.StoppedHere));
      html_ += QStringLiteral("</li>\n");
    }
    html_ += QStringLiteral("</ol>\n");
    if (run_.Outcome.SourceIsCut) html_ += Paragraph(Utf8(language_.ProgramIsCut));
    WriteStore();
  }

  void WriteStore() {
    QString rows;
    for (std::size_t i = 0; i < run_.Outcome.Source.size(); ++i) {
      const std::optional<QStringList>& stored = run_.Outcome.Source[i].Stored;
      if (!stored) continue;
      rows += QStringLiteral("<li value=\"%1\">").arg(i + 1) +
              Element("code", "", EscapedReadable(stored->join(QStringLiteral(" / ")))) + QStringLiteral("</li>\n");
    }
    if (rows.isEmpty()) return;
    html_ += QStringLiteral("<details><summary>") + Utf8(language_.InTheStore) + QStringLiteral("</summary>\n") +
             Element("ol", "program", u'\n' + rows) + QStringLiteral("</details>\n");
  }

  const PupilRun& run_;
  std::size_t number_;
  const Language& language_;
  PictureSource& pictures_;
  QString html_;
};

}  // namespace

QString SectionOf(const PupilRun& run, std::size_t number, const Language& language, PictureSource& pictures,
                  bool hasOverview) {
  return SectionWriter(run, number, language, pictures).Write(hasOverview);
}

}  // namespace zerimo::classroom
