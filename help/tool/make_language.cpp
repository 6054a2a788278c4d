// Makes the language reference: make_language DOCUMENT FRAME SOURCE...

#include <fstream>
#include <iostream>
#include <stdexcept>

#include "word_tables.h"

namespace {

void Write(const std::string& document, const std::string& frameFile, const std::vector<zerimo::help::Topic>& topics) {
  std::ifstream frame(frameFile, std::ios::binary);
  if (!frame) throw std::runtime_error("can't be read: " + frameFile);
  const std::string text = zerimo::help::LanguageReference(frame, topics);
  std::ofstream file(document, std::ios::binary);
  file << text << std::flush;
  if (!file) throw std::runtime_error("can't be written: " + document);
}

}  // namespace

int main(int count, char** arguments) {
  try {
    if (count < 4) throw std::runtime_error("usage: make_language DOCUMENT FRAME SOURCE...");
    std::vector<zerimo::help::Topic> topics;
    for (int i = 3; i < count; ++i) topics.push_back(zerimo::help::ReadTopic(arguments[i]));
    Write(arguments[1], arguments[2], topics);
  } catch (const std::exception& error) {
    std::cerr << "make_language: " << error.what() << '\n';
    return 1;
  }
}
