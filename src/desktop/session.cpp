#include "desktop/session.h"

#include <QCoreApplication>
#include <QTimer>
#include <exception>
#include <new>
#include <utility>

#include "base/failure.h"
#include "base/stop_run.h"
#include "desktop/desktop_text.h"

namespace zerimo {

namespace {

ScreenSize UnitsOf(const QRect& area) {
  return {static_cast<float>(area.width() * UnitsPerPixel), static_cast<float>(area.height() * UnitsPerPixel)};
}

}  // namespace

Session::Session(const QRect& available, const Folders& folders, std::vector<std::filesystem::path> rescuePlaces)
    : stage(extensions_),
      services(stage, QString::fromStdU16String(folders.ToRead(folders.AppFolder).u16string())),
      watch(stage),
      form1(UnitsOf(available), folders, services, watch, canvas),
      window(form1, canvas, *this, available),
      timers_(
          form1.controls, [this](Timer& timer) { Deliver([&](Form1&) { form1.Tick(timer); }); },
          [this] { return stage.IsRunning(); }),
      rescue_(form1, extensions_, stage, std::move(rescuePlaces)) {
  stage.Open(window, [this] { ShowState(); });
}

void Session::Start() {
  Deliver([this](Form1&) { form1.Load(); });
  if (hasEnded_) return;
  window.show();
  // Without a window manager, nothing else gives a new window the keyboard.
  window.activateWindow();
}

void Session::Greet(const std::string& words, const std::filesystem::path& file) {
  if (words.empty() && file.empty()) return;
  WhenStarted([this, words, file](Form1&) {
    if (!words.empty()) services.MessageBox(words, box::Critical, ProgramName);
    if (!file.empty()) OpenFile(file);
  });
}

void Session::WhenStarted(const std::function<void(Form1& form1)>& event) {
  // The start ends with the tick that gives row 0 the focus.
  if (!stage.IsRunning() && !form1.controls.Timer2.Enabled) return Deliver(event);
  QTimer::singleShot(1, &window, [this, event] { WhenStarted(event); });
}

void Session::OpenFile(const std::filesystem::path& file) {
  const std::string name = Folders::ToSystem(std::filesystem::absolute(file));
  std::error_code error;
  // `LOAD` reports a missing program, but the system has no message for a missing picture.
  if (!ProgramFiles::IsProgramName(name) && !std::filesystem::exists(form1.folders.ToRead(name), error)) {
    services.MessageBox("There is no file " + name, box::Critical, ProgramName);
    return;
  }
  services.OfferFile(name);
  form1.interpreter.dispatch.Execute("SHOW OPEN");
}

void Session::Deliver(const std::function<void(Form1& form1)>& event) {
  if (hasEnded_ || stage.IsRunning()) return;
  stage.BeginRun();
  watch.Begin();
  window.Collect();
  Run(event);
  stage.EndRun();
  if (hasEnded_) return;
  ShowState();
  window.Describe();
  timers_.FireDue();
}

void Session::Run(const std::function<void(Form1& form1)>& event) {
  try {
    event(form1);
  } catch (const StopRun&) {
    // The handler ends here.
  } catch (const Ended& end) {
    const bool byClosing = end.By == "close";
    if (byClosing) rescue_.Keep({});
    End(0, byClosing ? SessionEnd::ByClosing : SessionEnd::ByWord);
  } catch (const std::bad_alloc&) {
    TellFailure(OutOfMemory().what());
    End(EndedByFailure, SessionEnd::ByFailure);
  } catch (const std::exception& failure) {
    TellFailure(failure.what());
    End(EndedByFailure, SessionEnd::ByFailure);
  }
}

void Session::TellFailure(const char* words) {
  std::string text = words + std::string("\r\rZerimo has to end.");
  const std::optional<std::string> rescued = rescue_.Keep(text);
  // The user has read the rest in another box.
  if (!rescued) return;
  if (!rescued->empty()) text += "\r\r" + *rescued;
  try {
    services.MessageBox(text, box::Critical, ProgramName);
  } catch (const Ended&) {
    // Closing the window counts as an answer.
  } catch (const StopRun&) {
    // So does stopping the program.
  }
}

void Session::ShowState() {
  window.Sync();
  timers_.Sync();
}

bool Session::Close() {
  if (stage.IsRunning()) {
    if (!extensions_.CloseDuringRun()) stage.RequestClose();
    return hasEnded_;
  }
  // A text that no extension can keep is rescued as at the end of a run.
  if (!extensions_.KeepText()) Deliver([](Form1&) { throw Ended{"close"}; });
  End(0, SessionEnd::ByClosing);
  return true;
}

void Session::End(int status, SessionEnd end) {
  if (hasEnded_) return;
  extensions_.ForEach([&](Extension& extension) { extension.SessionEnds(end); });
  hasEnded_ = true;
  exitStatus_ = status;
  window.hide();
  QCoreApplication::exit(status);
}

}  // namespace zerimo
