#pragma once
// Case tables of tests/data: one case per line, "#" lines and empty lines left out.
#include <gtest/gtest.h>

#include <fstream>
#include <sstream>
#include <string>
#include <vector>

#include "fakes/test_paths.hpp"

namespace benchlog::testing {

// Reads the escapes \r \n \t \0 \\ and \xHH, so that tables can hold any byte.
inline std::string Unescape(const std::string& text) {
  std::string out;
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (text[i] != '\\' || i + 1 == text.size()) {
      out += text[i];
      continue;
    }
    const char c = text[++i];
    if (c == 'x') {
      out += static_cast<char>(std::stoi(text.substr(i + 1, 2), nullptr, 16));
      i += 2;
    } else {
      out += c == 'r' ? '\r' : c == 'n' ? '\n' : c == 't' ? '\t' : c == '0' ? '\0' : c;
    }
  }
  return out;
}

// The fields of each case of tests/data/`name`, split at `separator` (then unescaped), or at runs
// of blanks when it is ' '. Fails the test unless there are `expectedRows` cases, so that an empty
// or cut file cannot pass.
inline std::vector<std::vector<std::string>> ReadRows(const std::string& name, std::size_t expectedRows,
                                                      char separator = ' ') {
  std::ifstream in(TestData(name));
  std::vector<std::vector<std::string>> rows;
  for (std::string line; std::getline(in, line);) {
    if (line.empty() || line[0] == '#') continue;
    std::istringstream fields(line);
    std::vector<std::string> row;
    if (separator == ' ') {
      for (std::string field; fields >> field;) row.push_back(field);
    } else {
      for (std::string field; std::getline(fields, field, separator);) row.push_back(Unescape(field));
      if (line.back() == separator) row.push_back("");
    }
    rows.push_back(row);
  }
  EXPECT_EQ(rows.size(), expectedRows) << name;
  return rows;
}

}  // namespace benchlog::testing
