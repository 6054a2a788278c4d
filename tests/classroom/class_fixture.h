#pragma once

#include <gtest/gtest.h>

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <algorithm>
#include <string>
#include <vector>

#include "support/batch_program.h"

namespace zerimo {

/// A class folder, and the report of a run on it. Temporary files have a folder of their own.
class ClassTest : public testing::Test {
 protected:
  ClassTest() {
    std::filesystem::create_directories(ClassFolder());
    std::filesystem::create_directories(TemporaryFolder());
    // Beside the folder, for the toolkit's own files.
    const std::filesystem::path runtime = Program.Folder().parent_path() / "runtime";
    std::filesystem::create_directory(runtime);
    std::filesystem::permissions(runtime, std::filesystem::perms::owner_all);
    Program.Environment = {{"TMPDIR", TemporaryFolder()}, {"XDG_RUNTIME_DIR", runtime}};
  }

  std::filesystem::path ClassFolder() const { return Program.Folder() / "class"; }
  std::filesystem::path TemporaryFolder() const { return Program.Folder() / "temporary"; }

  /// A file of the class; in a program, | stands for a line end.
  void Write(const std::string& name, std::string bytes) const {
    std::string text;
    for (const char character : bytes) {
      if (character == '|') {
        text += "\r\n";
      } else {
        text += character;
      }
    }
    Program.Write("class/" + name, text);
  }

  /// Runs the class and reads the results.
  ProgramRun Run(const std::string& options = {}) {
    const ProgramRun run = Program.Run("--class class --out report.html " + options);
    ReadReport();
    return run;
  }

  void ExpectBadUsage(const std::string& arguments, const std::string& message) {
    const ProgramRun run = Program.Run(arguments);
    EXPECT_EQ(run.Status, 2) << arguments;
    EXPECT_EQ(run.Errors, "zerimo-batch: " + message + "\n");
    EXPECT_EQ(run.Output, "");
  }

  void ReadReport() {
    Page = Program.Read("report.html");
    Summary = QJsonDocument::fromJson(QByteArray::fromStdString(Program.Read("report.json"))).object();
  }

  QJsonObject Pupil(const char* file) const {
    for (const QJsonValue& pupil : Summary.value("pupils").toArray()) {
      if (pupil.toObject().value("file").toString() == QLatin1String(file)) return pupil.toObject();
    }
    ADD_FAILURE() << "no pupil " << file;
    return {};
  }

  /// The notes about a program, except the one that this kernel, or a build with sanitizers, contains no process.
  QJsonArray NotesOf(const char* file) const {
    QJsonArray notes;
    for (const QJsonValue& note : Pupil(file).value("notes").toArray()) {
      if (note.toString() != "The operating system did not contain this run.") notes.append(note);
    }
    return notes;
  }

  /// "ended", "stopped seconds", "not run": the result, and what stopped the run if something did.
  std::string ResultOf(const char* file) const {
    const QJsonObject pupil = Pupil(file);
    const std::string result = pupil.value("result").toString().toStdString();
    return result == "stopped" ? result + " " + pupil.value("by").toString().toStdString() : result;
  }

  std::vector<std::string> PrintedBy(const char* file) const {
    std::vector<std::string> lines;
    for (const QJsonValue& line : Pupil(file).value("printed").toArray()) {
      lines.push_back(line.toString().toStdString());
    }
    return lines;
  }

  using Lines = std::vector<std::string>;
  static constexpr const char* Endless = "TO SPIN|LABEL L|RT 1|GOTO L|END|";

  BatchProgram Program{ZERIMO_BATCH};
  std::string Page;
  QJsonObject Summary;
};

}  // namespace zerimo
