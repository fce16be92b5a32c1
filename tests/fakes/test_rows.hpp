#pragma once
// Case tables of tests/data: one case per line, "#" lines and empty lines left out.
#include <gtest/gtest.h>

#include <fstream>
#include <functional>
#include <map>
#include <sstream>
#include <string>
#include <vector>

#include "common/runtime_failure.hpp"
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

// A table of calls, one per line: function|arguments...|result. Each function is listed with its
// number of arguments; the fields after them are its result, "|"-joined. A RuntimeFailure reads as
// "failure <number>". Every function must be called at least once.
using CallArgs = std::vector<std::string>;
using CallTable = std::map<std::string, std::pair<std::size_t, std::function<std::string(const CallArgs&)>>>;

inline std::string JoinFields(CallArgs::const_iterator from, CallArgs::const_iterator to, const char* separator) {
  std::string text;
  for (auto field = from; field != to; ++field) text += (field == from ? "" : separator) + *field;
  return text;
}

inline void CheckCalls(const std::string& name, std::size_t expectedRows, const CallTable& calls) {
  std::map<std::string, int> used;
  for (const auto& row : ReadRows(name, expectedRows, '|')) {
    const auto call = calls.find(row[0]);
    ASSERT_NE(call, calls.end()) << row[0];
    const auto& [arguments, function] = call->second;
    ASSERT_GT(row.size(), arguments + 1) << row[0] << " " << row[1];
    const auto end = row.begin() + 1 + static_cast<long>(arguments);
    std::string actual;
    try {
      actual = function(CallArgs(row.begin() + 1, end));
    } catch (const RuntimeFailure& failure) {
      actual = "failure " + std::to_string(failure.number);
    }
    EXPECT_EQ(actual, JoinFields(end, row.end(), "|"))
        << row[0] << "(\"" << JoinFields(row.begin() + 1, end, "\", \"") << "\")";
    ++used[row[0]];
  }
  EXPECT_EQ(used.size(), calls.size()) << name;
}

}  // namespace benchlog::testing
