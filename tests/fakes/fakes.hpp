#pragma once
// Test doubles of the platform services: a Ui that answers from scripts and records what it was
// asked, an in-memory settings store, a manual clock and a shell that only records. Dialogs that no
// command shows fail when asked.
#include <deque>
#include <functional>
#include <map>
#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

#include "platform/platform.hpp"
#include "session/session.hpp"

namespace benchlog::testing {

class MemorySettings final : public SettingsStore {
 public:
  std::string GetSetting(const std::string& section, const std::string& key,
                         const std::string& defaultValue) const override;
  void SaveSetting(const std::string& section, const std::string& key, const std::string& value) override;
  bool Has(const std::string& section, const std::string& key) const;
  std::map<std::string, std::string> values;  // "section/key" -> value
};

class ManualClock final : public Clock {
 public:
  TimePoint Now() override { return now; }
  void Sleep(Duration duration) override {
    slept += duration;
    now += duration;
  }
  int CurrentYear() override { return year; }
  TimePoint now{};
  int year = 2026;
  Duration slept{};
};

class RecordingShell final : public Shell {
 public:
  bool OpenWithSystem(const std::string& path) override {
    opened.push_back(path);
    return true;
  }
  bool MoveToTrash(const std::string& path) override {
    trashed.push_back(path);
    return true;
  }
  bool RunSystemInformation() override { return false; }
  std::vector<std::string> opened, trashed;
};

// Answers come from queues, filled by the test before the command runs. A question with no
// answer queued fails the test loudly (std::logic_error), so a script cannot be short silently.
class ScriptedUi final : public Ui {
 public:
  using Ui::MsgBox;
  MsgResult MsgBox(const MessageRequest& request) override;
  std::string InputBox(const std::string& prompt, const std::string& title, const std::string& defaultText) override;
  std::string FileDialog(const FileDialogRequest& request) override;  // "" in the queue means cancel
  std::optional<std::uint32_t> ColorDialog(const std::string& title, std::uint32_t initial) override;
  std::optional<FontChoice> FontDialog(const FontChoice&) override { throw std::logic_error("ScriptedUi: no font dialog"); }
  bool PrinterDialog() override { throw std::logic_error("ScriptedUi: no printer dialog"); }
  void ShowHelp(const std::string& helpFile) override { helpShown.push_back(helpFile); }
  void SetHourglass(bool on) override { hourglass = on; }
  void DoEvents() override { ++doEventsCalls; }
  void ShowModal(DialogModel& model) override;
  void ShowModeless(DialogModel& model) override { modeless.push_back(&model); }
  void Hide(DialogModel& model) override { hidden.push_back(&model); }

  // Scripts.
  std::deque<MsgResult> msgAnswers;  // only for boxes with a choice; an OK box needs none
  std::deque<std::string> inputAnswers;
  std::deque<std::string> fileAnswers;
  std::deque<std::optional<std::uint32_t>> colorAnswers;
  std::deque<std::function<void(DialogModel&)>> modalActions;  // each plays the user in one dialog

  // Records.
  std::vector<MessageRequest> messages;
  std::vector<FileDialogRequest> fileDialogs;
  std::vector<std::string> inputs;  // "prompt|title|default" of each input box
  std::vector<std::string> colorTitles;
  std::vector<std::string> helpShown;
  std::vector<DialogModel*> modals, modeless, hidden;
  bool hourglass = false;
  int doEventsCalls = 0;

  std::vector<std::string> MessageTexts() const;
};

// The web service as a script: each OpenURL answers the next body in the queue and records the URL
// and the credentials it was sent with. A request with no answer queued fails the test loudly.
class ScriptedHttp final : public HttpTransport {
 public:
  struct Request {
    std::string url, userName, password;
  };
  std::string OpenURL() override;
  std::deque<std::string> answers;  // "" plays a time-out
  std::vector<Request> requests;
};

// The database engine as a record: the table made and every row added, in order. Like the engine
// it refuses a table without columns and a row naming a field the table lacks (RuntimeFailure).
class RecordingDatabase final : public Database {
 public:
  void Create(const std::string& path, const std::string& table, const std::vector<DatabaseColumn>& columns) override;
  void AddRow(const DatabaseRow& row) override;
  void Close() override { open = false; }
  std::string path, table;
  std::vector<DatabaseColumn> columns;
  std::vector<DatabaseRow> rows;
  bool open = false;
  // The field called `name` of row `index`, or nothing when the row leaves it null.
  std::optional<std::string> Field(std::size_t index, const std::string& name) const;
};

// The printer as a record: each dialog answers the next of `accept` (true when the queue is
// empty), and each document or picture is kept in order.
class RecordingPrinter final : public Printer {
 public:
  bool ChoosePrinter(const std::string& title) override;
  void PrintText(const PrintDocument& document) override { documents.push_back(document); }
  void PrintPicture(const std::string& path) override { pictures.push_back(path); }
  std::deque<bool> accept;
  std::vector<std::string> dialogs;
  std::vector<PrintDocument> documents;
  std::vector<std::string> pictures;
};

// Pictures by path: a size for each file named in `sizes`, RuntimeFailure 481 for any other.
class FakePictureReader final : public PictureReader {
 public:
  PictureSize Read(const std::string& path) override;
  std::map<std::string, PictureSize> sizes;
  std::vector<std::string> read;
};

// A Platform wired to the fakes above, with App.Path in `appPath`.
struct FakePlatform {
  explicit FakePlatform(const std::string& appPath = "");
  ScriptedUi ui;
  MemorySettings settings;
  ManualClock clock;
  RecordingShell shell;
  Progress progress;
  ScriptedHttp http;
  RecordingDatabase database;
  RecordingPrinter printer;
  FakePictureReader pictures;
  std::vector<Progress> progressHistory;  // a copy at every show, hide and refresh
  Platform platform;
};

// A file dialog as "save" or "open", then its title, its filter and its folder, "|" between them.
std::string Describe(const FileDialogRequest& request);

// The progress dialog as "processing|info|value/max", "hidden: " in front when it is not shown.
std::string Describe(const Progress& progress);

// A session whose menu holds every entry of the main menu tree, as at the program's start.
struct TestSession : Session {
  TestSession();
};

}  // namespace benchlog::testing
