#include "desktop/extension.h"

#include <QApplication>
#include <QKeyEvent>
#include <algorithm>

namespace zerimo {

Extensions::~Extensions() { qApp->removeEventFilter(this); }

void Extensions::Add(std::unique_ptr<Extension> extension) {
  all_.push_back(std::move(extension));
  qApp->installEventFilter(this);
}

bool Extensions::CloseDuringRun() const {
  return std::any_of(all_.begin(), all_.end(), [](const auto& extension) { return extension->ClosesDuringRun(); });
}

bool Extensions::KeepText() const {
  return std::all_of(all_.begin(), all_.end(), [](const auto& extension) { return extension->KeepsText(); });
}

std::string Extensions::Rescue() const {
  for (const auto& extension : all_) {
    std::string words = extension->Rescue();
    if (!words.empty()) return words;
  }
  return {};
}

bool Extensions::eventFilter(QObject* receiver, QEvent* event) {
  if (event->type() != QEvent::KeyPress || !(receiver->isWidgetType() || receiver->isWindowType())) return false;
  const auto& press = static_cast<const QKeyEvent&>(*event);
  return std::any_of(all_.begin(), all_.end(), [&](const auto& extension) { return extension->PressKey(press); });
}

}  // namespace zerimo
