#pragma once

#include <gtest/gtest.h>

#include <initializer_list>
#include <string>
#include <vector>

#include "support/failure_of.h"
#include "support/interpreter.h"

namespace zerimo {

using Texts = std::vector<std::string>;

/// An interpreter whose variable slots a test fills and reads.
class SlotsFixture : public testing::Test, protected BareInterpreter {
 protected:
  void Slots(std::initializer_list<const char*> texts) {
    int number = 1;
    for (const char* text : texts) variables.SetSlot(number++, text);
  }

  void FillAllSlots(const std::string& text) {
    for (int number = 1; number <= Variables::SlotCount; ++number) variables.SetSlot(number, text);
  }

  Texts FirstSlots(int count) const {
    Texts slots;
    for (int number = 1; number <= count; ++number) slots.push_back(variables.Slot(number));
    return slots;
  }
};

}  // namespace zerimo
