#pragma once
// The look-up of a mark in the index by its PID. It is a search of text, not of keys: the records
// joined by one blank are searched for the PID, and the first occurrence counts as the start of
// the mark's record, even when it lies inside an earlier record's name. The Description's offset
// is read 134 characters behind that position and the next record's 281 behind it (one column
// into the next offset field, whose leading digit is therefore not read: exact for datasets below
// 100,000,000 bytes).
#include <cstdint>
#include <string>

#include "session/mark_index.hpp"

namespace benchlog {

struct MarkLocation {
  std::size_t position = 0;  // 1-based position in the joined records, 0 when not found
  std::int64_t start = 0;    // the Description's DescriptionOffset as read there
  std::int64_t next = 0;     // the next record's offset as read there
};

// Locates `pid` (any text; "" is found at position 1).
MarkLocation LocateMark(const MarkIndex& markIndex, const std::string& pid);

// The horizontal and vertical order codes of a mark (the characters 7 and 9 behind the position
// found). Both stay one blank when the PID is absent, and the result is then "Pid Not Found!";
// "" means found.
std::string GetOrdersByPid(const MarkIndex& markIndex, const std::string& pid, std::string& horzOrder,
                           std::string& vertOrder);

}  // namespace benchlog
