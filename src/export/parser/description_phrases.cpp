// What any line of a Description may hold besides its key: phrases of the notes, state plane
// labels, the primary azimuth mark, box score rows; and the descriptive text with its notes.
#include <array>

#include "common/dates.hpp"
#include "common/text.hpp"
#include "export/parser/description_parser.hpp"
#include "common/fit.hpp"
#include "export/parser/note_header.hpp"
#include "support_files/support_files.hpp"
#include "geodesy/format_padded.hpp"

namespace benchlog {
namespace {

constexpr std::size_t kTextWidth = 4900;  // DescriptiveText keeps the last characters of the text
constexpr std::string_view kParagraphBreak = "\r\n\r\n";

// "ed", which each sentence phrase holds ("established", "adjusted", "referenced"), found by its
// "d": far rarer in the notes than "e", so the search stops less often.
bool HoldsEd(std::string_view line) {
  for (auto at = line.find('d', 1); at != std::string_view::npos; at = line.find('d', at + 1))
    if (line[at - 1] == 'e') return true;
  return false;
}

// "DEFLEC", found by its "F", which the upper-case lines hold far less often than "D".
bool HoldsDeflec(std::string_view line) {
  for (auto at = line.find('F', 2); at != std::string_view::npos; at = line.find('F', at + 1))
    if (line.substr(at - 2, 6) == "DEFLEC") return true;
  return false;
}

}  // namespace

DescriptionParser::DescriptionParser(MarkRecord& record, const ParseGroups& groups, SupportFiles& support)
    : record_(record), groups_(groups), support_(support) {
  if (groups_.wantText) text_.reserve(2 * kTextWidth);
}

void DescriptionParser::ReadLine(std::string_view line, std::string_view next) {
  if (Col(line, 8) == '\'') {
    if (groups_.wantText) ReadTextLine(line);
    return;
  }
  ReadKey(line);
  ReadPhrases(line, next);
}

void DescriptionParser::Finish() {
  if (boxRowRead_) record_.BoxScore = boxRow_;
  if (!groups_.wantText) return;
  std::string_view text = text_;
  if (text.size() > kTextWidth) text = text.substr(text.size() - kTextWidth);
  record_.DescriptiveText = text;
  record_.HistoryTable = historyRows_;
}

const ContributorTable& DescriptionParser::Contributors() {
  if (!contributors_)
    contributors_ = support_.Contributors();
  return *contributors_;
}

void DescriptionParser::ReadPhrases(std::string_view line, std::string_view next) {
  if (groups_.wantPosition) {
    // Each phrase sets fields of its own, so they are tried by the kind of line they can stand
    // in; the order among those that share a field is kept.
    if (HoldsEd(line)) ReadSentencePhrases(line, next);
    switch (Col(line, 8)) {
      case '.':
        if (Cols(line, 8, 34) == ".No horizontal observational check") record_.NoHorizCheck = "N";
        if (Cols(line, 8, 34) == ".This is a SPECIAL STATUS position") record_.SpecialStatus = "Y";
        if (Cols(line, 8, 32) == ".No vertical observational check") record_.NoVertCheck = "N";
        break;
      case ';':
        if (Cols(line, 8, 4) == ";SPC") ReadSpcLabel(line);
        break;
      case ':':
        if (Cols(line, 8, 4) == ":UTM") primaryAzimuthName_ = Cols(line, 25, 30);
        break;
      case '|':
        if (Col(line, 9) == ' ' && !IsBlankText(Cols(line, 13, 3))) ReadBoxRow(line);
        break;
      default:
        break;
    }
    if (HoldsDeflec(line)) record_.DeflectionModel = Cols(line, 56, 2);
    if (Col(line, 34) == 'S' && Cols(line, 34, 25) == "SUPERSEDED SURVEY CONTROL") record_.Superseded = "Y";
  }
  if (groups_.wantText && Col(line, 34) == 'S' && Cols(line, 34, 16) == "STATION RECOVERY") text_ += kParagraphBreak;
}

// The phrases of sentences, each of which holds "established", "adjusted" or "referenced".
void DescriptionParser::ReadSentencePhrases(std::string_view line, std::string_view next) {
  if (Holds(line, "established by GPS")) record_.HorizType = "G";
  if (Holds(line, "and adjusted by") && Holds(line, "horizontal coordinates")) ReadHorizontalAdjustment(line, next);
  if (Holds(line, "established by VLBI")) {
    record_.HorizType = "V";
  } else if (Holds(line, "established by GPS")) {
    record_.HorizType = "G";
  }
  if (Holds(line, "and adjusted") && Holds(line, "orthometric height")) ReadVerticalAdjustment(line);
  const auto referenced = line.find("is referenced to");
  if (referenced != std::string_view::npos && Holds(line, "ellipsoidal height"))
    record_.EllipDatum = Cols(line, referenced + 1 + 21, 2);
}

// "... horizontal coordinates ... and adjusted by the <agency> in <date>", wrapped onto the next
// line when " in " has not come yet.
void DescriptionParser::ReadHorizontalAdjustment(std::string_view line, std::string_view next) {
  std::string text(line);
  if (!Holds(text, " in ")) text += ColsToEnd(next, 9);
  static constexpr std::string_view kAdjustedBy = "adjusted by the ";
  const auto by = text.find(kAdjustedBy);
  if (by == std::string::npos) return;
  const std::string_view rest = std::string_view(text).substr(by + kAdjustedBy.size());
  const auto in = rest.find(" in ");
  record_.AdjAgency = Contributors().CodeOf(TrimmedView(rest.substr(0, in)));
  if (in == std::string_view::npos) return;
  if (const auto date = ReadDate(ReplaceAll(rest.substr(in + 4), ".", ""))) StoreYyyymmdd(record_.AdjDate, *date);
}

// The agency stands from column 29 up to " in ", the date after it; the date text is taken as
// it reads, the zero date when it is none.
void DescriptionParser::ReadVerticalAdjustment(std::string_view line) {
  const std::string_view text = ColsToEnd(line, 29);
  const auto in = text.find(" in ");
  record_.VertAdjAgency = Contributors().CodeOf(TrimmedView(text.substr(0, in)));
  if (in != std::string_view::npos) StoreYyyymmdd(record_.VertAdjDate, ReadDate(text.substr(in + 4)).value_or(Date{}));
}

// The first five distinct state plane labels, in the order met.
void DescriptionParser::ReadSpcLabel(std::string_view line) {
  const std::string_view label = Cols(line, 13, 5);
  for (FixedText<5>* slot :
       {&record_.SpcZone1, &record_.SpcZone2, &record_.SpcZone3, &record_.SpcZone4, &record_.SpcZone5}) {
    if (slot->IsBlank()) {
      *slot = label;
      return;
    }
    if (*slot == label) return;
  }
}

// A row of the box score: PID 6, kind letter 1, distance 10, azimuth 9, name 30. Each row takes
// the place of the one before; the record gets the last one at the end.
void DescriptionParser::ReadBoxRow(std::string_view line) {
  const std::string_view name = Cols(line, 17, 30);
  char kind = 'N';
  if (name == primaryAzimuthName_) {
    kind = 'A';
  } else if (line.find(" RM ", 16) != std::string_view::npos) {
    kind = 'R';
  } else if (line.find(" AZ ", 16) != std::string_view::npos) {
    kind = 'Z';
  }
  std::string row(Cols(line, 10, 6));
  row += kind;
  if (Cols(line, 53, 6) == "APPROX") {
    row += FormatPadded(Cols(line, 60, 4), "####.###");
    row += "KM";
  } else {
    row += Cols(line, 52, 8);
    row += " M";
  }
  row += Cols(line, 68, 9);
  row += name;
  boxRow_ = std::move(row);
  boxRowRead_ = true;
}

void DescriptionParser::ReadTextLine(std::string_view line) {
  const std::string_view body = Cols(line, 9, 72);
  if (IsBlankText(body)) {
    text_ += kParagraphBreak;
  } else if (Cols(line, 9, 12) == "DESCRIBED BY") {  // as wide as its columns: trimmed, the same test
    text_ += body;
    text_ += kCrLf;
    ReadNoteHeader(body, false);
  } else if (Cols(line, 9, 16) == "RECOVERY NOTE BY") {
    text_ += body;
    text_ += kCrLf;
    ReadNoteHeader(body, true);
  } else {
    text_ += TrimmedView(body);
    text_ += ' ';
  }
}

// The description's note belongs to the first history row, each recovery note to the next one;
// a note whose year and agency match its row gives the row its writer's initials.
void DescriptionParser::ReadNoteHeader(std::string_view headerText, bool recoveryNote) {
  historyPointer_ = recoveryNote ? historyPointer_ + 1 : 1;
  if (historyPointer_ * kHistoryRowWidth > historyRows_.size()) return;
  const std::size_t at = (historyPointer_ - 1) * kHistoryRowWidth;
  const std::string_view row = std::string_view(historyRows_).substr(at, kHistoryRowWidth);
  // A row whose year is nowhere in the head line cannot match: no need to split it.
  if (!Holds(headerText, row.substr(0, 4))) return;
  const NoteHeader header = SplitNoteHeader(headerText, Contributors());
  if (row.substr(0, 4) != header.year || row.substr(9, 6) != FitToWidth(header.agencyCode, 6)) return;
  const std::string initials = FitToWidth(header.initials, 3);
  historyRows_.replace(at + 15, 3, initials);
  if (recoveryNote) record_.LastReporter = initials;
}

}  // namespace benchlog
