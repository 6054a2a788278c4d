#include "claims.h"

#include <QJsonArray>
#include <QStringList>
#include <algorithm>
#include <cmath>
#include <regex>
#include <sstream>

#include "claim_words.h"

namespace zerimo::help {

namespace {

constexpr double twipsAcross = 15360;
constexpr double twipsDown = 11520;
constexpr double degreesOfATurn = 180 / 3.1415937;

/// Far more steps than any example that ends needs.
const std::vector<std::string> stepLimit = {"--steps", "20000"};

/// A text that is claimed; a page may give only the beginning of a long one.
struct ClaimedText {
  std::string Text;
  bool IsBeginning = false;

  bool Fits(const std::string& deed) const {
    return IsBeginning ? deed.starts_with(Text) : TrimmedRight(deed) == TrimmedRight(Text);
  }
};

QStringList NumbersInOrder(const QJsonObject& entries) {
  QStringList numbers = entries.keys();
  std::ranges::sort(numbers, {}, [](const QString& number) { return number.toInt(); });
  return numbers;
}

class ClaimCheck {
 public:
  ClaimCheck(const BatchRun& theRun, std::filesystem::path theFolder)
      : run(theRun), deeds(DeedsOf(theRun)), folder(std::move(theFolder)) {}

  std::vector<std::string> BrokenOf(const Example& example) {
    for (const std::string& claim : example.Claims) Check(claim);
    CompareTexts("box", boxes, deeds.Boxes);
    CompareTexts("entry of the history", history, deeds.History);
    CompareTexts("text on the surface", writings, deeds.Writings);
    CompareTexts("picture", pictures, deeds.Pictures);
    if (goesOn != !run.EventsOf("stopped").empty())
      broken.push_back(goesOn ? "it comes to an end" : "it goes on for ever");
    if (waits != deeds.Waits) broken.push_back("the waits differ from those claimed");
    if (drawn != deeds.Drawn) broken.push_back("drawn: " + ToText(deeds.Drawn) + ", claimed: " + ToText(drawn));
    return broken;
  }

 private:
  using Words = const std::smatch&;
  struct Sentence {
    std::regex Form;
    void (ClaimCheck::*Check)(Words);
  };
  static const std::vector<Sentence>& Sentences();

  void Check(const std::string& claim) {
    for (const Sentence& sentence : Sentences()) {
      std::smatch words;
      if (!std::regex_match(claim, words, sentence.Form)) continue;
      const std::size_t before = broken.size();
      (this->*sentence.Check)(words);
      if (broken.size() != before) broken.back() += " (" + claim + ")";
      return;
    }
    broken.push_back("a claim that is not one of the known sentences: " + claim);
  }

  void Expect(bool holds, const std::string& what) {
    if (!holds) broken.push_back(what);
  }

  void CompareTexts(const std::string& what, const std::vector<ClaimedText>& claimed,
                    const std::vector<std::string>& done) {
    for (std::size_t i = 0; i < std::max(claimed.size(), done.size()); ++i) {
      if (i >= claimed.size()) {
        broken.push_back("no claim mentions the " + what + " \"" + done[i] + "\"");
      } else if (i >= done.size()) {
        broken.push_back("there is no " + what + " \"" + claimed[i].Text + "\"");
      } else if (!claimed[i].Fits(done[i])) {
        broken.push_back("the " + what + " is \"" + done[i] + "\" and not \"" + claimed[i].Text + "\"");
      }
    }
  }

  void Draws(Words words) {
    static const std::regex part("(\\d+) (line|circle|oval|box|dot|ellipse|patch)");
    const std::string sentence = words.str();
    for (std::sregex_iterator it(sentence.begin(), sentence.end(), part), end; it != end; ++it)
      drawn[(*it)[2]] += std::stoi((*it)[1]);
  }
  void Writes(Words words) { writings.push_back({words[1]}); }
  void BoxSays(Words words) { boxes.push_back({words[1]}); }
  void BoxBegins(Words words) { boxes.push_back({words[1], true}); }
  void HistoryShows(Words words) { history.push_back({words[1]}); }
  void Waits(Words words) {
    const int times = words[2].matched ? std::stoi(words[2]) : 1;
    waits.insert(waits.end(), static_cast<std::size_t>(times), std::stoi(words[1]));
  }
  void Pictures(Words words) {
    std::istringstream names(words[1]);
    for (std::string name; names >> name;) pictures.push_back({name});
  }

