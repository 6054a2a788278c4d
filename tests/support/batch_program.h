#pragma once

#include <sys/wait.h>
#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
#include <string>

namespace zerimo {

inline std::string BytesOf(const std::filesystem::path& file) {
  std::ifstream stream(file, std::ios::binary);
  return std::string(std::istreambuf_iterator<char>(stream), {});
}

/// The results of a run of the program.
struct ProgramRun {
  int Status = -1;
  std::string Output;
  std::string Errors;
};

/// Runs the batch runner in a folder of its own, which is removed with it.
class BatchProgram {
 public:
  explicit BatchProgram(std::filesystem::path program) : executable(std::move(program)) {
    std::string name = (std::filesystem::temp_directory_path() / "zerimo-XXXXXX").string();
    if (mkdtemp(name.data()) == nullptr) std::abort();
    outside = name;
    std::filesystem::create_directory(Folder());
  }
  ~BatchProgram() { std::filesystem::remove_all(outside); }
  BatchProgram(const BatchProgram&) = delete;
  BatchProgram& operator=(const BatchProgram&) = delete;

  std::filesystem::path Folder() const { return outside / "folder"; }

  void Write(const std::string& name, const std::string& bytes) const {
    std::ofstream(Folder() / name, std::ios::binary) << bytes;
  }
  std::string Read(const std::string& name) const { return BytesOf(Folder() / name); }

  /// What the program's environment has besides that of the tests. No value holds a quote.
  std::map<std::string, std::string> Environment;

  /// `arguments` are words of the shell; `input` is what the program reads.
  ProgramRun Run(const std::string& arguments, const std::string& input = {}) const {
    std::ofstream(outside / "input", std::ios::binary) << input;
    std::string command = "cd '" + Folder().string() + "' && env ";
    for (const auto& [name, value] : Environment) command += name + "='" + value + "' ";
    command += "'" + executable.string() + "' " + arguments + " <../input >../output 2>../errors";
    const int result = std::system(command.c_str());
    return {WIFEXITED(result) ? WEXITSTATUS(result) : -1, BytesOf(outside / "output"), BytesOf(outside / "errors")};
  }

 private:
  std::filesystem::path executable;
  std::filesystem::path outside;
};

}  // namespace zerimo
