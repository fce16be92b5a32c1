#pragma once
// The choices of frmCDT as tests/data/export/database_tables.txt writes them, shared by the
// database tests with the recording engine and with the program's own.
#include <string>
#include <vector>

#include "common/text.hpp"
#include "export/frm_cdt.hpp"
#include "platform/database.hpp"

namespace benchlog::testing {

// `button`: "horizontal", "vertical" or "both"; `boxes`: "all", "none" or box names with ",".
inline void ChooseColumns(frmCDT& cdt, const std::string& button, const std::string& boxes) {
  if (boxes == "all") cdt.cmdCheckAll_Click();
  else cdt.cmdClearAll_Click();
  if (boxes != "all" && boxes != "none") {
    for (const std::string& name : Split(boxes, ","))
      for (const frmCDT::Box& box : frmCDT::Boxes())
        if (name == box.name) cdt.*box.value = 1;
  }
  if (button == "horizontal") cdt.OptHoriz_Click();
  if (button == "vertical") cdt.Optvert_Click();
  if (button == "both") cdt.optBoth_Click();
}

// "NAME SIZE" (memo: "NAME memoSIZE"), "," between columns.
inline std::string ColumnsText(const std::vector<DatabaseColumn>& columns) {
  std::string text;
  for (const DatabaseColumn& c : columns)
    text += (text.empty() ? "" : ",") + c.name + (c.type == ColumnType::kMemo ? " memo" : " ") + std::to_string(c.size);
  return text;
}

}  // namespace benchlog::testing
