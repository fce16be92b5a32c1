#include <gtest/gtest.h>

#include <tuple>

#include "app/app_commands.hpp"
#include "app/command_registry.hpp"
#include "common/files.hpp"
#include "common/text.hpp"
#include "dataset/compress_dataset.hpp"
#include "dataset/frm_get_file.hpp"
#include "dataset/line_ends.hpp"
#include "fakes/fakes.hpp"
#include "fakes/folder_snapshot.hpp"
#include "fakes/temp_folder.hpp"
#include "fakes/test_paths.hpp"
#include "session/frm_select_points.hpp"

namespace benchlog {
namespace {

using testing::FolderSnapshot;

// The bundled sample: 2827 lines in CR LF, none blank, 45 Descriptions.
const std::string& Sample() {
  static const std::string text = ReadWholeFile(testing::SampleDataset());
  return text;
}

// The sample with the CR of every CR LF from the `keep`-th on taken out.
std::string LfFrom(std::size_t keep) {
  std::string text = Sample();
  std::size_t at = 0;
  for (std::size_t n = 0; (at = text.find("\r\n", at)) != std::string::npos; ++n) {
    if (n >= keep) text.erase(at, 1);
    ++at;
  }
  return text;
}

struct Scene {
  testing::TempFolder folder;
  testing::FakePlatform fake{folder.Path()};
  testing::TestSession session;
  CommandTable table = BuildCommandTable();
  void Run(const std::string& name) { table.Run(name, session, fake.platform); }
  bool Asked() const { return !fake.ui.messages.empty() && fake.ui.messages[0].title == "Line Ends"; }
};

// Counting and converting, with CR LF pairs and lone LFs on both sides of a 64 KB block's edge.
TEST(LineEnds, CountsAndConvertsAcrossBlocks) {
  const std::string pad(65535, 'x');  // the next byte is the first of the second block
  // text, CR LF pairs, lone LFs, the text converted
  const std::tuple<std::string, int, int, std::string> cases[] = {
      {"", 0, 0, ""},
      {"\n\n", 0, 2, "\r\n\r\n"},
      {"a\nb\r\nc\rd\n", 1, 2, "a\r\nb\r\nc\rd\r\n"},
      {pad + "\r\n", 1, 0, pad + "\r\n"},
      {pad + "x\n", 0, 1, pad + "x\r\n"},
  };
  for (const auto& [text, crLf, loneLf, converted] : cases) {
    testing::TempFolder folder;
    const std::string path = folder.Write("d.dat", text);
    const LineEndCounts counts = CountLineEnds(path);
    EXPECT_EQ(counts.crLf, static_cast<std::uint64_t>(crLf)) << text.size();
    EXPECT_EQ(counts.loneLf, static_cast<std::uint64_t>(loneLf)) << text.size();
    EXPECT_EQ(counts.length, text.size());
    ConvertToCrLf(path);
    EXPECT_EQ(ReadWholeFile(path), converted) << text.size();
    EXPECT_EQ(ReadWholeFile(path + ".lf.bak"), text) << text.size();
  }
}

// Each lone LF gains a byte: the limit is judged on the converted length.
TEST(LineEnds, AConversionPastTheSizeLimitIsRefused) {
  EXPECT_EQ(ConversionSizeRefusal({0, 10, 99'999'989}), "");
  EXPECT_NE(ConversionSizeRefusal({0, 11, 99'999'989}).find("would be 100,000,000 bytes long"), std::string::npos);
}

// An LF-only dataset, and one with more lone LFs than CR LF pairs: Yes converts it and builds the
// index; No leaves it alone, and Compress and Delete Descriptions refuse it.
TEST(LineEnds, OpeningOffersTheConversion) {
  for (const auto& [name, text] : {std::pair{"LF only", LfFrom(0)}, {"mostly LF", LfFrom(1000)}}) {
    Scene yes;
    const std::string dat = yes.folder.Write("lf.dat", text);
    yes.fake.ui.msgAnswers.push_back(MsgResult::Yes);
    OpenDataset(yes.session, yes.fake.platform, dat);
    ASSERT_TRUE(yes.Asked()) << name;
    EXPECT_EQ(yes.fake.ui.messages[0].buttons, MsgButtons::YesNo);
    EXPECT_NE(yes.fake.ui.messages[0].text.find(dat + ".lf.bak"), std::string::npos) << name;
    EXPECT_EQ(ReadWholeFile(dat), Sample()) << name;
    EXPECT_EQ(ReadWholeFile(dat + ".lf.bak"), text) << name;
    EXPECT_EQ(yes.fake.ui.MessageTexts().back(), "Index file created.") << name;
    EXPECT_EQ(yes.session.dataset.markIndex.Size(), 47u) << name;  // 45 Descriptions, built layout

    Scene no;
    no.session.dataset.DatFile = no.folder.Write("lf.dat", text);
    no.fake.ui.msgAnswers.push_back(MsgResult::No);
    OpenDataset(no.session, no.fake.platform, no.session.dataset.DatFile);
    const auto opened = FolderSnapshot(no.folder.Path());
    EXPECT_EQ(opened.count(no.session.dataset.DatFile + ".lf.bak"), 0u) << name;
    no.Run("mnuCompDatFile");
    no.fake.ui.modalActions.push_back([](DialogModel& model) {
      auto& list = dynamic_cast<FrmSelectPoints&>(model);
      list.selected[0] = true;
      list.cmdOkay_Click();
    });
    no.Run("mnuDelDesc");
    EXPECT_EQ(FolderSnapshot(no.folder.Path()), opened) << name;
    EXPECT_EQ(ReadWholeFile(no.session.dataset.DatFile), text) << name;
    const auto messages = no.fake.ui.MessageTexts();
    ASSERT_GE(messages.size(), 2u) << name;
    const std::vector<std::string> refusals(messages.end() - 2, messages.end());
    for (const std::string& refusal : refusals) {
      EXPECT_NE(refusal.find(no.session.dataset.DatFile), std::string::npos) << name;
      EXPECT_NE(refusal.find("Nothing was changed."), std::string::npos) << name;
      EXPECT_NE(refusal.find("Open the dataset again and answer Yes"), std::string::npos) << name;
    }
  }
}

// A few stray LFs in a CR LF dataset: no question, and Compress removes them as it always did.
TEST(LineEnds, StrayLfsAreCompressedAway) {
  std::string text = Sample();
  for (std::size_t at = 0, n = 0; n < 3; ++n) text.insert(at = text.find("DESIGNATION", at + 2), "\n");
  Scene s;
  OpenDataset(s.session, s.fake.platform, s.folder.Write("stray.dat", text));
  EXPECT_FALSE(s.Asked());
  s.Run("mnuCompDatFile");
  EXPECT_EQ(s.fake.ui.MessageTexts().back(), "File Compressed!");
  const std::string plain = s.folder.Write("plain.dat", Sample());
  CompressDataset(plain, s.fake.platform);
  EXPECT_EQ(ReadWholeFile(s.session.dataset.DatFile), ReadWholeFile(plain));
}

// Combine with an LF-only source: No writes nothing; Yes converts the source and combines.
TEST(LineEnds, CombineOffersTheConversionOfEachSource) {
  for (const MsgResult answer : {MsgResult::No, MsgResult::Yes}) {
    Scene s;
    const std::string source = s.folder.Write("in/a.dat", LfFrom(0));
    s.folder.Write("in/b.dat", "B1\r\n");
    s.session.dataset.DatFilePath = s.folder.File("in/");
    const std::string target = s.folder.Write("combined.dat", "old combined\r\n");
    s.fake.ui.fileAnswers.push_back(target);
    s.fake.ui.modalActions.push_back([](DialogModel& model) {
      auto& dialog = dynamic_cast<FrmGetFile&>(model);
      dialog.selected.assign(dialog.files.size(), true);
      dialog.cmdOK_Click();
    });
    s.fake.ui.msgAnswers.push_back(answer);
    const auto before = FolderSnapshot(s.folder.Path());
    s.Run("mnuCombineDat");
    ASSERT_TRUE(s.Asked());
    ASSERT_EQ(s.fake.ui.messages.size(), 2u);
    if (answer == MsgResult::No) {
      EXPECT_EQ(FolderSnapshot(s.folder.Path()), before);
      EXPECT_EQ(s.fake.ui.messages[1].title, "Combine .dat Files");
      EXPECT_NE(s.fake.ui.messages[1].text.find("The files were not combined"), std::string::npos);
      continue;
    }
    EXPECT_EQ(ReadWholeFile(source), Sample());
    EXPECT_EQ(ReadWholeFile(source + ".lf.bak"), LfFrom(0));
    EXPECT_EQ(ReadWholeFile(target), Sample() + "B1\r\n");
    EXPECT_EQ(s.fake.ui.messages[1].text, "Files combined.");
  }
}

}  // namespace
}  // namespace benchlog
