#include "web/keep_rule.hpp"

#include "dataset/mark_lookup.hpp"

namespace benchlog {

bool KeepRuleFetches(const MarkIndex& markIndex, const std::string& pid, const std::string& listHorz,
                     const std::string& listVert) {
  std::string localHorz, localVert;
  GetOrdersByPid(markIndex, pid, localHorz, localVert);
  return (listHorz != "." || localHorz == " ") && (listVert != "." || localVert == " ");
}

}  // namespace benchlog
