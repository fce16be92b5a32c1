#pragma once
// The files of a replacement. The dataset and its index are never changed in place: the new
// dataset is written whole into a work file beside it (the old text with the replaced
// Descriptions blanked, then the new lines), squeezed and indexed there, and only then put in
// place, so that whatever fails (a failure word, a full disk, the program killed) the dataset and
// its index are either exactly the old ones or exactly the new ones.
#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/shell.hpp"
#include "session/mark_index.hpp"

namespace benchlog {

// Where the blanking of one Description writes: `length` bytes from the 0-based `offset`, blanks
// ending in CR LF.
struct BlankSpan {
  std::uint64_t offset = 0;
  std::uint64_t length = 0;
};

// What blanking `pid` in the dataset would do, without touching it: "" with the span to blank
// (none when the Description is 2 bytes or shorter), "PID not found!", or "Unable to open .dat
// file for writing." when the dataset is missing or read-only. The mark is found as every look-up
// by PID finds it (an empty PID finds the first record).
std::string PlanBlanking(const MarkIndex& markIndex, const std::string& datasetPath, bool datasetWritable,
                         const std::string& pid, std::vector<BlankSpan>& spans);

struct ReplacementPaths {
  std::string dataset, index;
  std::string workDataset, workIndex;  // beside each
  std::string backup;                  // "<dataset>.before-update": the old dataset for the trash
};
ReplacementPaths ReplacementPathsFor(const std::string& datasetPath, const std::string& indexPath);

// Writes workDataset: the dataset as it is (none when it does not exist) with `spans` blanked in
// their order, then each of `lines` followed by CR LF. `onLine` is called after each line with
// its 0-based number. Throws WriteFailure (the work file removed) when the disk fails.
void WriteWorkDataset(const ReplacementPaths& paths, const std::vector<BlankSpan>& spans,
                      const std::vector<std::string_view>& lines, const std::function<void(std::size_t)>& onLine);

// Puts the work files in place: the old index goes first, then the work dataset is renamed over
// the dataset and the work index over the index, and both folders are synced. A stop between two
// steps leaves no index, which the next opening rebuilds from whichever dataset stands. With
// `backupToTrash` the old dataset, linked (or copied) to paths.backup before the rename, goes to
// the trash after it. `step` is called between the steps with their names (tests stop there).
// Throws RuntimeFailure when a rename fails.
void CommitReplacement(const ReplacementPaths& paths, bool backupToTrash, Shell& shell,
                       const std::function<void(const char*)>& step);

// Removes the work files a stopped replacement left behind, the half-written ones included.
void RemoveWorkFiles(const ReplacementPaths& paths);

}  // namespace benchlog
