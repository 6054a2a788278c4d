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
class FilesTest : public ::testing::Test, protected BareInterpreter {
 protected:
  FilesTest() {
    Disk.MakeFolder("app");
    Disk.MakeFolder("work");
    std::filesystem::current_path(Disk.Path / "work");
    Picture1.AddRecorder(Loaded);
    programFiles.Bind();
    editor.Bind();
    pictures.Bind();
    helpPages.Bind();
    dispatch.Bind(Action::SplitScreen, [this](PrimitiveCall&) {
      ++SplitScreens;
      TextAtSplitScreen = controls.Text2.Text;
    });
  }

  /// A path in `AppFolder` as the system writes it.
  std::string InApp(const std::string& name) const { return folders.AppFolder + "\\" + name; }

  std::vector<std::string> Listed(const ListBox& list) const { return list.Items(); }

  TempFolder Disk;
  Folders Place{Disk.Path.string() + "/app"};
  EmptyCanvas Pixels;
  PictureList Loaded;
  Surface Picture1{"Picture1", Pixels};
  Pictures Photos{Picture1, controls, arguments, dispatch, folders};
  ProgramFiles Files{store, lowering, variables, controls, services, dispatch, folders, pictures};
  Editor Edit{store, lowering, controls, dispatch};
  Saving Save{controls, store, services, programFiles};
  HelpPages Help{controls, services, dispatch};
  int SplitScreens = 0;
  std::string TextAtSplitScreen;
};

using Texts = std::vector<std::string>;

}  // namespace zerimo
