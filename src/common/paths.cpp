#include "common/paths.hpp"

namespace benchlog {
namespace {

std::size_t LastSeparator(std::string_view path) { return path.find_last_of("/\\"); }

}  // namespace

bool IsPathSeparator(char c) { return c == '/' || c == '\\'; }

std::string FolderOf(std::string_view path) {
  const auto last = LastSeparator(path);
  return last == std::string_view::npos ? std::string() : std::string(path.substr(0, last + 1));
}

std::string WithoutExtension(std::string_view path) {
  const auto last = LastSeparator(path);
  const auto dot = path.rfind('.');
  if (dot == std::string_view::npos || (last != std::string_view::npos && dot < last)) return std::string(path);
  return std::string(path.substr(0, dot));
}

std::string BaseName(std::string_view path) {
  const auto last = LastSeparator(path);
  const auto dot = path.rfind('.');
  if (last == std::string_view::npos || dot == std::string_view::npos || dot < last) return {};
  return std::string(path.substr(last + 1, dot - last - 1));
}

std::string FileNameOf(std::string_view path) {
  const auto last = LastSeparator(path);
  return std::string(last == std::string_view::npos ? path : path.substr(last + 1));
}

std::string JoinPath(std::string_view folder, std::string_view name) {
  if (folder.empty()) return std::string(name);
  std::string out(folder);
  if (!IsPathSeparator(out.back())) out += kPathSeparator;
  return out.append(name);
}

}  // namespace benchlog
