#include <gtest/gtest.h>

#include "common/line_input.hpp"
#include "common/text.hpp"
#include "dataset/build_mark_index.hpp"
#include "dataset/dataset_test_support.hpp"
#include "session/index_record.hpp"
#include "dataset/mark_lookup.hpp"
#include "fakes/fakes.hpp"

namespace benchlog {
namespace {

std::string Record(const char* pid, const char* longitude, const char* designation, std::uint64_t offset) {
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

// Two records as loaded from a file: XX0002 also stands in XX0001's name ("REF XX0002 OLD", from
// column 47 of the joined text), so its look-up starts there.
MarkIndex QuirkIndex() {
  MarkIndex index;
  index.Assign({Record("XX0001", "104 59 31.54321", "REF XX0002 OLD", 1),
                Record("XX0002", "105 05 52.76543", "KIPLING", 500), SentinelRecord(900), ""});
  return index;
}

TEST(MarkLookup, ReadsTheOffsetsBehindTheFirstOccurrence) {
  const MarkIndex index = QuirkIndex();
  struct Case {
    const char* pid;
    std::size_t position;
    std::int64_t start, next;
    const char* horz;
    const char* vert;
  };
  const Case cases[] = {
      // own record: offset at +134; the next offset read one column in ("00000500 ")
      {"XX0001", 1, 1, 500, "1", "2"},
      // inside the earlier name: +134 lands in XX0002's columns 35-43, "2.76543 K", which rounds
      // to 3; +281 lands in the sentinel's blanks; the orders are letters of the name
      {"XX0002", 47, 3, 0, "O", "D"},
      // an empty text is found at the start
      {"", 1, 1, 500, "1", "2"},
  };
  for (const auto& c : cases) {
    const MarkLocation at = LocateMark(index, c.pid);
    EXPECT_EQ(at.position, c.position) << c.pid;
    EXPECT_EQ(at.start, c.start) << c.pid;
    EXPECT_EQ(at.next, c.next) << c.pid;
    std::string horz, vert;
    EXPECT_EQ(GetOrdersByPid(index, c.pid, horz, vert), "") << c.pid;
    EXPECT_EQ(horz, c.horz) << c.pid;
    EXPECT_EQ(vert, c.vert) << c.pid;
  }
}

TEST(MarkLookup, AnAbsentPidGivesBlankOrdersAndTheMessage) {
  std::string horz = "x", vert = "y";
  EXPECT_EQ(GetOrdersByPid(QuirkIndex(), "ZZ9999", horz, vert), "Pid Not Found!");
  EXPECT_EQ(horz, " ");
  EXPECT_EQ(vert, " ");
  EXPECT_EQ(LocateMark(QuirkIndex(), "ZZ9999").position, 0u);
}

// The look-up answers exactly as a search of the joined records would, for every six characters
// that stand anywhere in them, and follows changes of the index.
TEST(MarkLookup, FindAgreesWithASearchOfTheJoinedText) {
  testing::TempFolder folder;
  testing::FakePlatform fake(folder.Path());
  MarkIndex index;
  BuildMarkIndex(CopyFixture(folder, "layouts.dat"), folder.File("l.ndx"), index, fake.platform);
  const std::string joined = index.Joined();
  for (std::size_t i = 0; i + 6 <= joined.size(); i += 3) {
    const std::string probe = joined.substr(i, 6);
    ASSERT_EQ(index.Find(probe), InStr(joined, probe)) << '"' << probe << '"';
  }
  EXPECT_EQ(index.Find("AB1236"), InStr(joined, "AB1236"));
  index.Set(0, Record("AB1236", "104 59 31.54321", "MOVED", 1));
  EXPECT_EQ(index.Find("AB1236"), 1u);
  EXPECT_EQ(index.Find("AB1234"), 0u);
}

// Both layouts of the array give the same spans where the records have their full width, since
// an empty element only adds one blank. AB1236's position line is cut short, so its record is 22
// characters short: the look-up reads AB1235's end and AB1236's offset out of AB1237's columns.
TEST(MarkLookup, SpansInBothLayouts) {
  testing::TempFolder folder;
  testing::FakePlatform fake(folder.Path());
  MarkIndex built, loaded;
  BuildMarkIndex(CopyFixture(folder, "layouts.dat"), folder.File("l.ndx"), built, fake.platform);
  LoadIndexFile(folder.File("l.ndx"), loaded);
  struct Case {
    const char* pid;
    std::int64_t builtStart, builtNext, loadedStart, loadedNext;
  };
  const Case cases[] = {
      {"AB1234", 1, 2235, 1, 2235},
      {"AB1235", 2235, 473605, 2235, 473605},  // " 47 36 05." of AB1237's latitude
      {"AB1236", 247360, 0, 473605, 0},        // "2 47 36 0" built (two blanks), " 47 36 05" loaded
      {"AB1237", 3949, 4898, 3949, 4898},      // the sentinel ends the last
      {"", 1, 2235, 1, 2235},
  };
  for (const auto& c : cases) {
    EXPECT_EQ(LocateMark(built, c.pid).start, c.builtStart) << c.pid;
    EXPECT_EQ(LocateMark(built, c.pid).next, c.builtNext) << c.pid;
    EXPECT_EQ(LocateMark(loaded, c.pid).start, c.loadedStart) << c.pid;
    EXPECT_EQ(LocateMark(loaded, c.pid).next, c.loadedNext) << c.pid;
  }
}

}  // namespace
}  // namespace benchlog
