#include "classroom/report_page.h"

#include <gtest/gtest.h>

#include <QCryptographicHash>
#include <QImage>
#include <QRegularExpression>
#include <QSet>
#include <filesystem>
#include <iterator>

#include "classroom/page_html.h"
#include "classroom/readable.h"
#include "files/temp_folder.h"
#include "hostile_report.h"

namespace zerimo::classroom {
namespace {

/// A picture of one pixel.
const QByteArray OnePixel = QByteArray::fromBase64(
    "iVBORw0KGgoAAAANSUhEUgAAAAEAAAABCAYAAAAfFcSJAAAADUlEQVR42mNk+M9QDwADhgGAWjR9awAAAABJRU5ErkJggg==");

PupilRun RunOf(const char* file) {
  PupilRun run;
  run.Who.Program = file;
  run.Outcome.How = Result::Ended;
  run.Outcome.By = "finished";
  run.Seconds = 0.42;
  return run;
}

QString PageWith(std::vector<PupilRun> runs) {
  Report report;
  report.Folder = "class 5a";
  report.Limits = {10, 1000, 0};
  report.Runs = std::move(runs);
  for (PupilRun& run : report.Runs) run.Limits = *report.Limits;
  return QString::fromUtf8(PageOf(report));
}

/// The matches of the first group.
QStringList AllMatches(const QString& text, const char* pattern) {
  QStringList all;
  for (auto walk = QRegularExpression(pattern).globalMatch(text); walk.hasNext();) all.append(walk.next().captured(1));
  return all;
}

QSet<QString> Set(const QStringList& texts) { return {texts.begin(), texts.end()}; }

/// The page without its style and its script.
QString WithoutStyle(QString page) {
  const auto options = QRegularExpression::DotMatchesEverythingOption;
  return page.remove(
      QRegularExpression("<(style|script)>.*</\\1>", options | QRegularExpression::InvertedGreedinessOption));
}

TEST(ReportPage, HasNoElementButItsOwn) {
  const QString page = WithoutStyle(QString::fromUtf8(PageOf(HostileReport())));
  const QSet<QString> known = {"!DOCTYPE", "html",    "head",    "meta",  "title", "body",   "header",
                               "main",     "h1",      "h2",      "h3",    "br",    "p",      "a",
                               "table",    "thead",   "tr",      "th",    "td",    "tbody",  "div",
                               "section",  "span",    "pre",     "ul",    "li",    "ol",     "code",
                               "strong",   "details", "summary", "input", "label", "figure", "figcaption"};
  EXPECT_EQ(Set(AllMatches(page, "</?([^ >]*)")) - known, QSet<QString>());
}

TEST(ReportPage, HasNoAttributeButItsOwn) {
  QString page = WithoutStyle(QString::fromUtf8(PageOf(HostileReport())));
  QStringList names;
  for (const QString& tag : AllMatches(page, "<([^>]*)>")) {
    QString attributes = tag;
    attributes.remove(QRegularExpression("\"[^\"]*\""));
    names += AllMatches(attributes, " ([^ =]+)");
  }
  const QSet<QString> known = {"html", "lang",       "charset",    "http-equiv",      "content", "name", "id",
                               "href", "class",      "scope",      "aria-labelledby", "type",    "for",  "checked",
                               "rel",  "data-notes", "data-value", "data-label",      "data-all"};
  EXPECT_EQ(Set(names) - known, QSet<QString>());
}

TEST(ReportPage, HostileTextStandsAsText) {
  const QString page = QString::fromUtf8(PageOf(HostileReport()));
  EXPECT_TRUE(page.contains("&lt;script&gt;alert(1)&lt;/script&gt;"));
  EXPECT_TRUE(page.contains("&quot; onload=&quot;&amp;lt;"));
  EXPECT_TRUE(page.contains("[U+202E][U+001B][2J"));
  EXPECT_FALSE(page.contains(u'\x1b'));
  EXPECT_FALSE(page.contains(QChar(0x202e)));
}

TEST(ReportPage, AllowsNothingFromOutsideAndOnlyItsOwnScript) {
  const QString page = QString::fromUtf8(PageOf(HostileReport()));
  const auto hashOf = [&page](const char* pattern) {
    const QString text = AllMatches(page, pattern).value(0);
    return QString::fromLatin1(QCryptographicHash::hash(text.toUtf8(), QCryptographicHash::Sha256).toBase64());
  };
  EXPECT_TRUE(
      page.contains("<meta http-equiv=\"Content-Security-Policy\" content=\"default-src 'none'; img-src data:; "
                    "style-src 'sha256-" +
                    hashOf("(?s)<style>(.*)</style>") + "'; script-src 'sha256-" + hashOf("(?s)<script>(.*)</script>") +
                    "'; base-uri 'none'; form-action 'none'\">"));
  for (const char* outward : {"http://", "https://", "url(", "@import"})
    EXPECT_FALSE(page.contains(outward)) << outward;
}

TEST(ReportPage, LinksFromTheOverviewToEachPupil) {
  const QString page = PageWith({RunOf("ANNA.ZRM"), RunOf("BEN.ZRM")});
  EXPECT_EQ(Set(AllMatches(page, "href=\"#(p[0-9]+)\"")), (QSet<QString>{"p1", "p2"}));
  EXPECT_EQ(AllMatches(page, "<section class=\"pupil\" id=\"(p[0-9]+)\""), (QStringList{"p1", "p2"}));
  EXPECT_TRUE(
      page.contains("<a href=\"#p1\">ANNA.ZRM</a></th><td><span class=\"good\">ended</span></td>"
                    "<td data-value=\"0\"><span class=\"good\">\u2713 nothing suspicious</span></td>"
                    "<td class=\"number\"></td><td class=\"number\">0</td><td class=\"number\">0.4 s</td>"));
  EXPECT_LT(page.indexOf("<h2 id=\"h1\">ANNA.ZRM</h2>"), page.indexOf("<h2 id=\"h2\">BEN.ZRM</h2>"));
}

TEST(ReportPage, HoldsThePicture) {
  const TempFolder disk;
  disk.Write("p.png", OnePixel.toStdString());
  PupilRun run = RunOf("A\"B.ZRM");
  run.Picture = disk.Path / "p.png";
  EXPECT_TRUE(PageWith({run}).contains(
      "<img width=\"1\" height=\"1\" alt=\"Picture drawn by A&quot;B.ZRM\" src=\"data:image/png;base64," +
      QString::fromLatin1(OnePixel.toBase64()) + "\">"));
}

TEST(ReportPage, SaysThatThereIsNoPicture) {
  EXPECT_TRUE(PageWith({RunOf("ANNA.ZRM")}).contains("<p>There is no picture.</p>"));
}

TEST(ReportPage, ShowsWhatWasSaidAndAsked) {
  PupilRun run = RunOf("ANNA.ZRM");
  run.Told.Lines = {"?A", "two\r\nlines"};
  run.Told.Boxes = {
      {"box", "Zerimo", "RIGHT!", "OK", "OK"}, {"box", "", "SURE?", "Yes, No", "No"}, {"input", "", "NAME?", {}, ""}};
  const QString page = PageWith({run});
  EXPECT_TRUE(page.contains("<pre>\n?A\ntwo\nlines</pre>"));
  EXPECT_TRUE(
      page.contains("<li><span class=\"title\">Zerimo</span><span class=\"text\">RIGHT!</span>"
                    "<span class=\"quiet\">OK</span></li>"));
  EXPECT_TRUE(page.contains("<span class=\"quiet\">Yes, No \u2192 No</span>"));
  EXPECT_TRUE(page.contains("<span class=\"quiet\">Question, answered: nothing</span>"));
  EXPECT_FALSE(page.contains("left out"));
}

TEST(ReportPage, SaysWhatIsLeftOut) {
  PupilRun run = RunOf("ANNA.ZRM");
  run.Told.Lines = {"?A"};
  run.Told.LinesAreCut = true;
  run.Told.Boxes = {{"box", "", "B", "OK", "OK"}};
  run.Told.BoxesAreCut = true;
  const QString page = PageWith({run});
  EXPECT_TRUE(page.contains("More was printed; it is left out here."));
  EXPECT_TRUE(page.contains("More boxes were shown; they are left out here."));
  EXPECT_TRUE(page.contains("<td class=\"number\">1 or more</td>"));
}

TEST(ReportPage, LeavesLongOutputOnTheScreen) {
  PupilRun run = RunOf("ANNA.ZRM");
  for (int i = 1; i <= 10; ++i) run.Told.Lines.append("a");
  EXPECT_FALSE(PageWith({run}).contains("<p class=\"paper\">"));
  run.Told.Lines.append("<b>");
  const QString note = "<p class=\"paper\">There is more of it in the report on the screen.</p>";
  QString page = PageWith({run});
  EXPECT_TRUE(page.contains("a<span class=\"screen\">\n&lt;b&gt;</span></pre>\n" + note));
  run.Told.Lines = {QString(3000, 'a')};
  EXPECT_TRUE(
      PageWith({run}).contains('a' + QString("<span class=\"screen\">") + QString(1000, 'a') + "</span></pre>"));
  run.Told.Lines.clear();
  run.Told.Boxes.resize(11);
  page = PageWith({run});
  EXPECT_EQ(page.count("<li class=\"screen\">"), 1);
  EXPECT_TRUE(page.contains(note));
}

TEST(ReportPage, TellsWhereARunWasStopped) {
  PupilRun run = RunOf("ANNA.ZRM");
  run.Outcome.How = Result::Stopped;
  run.Outcome.By = "steps";
  run.Outcome.Where = {2, "SPIN", "SPIN", "GOTO L"};
  run.Outcome.Typed = {"LOAD ANNA", "SPIN"};
  const QString page = PageWith({run});
  EXPECT_TRUE(
      page.contains("<span class=\"bad\">stopped: more than 1000 steps in one line</span>, in line 2 (SPIN), "
                    "in the procedure SPIN at GOTO L"));
  EXPECT_TRUE(page.contains("Typed: LOAD ANNA, SPIN"));
}

TEST(ReportPage, SaysThatAFolderHasNoPrograms) {
  EXPECT_TRUE(PageWith({}).contains("There is no program (.ZRM) in the folder."));
}

TEST(ReportPage, ShowsTheProgramWithItsMistakes) {
  PupilRun run = RunOf("ANNA.ZRM");
  run.Outcome.Source = {{"TO ANNA"}, {"FORWRD <5>"}, {"REPEAT 2 [FD 1]", QStringList{"MAKE # 1", "LABEL $"}}};
  run.Outcome.Findings = {{Mistake::UnknownWord, 2, {"FORWRD", "FORWARD"}}, {Mistake::WithoutEnd, 1, {"ANNA"}}};
  const QString page = PageWith({run});
  EXPECT_TRUE(page.contains("<li id=\"p1l2\"><code class=\"mark\">FORWRD &lt;5&gt;</code></li>"));
  EXPECT_TRUE(
      page.contains("<a href=\"#p1l2\">line 2</a>: Unknown word FORWRD, perhaps FORWARD. The line is ignored."));
  EXPECT_TRUE(page.contains("quirks.html#why-does-nothing-happen-when-i-mistype-a-word\">why</a>"));
  EXPECT_TRUE(page.contains("<li value=\"3\"><code>MAKE # 1 / LABEL $</code></li>"));
  EXPECT_TRUE(page.contains("<span class=\"look\">ended</span>"));
  EXPECT_FALSE(page.contains("nothing suspicious"));
}

TEST(ReportPage, TellsHowAGoalWasMissed) {
  PupilRun run = RunOf("ANNA.ZRM");
  run.Outcome.Goals = {{"STAR 50", GoalWay::Shapes, false, 99.96, 3, Placement{-90, true, 0.5, {}}},
                       {"", GoalWay::Texts, true, 100, 1, {}}};
  const QString page = PageWith({run});
  EXPECT_TRUE(page.contains("<strong>STAR 50</strong>: <span class=\"bad\">not met</span>, 99 %, 0 of 3 points"));
  EXPECT_TRUE(page.contains("It is the goal, but mirrored, turned by 90 degrees to the left, 50 per cent as large."));
  EXPECT_TRUE(page.contains("<span class=\"good\">met</span>, 100 %, 1 of 1 point"));
  EXPECT_TRUE(page.contains("1 of 4 points"));
}

TEST(ReportPage, TellsWhereADrawingIsInstead) {
  PupilRun run = RunOf("ANNA.ZRM");
  run.Outcome.Goals = {{"", GoalWay::Shapes, false, 0, 1, Placement{0, false, 1, {-500, 1000}}},
                       {"", GoalWay::Shapes, false, 0, 1, Placement{0, false, 1, {}}}};
  const QString page = PageWith({run});
  EXPECT_TRUE(page.contains("It is the goal, but shifted by 10 steps to the left, shifted down by 20 steps."));
  EXPECT_TRUE(page.contains("It is the goal, but a little inexact."));
}

TEST(ReportPage, TellsWhyACompleteGoalIsNotMet) {
  PupilRun run = RunOf("ANNA.ZRM");
  run.Outcome.Goals = {{"", GoalWay::Shapes, false, 100, 1}};
  EXPECT_TRUE(PageWith({run}).contains("It drew too much for all of it to be compared."));
}

TEST(ReportPage, OffersGoalsAndNotesInItsFilter) {
  PupilRun anna = RunOf("ANNA.ZRM");
  anna.Outcome.Goals = {{"", GoalWay::Shapes, true, 100, 1}};
  PupilRun ben = RunOf("BEN.ZRM");
  ben.Outcome.Goals = {{"", GoalWay::Shapes, false, 50, 1}};
  ben.Outcome.Notes = {"Every procedure of the program needs inputs."};
  const QString page = PageWith({anna, ben});
  EXPECT_TRUE(page.contains("data-notes=\"ended|nothing suspicious\""));
  EXPECT_TRUE(page.contains("data-notes=\"ended|Every procedure of the program needs inputs.|goals not met\""));
}

TEST(ReportPage, TellsThatOnlyTheWayOfDrawingIsWrong) {
  PupilRun run = RunOf("ANNA.ZRM");
  run.Outcome.Goals = {{"", GoalWay::Shapes, false, 100, 1, {}, {StrokeRule::Order, StrokeRule::Direction}}};
  const QString words = "The strokes are right, but not their order, direction.";
  EXPECT_EQ(PageWith({run}).count(words), 2);
  Report report;
  report.Runs = {run};
  report.Words = FindLanguage("de");
  EXPECT_TRUE(PageOf(report).contains("Die Striche stimmen, aber nicht ihre Reihenfolge, ihre Richtung."));
}

TEST(ReportPage, ShowsTextsSideBySide) {
  PupilRun run = RunOf("ANNA.ZRM");
  GoalOutcome goal{"COUNT", GoalWay::Texts};
  goal.Wanted = {"10", "9", "Go"};
  goal.Printed = {"10", "8 <b>", " GO", "4"};
  run.Outcome.Goals = {goal};
  const auto row = [](const char* wanted, const char* printed) {
    return QStringLiteral("<tr><td><code>%1</code></td><td><code>%2</td></tr>").arg(wanted, printed);
  };
  const auto note = [](const char* words) {
    return QStringLiteral("</code> <strong class=\"bad\">\u2190 %1</strong>").arg(words);
  };
  QString page = PageWith({run});
  EXPECT_TRUE(page.contains("<th scope=\"col\">Goal</th><th scope=\"col\">Printed</th>"));
  EXPECT_TRUE(page.contains(row("10", "10</code>")));
  EXPECT_TRUE(page.contains(row("9", "8 &lt;b&gt;%1").arg(note("differs"))));
  EXPECT_TRUE(page.contains(row("Go", " GO</code>")));
  EXPECT_TRUE(page.contains(row("", "4%1").arg(note("too much"))));
  EXPECT_FALSE(page.contains("The program printed nothing."));
  EXPECT_FALSE(page.contains("Only the first"));
  run.Outcome.Goals[0].Printed.clear();
  run.Outcome.Goals[0].TextsAreCut = true;
  page = PageWith({run});
  EXPECT_TRUE(page.contains("The program printed nothing."));
  EXPECT_TRUE(page.contains(row("Go", "%1").arg(note("missing"))));
  EXPECT_TRUE(page.contains("Only the first 40 lines are shown here."));
}

TEST(ReportPage, WithoutAllGoalsThereIsNoTick) {
  PupilRun run = RunOf("ANNA.ZRM");
  run.Outcome.Goals = {{"STAR 50", GoalWay::Shapes, false, 40, 3, Placement{90, false, 1, {}}},
                       {"", GoalWay::Texts, true, 100, 1, {}}};
  const QString page = PageWith({run});
  EXPECT_FALSE(page.contains("nothing suspicious"));
  EXPECT_TRUE(
      page.contains("Goals met: 1 of 2.<br>STAR 50: It is the goal, but turned by 90 degrees to the right.</td>"));
}

TEST(ReportPage, SaysThatItIsPartial) {
  Report report;
  report.Runs = {RunOf("ANNA.ZRM")};
  report.Wanted = 3;
  EXPECT_TRUE(PageOf(report).contains("This report is partial: the run was interrupted after 1 of 3 programs."));
}

TEST(ReportPage, AnIndexTellsWhatItsPartsLack) {
  Report report;
  report.Wanted = 30;
  report.Partial = {{"2.jsonl", 3, 10}, {"<3>", 0, 0}};
  const QString page = QString::fromUtf8(IndexPage(report, {{"a-1.html", "A", "B", 23, 20, 1}}));
  EXPECT_TRUE(page.contains("This report is partial: it has 23 of 30 programs."));
  EXPECT_TRUE(page.contains("2.jsonl has 3 of 10 programs."));
  EXPECT_TRUE(page.contains("&lt;3&gt; has no program: it was interrupted at once, or had none to run."));
  report.Partial.clear();
  EXPECT_FALSE(QString::fromUtf8(IndexPage(report, {})).contains("partial"));
}

TEST(ReportPage, AnIndexTellsWhichPartsAreMissing) {
  Report report;
  report.Missing = {{{2}, 3}, {{1, 4}, 5}};
  report.Wanted = 9;
  const QString page = QString::fromUtf8(IndexPage(report, {}));
  EXPECT_TRUE(page.contains("This report is partial: it has 0 of 9 programs."));
  EXPECT_TRUE(page.contains("<p class=\"bad\">Part 2 of 3 is missing.</p>"));
  EXPECT_TRUE(page.contains("<p class=\"bad\">Parts 1, 4 of 5 are missing.</p>"));
}

TEST(ReportPage, ChoicesAreOnlyWhereTheyChoose) {
  Report report;
  report.Runs = {RunOf("ANNA.ZRM")};
  const QByteArray radio = "type=\"radio\"";
  EXPECT_TRUE(PageOf(report).contains(radio));
  EXPECT_FALSE(PageOfPupil(report, report.Runs[0]).contains(radio));
  EXPECT_FALSE(IndexPage(report, {}).contains(radio));
  EXPECT_FALSE(IndexPage(report, {}).contains("id=\"filter\""));
}

TEST(ReportPage, LimitsThatDifferAreNotTold) {
  Report report;
  report.Limits = RunLimits{};
  EXPECT_TRUE(PageOf(report).contains("Limits of each program: none."));
  report.Limits.reset();
  EXPECT_FALSE(PageOf(report).contains("Limits"));
}

TEST(ReportPage, SpeaksGerman) {
  Report report;
  report.Runs = {RunOf("ANNA.ZRM")};
  report.Words = FindLanguage("de");
  EXPECT_TRUE(PageOf(report).contains("<html lang=\"de\">"));
  EXPECT_TRUE(PageOf(report).contains("nichts auff\xC3\xA4llig"));
  report.Runs[0].Outcome.How = Result::NotRun;
  report.Runs[0].Outcome.Message = "the program is a folder";
  report.Runs[0].Outcome.Notes = {"BOX needs inputs and was not called: give them in a session.", "another note"};
  report.Runs[0].Outcome.Findings = {{Mistake::UnknownWord, 0, {"X", ""}}};
  EXPECT_TRUE(PageOf(report).contains("data-notes=\"nicht gelaufen|unbekanntes Wort|BOX braucht Eingaben"));
  EXPECT_TRUE(PageOf(report).contains("nicht gelaufen: das "));
  EXPECT_TRUE(PageOf(report).contains("BOX braucht Eingaben und wurde nicht aufgerufen"));
  EXPECT_TRUE(PageOf(report).contains("another note"));
  EXPECT_EQ(FindLanguage("xx"), nullptr);
}

TEST(ReportPage, PicturesThatWouldMakeItTooLargeLieBeside) {
  const TempFolder temp;
  const auto pictureOf = [&temp](const char* name, std::uintmax_t size) {
    temp.Write(name, OnePixel.toStdString());
    std::filesystem::resize_file(temp.Path / name, size);
    PupilRun run = RunOf(name);
    run.Picture = temp.Path / name;
    return run;
  };
  Report report;
  report.Runs = {pictureOf("small.png", 100), pictureOf("large.png", 5000)};
  const QString page = QString::fromUtf8(PageOf(report, PictureSource(temp.Path / "a b.pictures", 4000)));
  EXPECT_LT(page.size(), QString::fromUtf8(PageOf(report)).size());
  EXPECT_TRUE(page.contains("src=\"a%20b.pictures/1.png\""));
  EXPECT_TRUE(page.contains("img-src data: file: 'self';"));
  EXPECT_EQ(std::filesystem::file_size(temp.Path / "a b.pictures/1.png"), 5000U);
  const QString alone = QString::fromUtf8(PageOf(report, PictureSource({}, 4000)));
  EXPECT_LT(alone.count("<img "), page.count("<img "));
  EXPECT_FALSE(alone.contains("a%20b"));
}

/// The picture inside an element of a page.
QImage PictureIn(const QString& element) {
  const QString base64 = AllMatches(element, "base64,([^\"]*)\"").value(0);
  return QImage::fromData(QByteArray::fromBase64(base64.toLatin1()));
}

TEST(PictureSource, ReducesAPictureToTheMeansOfItsParts) {
  const TempFolder temp;
  QImage image(4, 2, QImage::Format_RGB32);
  image.fill(qRgb(10, 20, 30));
  image.setPixel(2, 0, qRgb(250, 120, 70));
  const std::filesystem::path file = temp.Path / "4x2.png";
  image.save(NameOf(file));
  const QImage reduced = PictureIn(PictureSource().Image(file, {}, 2).value_or(QString()));
  ASSERT_EQ(reduced.size(), QSize(2, 1));
  EXPECT_EQ(reduced.pixel(0, 0), qRgb(10, 20, 30));
  EXPECT_EQ(reduced.pixel(1, 0), qRgb(70, 45, 40));
}

#ifdef __linux__

auto ThreadsOfThisProcess() {
  using Entries = std::filesystem::directory_iterator;
  return std::distance(Entries("/proc/self/task"), Entries());
}

TEST(PictureSource, NeedsNoOtherThreadToReduceAPicture) {
  const TempFolder temp;
  QImage image(1024, 640, QImage::Format_RGB32);
  image.fill(Qt::white);
  const std::filesystem::path file = temp.Path / "large.png";
  image.save(NameOf(file));
  const auto before = ThreadsOfThisProcess();
  EXPECT_TRUE(PictureSource().Image(file, {}, 160));
  EXPECT_EQ(ThreadsOfThisProcess(), before);
}

#endif

}  // namespace
}  // namespace zerimo::classroom
