#include "desktop/key_codes.h"

#include <QKeyEvent>
#include <algorithm>
#include <array>

#include "console/keys.h"

namespace zerimo {

namespace {

struct KeyPair {
  int Toolkit;
  int System;
};

constexpr std::array<KeyPair, 5> KnownKeys = {{
    {Qt::Key_Return, key::Enter},
    {Qt::Key_Enter, key::Enter},
    {Qt::Key_Escape, key::Esc},
    {Qt::Key_Up, key::Up},
    {Qt::Key_Down, key::Down},
}};

}  // namespace

int KeyCode(const QKeyEvent& event) {
  const int toolkit = event.key();
  if (toolkit >= Qt::Key_F1 && toolkit <= Qt::Key_F12) return key::F1 + (toolkit - Qt::Key_F1);
  const auto found =
      std::find_if(KnownKeys.begin(), KnownKeys.end(), [&](const KeyPair& pair) { return pair.Toolkit == toolkit; });
  return found == KnownKeys.end() ? 0 : found->System;
}

}  // namespace zerimo
