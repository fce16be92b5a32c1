#include "service_paths.hpp"

#include "cors_proxy_pages.hpp"
#include "description_pages.hpp"
#include "fault_table.hpp"
#include "mark_list_pages.hpp"

namespace ocosim {
namespace {

bool AllGiven(const std::vector<std::string>& values) {
  for (const std::string& value : values)
    if (value.empty()) return false;
  return true;
}

HttpAnswer MarkList(const ServiceData& data, const QueryPairs& query) {
  const std::string list = QueryValue(query, "1");
  const std::string a = QueryValue(query, "2"), b = QueryValue(query, "3"), c = QueryValue(query, "4");
  if (list == "COUNTY" && AllGiven({a, b})) return CountyListPage(data.dataset, data.fips, a, b, c);
  if (list == "RADIUS" && AllGiven({a, b, c})) return RadiusListPage(data.dataset, a, b, c, QueryValue(query, "5"));
  if (list == "PROJECT" && AllGiven({a})) return ProjectListPage(data.dataset, a, c);
  return FaultAnswer(FaultKind::kInputIncomplete);
}

HttpAnswer Descriptions(const ServiceData& data, const QueryPairs& query) {
  std::vector<std::string> pids;
  for (const auto& [key, value] : query) pids.push_back(value);
  if (pids.empty()) return FaultAnswer(FaultKind::kInputIncomplete);
  return DescriptionsPage(data.dataset, pids);
}

HttpAnswer OneValue(const QueryPairs& query, const char* name, auto page) {
  const std::string value = QueryValue(query, name);
  return value.empty() ? FaultAnswer(FaultKind::kInputIncomplete) : page(value);
}

}  // namespace

HttpAnswer AnswerServicePath(const ServiceData& data, const HttpRequest& request) {
  const QueryPairs query = ParseQuery(request.query);
  const std::string& path = request.path;
  if (path == "/cgi-bin/get_mark_list.prl") return MarkList(data, query);
  if (path == "/cgi-bin/ds_pids.prl") return Descriptions(data, query);
  if (path == "/cgi-bin/ds_mark.prl")
    return OneValue(query, "PidBox", [&](const std::string& pid) { return DescriptionsPage(data.dataset, {pid}); });
  if (path == "/CORS-Proxy/get_cities/corspid")
    return OneValue(query, "st", [&](const std::string& st) { return CorsPidsPage(data.dataset, st); });
  if (path == "/CORS-Proxy/get_cities/stcity")
    return OneValue(query, "ST", [&](const std::string& st) {
      return TownsPage(data.townsFile ? *data.townsFile : TownsFromDataset(data.dataset, st), st);
    });
  if (path == "/CORS-Proxy/neighbors41/discrep_for_one")
    return OneValue(query, "PID", [&](const std::string& pid) { return DiscrepancyPage(data.dataset, pid); });
  return TextAnswer(404, "No such path: " + path + "\n");
}

}  // namespace ocosim
