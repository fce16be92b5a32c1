#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <optional>
#include <tuple>

#include "common/files.hpp"
#include "common/line_input.hpp"
#include "common/text.hpp"
#include "dataset/build_mark_index.hpp"
#include "dataset/compress_dataset.hpp"
#include "dataset/dataset_text.hpp"
#include "dataset/description_file.hpp"
#include "dataset/load_dataset_index.hpp"
#include "dataset/mark_lookup.hpp"
#include "fakes/fakes.hpp"
#include "fakes/temp_folder.hpp"
#include "fakes/test_paths.hpp"
#include "fakes/test_rows.hpp"
#include "session/index_record.hpp"

namespace benchlog {
namespace {

using testing::FakePlatform;
using testing::TempFolder;

// The fixtures of tests/data/dataset, read or copied into the folder (returning the copy's path).
std::string Fixture(const std::string& name) { return ReadWholeFile(testing::TestData("dataset/" + name)); }
std::string CopyFixture(const TempFolder& folder, const std::string& name) { return folder.Write(name, Fixture(name)); }

std::string Bool(bool value) { return value ? "1" : "0"; }

// GetDescription or BlankDescription of `pid` with the fixture's index, and its dataset or a missing
// one: the message, the text read, what became of the dataset.
std::string Description(const std::string& call, const std::string& fixture, bool present, const std::string& pid) {
  TempFolder folder;
  MarkIndex index;
  LoadIndexFile(CopyFixture(folder, fixture + ".ndx"), index);
  const std::string dat = present ? CopyFixture(folder, fixture + ".dat") : folder.File("missing.dat");
  std::string text = "as passed";
  const std::string message = call == "Get" ? GetDescription(index, dat, pid, text) : BlankDescription(index, dat, pid);
  if (!FileExists(dat)) return message + "|" + text + "|absent";
  return message + "|" + text + (ReadWholeFile(dat) == Fixture(fixture + ".dat") ? "|unchanged" : "|changed");
}

TEST(DatasetText, GivesTheResultsOfTheCaseTable) {
  using Args = testing::CallArgs;
  const testing::CallTable calls = {
      {"Kind", {1, [](const Args& a) {
         return Bool(IsHeaderLine(a[0])) + "|" + Bool(IsDataLine(a[0])) + "|" + Bool(IsForeignLine(a[0]));
       }}},
      {"Pid", {1, [](const Args& a) { return std::string(LinePid(a[0])); }}},
      {"Mark", {1, [](const Args& a) { return LineMark(a[0]) ? std::string(1, LineMark(a[0])) : ""; }}},
      {"KeyAt", {3, [](const Args& a) { return Bool(KeyAt(a[0], std::stoul(a[1]), a[2])); }}},
      {"Columns", {3, [](const Args& a) { return std::string(Columns(a[0], std::stoul(a[1]), std::stoul(a[2]))); }}},
      {"CountedLength", {1, [](const Args& a) { return std::to_string(CountedLength(a[0])); }}},
      {"Blank", {1, [](const Args& a) { return Bool(IsBlankLine(a[0])); }}},
      {"Position", {1, [](const Args& a) {
         if (!IsPositionLine(a[0])) return std::string("0|0||");
         return "1|" + Bool(IsLongDatumLayout(a[0])) + "|" + std::string(PositionLatitudeText(a[0])) + "|" +
                std::string(PositionLongitudeText(a[0]));
       }}},
      {"History", {1, [](const Args& a) {
         return Bool(IsHistoryHeadLine(a[0])) + "|" + Bool(IsHistoryLine(a[0])) + "|" + std::string(HistoryYear(a[0])) +
                "|" + std::string(HistoryCondition(a[0])) + "|" + std::string(HistoryAgency(a[0]));
       }}},
      {"Description", {4, [](const Args& a) { return Description(a[0], a[1], a[2] == "1", a[3]); }}},
  };
  testing::CheckCalls("dataset/cases.txt", 33, calls);
}

// The index file matches the hand-made one byte for byte, and the built array has the builder's
// layout: the records of all but the last Description, an empty element, the last record, the
// sentinel. Loading the file gives the other layout: the records, the sentinel, an empty element.
TEST(GoldenIndex, MatchesTheHandMadeIndex) {
  for (const auto& g : testing::ReadRows("dataset/golden_indexes.txt", 6)) {
    SCOPED_TRACE(g[0]);
    TempFolder folder;
    const std::string dat = CopyFixture(folder, g[0] + ".dat");
    for (std::size_t i = 2; i < g.size(); ++i) folder.Write(g[i], "");
    const std::string ndx = folder.File(g[0] + ".ndx");
    FakePlatform fake(folder.Path());
    MarkIndex index;

    ASSERT_TRUE(BuildMarkIndex(dat, ndx, index, fake.platform));
    EXPECT_TRUE(fake.ui.messages.empty());
    const std::string expected = Fixture(g[0] + ".ndx");
    EXPECT_EQ(ReadWholeFile(ndx), expected);

    const std::vector<std::string> lines = SplitCrLf(expected);  // records, sentinel, ""
    const std::size_t d = std::stoul(g[1]);
    ASSERT_EQ(lines.size(), d + 2);
    ASSERT_EQ(index.Size(), d + 2);
    for (std::size_t i = 0; i + 1 < d; ++i) EXPECT_EQ(index[i], lines[i]) << "element " << i;
    EXPECT_EQ(index[d - 1], "");
    EXPECT_EQ(index[d], lines[d - 1]);
    EXPECT_EQ(index[d + 1], lines[d]);

    MarkIndex loaded;
    LoadIndexFile(ndx, loaded);
    EXPECT_EQ(loaded.Elements(), lines);
  }
}

// A scratch folder with the platform and an index array.
struct InFolder : ::testing::Test {
  TempFolder folder;
  FakePlatform fake{folder.Path()};
  MarkIndex index;
  // The index file built from a dataset of `text`.
  std::string Built(const std::string& text) {
    BuildMarkIndex(folder.Write("x.dat", text), folder.File("x.ndx"), index, fake.platform);
    return ReadWholeFile(folder.File("x.ndx"));
  }
  long Files() const { return std::distance(std::filesystem::directory_iterator(folder.Path()), {}); }
};
using IndexBuild = InFolder;
using Lookup = InFolder;
using Compressing = InFolder;

TEST_F(IndexBuild, OffsetsOfTheCaseTable) {
  for (const auto& c : testing::ReadRows("dataset/index_build_cases.txt", 3, '|')) {
    const auto records = SplitCrLf(Built(c[0]));
    const auto offsets = Split(c[3], ";");
    ASSERT_EQ(records.size(), offsets.size() + 1) << c[1];  // and the empty text behind the last CR LF
    EXPECT_EQ(IndexField(records[0], kPidColumn), c[1]);
    EXPECT_EQ(IndexField(records[0], kDesignationColumn), c[2]) << c[1];
    for (std::size_t i = 0; i < offsets.size(); ++i) EXPECT_EQ(RecordOffset(records[i]), std::stoull(offsets[i])) << c[1];
  }
}

TEST_F(IndexBuild, AdvancesTheBarOncePerDescriptionUpToItsMaximum) {
  const std::string dat = CopyFixture(folder, "landmarks.dat");  // 8 Descriptions
  fake.progress.max = 5;
  fake.progress.value = 1;
  fake.progress.Show();
  BuildMarkIndex(dat, folder.File("landmarks.ndx"), index, fake.platform);
  EXPECT_EQ(fake.progress.value, 5);  // 7 header lines finish a Description; the bar stops at 5
  EXPECT_FALSE(fake.progress.Visible());
  std::vector<int> values;
  for (const auto& p : fake.progressHistory) values.push_back(p.value);
  EXPECT_EQ(values, (std::vector<int>{1, 2, 3, 4, 5, 5}));  // show, 4 steps, hide
}

// A dataset that cannot be read or an index that cannot be written is shown and leaves the old
// files; a dataset with the index's own name in the program's folder is never written over.
TEST_F(IndexBuild, FailuresAreShownAndLeaveTheFiles) {
  const std::string dat = CopyFixture(folder, "single.dat");
  const std::string ndx = folder.Write("gone.ndx", "old index\r\n"), unwritable = folder.File("no/such/folder.ndx");
  fake.progress.Show();
  index.Set(0, "kept?");
  EXPECT_FALSE(BuildMarkIndex(folder.File("gone.dat"), ndx, index, fake.platform));
  EXPECT_TRUE(index.Empty());  // cleared before the scan began
  EXPECT_FALSE(fake.progress.Visible());
  EXPECT_FALSE(BuildMarkIndex(dat, dat, index, fake.platform));
  EXPECT_FALSE(BuildMarkIndex(dat, unwritable, index, fake.platform));
  EXPECT_EQ(fake.ui.MessageTexts(), (std::vector<std::string>{"File not found", "Path/File access error",
                                                               "Path/File access error: could not write " + unwritable +
                                                                   " (No such file or directory)"}));
  EXPECT_EQ(fake.ui.messages[0].title, "Create Mark Index");
  EXPECT_EQ(fake.ui.messages[0].icon, MsgIcon::Critical);
  EXPECT_EQ(ReadWholeFile(ndx), "old index\r\n");
  EXPECT_EQ(ReadWholeFile(dat), Fixture("single.dat"));
}

// A dataset folder and a separate program folder (App.Path), as on a real installation.
struct Opening {
  TempFolder data, app;
  FakePlatform fake{app.Path()};
  testing::TestSession session;
  Opening() {
    session.dataset.DatFile = data.File("landmarks.dat");
    session.dataset.DatFilePath = data.Path() + "/";
    session.shell.caption = "Benchlog Version 1.0.0";
  }
  bool Load() { return LoadDatasetIndex(session, fake.platform); }
};

TEST(LoadDatasetIndex, AMissingDatasetSetsTheDerivedPathsOnly) {
  Opening o;
  o.session.dataset.markIndex.Assign({"previous"});
  o.session.menu["mnuViewHcl"].enabled = false;
  EXPECT_FALSE(o.Load());
  const ExportOutputs& out = o.session.outputs;
  EXPECT_EQ(std::vector<std::string>({out.HclFile, out.VclFile, out.MsfFile, out.ErrFile, out.SA6File}),
            std::vector<std::string>({o.data.File("landmarks.hcl"), o.data.File("landmarks.vcl"), o.data.File("landmarks.msf"),
                                      o.data.File("landmarks.err"), o.data.File("landmarks_SA6.txt")}));
  EXPECT_EQ(o.session.dataset.IndexFile, o.app.File("landmarks.ndx"));
  EXPECT_EQ(o.session.shell.caption, "Benchlog Version 1.0.0");
  EXPECT_EQ(o.session.dataset.markIndex.Elements(), std::vector<std::string>{"previous"});
  EXPECT_TRUE(o.fake.ui.messages.empty());
  EXPECT_FALSE(o.session.menu["mnuViewHcl"].enabled);
}

// A missing index is built behind the progress dialog; an existing one is judged by its sentinel
// alone (the dataset's length) and rebuilt without the dialog when stale.
TEST(LoadDatasetIndex, BuildsAMissingIndexAndRebuildsAStaleOne) {
  const std::string garbage = "not a record\r\n" + std::string(134, ' ') + "000003513 |\r\n";
  // name, index file (none: missing), rebuilt
  for (const auto& [name, index, rebuilt] :
       {std::tuple<const char*, std::optional<std::string>, bool>{"missing", std::nullopt, true},
        {"valid", Fixture("landmarks.ndx"), false},
        {"other dataset's length", Fixture("layouts.ndx"), true},
        {"same length, other content", garbage, false},
        {"empty file", "", true},
        {"records only, no sentinel", Fixture("landmarks.ndx").substr(0, 147 * 3), true}}) {
    Opening o;
    CopyFixture(o.data, "landmarks.dat");
    o.data.Write("landmarks.hcl", "");
    o.data.Write("landmarks.err", "");
    if (index) o.app.Write("landmarks.ndx", *index);
    EXPECT_EQ(o.Load(), rebuilt) << name;
    EXPECT_FALSE(o.fake.progress.Visible()) << name;
    const auto& shown = o.fake.progressHistory;
    if (!index) {
      ASSERT_FALSE(shown.empty());
      EXPECT_EQ(testing::Describe(shown.front()), "Creating index...|Please wait...|1/0");  // 3513 bytes / 5000
    } else {
      EXPECT_TRUE(std::none_of(shown.begin(), shown.end(), [](const Progress& p) { return p.Visible(); })) << name;
    }
    EXPECT_EQ(o.session.shell.caption, o.session.dataset.DatFile) << name;
    const std::string onDisk = ReadWholeFile(o.session.dataset.IndexFile);
    EXPECT_EQ(onDisk, rebuilt ? Fixture("landmarks.ndx") : *index) << name;
    if (rebuilt) {
      EXPECT_EQ(o.fake.ui.MessageTexts(), std::vector<std::string>{"Index file created."}) << name;
      EXPECT_EQ(o.session.dataset.markIndex.Size(), 10u) << name;  // built layout: 8 Descriptions
      EXPECT_EQ(o.session.dataset.markIndex[7], "") << name;
      EXPECT_TRUE(o.session.menu["mnuViewHcl"].enabled && o.session.menu["mnuViewError"].enabled) << name;
      EXPECT_FALSE(o.session.menu["mnuViewVcl"].enabled) << name;
    } else {
      EXPECT_TRUE(o.fake.ui.messages.empty()) << name;
      EXPECT_EQ(o.session.dataset.markIndex.Elements(), SplitCrLf(*index)) << name;
    }
  }
}

std::string Record(const char* pid, std::uint64_t offset, const char* longitude = "104 59 31.54321", const char* designation = "") {
  IndexRecord r;
  r.Pid = pid;
  r.HorzOrder = "1";
  r.VertOrder = "2";
  r.Latitude = "39 44 29.12345";
  r.Longitude = longitude;
  r.Designation = designation;
  r.DescriptionOffset = offset;
  return FormatIndexRecord(r);
}

TEST(MarkLookup, ReadsTheOffsetsBehindTheFirstOccurrence) {
  // The index of tests/data/dataset/quirk_lookup_cases.txt.
  MarkIndex index;
  index.Assign({Record("XX0001", 1, "104 59 31.54321", "REF XX0002 OLD"),
                Record("XX0002", 500, "105 05 52.76543", "KIPLING"), SentinelRecord(900), ""});
  for (const auto& c : testing::ReadRows("dataset/quirk_lookup_cases.txt", 4, '|')) {
    const MarkLocation at = LocateMark(index, c[0]);
    EXPECT_EQ(at.position, std::stoul(c[1])) << c[0];
    if (at.position) {
      EXPECT_EQ(at.start, std::stoll(c[2])) << c[0];
      EXPECT_EQ(at.next, std::stoll(c[3])) << c[0];
    }
    std::string horz = "x", vert = "y";
    EXPECT_EQ(GetOrdersByPid(index, c[0], horz, vert), c[6]) << c[0];
    EXPECT_EQ(horz, c[4]) << c[0];
    EXPECT_EQ(vert, c[5]) << c[0];
  }
}

// The look-up answers exactly as a search of the joined records would, for every six characters
// that stand anywhere in them, and follows changes of the index.
TEST_F(Lookup, FindAgreesWithASearchOfTheJoinedText) {
  BuildMarkIndex(CopyFixture(folder, "layouts.dat"), folder.File("l.ndx"), index, fake.platform);
  const std::string joined = index.Joined();
  for (std::size_t i = 0; i + 6 <= joined.size(); i += 3) {
    const std::string probe = joined.substr(i, 6);
    ASSERT_EQ(index.Find(probe), InStr(joined, probe)) << '"' << probe << '"';
  }
  EXPECT_EQ(index.Find("AB1236"), InStr(joined, "AB1236"));
  index.Set(0, Record("AB1236", 1));
  EXPECT_EQ(index.Find("AB1236"), 1u);
  EXPECT_EQ(index.Find("AB1234"), 0u);
}

// Both layouts of the array give the same spans where the records have their full width, since
// an empty element only adds one blank.
TEST_F(Lookup, SpansInBothLayouts) {
  MarkIndex loaded;
  BuildMarkIndex(CopyFixture(folder, "layouts.dat"), folder.File("l.ndx"), index, fake.platform);
  LoadIndexFile(folder.File("l.ndx"), loaded);
  for (const auto& c : testing::ReadRows("dataset/lookup_cases.txt", 5, '|')) {
    EXPECT_EQ(LocateMark(index, c[0]).start, std::stoll(c[1])) << c[0];
    EXPECT_EQ(LocateMark(index, c[0]).next, std::stoll(c[2])) << c[0];
    EXPECT_EQ(LocateMark(loaded, c[0]).start, std::stoll(c[3])) << c[0];
    EXPECT_EQ(LocateMark(loaded, c[0]).next, std::stoll(c[4])) << c[0];
  }
}

// landmarks.dat: 8 Descriptions CD0001..CD0008 at these offsets, 3513 bytes in all.
constexpr std::size_t kOffsets[] = {1, 467, 889, 1318, 1799, 2214, 2634, 3091, 3514};

// Reading gives the span between two offsets; blanking writes blanks and CR LF over it and keeps
// the length. The last Description ends at the dataset's length, one byte short of its final LF,
// which stays behind the CR LF; an empty PID is found at the start.
TEST(DescriptionFile, ReadsAndBlanksTheSpanBetweenTwoOffsets) {
  const std::tuple<const char*, int, std::size_t> cases[] = {
      {"CD0001", 0, 0}, {"CD0004", 3, 0}, {"CD0007", 6, 0}, {"CD0008", 7, 1}, {"", 0, 0}};
  for (const auto& [pid, description, shortBy] : cases) {
    TempFolder folder;
    const std::string dat = CopyFixture(folder, "landmarks.dat"), original = Fixture("landmarks.dat");
    MarkIndex index;
    LoadIndexFile(CopyFixture(folder, "landmarks.ndx"), index);
    std::string text;
    EXPECT_EQ(GetDescription(index, dat, pid, text), "") << pid;
    EXPECT_EQ(text, original.substr(kOffsets[description] - 1, kOffsets[description + 1] - kOffsets[description] - shortBy))
        << pid;
    EXPECT_EQ(BlankDescription(index, dat, pid), "") << pid;
    std::string expected = original;
    expected.replace(kOffsets[description] - 1, text.size(), std::string(text.size() - 2, ' ') + "\r\n");
    const std::string after = ReadWholeFile(dat);
    EXPECT_EQ(after, expected) << pid;
    if (shortBy == 0) continue;
    EXPECT_EQ(text.substr(text.size() - 2), "E\r");
    EXPECT_EQ(after.substr(after.size() - 5), "  \r\n\n");
  }
}

TEST(BlankDescription, ShortSpansAndAZeroOffset) {
  for (const auto& c : testing::ReadRows("dataset/blank_cases.txt", 4, '|')) {
    TempFolder folder;
    const std::string dat = folder.Write("t.dat", "abcdefghijklmnopqrst");
    MarkIndex index;
    index.Assign({Record("PP0001", std::stoull(c[0])), Record("PP0002", std::stoull(c[1])), SentinelRecord(20), ""});
    EXPECT_EQ(BlankDescription(index, dat, "PP0001"), "");
    EXPECT_EQ(ReadWholeFile(dat), c[2]) << c[0] << ".." << c[1];
  }
}

TEST_F(Compressing, KeepsEveryLineWithTextAndNothingElse) {
  for (const auto& c : testing::ReadRows("dataset/compress_cases.txt", 7, '|')) {
    const std::string dat = folder.Write("d.dat", c[1]);
    EXPECT_EQ(CompressDataset(dat, fake.platform), "") << c[0];
    EXPECT_EQ(ReadWholeFile(dat), c[2]) << c[0];
    EXPECT_EQ(Files(), 1) << c[0];  // no work file stays
  }
  EXPECT_TRUE(fake.ui.messages.empty());
}

// 80 lines of 98 characters and CR LF: 8000 bytes.
std::string Lines(int count) {
  std::string text;
  for (int i = 0; i < count; ++i) text += " " + std::string(97, 'x') + "\r\n";
  return text;
}

TEST(CompressDataset, ShowsProgressOnlyAbove8000Bytes) {
  // text, shown, maximum: 25,000 bytes give a bar to 3, and lines 100 and 200 set it to 1 and 2
  for (const auto& [text, shown, max] : {std::tuple{Lines(80), false, 0}, {Lines(80) + "x", true, 1}, {Lines(250), true, 3}}) {
    TempFolder folder;
    const std::string dat = folder.Write("d.dat", text);
    FakePlatform fake(folder.Path());
    fake.progress.max = 0;
    EXPECT_EQ(CompressDataset(dat, fake.platform), "");
    EXPECT_FALSE(fake.progress.Visible());
    EXPECT_EQ(std::any_of(fake.progressHistory.begin(), fake.progressHistory.end(), [](const Progress& p) { return p.Visible(); }),
              shown) << text.size();
    if (!shown) continue;
    EXPECT_EQ(fake.progressHistory.front().caption, "Compress MKDATA file");
    EXPECT_EQ(testing::Describe(fake.progressHistory.front()), "Compressing File|Please wait...|0/" + std::to_string(max));
    EXPECT_EQ(fake.ui.doEventsCalls, 1);
    std::vector<int> values;
    for (const auto& p : fake.progressHistory) values.push_back(p.value);
    if (max == 3) {
      EXPECT_EQ(values, (std::vector<int>{0, 0, 1, 2, 2}));  // show, refresh, two steps, hide
    }
  }
}

// A missing dataset is reported at the reading stage; a read-only one is left whole, with no
// work file beside it.
TEST_F(Compressing, AMissingOrReadOnlyDatasetIsReported) {
  const std::string dat = folder.Write("d.dat", " keep  \r\n  \r\n");
  std::filesystem::permissions(dat, std::filesystem::perms::owner_read);
  EXPECT_EQ(CompressDataset(folder.File("gone.dat"), fake.platform), "Unable to open .dat file for reading.");
  EXPECT_FALSE(FileExists(folder.File("gone.dat")));
  fake.progress.Show();
  EXPECT_EQ(CompressDataset(dat, fake.platform), "Unable to open a file in the product directory for writing.");
  EXPECT_EQ(fake.ui.MessageTexts(),
            (std::vector<std::string>{"Unable to open .dat file for reading.\r\nFile not found",
                                      "Unable to open a file in the product directory for writing.\r\nPath/File access error"}));
  EXPECT_EQ(ReadWholeFile(dat), " keep  \r\n  \r\n");
  EXPECT_EQ(Files(), 1);
  EXPECT_FALSE(fake.progress.Visible());
}

}  // namespace
}  // namespace benchlog