  /// The comparisons check the rest: nothing may happen that no claim mentions.
  void NothingHappens(Words) {
    for (const char* kind : {"surface", "box", "input", "dialog", "sleep", "beep", "caption", "ended"})
      Expect(run.EventsOf(kind).empty(), std::string("an event: ") + kind);
  }
  void GoesOn(Words) { goesOn = true; }

  void Beeps(Words) { Expect(run.EventsOf("beep").size() == 1, "no beep"); }
  void Ends(Words) { Expect(run.EventsOf("ended").size() == 1, "it goes on"); }
  void FileWindow(Words) { Expect(run.EventsOf("dialog").size() == 1, "no dialog"); }
  void FileIsThere(Words words) { Expect(std::filesystem::exists(folder / words[1].str()), "no such file"); }

  void Stands(Words words) {
    const double step = State("Resolution");
    const double x = (State("TurtleX") - twipsAcross / 2) / step;
    const double y = (twipsDown / 2 - State("TurtleY")) / step;
    Expect(IsNear(x, words[1]) && IsNear(y, words[2]), "it stands at " + std::to_string(x) + " " + std::to_string(y));
  }
  void Looks(Words words) {
    const double degrees = State("TurtleDir") * degreesOfATurn;
    Expect(IsNear(degrees, words[1]), "it looks to " + std::to_string(degrees));
  }
  void ControlStringIs(Words words) {
    const std::string path = Dump("state")["CtrlStr"].toString().toStdString();
    Expect(path == words[1], "it is " + path);
  }
  void ProgramIs(Words words) {
    std::string lines;
    for (const QJsonValue& line : Dump("store")["lines"].toArray())
      lines += (lines.empty() ? "" : " / ") + line.toString().toStdString();
    Expect(lines == words[1], "it is " + lines);
  }
  void VariablesAre(Words words) {
    const QJsonObject entries = Dump("variables")["slots"].toObject();
    std::string all;
    for (const QString& number : NumbersInOrder(entries)) {
      const std::string slot = entries[number].toString().toStdString();
      all += (all.empty() ? "" : " / ") + (slot == " " ? "(deleted)" : slot);
    }
    Expect(all == words[1], "they are " + all);
  }
  void StepIs(Words words) { Expect(IsNear(State("Resolution"), words[1]), "another step"); }

  void PenIs(Words words) { ExpectColour("Picture1", "ForeColor", words[1]); }
  void FillIs(Words words) { ExpectColour("Picture1", "FillColor", words[1]); }
  void BackgroundIs(Words words) { ExpectColour("Picture1", "BackColor", words[1]); }
  void LettersAre(Words words) { ExpectColour("Text1(0)", "ForeColor", words[1]); }
  void RowsAre(Words words) { ExpectColour("Text1(0)", "BackColor", words[1]); }
  void PenIsBackground(Words) {
    Expect(Property("Picture1", "ForeColor") == Property("Picture1", "BackColor"), "another colour");
  }
  void NumberIs(Words words) {
    const QString property = QString::fromStdString(NumberPropertyOf(words[1]));
    Expect(IsNear(Property("Picture1", property).toDouble(), words[2]), "another number");
  }

  void Sees(Words words) { ExpectVisible(words[1], true); }
  void DoesNotSee(Words words) { ExpectVisible(words[1], false); }
  void TurtleHidden(Words) { ExpectVisible("the turtle", false); }
  void TurtleSeen(Words) { ExpectVisible("the turtle", true); }
  void HistoryIsEmpty(Words) { Expect(Property("List4", "Items").toArray().isEmpty(), "it is not empty"); }
  void TitleSays(Words words) { Expect(Title() == words[1], "the title line is " + Title()); }
  void TitleBegins(Words words) { Expect(Title().starts_with(words[1].str()), "the title line is " + Title()); }

  void ExpectColour(const char* control, const char* property, const std::string& name) {
    Expect(Property(control, property).toInt() == ColourCalled(name), "another colour");
  }
  void ExpectVisible(const std::string& thing, bool visible) {
    Expect(Property(QString::fromStdString(ControlCalled(thing)), "Visible").toBool(!visible) == visible,
           visible ? "it is hidden" : "it is to be seen");
  }

  std::string Title() const { return Property("Form1", "Caption").toString().toStdString(); }
  double State(const char* field) const { return Dump("state")[field].toDouble(std::nan("")); }
  QJsonObject Dump(const char* what) const {
    for (const QJsonObject& dump : run.EventsOf("dump")) {
      if (dump["what"].toString() == what) return dump;
    }
    return {};
  }
  QJsonValue Property(const QString& control, const QString& property) const {
    for (const QJsonObject& dump : run.EventsOf("dump")) {
      if (dump["name"].toString() == control) return dump[property];
    }
    return {};
  }

