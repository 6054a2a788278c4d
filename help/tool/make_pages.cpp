// Makes the help pages: make_pages FOLDER SOURCE... writes a rich-text file for each page of the sources.

#include <filesystem>
#include <fstream>
#include <iostream>
#include <set>
#include <stdexcept>

#include "page_layout.h"
#include "page_source.h"

namespace {

using zerimo::help::Page;

void ReadSource(const std::string& file, std::vector<Page>& pages) {
  std::ifstream source(file, std::ios::binary);
  if (!source) throw std::runtime_error("can't be read: " + file);
  zerimo::help::ReadPages(source, pages);
}

void WritePage(const std::filesystem::path& folder, const Page& page) {
  std::ofstream file(folder / page.Name, std::ios::binary);
  file << zerimo::WriteRtf(zerimo::help::LayOut(page)) << std::flush;
  if (!file) throw std::runtime_error("can't be written: " + page.Name);
}

void MakePages(const std::filesystem::path& folder, const std::vector<Page>& pages) {
  std::filesystem::create_directories(folder);
  std::set<std::string> names;
  for (const Page& page : pages) {
    if (!names.insert(page.Name).second) throw std::runtime_error("two pages of one name: " + page.Name);
    WritePage(folder, page);
  }
}

}  // namespace

int main(int count, char** arguments) {
  try {
    if (count < 3) throw std::runtime_error("usage: make_pages FOLDER SOURCE...");
    std::vector<Page> pages;
    for (int i = 2; i < count; ++i) ReadSource(arguments[i], pages);
    MakePages(arguments[1], pages);
  } catch (const std::exception& error) {
    std::cerr << "make_pages: " << error.what() << '\n';
    return 1;
  }
}
