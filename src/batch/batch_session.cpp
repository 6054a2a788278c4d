#include "batch/batch_session.h"

#include <algorithm>

#include "base/failure.h"
#include "batch/dumps.h"
#include "batch/errors.h"
#include "batch/latin1.h"
#include "batch/session_reader.h"

namespace zerimo::batch {

BatchSession::BatchSession(const Settings& settings, Canvas& canvas, Journal& theJournal, PictureWriter pictureWriter)
    : journal(theJournal),
      writePicture(std::move(pictureWriter)),
      watch(settings.Steps, settings.Seconds),
      services(journal, watch, settings.Sleep),
      form(settings.Screen, settings.AppFolder, services, watch, canvas),
      trace(journal) {
  form.Controls.List4.OnChange = [this](const std::string* item) {
    if (item != nullptr) {
      journal.ListAdd(form.Controls.List4.Name(), *item);
    } else {
      journal.ListClear(form.Controls.List4.Name());
    }
  };
  form.Controls.Form1.OnCaption = [this](const std::string& text) { journal.Caption(text); };
  form.Picture1.AddRecorder(trace);
}

Script BatchSession::Read(std::string_view utf8) { return ReadSession(utf8, form); }

Outcome BatchSession::Run(std::string_view utf8) {
  try {
    return Run(Read(utf8));
  } catch (const SessionError& error) {
    return {Ending::Refused, error.what(), error.Line};
  }
}

Outcome BatchSession::Run(const Script& script) {
  Outcome outcome = RunToTheEnd(script);
  journal.Flush();
  return outcome;
}

/// Each way out of the system writes the last event.
Outcome BatchSession::RunToTheEnd(const Script& script) {
  try {
    RunSteps(script);
    journal.Finished();
    return {Ending::Over, {}, 0, "finished"};
  } catch (const Ended& ended) {
    journal.Ended(ended.By);
    return {Ending::Over, {}, 0, ended.By};
  } catch (const Stopped& stopped) {
    journal.Stopped(stopped.By);
    return {Ending::Stopped, "stopped by the limit of " + stopped.By, currentLine, stopped.By};
  } catch (const Failure& failure) {
    form.RescueEditorText();
    journal.EndedByFailure(failure.what());
    return {Ending::Failed, std::string("ended by a failure: ") + failure.what(), currentLine};
  } catch (const SessionError& error) {
    return {Ending::Refused, error.what(), error.Line};
  }
}

void BatchSession::RunSteps(const Script& script) {
  watch.StartClock();
  Deliver([this] { form.Load(); });
  for (const SessionStep& step : script) {
    currentLine = step.Line;
    std::visit([this](const auto& act) { Do(act); }, step.Act);
    journal.Flush();
  }
}

void BatchSession::Deliver(const std::function<void()>& event) {
  watch.BeginEvent();
  event();
  Timer& timer2 = form.Controls.Timer2;
  if (!timer2.Enabled) return;
  watch.BeginEvent();
  form.Tick(timer2);
}

int BatchSession::RowWithFocus() {
  const Control* const focus = form.Controls.Focus.Focus();
  for (int row = 0; row < form.Controls.Text1.Size; ++row) {
    if (focus == &form.Controls.Text1[row]) return row;
  }
  return 0;
}

void BatchSession::PressEnter(int row) { Do(action::PressKey{&form.Controls.Text1[row], key::Enter}); }

void BatchSession::Do(const action::TypeLine& act) {
  const int row = RowWithFocus();
  form.Controls.Text1[row].Text = act.Text;
  PressEnter(row);
}

void BatchSession::Do(const action::EnterRow& act) {
  if (act.Row == action::EnterRow::RowWithFocus) {
    PressEnter(RowWithFocus());
    return;
  }
  // A hidden row can't have the focus; it is entered all the same, as a typed line is.
  PassOver([&] { form.Controls.Focus.SetFocus(form.Controls.Text1[act.Row]); });
  PressEnter(act.Row);
}

void BatchSession::Do(const action::SetRow& act) { form.Controls.Text1[act.Row].Text = act.Text; }

void BatchSession::Do(const action::TypeOver& act) {
  act.Box->Text = act.Text;
  Deliver([&] { form.Change(*act.Box); });
}

void BatchSession::Do(const action::PressKey& act) {
  for (int row = 0; row < form.Controls.Text1.Size; ++row) {
    const TextBox& box = form.Controls.Text1[row];
    if (act.Target == &box && act.KeyCode == key::Enter) journal.Typed(row, box.Text);
  }
  Deliver([&] { form.KeyDown(*act.Target, act.KeyCode); });
}

void BatchSession::Do(const action::Click& act) {
  Deliver([&] { form.Click(*act.Target); });
}

void BatchSession::Do(const action::MoveMouse& act) {
  Deliver([&] { form.MouseMove(*act.Target, act.X, act.Y); });
}

void BatchSession::Do(const action::PressMouse& act) {
  Deliver([&] { form.MouseDown(*act.Target, act.Button, act.Shift, act.X, act.Y); });
}

void BatchSession::Do(const action::Drop& act) {
  Deliver([&] { form.DragDrop(*act.Source, act.X, act.Y); });
}

void BatchSession::Do(const action::Scroll& act) {
  act.Bar->Value = act.Value;
  Deliver([&] { form.Change(*act.Bar); });
}

void BatchSession::Do(const action::SelectEntry& act) {
  FileListBox& files = form.Controls.File1;
  const bool isFile = act.List == &files;
  const std::vector<std::string>& entries = isFile ? files.Items : form.Controls.List4.Items();
  if (std::ranges::find(entries, act.Entry) == entries.end()) {
    throw SessionError(currentLine, ToUtf8(act.List->Name() + " has no entry " + act.Entry));
  }
  if (isFile) {
    files.FileName = act.Entry;
    Deliver([&] { form.MouseDown(files, MouseButton::Left, false, 0, 0); });
  }
  Deliver([&] { form.Click(*act.List); });
}

void BatchSession::Do(const action::Tick& act) {
  for (int tick = 0; tick < act.Times && act.Ticking->Enabled; ++tick) {
    Deliver([&] { form.Tick(*act.Ticking); });
  }
}

void BatchSession::Do(const action::SetTime& act) { services.SetTimeOfDay(act.Text); }

void BatchSession::Do(const action::AnswerBox& act) { services.QueueBoxAnswer(act.Button, currentLine); }

void BatchSession::Do(const action::AnswerInput& act) { services.QueueInput(act.Text); }

void BatchSession::Do(const action::AnswerDialog& act) {
  if (act.ToSave) {
    services.QueueSave(act.FileName);
  } else {
    services.QueueOpen(act.FileName);
  }
}

void BatchSession::Do(const action::Trace& act) { trace.On = act.On; }

void BatchSession::Do(const action::Dump& act) { journal.Write(DumpOf(form, act.What)); }

void BatchSession::Do(const action::DumpControl& act) { journal.Write(DumpOf(act)); }

void BatchSession::Do(const action::WritePicture& act) {
  if (!writePicture) return;
  try {
    writePicture(form.Picture1, act.File);
  } catch (const std::exception&) {
    throw SessionError(currentLine, ToUtf8(act.File) + " can not be written");
  }
}

void BatchSession::Do(const action::CloseWindow&) { throw Ended{"close"}; }

}  // namespace zerimo::batch
