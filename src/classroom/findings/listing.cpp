#include "classroom/findings/listing.h"

#include <algorithm>

namespace zerimo::classroom {

namespace {

/// The characters that stand for what is between quotes; no program has them, since it is read byte by byte.
constexpr char16_t FirstQuoted = 0xE000;
constexpr char16_t LastQuoted = 0xF8FF;

/// The words of a body; what is in square brackets is one word.
QStringList WordsOfBody(const QString& body) {
  QStringList words(1);
  int depth = 0;
  for (const QChar character : body) {
    if (character == u'[' && depth++ == 0 && !words.last().isEmpty()) words.append(QString());
    if (character == u' ' && depth == 0) {
      if (!words.last().isEmpty()) words.append(QString());
    } else {
      words.last() += character;
    }
    if (character == u']' && depth > 0) --depth;
  }
  if (words.last().isEmpty()) words.removeLast();
  return words;
}

/// Cut as a reader would: blanks beside a sign cut nothing, except before a minus number.
QStringList InputsIn(QString text) {
  static const QRegularExpression besideSign(" ?([+*/%<>=!]) ?| ?(-) ");
  return text.replace(besideSign, "\\1\\2").split(u' ', Qt::SkipEmptyParts);
}

}  // namespace

QStringList LinesOf(const QString& text) {
  static const QRegularExpression lineEnd("\r\n|\r|\n");
  QStringList lines = text.split(lineEnd);
  if (lines.last().isEmpty()) lines.removeLast();
  return lines;
}

RepeatParts PartsOf(const QString& repeat) {
  const QString count = repeat.section(u' ', 1).section(u'[', 0, 0).trimmed();
  const qsizetype begin = repeat.indexOf(u'[');
  if (begin < 0) return {count, {}, {}};
  int depth = 0;
  for (qsizetype i = begin; i < repeat.size(); ++i) {
    if (repeat[i] == u'[') ++depth;
    if (repeat[i] == u']' && --depth == 0)
      return {count, repeat.mid(begin + 1, i - begin - 1), repeat.mid(i + 1).trimmed()};
  }
  return {count, repeat.mid(begin + 1), {}};
}

bool Statement::IsRemark() const {
  static const QRegularExpression remark("^(?:[*/%<>=!]|[-+#]+ )");
  return remark.match(Text).hasMatch();
}

QStringList Statement::Inputs() const { return InputsIn(Rest()); }

Listing::Listing(const QString& program) : Lines(LinesOf(program)) {
  // A body is taken apart at the names of procedures that may stand below it.
  for (int i = 0; i < Lines.size(); ++i) TakeHead(Lines[i], i + 1);
  std::size_t next = 0;
  for (int i = 0; i < Lines.size(); ++i) {
    const QString line = WithoutQuoted(Lines[i]);
    if (next < Procedures.size() && Procedures[next].Line == i + 1) {
      current_ = static_cast<int>(next++);
    } else if (IsOneOf<StmtEnd>(KnownWord(line))) {
      if (current_ >= 0) Procedures[static_cast<std::size_t>(current_)].HasEnd = true;
      current_ = -1;
    } else if (!line.isEmpty()) {
      TakeStatement(line, i + 1, false);
    }
  }
}

/// The quote of `MAKE "N` is not one of a pair. Of more texts than there are characters, the last ones are one.
QString Listing::WithoutQuoted(QString line) {
  static const QRegularExpression quoted = ExpressionOf("(?<!@ )\"([^\"]*)\"", IsOneOf<StmtMake>);
  qsizetype from = 0;
  for (auto match = quoted.match(line); match.hasMatch(); match = quoted.match(line, from)) {
    if (quoted_.size() <= LastQuoted - FirstQuoted) quoted_.append(match.captured(1));
    const QString stands = u'"' + QString(QChar(static_cast<char16_t>(FirstQuoted + quoted_.size() - 1))) + u'"';
    line.replace(match.capturedStart(), match.capturedLength(), stands);
    from = match.capturedStart() + stands.size();
  }
  return line.simplified();
}

QString Listing::AsWritten(QString text) const {
  for (qsizetype i = text.size() - 1; i >= 0; --i) {
    const char16_t character = text[i].unicode();
    if (character >= FirstQuoted && character <= LastQuoted) text.replace(i, 1, quoted_.value(character - FirstQuoted));
  }
  return text;
}

void Listing::TakeHead(const QString& line, int number) {
  const QStringList words = line.simplified().split(u' ');
  if (words.size() > 1 && IsOneOf<StmtTo>(KnownWord(words[0])))
    Procedures.push_back({words[1], words.mid(2), number, false});
}

void Listing::TakeStatement(const QString& text, int number, bool inBody) {
  Statements.push_back({number, text, inBody, current_, KnownWord(text.section(u' ', 0, 0))});
  if (Statements.back().Is<inputs::Repeat>()) TakeBody(PartsOf(text).Body, number);
}

void Listing::TakeBody(const QString& body, int number) {
  const QStringList names = ProcedureNames();
  QStringList words;
  for (const QString& word : WordsOfBody(body)) {
    const bool isAName = words.size() == 1 && TakesAName(KnownWord(words.first()));
    const bool begins = !isAName && (IsCommand(word) || names.contains(word));
    if (begins && !words.isEmpty()) {
      TakeStatement(words.join(u' '), number, true);
      words.clear();
    }
    words.append(word);
  }
  if (!words.isEmpty()) TakeStatement(words.join(u' '), number, true);
}

QStringList Listing::ProcedureNames() const {
  QStringList names;
  for (const ListedProcedure& each : Procedures) names.append(each.Name);
  return names;
}

const ListedProcedure* Listing::Find(const QString& name) const {
  const auto found = std::ranges::find(Procedures, name, &ListedProcedure::Name);
  return found == Procedures.end() ? nullptr : &*found;
}

bool Listing::Loads() const {
  return std::ranges::any_of(Statements, [](const Statement& each) { return each.Is<"LOAD">(); });
}

QStringList Listing::SumsOf(const Statement& statement) const {
  if (statement.Is<inputs::Repeat>()) return InputsIn(PartsOf(statement.Text).Count);
  const bool isUnknown = statement.Known == nullptr && Find(statement.Word()) == nullptr;
  if (isUnknown || TakesAName(statement.Known) || statement.Is<StmtElse>()) return {};
  const QStringList inputs = statement.Inputs();
  const qsizetype taken = InputsTakenBy(statement).value_or(inputs.size());
  // What MAKE makes is written without a colon.
  return inputs.mid(statement.Is<StmtMake>() ? 1 : 0, taken);
}

std::optional<qsizetype> Listing::InputsTakenBy(const Statement& statement) const {
  if (const ListedProcedure* const procedure = Find(statement.Word())) return procedure->Inputs.size();
  const WordFacts* const word = statement.Known;
  if (word == nullptr || word->Inputs < 0 || TakesAName(word) || IsOneOf<StmtIf>(word)) return std::nullopt;
  return word->Inputs;
}

}  // namespace zerimo::classroom
