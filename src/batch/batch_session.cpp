#include "batch/batch_session.h"

#include <algorithm>
#include <new>

#include "base/failure.h"
#include "batch/dumps.h"
#include "batch/errors.h"
#include "batch/latin1.h"
#include "batch/memory_limit.h"
#include "batch/session_reader.h"

namespace zerimo::batch {

BatchSession::BatchSession(const Settings& settings, Canvas& canvas, Journal& journal, PictureWriter pictureWriter,
                           const Disk& disk)
    : journal_(journal),
      writePicture_(std::move(pictureWriter)),
      watch_(settings.Steps, settings.Seconds, settings.Ticks),
      services_(journal_, watch_, settings.Sleep),
      form1(settings.Screen, Folders(settings.AppFolder, disk), services_, watch_, canvas),
      trace_(journal_),
      memory_(settings.Memory) {
  if (settings.Output > 0) journal_.Limit(static_cast<std::uintmax_t>(settings.Output) << 20);
  form1.controls.List4.OnChange = [this](const std::string* item) {
    if (item != nullptr) {
      journal_.ListAdd(form1.controls.List4.Name(), *item);
    } else {
      journal_.ListClear(form1.controls.List4.Name());
    }
  };
  form1.controls.Form1.OnCaption = [this](const std::string& text) { journal_.Caption(text); };
}

Script BatchSession::Read(std::string_view utf8) { return ReadSession(utf8, form1); }

Outcome BatchSession::Run(std::string_view utf8) {
  try {
    return Run(Read(utf8));
  } catch (const SessionError& error) {
    return {Ending::Refused, error.what(), error.Line};
  }
}

Outcome BatchSession::Run(const Script& script) {
  Outcome outcome = RunToTheEnd(script);
  journal_.Flush();
  return outcome;
}

/// However the system ends, the last event is written.
Outcome BatchSession::RunToTheEnd(const Script& script) {
  try {
    RunSteps(script);
    journal_.Finished();
    return {Ending::Over, {}, 0, "finished"};
  } catch (const Ended& ended) {
    journal_.Ended(ended.By);
    return {Ending::Over, {}, 0, ended.By};
  } catch (const Stopped& stopped) {
    journal_.Stopped(stopped.By);
    return {Ending::Stopped, "stopped by the limit of " + stopped.By, currentLine_, stopped.By};
  } catch (const std::bad_alloc&) {
    journal_.Stopped("memory");
    return {Ending::Stopped, "stopped by the limit of memory", currentLine_, "memory"};
  } catch (const Failure& failure) {
    form1.RescueEditorText();
    journal_.EndedByFailure(failure.what());
    return {Ending::Failed, std::string("ended by a failure: ") + failure.what(), currentLine_};
  } catch (const SessionError& error) {
    return {Ending::Refused, error.what(), error.Line};
  }
}

void BatchSession::RunSteps(const Script& script) {
  const MemoryLimit limit(memory_);
  watch_.StartClock();
  Deliver([this] { form1.Load(); });
  for (const SessionStep& step : script) {
    currentLine_ = step.Line;
    std::visit([this](const auto& act) { Do(act); }, step.Act);
    journal_.Flush();
  }
}

void BatchSession::Deliver(const std::function<void()>& event) {
  watch_.BeginEvent();
  event();
  Timer& timer2 = form1.controls.Timer2;
  if (!timer2.Enabled) return;
  watch_.BeginEvent();
  form1.Tick(timer2);
}

int BatchSession::RowWithFocus() {
  const Control* const focus = form1.controls.Focus.Focus();
  for (int row = 0; row < form1.controls.Text1.Size; ++row) {
    if (focus == &form1.controls.Text1[row]) return row;
  }
  return 0;
}

void BatchSession::PressEnter(int row) { Do(action::PressKey{&form1.controls.Text1[row], key::Enter}); }

void BatchSession::Do(const action::TypeLine& act) {
  const int row = RowWithFocus();
  form1.controls.Text1[row].Text = act.Text;
  PressEnter(row);
}

void BatchSession::Do(const action::EnterRow& act) {
  if (act.Row == action::EnterRow::RowWithFocus) {
    PressEnter(RowWithFocus());  // Leaves: the system ends.
    return;
  }
  // A hidden row can't have the focus, but Enter works on it all the same.
  SkipOnFailure([&] { form1.controls.Focus.SetFocus(form1.controls.Text1[act.Row]); });
  PressEnter(act.Row);  // Leaves: the system ends.
}

void BatchSession::Do(const action::SetRow& act) { form1.controls.Text1[act.Row].Text = act.Text; }

void BatchSession::Do(const action::TypeOver& act) {
  act.Box->Text = act.Text;
  Deliver([&] { form1.Change(*act.Box); });
}

void BatchSession::Do(const action::PressKey& act) {
  for (int row = 0; row < form1.controls.Text1.Size; ++row) {
    const TextBox& box = form1.controls.Text1[row];
    if (act.Target == &box && act.KeyCode == key::Enter) journal_.Typed(row, box.Text);
  }
  Deliver([&] { form1.KeyDown(*act.Target, act.KeyCode); });
}

void BatchSession::Do(const action::Click& act) {
  Deliver([&] { form1.Click(*act.Target); });
}

void BatchSession::Do(const action::MoveMouse& act) {
  Deliver([&] { form1.MouseMove(*act.Target, act.X, act.Y); });
}

void BatchSession::Do(const action::PressMouse& act) {
  Deliver([&] { form1.MouseDown(*act.Target, act.Button, act.Shift, act.X, act.Y); });
}

void BatchSession::Do(const action::Drop& act) {
  Deliver([&] { form1.DragDrop(*act.Source, act.X, act.Y); });
}

void BatchSession::Do(const action::Scroll& act) {
  act.Bar->Value = act.Value;
  Deliver([&] { form1.Change(*act.Bar); });
}

void BatchSession::Do(const action::SelectEntry& act) {
  FileListBox& files = form1.controls.File1;
  const bool isFile = act.List == &files;
  const std::vector<std::string>& entries = isFile ? files.Items : form1.controls.List4.Items();
  if (std::ranges::find(entries, act.Entry) == entries.end()) {
    throw SessionError(currentLine_, ToUtf8(act.List->Name() + " has no entry " + act.Entry));
  }
  if (isFile) {
    files.FileName = act.Entry;
    Deliver([&] { form1.MouseDown(files, MouseButton::Left, false, 0, 0); });
  }
  Deliver([&] { form1.Click(*act.List); });
}

void BatchSession::Do(const action::Tick& act) {
  for (int tick = 0; tick < act.Times && act.Ticking->Enabled; ++tick) {
    Deliver([&] { form1.Tick(*act.Ticking); });
  }
}

void BatchSession::Do(const action::SetTime& act) { services_.SetTimeOfDay(act.Text); }

void BatchSession::Do(const action::AnswerBox& act) { services_.QueueBoxAnswer(act.Button, currentLine_); }

void BatchSession::Do(const action::AnswerInput& act) { services_.QueueInput(act.Text); }

void BatchSession::Do(const action::AnswerDialog& act) {
  if (act.ToSave) {
    services_.QueueSave(act.FileName);
  } else {
    services_.QueueOpen(act.FileName);
  }
}

void BatchSession::Do(const action::Trace& act) {
  form1.Picture1.RemoveRecorder(trace_);
  if (act.On) form1.Picture1.AddRecorder(trace_);
}

void BatchSession::Do(const action::Dump& act) { journal_.Write(DumpOf(form1, act.What)); }

void BatchSession::Do(const action::DumpControl& act) { journal_.Write(DumpOf(act)); }

void BatchSession::Do(const action::WritePicture& act) {
  if (!writePicture_) return;
  try {
    writePicture_(form1.Picture1, act.File);
  } catch (const std::exception&) {
    throw SessionError(currentLine_, ToUtf8(act.File) + " can't be written");
  }
}

void BatchSession::Do(const action::CloseWindow&) { throw Ended{"close"}; }

}  // namespace zerimo::batch
