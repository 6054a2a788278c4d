#include "classroom/findings/findings.h"

#include <gtest/gtest.h>

#include <QRegularExpression>
#include <QSet>
#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <ostream>

namespace zerimo::classroom {
namespace {

namespace fs = std::filesystem;

std::string BytesOf(const fs::path& file) {
  std::ifstream stream(file, std::ios::binary);
  return std::string(std::istreambuf_iterator<char>(stream), {});
}

/// "2 unknown word FORWRD FORWARD": the findings as lines.
QStringList ToldOf(const QString& program) {
  QStringList told;
  for (const Finding& each : FindingsIn(program)) {
    QStringList words = {QString::number(each.Line), QString::fromLatin1(FactsOf(each.What).Code)};
    told.append((words + each.Details).join(u' ').trimmed());
  }
  return told;
}

struct Case {
  /// The lines of a program, | for a line end.
  const char* Program;
  QStringList Told;
};

void PrintTo(const Case& one, std::ostream* out) { *out << one.Program; }

class FindingsOf : public testing::TestWithParam<Case> {};

TEST_P(FindingsOf, AreReported) {
  EXPECT_EQ(ToldOf(QString::fromLatin1(GetParam().Program).replace("|", "\r\n")), GetParam().Told);
}

const Case Statements[] = {
    {"TO A|FD 10|BK (-5)|SETXY 10 (-20)|MAKE \"N (-5)|PRINT :N-3|END|", {}},
    {"TO A|FD -5|END|", {"2 minus input FD"}},
    {"TO A|REPEAT 2 [RT 90 FD -5]|END|", {"2 minus input FD"}},
    {"TO A|SETXY 10 -20|END|", {"2 minus second input SETXY"}},
    {"TO A|SUM 10 -20|END|", {"2 minus second input SUM"}},
    {"TO A|MAKE \"N -5|FD :N|END|", {"2 minus make N"}},
    {"TO A|PRINT 3--4|END|", {"2 double minus 3--4"}},
    {"TO A|MAKE \"N (-5)|PRINT 10-:N|PRINT 10+(-1*:N)|PRINT :N-3|END|", {"3 double minus 10-:N"}},
    {"TO A|PRINT 2*7%4|END|", {"2 percent after times 2*7%4"}},
    {"TO A|PRINT (2*7)%4|END|", {}},
    {"TO A|PRINT 2(3+4)|END|", {"2 missing times 2(3+4)"}},
    {"TO A|FD .5|END|", {"2 bare point .5"}},
    {"TO A|FD 0.5|END|", {}},
    {"TO A|IF 2 = 2|FD 1|ENDIF|REPEAT 2 [IF 2 = 2 FD 1 ENDIF]|END|", {"5 blank before equals ="}},
    {"TO A|FD(10)|END|", {"2 no blank after word FD"}},
    {"TO A|MAKE \"T 1/3|FD :T|END|", {"2 rounded third 1/3"}},
    {"TO A|MAKE \"T 1/4|FD :T|END|", {}},
    {"TO A|SETPC 2.5|END|", {"2 half number 2.5"}},
    {"TO A|CIRCLE 0 0 2.5|END|", {"2 whole step 2.5"}},
    {"TO A|FD 100/0|END|", {"2 division by zero 100/0"}},
    {"TO A|SETXY 656 656|END|", {"2 too large 656"}},
    {"TO A|SUM 1 40000|END|", {"2 too large 40000"}},
    {"TO A|PRINT 2E3|END|", {"2 exponent 2E3"}},
    {"TO A|MAKE \"SIDE1 7|END|", {"2 digit in name SIDE1"}},
    {"TO A|MAKE B 5|END|", {"2 make without quote B"}},
    {"TO A :B|IF :B==5|FD 1|ENDIF|END|", {"2 wrong sign =="}},
    {"TO A :B|IF :B<=5|FD 1|ENDIF|IF :B!3|FD 1|ENDIF|END|", {}},
    {"TO A :B|IF 1<:B<5|FD 1|ENDIF|END|", {"2 two comparisons 1<:B<5"}},
    {"TO A :B|IF NOT :B=3|FD 1|ENDIF|END|", {"2 logic word NOT"}},
    {"TO A|LINEWIDTH 3|END|", {"2 long line width 3"}},
    {"TO A|SETPC 20|END|", {"2 colour code 20"}},
    {"TO A|MESSAGE \"HELLO|END|", {"2 open quote \"HELLO"}},
    {"TO A|(SUM 1 2 3|END|", {"2 open sum (SUM 1 2 3"}},
    {"TO A|GETX|END|", {"2 dead word GETX"}},
    {"TO A|SAVE MINE|SOUND 5|SOUND|FULLSCREEN|END|",
     {"2 dead word SAVE MINE", "3 dead word SOUND 5", "5 dead word FULLSCREEN"}},
    {"TO A|IF 1=2|FD 1|ELSE FD 2|ENDIF|END|", {"4 else with more FD 2"}},
    {"TO A|MAKE \"X\" 50|FD :X|END|", {"2 second quote X"}},
    {"TO A|SUM 1 2.5|QUOTIENT 7 0|END|", {"2 half number 2.5", "3 division by zero QUOTIENT 7 0"}},
    {"TO A|PRINT (1000000*1000000*1000000)+1|PRINT (1000*1000)|END|", {"2 exponent 1000000*1000000*1000000"}},
    {"TO A|REPEAT 3 [PRINT #]|END|", {"2 counter used #"}},
};
INSTANTIATE_TEST_SUITE_P(Statements, FindingsOf, testing::ValuesIn(Statements));

const Case Numbers[] = {
    {"TO A|FD 50,5|SETXY 10,20|SETPC 4,5|PRINT 3,5|END|",
     {"2 comma 50,5", "3 comma 10,20", "3 missing inputs SETXY 2 1", "4 comma 4,5", "5 comma 3,5"}},
    {"TO B :S :W|FD :S|RT :W|END|TO A|B 50, 90|REPEAT 4 [FD 50, RT 90]|END|", {"6 comma 50,", "7 comma 50,"}},
    {"TO A|SETPC \"RED|FD \"50|FD \"50\"|REPEAT \"4 [FD 50]|END|",
     {"2 strange sign \"RED \"", "3 strange sign \"50 \"", "4 strange sign \"50\" \"", "5 strange sign \"4 \""}},
    {"TO A|FD 50;|FD [50]|FD {50}|FD '50'|FD $50|FD 50?|FD 5^2|FD 100\\2|FD @50|FD 50!|END|",
     {"2 strange sign 50; ;", "3 strange sign [50] [", "4 strange sign {50} {", "5 strange sign '50' '",
      "6 strange sign $50 $", "7 strange sign 50? ?", "8 strange sign 5^2 ^", "9 strange sign 100\\2 \\",
      "10 strange sign @50 @", "11 strange sign 50! !"}},
    {"TO A :N|FD :50|FD 100:2|FD :N:|FD ::N|FD 2:N|IF :N=5:|FD 1|ENDIF|END|",
     {"2 strange sign :50 :", "3 strange sign 100:2 :", "4 strange sign :N: :", "5 strange sign ::N :",
      "6 missing times 2:N", "7 strange sign :N=5: :"}},
    {"TO A|FD 10+|FD 2*|FD *2|FD 50 %|FD (50|FD 50)|PRINT (3+4|END|",
     {"2 missing number 10+", "3 missing number 2*", "4 missing number *2", "5 missing number 50%", "6 open sum (50",
      "7 strange sign 50) )", "8 open sum (3+4"}},
    {"TO A|FD 50px|FD 2x50|FD l0|FD fifty|END|",
     {"2 unknown name px", "3 unknown name x", "4 unknown name l0", "5 unknown name fifty"}},
    {"TO A|FD 7_5|FD 1.5.2|FD 10**2|FD 10//5|FD 1.5|DRAWMODE 99|DRAWMODE 16|END|",
     {"2 strange sign 7_5 _", "3 strange sign 1.5.2 .", "4 missing number 10**2", "5 missing number 10//5",
      "7 too large 99"}},
    {"TO A :N|FD 2*(:N+1)-3|SETXY (-5) :N/2|IF :N>=3|RT (90-:N)%7|ENDIF|(SUM 1 2 3)|PRINT 3.5|END|", {}},
};
INSTANTIATE_TEST_SUITE_P(Numbers, FindingsOf, testing::ValuesIn(Numbers));

const Case Repeats[] = {
    {"TO A|REPEAT (-4) [FD 1]|END|", {"2 count zero (-4)"}},
    {"TO A|MAKE \"N 40000|REPEAT :N [FD 1]|END|", {"3 count too large :N"}},
    {"TO A|MAKE \"N 2.5|REPEAT :N [FD 1]|END|", {"3 count fraction :N"}},
    {"TO A|MAKE \"N 0|MAKE \"N :N+4|REPEAT :N [FD 1]|END|", {}},
    {"TO A|MAKE \"N 40|REPEAT :N [FD 1]|REPEAT (4)[RT 9]|REPEAT :N + 1 [FD 1]|END|", {}},
    {"TO A|REPEAT 4 [FD 10 REPEAT 3 [RT 30]]|END|", {}},
    {"TO A|REPEAT [FD 1]|END|", {"2 count missing"}},
    {"TO A|REPEAT 0 [FD 1]|END|", {"2 count zero 0"}},
    {"TO A|REPEAT 2.5 [FD 1]|END|", {"2 count fraction 2.5"}},
    {"TO A|REPEAT 40000 [FD 1]|END|", {"2 count too large 40000"}},
    {"TO A :N|REPEAT :N [FD 5 MAKE \"N 4]|END|", {"2 count changed :N", "2 input overwritten :N"}},
    {"TO A|REPEAT 2 [FD 10|END|", {"2 missing bracket"}},
    {"TO A|REPEAT 2 FD 10|END|", {"2 missing bracket"}},
    {"TO A|REPEAT 2 []|END|", {"2 missing bracket"}},
    {"TO A|REPEAT 2 [FD 10]]|END|", {"2 extra bracket"}},
    {"TO A|REPEAT 2 [PRINT 5 FD 10]|END|", {"2 print in repeat PRINT"}},
    {"TO A|REPEAT 2 [FD 10 PRINT 5]|END|", {}},
    {"TO A|  REPEAT 2 [FD 10]|END|", {"2 indented repeat"}},
};
INSTANTIATE_TEST_SUITE_P(Repeats, FindingsOf, testing::ValuesIn(Repeats));

const Case Words[] = {
    {"TO A :N|FD :n|END|TO B|MAKE \"SIDE 5|FD :SIED|END|", {"2 unknown name :n :N", "6 unknown name :SIED :SIDE"}},
    {"TO A|MAKE \"n 5|FD :n|MAKE \"MY_SIDE 5|FD :MY_SIDE|END|", {}},
    {"TO A :S1 :S2|FD :S1|RT :S2|END|", {}},
    {"TO A|FD=50|FD-50|SETX=5|END|",
     {"2 no blank after word FD", "3 no blank after word FD", "4 no blank after word SETX"}},
    {"TO B|END|TO A|4 B|4*B|50|END|", {"4 dead word 4 B", "5 dead word 4*B", "6 dead word 50"}},
    {"TO STAR-1|END|", {"1 name is a sum STAR-1"}},
    {"TO A :N|IF :N 5|FD 1|ENDIF|END|", {"2 blank in sum :N 5"}},
    {"TO A|PRINT|PRINT \"A\"+5|PRINT (\"A\")|MESSAGE \"A\" \"B\"|END|",
     {"2 missing inputs PRINT 1 0", "3 text and more \"A\"+5", "4 text and more (\"A\")",
      "5 text and more \"A\" \"B\""}},
    {"TO A :A|WRITE \"HI\" 20|WRITE \"HI\" :A|PRINT \"HI\" XCOR|WRITERGB \"HI\" 255 0 20 40|PRINT \"HI\"|END|",
     {"2 text and more \"HI\" 20", "3 text and more \"HI\" :A", "4 text and more \"HI\" XCOR",
      "5 text and more \"HI\" 255 0 20 40"}},
    {"TO A :A|PRINT 5 6|PRINT :A :A|PRINT XCOR YCOR|WRITE 3 4|PRINT 3 + 4|PRINT :A -1|PRINT (3+4)*:A|END|",
     {"2 too many inputs PRINT 1 2", "3 too many inputs PRINT 1 2", "4 too many inputs PRINT 1 2",
      "5 too many inputs WRITE 1 2"}},
    {"TO A|WRITERGB \"HELLO\"|WRITERGB \"HELLO,255 0 20 40\"|END|", {"2 missing inputs WRITERGB 5 1"}},
    {"TO A|FORWRD 10|END|", {"2 unknown word FORWRD FORWARD"}},
    {"TO A|FD10|END|", {"2 unknown word FD10 FD 10"}},
    {"TO A|LOAD B|FORWRD 10|SOMETHING|END|", {"3 unknown word FORWRD FORWARD"}},
    {"TO A|FD 10 RGHT 90|REPEAT 2 [FD 10 RGHT 90]|END|", {"2 unknown word RGHT RIGHT", "3 unknown word RGHT RIGHT"}},
    {"TO A|SETCOLOR 4|BACKWARD 20|PEN UP|COLOUR 4|PENCOLOR 4|END|",
     {"2 unknown word SETCOLOR SETPC", "3 unknown word BACKWARD BK", "4 unknown word PEN UP PU",
      "5 unknown word COLOUR SETPC", "6 unknown word PENCOLOR SETPC"}},
    {"TO A|// draws|FD 1|* star|-- more|# remark|//draws|END|",
     {"2 unknown word //", "4 unknown word *", "5 unknown word --", "6 unknown word #", "7 unknown word //draws"}},
    {"TO A|FD \"S RT 90 FD \"S|PRINT \"N IS\" :N|MAKE \"N 1|END|",
     {"2 strange sign \"S RT 90 FD \"S \"", "3 text and more \"N IS\" :N"}},
    {"TO A|fd 10|rt 90|END|", {"2 small letters fd FD"}},
    {"TO house|FD 10|END|", {"1 small letters house HOUSE"}},
    {"TO roof|FD 10|END|TO HOUSE|roof|END|", {}},
    {"TO A|FD 10 RT 90|END|", {"2 several statements RT"}},
    {"TO A|IF 1=1 FD 10 ENDIF|IF 1=1 FD 10|ENDIF|PRINT \"B\" FD 10|LABEL B FD 10|END|",
     {"2 several statements FD", "3 several statements FD", "5 several statements FD", "6 several statements FD"}},
    {"TO A CS|FD 10|END|", {"1 several statements CS"}},
    {"TO A|REPEAT 4 [FD 10 RT 90] BK 5|END|", {"2 several statements BK"}},
    {"TO A|LABEL HOME|FD XCOR|FD XCOR + 5|REPEAT 2 [FD XCOR RT 9]|GOTO HOME|HELP FD|END|", {}},
    {"TO A|FD 10 20|CS 5|END|", {"2 too many inputs FD 1 2", "3 too many inputs CS 0 1"}},
    {"TO A :B|FD :B + 2|IF :B > 2|RT 90 / 2|ENDIF|SETXY 10 -20|END|", {"6 minus second input SETXY"}},
    {"TO A :B|SETXY 1 :B + 2|MAKE \"C :B - 2|REPEAT 2 [FD :B * 2 IF :C > 2 RT 9 ENDIF]|END|",
     {"2 blank in sum :B+2", "3 blank in sum :B-2", "4 blank in sum :B*2", "4 blank in sum :C>2"}},
    {"TO A|PRINT HELLO|MESSAGE \"HELLO\"|END|", {"2 text without quotes HELLO"}},
    {"TO A|SETPC RED|FD 1O0|REPEAT N [FD 1]|END|", {"2 unknown name RED", "3 unknown name O", "4 unknown name N"}},
    {"TO B :S :T|FD :S|RT :T|END|TO A|B 20 -90|REPEAT 2 [B 20 -90]|B 20 (-90)|END|",
     {"6 minus second input B", "7 minus second input B"}},
    {"TO A|(FD 20)|(FD 20|(RT 90)|(GO)|(B)|(XCOR)|(3+4)*2|END|TO B|FD 1|END|",
     {"2 unknown word (FD FD", "3 unknown word (FD FD", "4 unknown word (RT RT", "5 unknown word (GO) FD",
      "6 unknown word (B) B"}},
    {"TO A|MAKE \"N 10|:N=20|:N = 20|N=20|IF :N=20|FD 1|ENDIF|REPEAT 2 [IF :N = 2 FD 1 ENDIF]|END|",
     {"3 dead word :N=20", "4 dead word :N = 20", "5 dead word N=20", "9 blank before equals ="}},
    {"TO A :A|SHOW 5|SHOW \"HELLO\"|SHOW :A|SHOW XCOR|SHOW PAL|SHOW TIME|END|",
     {"2 dead word SHOW 5", "3 dead word SHOW \"HELLO\"", "4 dead word SHOW :A", "5 dead word SHOW XCOR"}},
    {"TO A N|FD N|MAKE \"B :C|END|", {"3 unknown name :C"}},
    {"TO A|FD|END|", {"2 missing inputs FD 1 0"}},
    {"TO A|SETXY 10|END|", {"2 missing inputs SETXY 2 1"}},
    {"TO BOX :S :T|FD :S|RT :T|END|TO A|BOX 5|END|", {"6 missing inputs BOX 2 1"}},
    {"TO A|FD :SIDE|END|", {"2 unknown name :SIDE"}},
    {"TO A :S|FD S|REPEAT 3 [FD S*2 RT 9]|FD :S|END|", {"2 name without colon S", "3 name without colon S"}},
    {"TO A :S|PRINT \"S\"|LABEL S|MAKE \"T :S|FD :T|END|", {}},
    {"TO A|MAKE \"Z 0|PRINT :Z*5+3|END|", {"3 zero vanishes :Z"}},
    {"TO A|MAKE \"Z 0|FD 5*:Z-2|FD 2+5*:Z*3|FD (:Z*2+5)*3|IF 1<:Z/5+3|FD 1|ENDIF|END|",
     {"3 zero vanishes :Z", "4 zero vanishes :Z", "5 zero vanishes :Z", "6 zero vanishes :Z"}},
    {"TO A :W|MAKE \"Z 0|FD :Z*:W|SETX :Z*10|PRINT :Z/5|FD 5*:Z+3|FD (:Z*5)+3|FD :Z*(3+1)|FD 3+:Z*5|END|", {}},
    {"TO TWICE :S|PRINT :S+:S|END|", {"2 input twice :S"}},
    {"TO THRICE :N|PRINT 3*:N|END|TO A|THRICE 2+3|END|", {"5 input without brackets 2+3 :N"}},
    {"TO A :X|MAKE \"X 9|END|", {"2 input overwritten :X"}},
};
INSTANTIATE_TEST_SUITE_P(Words, FindingsOf, testing::ValuesIn(Words));

const Case Programs[] = {
    {"MAKE :SIDE 40|TO A|FD :SIDE|END|", {"1 make at the top :SIDE 40"}},
    {"FD 10|TO A|FD 1|END|RT 90|", {"1 outside procedures FD 10", "5 outside procedures RT 90"}},
    {"TO A|END|TO A|END|", {"3 duplicate procedure A 1"}},
    {"TO A|FD 10|", {"1 without end A"}},
    {"TO POINT :S|FD :S|END|", {"1 name is a word POINT"}},
    {"TO A|FD 1| END |TO B|END|", {}},
    {"TO A|FD 1|TO B|END|TO C|FD 2|", {"1 without end A", "5 without end C"}},
    {"TO A|IF 1=2|FD 10|END|", {"2 if without endif"}},
    {"TO A|IF 1=2|FD 10|ELSE|FD 5|END|", {"2 misplaced else"}},
    {"TO A|IF 1=2|IF 1=1|IF 1=1|FD 1|ENDIF|ELSE|FD 2|ENDIF|ENDIF|END|", {"7 deep else"}},
    {"TO A|IF 1=2|IF 1=1|REPEAT 2 [FD 1]|ELSE|FD 2|ENDIF|ENDIF|END|", {"5 deep else"}},
    {"TO A|IF 1=2|IF 1=1|IF 1=1|FD 1|ELSE|FD 2|ENDIF|ENDIF|ENDIF|END|", {}},
    {"TO A|IF 1=2|IF 1=1|FD 1|ELSE|FD 2|ENDIF|ELSE|FD 3|ENDIF|END|", {}},
    {"TO A|IF 1=1|FD 1|ENDIF|LABEL X|FD 2|END|", {"5 label after endif X"}},
    {"TO A|LABEL X|END|TO B|LABEL X|END|", {"5 duplicate label X 2"}},
    {"TO A|GOTO NOWHERE|END|", {"2 unknown label NOWHERE"}},
    {"TO A|FD 1|IF XCOR<9|A|ENDIF|END|", {}},
    {"TO A|FD 1|IF XCOR<9|A|ENDIF|RT 90|END|", {"4 recursion goes on A"}},
    {"TO A|IF XCOR<9|A|ELSE|IF 1=1|RT 9|ENDIF|HT|ENDIF|END|", {}},
    {"TO A|IF XCOR<9|A|ELSE|HT|ENDIF|RT 9|END|", {"3 recursion goes on A"}},
    {"TO A :N|FD :N|A :N-1|END|", {"3 recursion with input A"}},
    {"TO A|PE|PX|END|", {"3 eraser reversed PX"}},
    {"TO A|PENERASE|PENREVERSE|END|", {"3 eraser reversed PENREVERSE"}},
    {"TO A|PE|SETPC 4|END|", {"3 eraser colour SETPC"}},
    {"TO A|PU|CIRCLE 0 0 30|PD|CIRCLE 0 0 20|END|", {"3 shape with pen up CIRCLE"}},
    {"TO A|FLOODFILL 14|FILL 4|STAMPCIRCLE 9|END|", {"4 empty shapes STAMPCIRCLE"}},
    {"TO A|PRINT \"\xC4\xD6\"|END|", {"2 dropped letters \u00C4\u00D6"}},
    {"TO A|FD\t10|END|", {"2 tab"}},
    {"TO A|END|  |TO B|END|", {"3 blank line"}},
    {"", {"0 empty"}},
    {"TO A\nFD 10\nEND\n", {"0 one line"}},
};
INSTANTIATE_TEST_SUITE_P(Programs, FindingsOf, testing::ValuesIn(Programs));

TEST(Findings, InputsThatATypedLineGivesAreCounted) {
  const QString program = "TO STAIRS\r\nFD 1\r\nEND\r\nTO BOX :A :B\r\nFD :A\r\nRT :B\r\nEND\r\n";
  const std::vector<Finding> expected = {{Mistake::TooManyInputs, 1, {"STAIRS", "0", "1"}},
                                         {Mistake::MissingInputs, 4, {"BOX", "2", "1"}}};
  EXPECT_EQ(FindingsInCalls(program, "CS STAIRS 20 BOX 5"), expected);
  EXPECT_TRUE(FindingsInCalls(program, "LOAD BOX").empty());
  EXPECT_TRUE(FindingsInCalls(program, "HELP BOX CS LOADPICTURE BOX BOX 1 2").empty());
  EXPECT_TRUE(FindingsInCalls(program, "CS STAIRS BOX 5 (5+1)").empty());
}

TEST(Findings, AProgramMayBeTooLong) {
  QString program = "TO A\r\n";
  for (int i = 0; i < 2000; ++i) program += "FD 1\r\n";
  EXPECT_EQ(ToldOf(program + "END\r\n"), QStringList{"2000 too long 2002"});
}

TEST(Findings, NothingIsSuspiciousInTheSamples) {
  int programs = 0;
  for (const fs::directory_entry& entry : fs::directory_iterator(ZERIMO_SOURCE_DIR "/samples")) {
    if (entry.path().extension() != ".ZRM") continue;
    ++programs;
    EXPECT_EQ(ToldOf(QString::fromStdString(BytesOf(entry.path()))), QStringList()) << entry.path();
  }
  EXPECT_EQ(programs, 26);
}

/// One answer of docs/quirks.md.
struct Quirk {
  QString Address;
  /// Its examples as programs. What is typed on rows there is a procedure here.
  QStringList Programs;
};

/// The address of a heading in a page that is made of Markdown.
QString AddressOf(QString heading) {
  static const QRegularExpression dropped("[^\\w\\- ]", QRegularExpression::UseUnicodePropertiesOption);
  return heading.toLower().remove(dropped).replace(u' ', u'-');
}

QString ProgramOf(const QStringList& example) {
  QString written;
  QString typed;
  for (const QString& line : example) {
    if (line.startsWith("    | ")) written += line.mid(6) + "\r\n";
    if (line.startsWith("    ? ")) typed += line.mid(6) + "\r\n";
  }
  return written + "TO EXAMPLE\r\n" + typed + "END\r\n";
}

std::vector<Quirk> Quirks() {
  std::vector<Quirk> quirks;
  QStringList example;
  for (const QString& line : QString::fromStdString(BytesOf(ZERIMO_SOURCE_DIR "/docs/quirks.md")).split(u'\n')) {
    if (line.startsWith("### ")) quirks.push_back({AddressOf(line.mid(4)), {}});
    if (line.startsWith("    ")) {
      example.append(line);
    } else if (!example.isEmpty()) {
      if (!quirks.empty()) quirks.back().Programs.append(ProgramOf(example));
      example.clear();
    }
  }
  return quirks;
}

QSet<QString> AddressesOfQuirks() {
  QSet<QString> addresses;
  for (const Quirk& each : Quirks()) addresses.insert(each.Address);
  return addresses;
}

TEST(Findings, EachLinkLeadsToAQuirk) {
  const QSet<QString> addresses = AddressesOfQuirks() + QSet<QString>{""};
  for (const MistakeFacts& facts : Mistakes()) EXPECT_TRUE(addresses.contains(facts.Quirk)) << facts.Quirk;
}

/// Quirks that no program of a pupil can show, and why.
struct UnseenQuirk {
  const char* Address;
  const char* Why;
};
const UnseenQuirk UnseenQuirks[] = {
    {"why-can-i-not-type-to-square-on-a-row", "about typing: the program is a file"},
    {"why-does-a-repeat-that-has-always-worked-hang-after-a-long-lesson", "each run begins with no names"},
    {"why-does-the-turtles-heading-not-start-again-at-360", "no mistake: the drawing is the same"},
    {"why-is-the-turtles-home-lower-than-the-middle-of-the-picture", "no mistake: the same for everyone"},
    {"why-did-the-pen-colour-that-i-mixed-go-away", "about the bars of the diagnosis panel"},
    {"why-are-my-small-letters-and-blanks-gone", "about typing: a file that is loaded keeps them"},
    {"why-does-everything-hang-after-refresh", "about a button of the diagnosis panel"},
    {"why-did-zerimo-end-when-i-cancelled-f11", "about a key in a help page"},
    {"why-did-zerimo-end-when-i-emptied-the-resolution-box", "about a box of the diagnosis panel"},
    {"why-does-my-typing-land-in-the-box-line-width", "about a box of the diagnosis panel"},
    {"why-does-line-width-show-1-when-lines-are-4-wide", "about a box of the diagnosis panel"},
    {"what-is-new-dir-at-the-mouse", "about the mouse"},
    {"why-is-my-procedure-unknown-although-it-is-in-the-editor", "about the editor's keys: the program is loaded"},
    {"where-is-the-file-that-i-saved-with-an-empty-name", "hidden files are not run"},
};

TEST(Findings, EachQuirkIsFoundOrCanNotBeSeen) {
  QSet<QString> told;
  for (const MistakeFacts& facts : Mistakes()) told.insert(facts.Quirk);
  for (const UnseenQuirk& quirk : UnseenQuirks) {
    EXPECT_FALSE(told.contains(quirk.Address)) << quirk.Address << " is found, so not: " << quirk.Why;
    told.insert(quirk.Address);
  }
  told.remove("");
  EXPECT_EQ(AddressesOfQuirks(), told);
}

/// Quirks that only a run shows: tests/classroom/class_program_test.cpp finds them.
const QSet<QString> SeenInRuns = {
    "why-is-the-old-version-of-my-procedure-used",
    "why-is-part-of-my-drawing-hidden-at-the-start",
    "why-did-setbg-wipe-the-picture",
    "why-does-the-turtle-not-go-up-to-the-fence",
};

/// Whether the example of a quirk has a mistake that leads there.
bool IsFound(const Quirk& quirk) {
  return std::ranges::any_of(quirk.Programs, [&quirk](const QString& program) {
    return std::ranges::any_of(FindingsIn(program),
                               [&quirk](const Finding& each) { return quirk.Address == FactsOf(each.What).Quirk; });
  });
}

TEST(Findings, EachQuirkIsFoundInItsOwnExample) {
  QSet<QString> others = SeenInRuns;
  for (const UnseenQuirk& quirk : UnseenQuirks) others.insert(quirk.Address);
  int found = 0;
  for (const Quirk& quirk : Quirks()) {
    // Some describe a file and have no example.
    if (quirk.Programs.isEmpty() || others.contains(quirk.Address)) continue;
    ++found;
    EXPECT_TRUE(IsFound(quirk)) << quirk.Address.toStdString();
  }
  EXPECT_GE(found, 40);
}

TEST(Findings, EachMistakeHasItsOwnCode) {
  QSet<QString> codes;
  for (const MistakeFacts& facts : Mistakes()) codes.insert(facts.Code);
  EXPECT_EQ(codes.size(), static_cast<qsizetype>(Mistake::Count));
}

}  // namespace
}  // namespace zerimo::classroom
