#include "console/control_words.h"

#include <algorithm>
#include <array>

namespace zerimo {

namespace {

constexpr std::array<ControlWords, 33> WordsOfControls = {{
    {"Form1", "Zerimo", "F2 brings the drawing and the command rows back.", ""},
    {"Picture1", "Drawing surface", "", ""},
    {"Picture3", "Command rows", "Five rows for commands.", ""},
    {"Text1", "Command row %1",
     "Type a command and press Enter. F1 editor, F2 drawing, F3 text screen, F4 full screen, F9 load a program, "
     "Escape closes the panels.",
     ""},
    {"Prompt", "Prompt", "A question mark beside each command row.", ""},
    {"List4", "Text screen", "The commands entered and the texts printed. F2 goes back to the drawing.", ""},
    {"Text2", "Program editor", "F2 takes the program over, F10 saves it, F9 loads one, F3 and F4 leave the editor.",
     ""},
    {"Frame1", "Diagnosis", "The inner state of the interpreter. Escape on a command row closes it.", ""},
    {"List1", "Intermediate Contents", "The lines of the program as they run.", ""},
    {"List2", "Variables", "The variables with their values.", ""},
    {"List3", "Procedures", "The procedures of the program.", ""},
    {"Label17", "Loop counter names", "The length of the names made for loop counters.",
     "The length of the names made for loop counters"},
    {"Label18", "Loop label names", "The length of the names made for loop labels.",
     "The length of the names made for loop labels"},
    {"Label19", "Control String", "Where the program runs just now.", ""},
    {"Text3", "Resolution", "Surface units to a turtle step.",
     "Sets RESOLUTION at once: surface units to a turtle step"},
    {"Text4", "Line Width", "The width of lines in pixels.", "Sets the width of lines at once, in pixels"},
    {"Command1", "Close the diagnosis panel", "", "Close (Esc on a command row)"},
    {"Command2", "Refresh", "Forgets all variables. Do not press it: the next number makes Zerimo search for ever.",
     "Forgets all variables; Resolution and Line Width stay as they are set. Do not press it: the next number makes "
     "Zerimo search for ever (Ctrl+Break stops)"},
    {"Check1", "Co-ordinates", "Shows or hides the axes.", "Shows or hides the axes"},
    {"HScroll1", "Back Color, part %1 of red, green, blue", "Clears the drawing.",
     "Red, green and blue of the background; clears the drawing"},
    {"HScroll2", "Pen Color, part %1 of red, green, blue", "", "Red, green and blue of the pen"},
    {"Label8", "Preview of the pen color", "", ""},
    {"Label9", "Preview of the back color", "", ""},
    {"Picture2", "Palette", "Sixteen colours, and Apply. Drag it by its title.", ""},
    {"Label13", "Colour",
     "Space chooses the pen, with Ctrl the background, with Shift the text, with both the background of the text.",
     "Pen: left button. Background: right button. With Shift: the colours of the text."},
    {"Label14", "Apply", "Carries out the command of the palette.", ""},
    {"Label15", "Command of the palette", "", ""},
    {"Label16", "Title of the palette", "", ""},
    {"Command3", "Close the palette", "", "Close"},
    {"Command4", "Roll the palette up", "", "Roll up into the corner"},
    {"Command5", "Unroll the palette", "", "Unroll"},
    {"File1", "Help pages", "The space bar opens a page, Escape closes the help.", ""},
    {"RichTextBox1", "Help page", "F11 saves the page, Escape closes the help.", ""},
}};

}  // namespace

const ControlWords* FindControlWords(std::string_view control) {
  const std::string_view name = control.substr(0, control.find('('));
  const auto found = std::find_if(WordsOfControls.begin(), WordsOfControls.end(),
                                  [&](const auto& words) { return words.Control == name; });
  return found == WordsOfControls.end() ? nullptr : &*found;
}

int IndexInName(std::string_view control) {
  int index = 0;
  for (const char character : control.substr(std::min(control.find('('), control.size()))) {
    if (character >= '0' && character <= '9') index = 10 * index + (character - '0');
  }
  return index;
}

}  // namespace zerimo
