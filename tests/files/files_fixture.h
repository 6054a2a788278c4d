#pragma once

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "files/files.h"
#include "files/temp_folder.h"
#include "graphics/canvas.h"
#include "graphics/surface.h"
#include "support/failure_of.h"
#include "support/interpreter.h"

namespace zerimo {

/// Lists the pictures that are loaded into the surface.
class PictureList : public SurfaceRecorder {
 public:
  void Record(const Surface&, const SurfaceOperation& operation) override {
    if (const auto* picture = std::get_if<surface_operation::Picture>(&operation)) Paths.push_back(picture->Path);
  }
  std::vector<std::string> Paths;
};

/// The interpreter with files, editor, pictures and help in a folder of its own. `AppFolder` is the folder "app" in it,
/// and relative paths start at another one, "work".
class FilesTest : public ::testing::Test, protected BareInterpreter {
 protected:
  FilesTest() {
    Temp.MakeFolder("app");
    Temp.MakeFolder("work");
    Picture1.AddRecorder(Loaded);
    files.Bind();
    dispatch.Bind("SS", [this](PrimitiveCall&) {
      ++SplitScreens;
      TextAtSplitScreen = controls.Text2.Text;
    });
  }

  /// A path in `AppFolder` as the system writes it.
  std::string InApp(const std::string& name) const { return folders.AppFolder + "\\" + name; }

  std::vector<std::string> Listed(const ListBox& list) const { return list.Items(); }

  TempFolder Temp;
  const Folders folders{Temp.Path.string() + "/app", Disk(Temp.Path / "work")};
  EmptyCanvas Pixels;
  PictureList Loaded;
  Surface Picture1{"Picture1", Pixels};
  Files files{{interpreter, controls, services, folders}, Picture1};
  Pictures& pictures = files.pictures;
  ProgramFiles& programFiles = files.programFiles;
  Editor& editor = files.editor;
  Saving& saving = files.saving;
  HelpPages& helpPages = files.helpPages;
  int SplitScreens = 0;
  std::string TextAtSplitScreen;
};

using Texts = std::vector<std::string>;

}  // namespace zerimo
