#include <benchmark/benchmark.h>

#include <limits>
#include <string>
#include <vector>

#include "ratio_reporter.h"
#include "side_by_side/side.h"

namespace zerimo {

namespace {

/// A typed line that runs long, and the program that it needs.
struct Work {
  const char* Name;
  const char* Line;
  std::vector<std::string> Program;
};

/// Each shows one derived form at work.
const std::vector<Work> AllWork = {
    {"class and action of a line", "REPEAT 1000 [PU]", {}},
    {"slot of a MAKE, plain number", "REPEAT 1000 [MAKE \"N 5]", {}},
    {"formula with a name", "REPEAT 1000 [MAKE \"N :N+1]", {}},
    {"formula of constants", "REPEAT 1000 [MAKE \"N (2+3)*(4-1)/(7-2)]", {}},
    {"formula with decimals", "REPEAT 1000 [MAKE \"N :N/3+1]", {}},
    {"input of a word", "REPEAT 1000 [RT 1+2]", {}},
    {"place in an expression", "REPEAT 1000 [MAKE \"N XCOR+1]", {}},
    {"branches of an IF", "REPEAT 1000 [IF 1>2 PU ELSE PD ENDIF]", {}},
    {"labels", "COUNT", {"TO COUNT", "MAKE \"N 0", "LABEL L", "MAKE \"N :N+1", "IF :N<1000", "GOTO L", "ENDIF", "END"}},
    {"call, one input", "REPEAT 1000 [P 5]", {"TO P :X", "END"}},
    {"call, input read", "REPEAT 1000 [P 5]", {"TO P :X", "MAKE \"N :X+1", "END"}},
    {"figure and surface line", "REPEAT 1000 [FD 1 RT 1]", {}},
};

template <typename Kinds>
void TypedLine(benchmark::State& state, const Work& work) {
  Side<Kinds> side;
  int number = 1;
  for (const std::string& line : work.Program) side.interpreter.store.SetLine(number++, line);
  for (auto round : state) {
    std::string line = work.Line;
    side.watch.Begin(std::numeric_limits<int>::max());
    side.interpreter.typedLines.ComplexExecutor(line);
  }
}

void RegisterAll() {
  for (const Work& work : AllWork) {
    benchmark::RegisterBenchmark((std::string("ours/") + work.Name).c_str(), TypedLine<Present>, work);
    benchmark::RegisterBenchmark((std::string("plain/") + work.Name).c_str(), TypedLine<Literal>, work);
  }
}

}  // namespace

}  // namespace zerimo

int main(int argc, char** argv) {
  benchmark::Initialize(&argc, argv);
  zerimo::RegisterAll();
  zerimo::RatioReporter reporter;
  benchmark::RunSpecifiedBenchmarks(&reporter);
  return 0;
}
