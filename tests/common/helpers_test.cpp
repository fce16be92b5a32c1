// The text and number helpers, each call against its expected result in tests/data/common/cases.txt;
// then the whole-file helpers and the line reader.
#include <gtest/gtest.h>

#include <charconv>
#include <clocale>
#include <filesystem>
#include <map>

#include "common/dates.hpp"
#include "common/files.hpp"
#include "common/fit.hpp"
#include "common/format.hpp"
#include "common/line_input.hpp"
#include "common/number_text.hpp"
#include "common/paths.hpp"
#include "common/plain_number.hpp"
#include "common/print_line.hpp"
#include "common/rounding.hpp"
#include "common/sort_by_column.hpp"
#include "common/text.hpp"
#include "common/text_checks.hpp"
#include "fakes/temp_folder.hpp"
#include "fakes/test_rows.hpp"
#include "test_support.hpp"

namespace benchlog {
namespace {

using Args = testing::CallArgs;
using testing::TempFolder;
namespace fs = std::filesystem;
using namespace std::string_literals;
using Lines = std::vector<std::string>;

std::string Num(double value) {
  char text[64];  // + 0.0: no "-0"
  return std::string(text, std::to_chars(text, text + sizeof text, value + 0.0, std::chars_format::fixed).ptr);
}
std::string Bool(bool value) { return value ? "1" : "0"; }
std::size_t Size(const std::string& text) { return std::stoul(text); }
std::vector<std::string> Items(const std::string& text) {
  return text.empty() ? std::vector<std::string>{} : Split(text, ",");
}

const testing::CallTable kCalls = {
    {"Format", {2, [](const Args& a) { return Format(std::stod(a[0]), a[1]); }}},
    {"Date", {1, [](const Args& a) { return (IsDate(a[0]) ? "" : "no date ") + DateTextToYyyymmdd(a[0]); }}},
    {"PlainNumber", {1, [](const Args& a) { return PlainNumber(std::stod(a[0])); }}},
    {"Val", {1, [](const Args& a) { return Num(Val(a[0])); }}},
    {"IsNumeric", {1, [](const Args& a) { return Bool(IsNumeric(a[0])); }}},
    {"Path", {1, [](const Args& a) {
       return FolderOf(a[0]) + "|" + WithoutExtension(a[0]) + "|" + BaseName(a[0]) + "|" + FileNameOf(a[0]);
     }}},
    {"JoinPath", {2, [](const Args& a) { return JoinPath(a[0], a[1]); }}},
    {"Mid", {3, [](const Args& a) { return Mid(a[0], Size(a[1]), Size(a[2])); }}},
    {"MidFrom", {2, [](const Args& a) { return Mid(a[0], Size(a[1])); }}},
    {"Left", {2, [](const Args& a) { return Left(a[0], Size(a[1])); }}},
    {"Right", {2, [](const Args& a) { return Right(a[0], Size(a[1])); }}},
    {"InStr", {3, [](const Args& a) { return std::to_string(InStr(a[0], a[1], Size(a[2]))); }}},
    {"InStrRev", {2, [](const Args& a) { return std::to_string(InStrRev(a[0], a[1])); }}},
    {"Trim", {1, [](const Args& a) { return Trim(a[0]); }}},
    {"RTrim", {1, [](const Args& a) { return RTrim(a[0]); }}},
    {"IsBlank", {1, [](const Args& a) { return Bool(IsBlank(a[0])); }}},
    {"Split", {2, [](const Args& a) { return Join(Split(a[0], a[1]), "|"); }}},
    {"ReplaceAll", {3, [](const Args& a) { return ReplaceAll(a[0], a[1], a[2]); }}},
    {"FitToWidth", {2, [](const Args& a) { return FitToWidth(a[0], Size(a[1])); }}},
    {"SortByColumn", {2, [](const Args& a) {
       auto lines = Items(a[0]);
       SortByColumn(lines, Size(a[1]));
       return Join(lines, ",");
     }}},
    {"CountDelimiters", {2, [](const Args& a) { return std::to_string(CountDelimiters(a[0], a[1])); }}},
    {"DecimalCount", {1, [](const Args& a) { return std::to_string(DecimalCount(a[0])); }}},
    {"StripHtmlTags", {1, [](const Args& a) { return StripHtmlTags(a[0]); }}},
    {"IsAllCapitals", {1, [](const Args& a) { return Bool(IsAllCapitals(a[0])); }}},
    {"RoundHalfEven", {1, [](const Args& a) { return Num(RoundHalfEven(std::stod(a[0]))); }}},
    {"CInt", {1, [](const Args& a) { return std::to_string(CInt(std::stod(a[0]))); }}},
    {"CLng", {1, [](const Args& a) { return std::to_string(CLng(std::stod(a[0]))); }}},
    {"SplitCrLf", {1, [](const Args& a) { return Join(SplitCrLf(a[0]), "|"); }}},
    {"PrintLine", {1, [](const Args& a) {
       PrintLine line;
       for (const auto& item : Items(a[0])) item[0] == 'T' ? line.Tab(Size(item.substr(1))) : line.Write(item.substr(1));
       const std::string column = std::to_string(line.Column());
       const std::string finished = line.Finish();
       return column + "|" + finished + "|" + std::to_string(line.Column());
     }}},
    {"Failure", {1, [](const Args& a) {
       const std::map<std::string, RuntimeFailure (*)()> made = {
           {"Overflow", Overflow}, {"SubscriptOutOfRange", SubscriptOutOfRange}, {"DivisionByZero", DivisionByZero},
           {"TypeMismatch", TypeMismatch}, {"FileNotFound", FileNotFound}, {"InvalidProcedureCall", InvalidProcedureCall},
           {"PathFileAccessError", PathFileAccessError}, {"CancelError", CancelError}};
       const RuntimeFailure failure = made.at(a[0])();
       return std::to_string(failure.number) + "|" + failure.description;
     }}},
    {"AddInt16", {2, [](const Args& a) {
       const auto Int16 = [](const std::string& text) { return static_cast<std::int16_t>(std::stoi(text)); };
       return std::to_string(AddInt16(Int16(a[0]), Int16(a[1])));
     }}},
};

TEST(Helpers, GiveTheResultsOfTheCaseTable) { testing::CheckCalls("common/cases.txt", 277, kCalls); }

// A pattern with more places than a double has digits writes the digits, then zeros.
TEST(Format, ThousandsOfPlaces) {
  for (std::size_t places : {509u, 600u, 5000u, 32767u}) {
    const std::string zeros = "0." + std::string(places, '0');
    EXPECT_EQ(Format(1.0 / 3.0, zeros), "0.333333333333333" + std::string(places - 15, '0')) << places;
    EXPECT_EQ(Format(-2.5e-300, zeros), "-0." + std::string(299, '0') + "25" + std::string(places - 301, '0'))
        << places;
    EXPECT_EQ(Format(1.5e300, zeros), "15" + std::string(299, '0') + "." + std::string(places, '0')) << places;
    EXPECT_EQ(Format(0.5, "#." + std::string(places, '#')), ".5") << places;
  }
}

// A desktop toolkit sets the process locale from the user's; numbers in data files keep their ".".
TEST(NumberText, TheLocaleDoesNotChangeTheDecimalPoint) {
  ASSERT_NE(std::setlocale(LC_NUMERIC, "de_DE.UTF-8"), nullptr) << "scripts/setup installs the de_DE.UTF-8 locale";
  const double value = Val("3.25");
  const bool numeric = IsNumeric("3.25");
  const std::string text = Format(1234.5, "#,##0.00");
  std::setlocale(LC_NUMERIC, "C");
  EXPECT_EQ(value, 3.25);
  EXPECT_TRUE(numeric);
  EXPECT_EQ(text, "1,234.50");
}

TEST(SortByColumn, KeepsTheOrderOfAnInsertionSortOnALargeInput) {
  std::vector<std::string> lines;
  for (int i = 0; i < 500; ++i) lines.push_back(std::to_string(i % 7) + "|" + std::to_string((i * 37) % 11));
  std::vector<std::string> expected = lines;
  // The insertion sort of the classic routine, run here as the reference.
  for (std::size_t i = 1; i < expected.size(); ++i) {
    const std::string line = expected[i];
    std::size_t j = i;
    for (; j > 0 && expected[j - 1].substr(2) > line.substr(2); --j) expected[j] = expected[j - 1];
    expected[j] = line;
  }
  SortByColumn(lines, 3);
  EXPECT_EQ(lines, expected);
}

TEST(Files, WriteAppendAndReadAreByteExact) {
  TempFolder folder;
  const std::string path = folder.File("a.dat");
  WriteWholeFile(path, "A\0\xE9\r\n"s);
  AppendToFile(path, "B\n");
  EXPECT_EQ(ReadWholeFile(path), "A\0\xE9\r\nB\n"s);
  EXPECT_EQ(FileLength(path), 7u);
  WriteWholeFile(path, "");
  EXPECT_EQ(FileLength(path), 0u);
  EXPECT_TRUE(FileExists(path));
  EXPECT_FALSE(FileExists(folder.File("")));  // the folder itself is no file
}

TEST(Files, AMissingFileIsFileNotFound) {
  TempFolder folder;
  const std::string missing = folder.File("missing.dat");
  EXPECT_EQ(FailureOf([&] { FileLength(missing); }), kFileNotFound);
  EXPECT_EQ(FailureOf([&] { ReadWholeFile(missing); }), kFileNotFound);
  EXPECT_EQ(FailureOf([&] { ReadWholeFile(folder.File("")); }), kFileNotFound);
  EXPECT_EQ(FailureOf([&] { LineReader reader(missing); }), kFileNotFound);
  EXPECT_FALSE(FileExists(missing));
  EXPECT_NO_THROW(DeleteFileIfExists(missing));
}

TEST(Files, IsReadOnlyWhenTheFileCannotBeWritten) {
  TempFolder folder;
  const std::string path = folder.File("a.dat");
  EXPECT_FALSE(IsReadOnly(path));  // missing
  WriteWholeFile(path, "x");
  EXPECT_FALSE(IsReadOnly(path));
  fs::permissions(path, fs::perms::owner_read | fs::perms::group_read | fs::perms::others_read);
  EXPECT_TRUE(IsReadOnly(path));  // also for a user who could write it anyway
  fs::permissions(path, fs::perms::owner_write, fs::perm_options::add);
  EXPECT_FALSE(IsReadOnly(path));
}

constexpr std::size_t kBuffer = LineReader::kBufferSize;

// The lines read through either form of ReadLine; past the end it stays at the end.
template <typename Line>
Lines ReadAll(const std::string& path) {
  LineReader reader(path);
  Lines lines;
  Line line;
  while (reader.ReadLine(line)) lines.emplace_back(line);
  EXPECT_FALSE(reader.ReadLine(line));
  return lines;
}

TEST(LineReader, EndsLinesAtCrOrCrLfAndKeepsEveryOtherByte) {
  TempFolder folder;
  const std::string path = folder.File("lines.dat");
  for (auto c : testing::ReadRows("common/line_reader_cases.txt", 12, '|')) {
    for (auto& field : c)
      field = ReplaceAll(ReplaceAll(field, "{x}", std::string(kBuffer - 1, 'x')), "{z}", std::string(kBuffer + 10, 'z'));
    WriteWholeFile(path, c[1]);
    EXPECT_EQ(ReadAll<std::string_view>(path), Lines(c.begin() + 2, c.end())) << c[0];
    EXPECT_EQ(ReadAll<std::string>(path), Lines(c.begin() + 2, c.end())) << c[0];
  }
}

}  // namespace
}  // namespace benchlog
