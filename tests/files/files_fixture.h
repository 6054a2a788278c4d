#pragma once

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "files/editor.h"
#include "files/help_pages.h"
#include "files/pictures.h"
#include "files/program_files.h"
#include "files/saving.h"
#include "files/temp_folder.h"
#include "graphics/canvas.h"
#include "graphics/surface.h"
#include "support/failure_of.h"
#include "support/interpreter.h"

namespace zerimo {

/// Writes down the pictures that were loaded into the surface.
class PictureList : public SurfaceRecorder {
 public:
  void Record(const Surface&, const SurfaceOperation& operation) override {
    if (const auto* picture = std::get_if<surface_operation::Picture>(&operation)) Paths.push_back(picture->Path);
  }
  std::vector<std::string> Paths;
};

/// The interpreter with files, editor, pictures and help in a folder of its own. `AppFolder` is the folder "app" in
/// it, and the current folder is another one, "work".
class FilesTest : public ::testing::Test, protected Interpreter {
 protected:
  FilesTest() {
    Disk.MakeFolder("app");
    Disk.MakeFolder("work");
    std::filesystem::current_path(Disk.Path / "work");
    Picture1.AddRecorder(Loaded);
    Files.Bind();
    Edit.Bind();
    Photos.Bind();
    Help.Bind();
    Primitives.Bind(Action::SplitScreen, [this](PrimitiveCall&) {
      ++SplitScreens;
      TextAtSplitScreen = Controls.Text2.Text;
    });
  }

  /// A path in `AppFolder` as the system writes it.
  std::string InApp(const std::string& name) const { return Place.AppFolder + "\\" + name; }

  std::vector<std::string> Listed(const ListBox& list) const { return list.Items(); }

  TempFolder Disk;
  Folders Place{Disk.Path.string() + "/app"};
  EmptyCanvas Pixels;
  PictureList Loaded;
  Surface Picture1{"Picture1", Pixels};
  Pictures Photos{Picture1, Controls, Stages, Primitives, Place};
  ProgramFiles Files{Store, Repeats, Names, Controls, Desktop, Primitives, Place, Photos};
  Editor Edit{Store, Repeats, Controls, Primitives};
  Saving Save{Controls, Store, Desktop, Files};
  HelpPages Help{Controls, Desktop, Primitives};
  int SplitScreens = 0;
  std::string TextAtSplitScreen;
};

using Texts = std::vector<std::string>;

}  // namespace zerimo
