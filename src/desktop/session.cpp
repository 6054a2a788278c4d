#include "desktop/session.h"

#include <QCoreApplication>
#include <QTimer>
#include <exception>

#include "base/failure.h"
#include "desktop/desktop_text.h"

namespace zerimo {

namespace {

ScreenSize UnitsOf(const QRect& area) {
  return {static_cast<float>(area.width() * UnitsPerPixel), static_cast<float>(area.height() * UnitsPerPixel)};
}

}  // namespace

Session::Session(const QRect& available, const std::string& appFolder)
    : services(stage, QString::fromStdU16String(Folders(appFolder).ToRead(appFolder).u16string())),
      watch(stage),
      form1(UnitsOf(available), Folders(appFolder), services, watch, canvas),
      window(form1, canvas, *this, available),
      timers(
          form1.controls, [this](Timer& timer) { Deliver([&](Form1& form) { form.Tick(timer); }); },
          [this] { return stage.IsRunning(); }) {
  stage.Open(window, [this] { ShowState(); });
}

void Session::Start() {
  Deliver([](Form1& form) { form.Load(); });
  if (hasEnded) return;
  window.show();
  // Where nothing else gives the keys to a new window.
  window.activateWindow();
}

void Session::Greet(const std::string& words, const std::filesystem::path& file) {
  if (hasEnded || (words.empty() && file.empty())) return;
  // The tick that gives the focus to row 0 is the last step of the start.
  if (stage.IsRunning() || form1.controls.Timer2.Enabled) {
    QTimer::singleShot(1, &window, [this, words, file] { Greet(words, file); });
    return;
  }
  Deliver([&](Form1& form) {
    if (!words.empty()) services.MessageBox(words, box::Critical, ProgramName);
    if (!file.empty()) OpenFile(form, file);
  });
}

void Session::OpenFile(Form1& form, const std::filesystem::path& file) {
  const std::string name = Folders::ToSystem(std::filesystem::absolute(file));
  std::error_code error;
  // A missing program is told by `LOAD`; for a missing picture the system has no words of its own.
  if (!ProgramFiles::IsProgramName(name) && !std::filesystem::exists(form.folders.ToRead(name), error)) {
    services.MessageBox("There is no file " + name, box::Critical, ProgramName);
    return;
  }
  services.OfferFile(name);
  form.interpreter.dispatch.Execute("SHOW OPEN");
}

void Session::Deliver(const std::function<void(Form1& form1)>& event) {
  if (hasEnded || stage.IsRunning()) return;
  stage.BeginRun();
  watch.Begin();
  window.Collect();
  Run(event);
  stage.EndRun();
  if (hasEnded) return;
  ShowState();
  window.DescribeTurtle();
  timers.FireDue();
}

void Session::Run(const std::function<void(Form1& form1)>& event) {
  try {
    event(form1);
  } catch (const Ended& end) {
    if (end.By == "close") form1.RescueEditorText();
    End(0);
  } catch (const std::exception& failure) {
    TellFailure(failure.what());
    End(EndedByFailure);
  }
}

void Session::TellFailure(const char* words) {
  std::string text = words;
  if (form1.RescueEditorText()) text += "\r\rThe text of the editor has been saved in Rescued.ZRM.";
  try {
    services.MessageBox(text, box::Critical, ProgramName);
  } catch (const Ended&) {
    // Closing the window behind the box is an answer too.
  }
}

void Session::ShowState() {
  window.Sync();
  timers.Sync();
}

bool Session::Close() {
  if (stage.IsRunning()) {
    stage.RequestClose();
    return hasEnded;
  }
  End(0);
  return true;
}

void Session::End(int status) {
  if (hasEnded) return;
  hasEnded = true;
  exitStatus = status;
  window.hide();
  QCoreApplication::exit(status);
}

}  // namespace zerimo
