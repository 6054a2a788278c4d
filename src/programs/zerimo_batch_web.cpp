#include <exception>
#include <filesystem>
#include <iostream>
#include <string>
#include <vector>

#include "batch/batch_session.h"
#include "batch/errors.h"
#include "batch/run_session.h"
#include "web/web_pictures.h"

namespace zerimo::batch {

namespace {

int Main(const std::filesystem::path& program, const std::vector<std::string>& words) {
  Options options;
  CommandLine line(options);
  line.Parse(words);
  if (AnswersQuestion(options, line.HelpText(), ZERIMO_VERSION)) return 0;
  web::WebPictures pictures(program.parent_path() / "font.ttf");
  return RunSession(options, pictures);
}

}  // namespace

}  // namespace zerimo::batch

int main(int argc, char** argv) {
  std::ios::sync_with_stdio(false);
  const std::vector<std::string> words(argv + 1, argv + argc);
  try {
    return zerimo::batch::Main(argv[0], words);
  } catch (const zerimo::batch::UsageError& error) {
    return zerimo::batch::Complain(error.what());
  } catch (const std::exception& error) {
    zerimo::batch::Complain(error.what());
    return static_cast<int>(zerimo::batch::Ending::Failed);
  }
}
