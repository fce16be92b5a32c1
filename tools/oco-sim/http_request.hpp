#pragma once
// The head of an HTTP/1.1 request as the simulator reads it: the request line, the headers and the
// query string of the target, split into its pairs.
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace ocosim {

struct HttpRequest {
  std::string requestLine;  // "GET /cgi-bin/ds_pids.prl?1=AB1234 HTTP/1.1", byte for byte
  std::string method;
  std::string target;  // path and query as sent
  std::string path;    // the target before "?"
  std::string query;   // the target behind "?", still encoded
  std::map<std::string, std::string> headers;  // names in lower case, values trimmed
};

// Where the head ends: the offset just behind the blank line, or npos while it is incomplete.
std::size_t HeadEnd(std::string_view received);

// Parses a head (request line and header lines, CR LF or LF ends); nullopt when the request line
// does not have three parts.
std::optional<HttpRequest> ParseRequestHead(std::string_view head);

// The query's pairs in their order, names and values decoded ("%2C" and "+" as in a form). A pair
// without "=" has an empty value; only the first "=" splits, so "kind=slow=500" gives "slow=500".
using QueryPairs = std::vector<std::pair<std::string, std::string>>;
QueryPairs ParseQuery(std::string_view query);
// The value of the first pair named `name` (exact), or "" when there is none.
std::string QueryValue(const QueryPairs& pairs, std::string_view name);

std::string PercentDecode(std::string_view text);

}  // namespace ocosim
