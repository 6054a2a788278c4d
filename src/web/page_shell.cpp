#include "web/page_shell.h"

#include <exception>
#include <memory>
#include <utility>

#include "base/failure.h"
#include "base/stop_run.h"
#include "batch/json_line.h"
#include "web/font_text.h"
#include "web/page_port.h"
#include "web/stb_picture_files.h"

namespace zerimo::web {

PageShell::PageShell(ScreenSize screen, const std::filesystem::path& fontFile, Folders folders)
    : canvas_(std::make_unique<FontText>(fontFile), std::make_unique<StbPictureFiles>()),
      services_([this] { screen_.Show(); }),
      watch_([this] { screen_.Show(); }, [this] { return pace_.Step(); }),
      form1(screen, std::move(folders), services_, watch_, canvas_),
      screen_(form1, canvas_),
      pace_(form1.interpreter, [this] { screen_.Show(); }) {
  screen_.Describe();
}

void PageShell::Deliver(const std::function<void(Form1& form1)>& event) {
  if (hasEnded_) return;
  // Drops a request to stop that came after the last run had ended.
  TakeStop();
  watch_.Begin();
  Run(event);
  pace_.End();
  screen_.Show();
}

void PageShell::Run(const std::function<void(Form1& form1)>& event) {
  try {
    event(form1);
  } catch (const StopRun&) {
    // The handler ends here.
  } catch (const Ended& ended) {
    End(ended.By);
  } catch (const std::exception& failure) {
    form1.RescueEditorText();
    End(failure.what());
  }
}

void PageShell::Open(const std::string& systemPath) {
  Deliver([&](Form1&) {
    services_.OfferFile(systemPath);
    form1.interpreter.dispatch.Execute("SHOW OPEN");
  });
}

void PageShell::End(const std::string& by) {
  hasEnded_ = true;
  TellPage("[" + batch::JsonLine("ended").Text("by", by).Finished() + "]");
}

}  // namespace zerimo::web