  const BatchRun& run;
  const Deeds deeds;
  const std::filesystem::path folder;
  std::vector<ClaimedText> boxes, history, writings, pictures;
  std::vector<int> waits;
  std::map<std::string, int> drawn;
  bool goesOn = false;
  std::vector<std::string> broken;
};

const std::vector<ClaimCheck::Sentence>& ClaimCheck::Sentences() {
  static const std::string number = "(\\d+|\\(-\\d+\\))";
  static const std::vector<Sentence> sentences = {
      {std::regex("It (draws|paints) .*\\."), &ClaimCheck::Draws},
      {std::regex("It writes: (.*)"), &ClaimCheck::Writes},
      {std::regex("A box says: (.*)"), &ClaimCheck::BoxSays},
      {std::regex("A box begins: (.*)"), &ClaimCheck::BoxBegins},
      {std::regex("The text screen shows: (.*)"), &ClaimCheck::HistoryShows},
      {std::regex("It waits (\\d+) milliseconds(?: (\\d+) times)?\\."), &ClaimCheck::Waits},
      {std::regex("The pictures (.*) are shown\\."), &ClaimCheck::Pictures},
      {std::regex("Nothing happens\\."), &ClaimCheck::NothingHappens},
      {std::regex("It goes on for ever\\."), &ClaimCheck::GoesOn},
      {std::regex("The control string is (.*)"), &ClaimCheck::ControlStringIs},
      {std::regex("The program is: (.*)"), &ClaimCheck::ProgramIs},
      {std::regex("The variables are: (.*)"), &ClaimCheck::VariablesAre},
      {std::regex("It beeps\\."), &ClaimCheck::Beeps},
      {std::regex("Zerimo ends\\."), &ClaimCheck::Ends},
      {std::regex("A file window opens\\."), &ClaimCheck::FileWindow},
      {std::regex("The file (.*) is written\\."), &ClaimCheck::FileIsThere},
      {std::regex("The turtle stands at " + number + " " + number + "\\."), &ClaimCheck::Stands},
      {std::regex("The turtle looks to " + number + " degrees\\."), &ClaimCheck::Looks},
      {std::regex("A step is " + number + " units\\."), &ClaimCheck::StepIs},
      {std::regex("The pen colour is that of the background\\."), &ClaimCheck::PenIsBackground},
      {std::regex("The pen colour is (.*)\\."), &ClaimCheck::PenIs},
      {std::regex("The fill colour is (.*)\\."), &ClaimCheck::FillIs},
      {std::regex("The background is (.*)\\."), &ClaimCheck::BackgroundIs},
      {std::regex("The letters on the rows are (.*)\\."), &ClaimCheck::LettersAre},
      {std::regex("The rows are (.*)\\."), &ClaimCheck::RowsAre},
      {std::regex("The (line width|text size|fill style|draw mode) is " + number + "\\."), &ClaimCheck::NumberIs},
      {std::regex("You see (.*)\\."), &ClaimCheck::Sees},
      {std::regex("You do not see (.*)\\."), &ClaimCheck::DoesNotSee},
      {std::regex("The turtle is hidden\\."), &ClaimCheck::TurtleHidden},
      {std::regex("The turtle can be seen\\."), &ClaimCheck::TurtleSeen},
      {std::regex("The text screen is empty\\."), &ClaimCheck::HistoryIsEmpty},
      {std::regex("The title line says: (.*)"), &ClaimCheck::TitleSays},
      {std::regex("The title line begins: (.*)"), &ClaimCheck::TitleBegins},
  };
  return sentences;
}

}  // namespace

std::vector<std::string> BrokenClaims(const Example& example, const BatchRun& run,
                                      const std::filesystem::path& folder) {
  return ClaimCheck(run, folder).BrokenOf(example);
}

std::string ProblemsOf(const Example& example, const std::string& folderName) {
  const WorkFolder folder(ZERIMO_APP_FOLDER, folderName);
  const BatchRun run = RunBatch(folder.Path, SessionOf(example), stepLimit);
  std::vector<std::string> problems = BrokenClaims(example, run, folder.Path);
  const bool isStopped = !run.EventsOf("stopped").empty();
  if (run.ExitStatus != 0 && !isStopped)
    problems.push_back("the exit status is " + std::to_string(run.ExitStatus) + run.Complaint);
  if (problems.empty()) return {};
  return JoinedLines(problems) + "of the example\n" + JoinedLines(example.Edited) + JoinedLines(example.Typed);
}

}  // namespace zerimo::help
