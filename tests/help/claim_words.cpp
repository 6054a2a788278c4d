#include "claim_words.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace zerimo::help {

namespace {

struct NamedColour {
  const char* Name;
  int Red, Green, Blue;
};

constexpr std::array<NamedColour, 16> colours = {{{"Black", 0, 0, 0},
                                                  {"Blue", 0, 0, 128},
                                                  {"Green", 0, 128, 0},
                                                  {"Sky Blue", 0, 128, 128},
                                                  {"Red", 128, 0, 0},
                                                  {"Pink", 128, 0, 128},
                                                  {"Orange", 128, 128, 0},
                                                  {"Light Gray", 192, 192, 192},
                                                  {"Dark Gray", 128, 128, 128},
                                                  {"Light Blue", 0, 0, 255},
                                                  {"Light Green", 0, 255, 0},
                                                  {"Cyan", 0, 255, 255},
                                                  {"Light Red", 255, 0, 0},
                                                  {"Light Pink", 255, 0, 255},
                                                  {"Yellow", 255, 255, 0},
                                                  {"White", 255, 255, 255}}};

std::string Lookup(const std::map<std::string, std::string>& table, const std::string& word) {
  const auto found = table.find(word);
  return found == table.end() ? std::string() : found->second;
}

}  // namespace

std::string TrimmedRight(std::string text) {
  text.erase(text.find_last_not_of(' ') + 1);
  return text;
}

std::string ToText(const std::map<std::string, int>& drawn) {
  std::string text;
  for (const auto& [word, count] : drawn) text += (text.empty() ? "" : ", ") + std::to_string(count) + " " + word;
  return text.empty() ? "nothing" : text;
}

bool IsNear(double value, const std::string& told) {
  const std::string number = told.starts_with("(") ? told.substr(1, told.size() - 2) : told;
  return std::abs(value - std::stod(number)) < .01;
}

int ColourCalled(const std::string& name) {
  const auto* const found = std::ranges::find_if(colours, [&](const NamedColour& c) { return name == c.Name; });
  return found == colours.end() ? -1 : found->Red + 256 * found->Green + 65536 * found->Blue;
}

std::string ControlCalled(const std::string& thing) {
  static const std::map<std::string, std::string> controls = {
      {"the editor", "Text2"},     {"the rows", "Picture3"},          {"the text screen", "List4"},
      {"the palette", "Picture2"}, {"the diagnosis panel", "Frame1"}, {"the axes", "Line5"},
      {"the turtle", "Shape2"},    {"the title picture", "Image1"},
  };
  return Lookup(controls, thing);
}

std::string NumberPropertyOf(const std::string& number) {
  static const std::map<std::string, std::string> properties = {
      {"line width", "DrawWidth"},
      {"text size", "Font.Size"},
      {"fill style", "FillStyle"},
      {"draw mode", "DrawMode"},
  };
  return Lookup(properties, number);
}

}  // namespace zerimo::help
