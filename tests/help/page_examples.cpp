#include "page_examples.h"

#include "page_layout.h"

namespace zerimo::help {

namespace {

bool IsExampleLine(const Paragraph& paragraph) {
  return !paragraph.Runs.empty() && paragraph.Runs.front().Form.FontName == ExampleFont;
}

std::string TextOf(const Paragraph& paragraph) {
  std::string text;
  for (const TextRun& run : paragraph.Runs) text += run.Text;
  return text;
}

/// A line to type or write after a claim begins the next example.
Example& ExampleToDo(std::vector<Example>& examples) {
  if (examples.empty() || !examples.back().Claims.empty()) examples.emplace_back();
  return examples.back();
}

/// `@text` stands for the two characters of a line end and for a backslash with a backslash.
std::string EditorText(const std::vector<std::string>& lines) {
  std::string text;
  for (const std::string& line : lines) text += line + "\\r\\n";
  return text;
}

}  // namespace

std::vector<Example> ExamplesOf(const RichText& page) {
  std::vector<Example> examples;
  for (const Paragraph& paragraph : page.Paragraphs) {
    if (!IsExampleLine(paragraph)) continue;
    const std::string text = TextOf(paragraph);
    const std::string line = text.substr(2);
    if (text.starts_with("| ")) ExampleToDo(examples).Edited.push_back(line);
    if (text.starts_with("? ")) ExampleToDo(examples).Typed.push_back(line);
    if (text.starts_with("> ") && !examples.empty()) examples.back().Claims.push_back(line);
  }
  return examples;
}

std::string SessionOf(const Example& example) {
  std::string session = "@trace surface\n";
  if (!example.Edited.empty()) session += "EDIT\n@text Text2 " + EditorText(example.Edited) + "\n@key Text2 F2\n";
  for (const std::string& line : example.Typed) session += line + "\n";
  session += "@tick Timer3 50\n@tick Timer4\n@trace off\n@dump state\n@dump store\n@dump variables\n";
  for (const char* control : {"Picture1", "Text1(0)", "Text2", "List4", "Picture3", "Frame1", "Picture2", "Line5",
                              "Line6", "Image1", "Shape2", "Form1"}) {
    session += std::string("@dump control ") + control + "\n";
  }
  return session;
}

std::string JoinedLines(const std::vector<std::string>& lines) {
  std::string text;
  for (const std::string& line : lines) text += "  " + line + "\n";
  return text;
}

}  // namespace zerimo::help
