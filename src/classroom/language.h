#pragma once

#include <QString>
#include <array>
#include <span>

#include "classroom/findings/mistakes.h"
#include "classroom/pupil.h"

namespace zerimo::classroom {

/// A sentence of a run, with gaps from %1 on, and its translation. What is in a gap may be a sentence, too.
struct Sentence {
  const char* English;
  const char* Own;
};

/// The words of a report in one language; see `Filled` for %1, %2 ... in them. A language is a source that defines
/// one of these, and a row in `FindLanguage`.
struct Language {
  /// As in `lang="en"`.
  const char* Code;

  // How a run went.
  const char* Ended;
  const char* EndedBy;
  const char* Stopped;
  const char* MoreThan;
  const char* SessionIsWrong;
  const char* NotRun;
  const char* Crashed;
  const char* NoProgram;
  const char* InLine;
  const char* InProcedure;
  const char* At;

  // The page.
  const char* Title;
  const char* Limits;
  const char* Seconds;
  const char* Steps;
  const char* Memory;
  const char* NoLimits;
  const char* Partial;
  const char* PartialParts;
  const char* PartialPart;
  const char* EmptyPart;
  const char* MissingParts;
  const char* NoPrograms;
  const char* Overview;
  const char* Pupil;
  const char* Programs;
  const char* HowItWent;
  const char* GoalsHead;
  const char* Boxes;
  const char* Time;
  const char* OrMore;
  const char* NothingSuspicious;
  const char* ContactSheet;
  const char* PrintOne;
  const char* PrintTwelve;
  const char* Filter;
  const char* All;
  const char* BackToOverview;
  const char* RunBySession;
  const char* Typed;
  const char* WentWrong;
  const char* LineNumber;
  const char* Why;
  const char* Program;
  const char* StoppedHere;
  const char* InTheStore;
  const char* ProgramIsCut;
  const char* DrawnBy;
  const char* NoPicture;
  const char* PictureLeftOut;
  const char* PrintedAndSaid;
  const char* LinesLeftOut;
  const char* MoreOnScreen;
  const char* BoxesShown;
  const char* BoxesLeftOut;
  const char* Question;
  const char* FileWindow;
  const char* Nothing;

  // Goals.
  const char* GoalOfCall;
  const char* Met;
  const char* NotMet;
  const char* GoalsNotMet;
  const char* GoalsMet;
  const char* Points;
  const char* GoalPicture;
  const char* PupilsPicture;
  const char* Difference;
  const char* GoalTexts;
  const char* PupilsTexts;
  const char* TextDiffers;
  const char* TextIsMissing;
  const char* TextIsTooMuch;
  const char* TextsLeftOut;
  /// A goal that is not met although all that could be compared is alike.
  const char* TooMuchDrawn;
  const char* NothingPrinted;
  const char* ItIsTheGoal;
  const char* TurnedRight;
  const char* TurnedLeft;
  const char* Mirrored;
  const char* Scaled;
  const char* ShiftedRight;
  const char* ShiftedLeft;
  const char* ShiftedUp;
  const char* ShiftedDown;
  const char* Inexact;
  const char* StrokesAreRight;
  std::array<const char*, StrokeRuleCount> StrokeRules;

  // Programs that are alike.
  const char* AlikeHead;
  const char* AlikePair;

  // Short names, by which the overview can be filtered. Where one is missing, the summary's name is used.
  std::array<const char*, ResultCount> Results;
  std::array<const char*, static_cast<std::size_t>(Mistake::Count)> MistakeNames;

  std::array<const char*, static_cast<std::size_t>(Mistake::Count)> Mistakes;

  /// The notes and messages of runs, with their translations.
  std::span<const Sentence> Sentences;

  QString Of(const Finding& finding) const;
  /// A note or message of a run; as it is if the language has no words for it.
  QString Of(const QString& sentence) const;
  QString NameOf(Mistake mistake) const;
  QString NameOf(Result result) const;
};

extern const Language English;
extern const Language German;

/// By its code, or null.
const Language* FindLanguage(const QString& code);

}  // namespace zerimo::classroom
