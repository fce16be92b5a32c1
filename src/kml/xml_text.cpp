#include "kml/xml_text.hpp"

#include <cstdint>

#include "common/text.hpp"

namespace benchlog {
namespace {

// The characters of bytes 128 to 159 in the code page; the five bytes it leaves undefined keep
// their own value, as the system's converter does.
constexpr std::uint16_t kHighControls[32] = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

void AppendUtf8(std::string& out, unsigned char byte) {
  const std::uint32_t code = byte >= 0x80 && byte < 0xA0 ? kHighControls[byte - 0x80] : byte;
  if (code < 0x80) {
    out += static_cast<char>(code);
  } else if (code < 0x800) {
    out += static_cast<char>(0xC0 | code >> 6);
    out += static_cast<char>(0x80 | (code & 0x3F));
  } else {
    out += static_cast<char>(0xE0 | code >> 12);
    out += static_cast<char>(0x80 | (code >> 6 & 0x3F));
    out += static_cast<char>(0x80 | (code & 0x3F));
  }
}

std::string Utf8(std::string_view text) {
  std::string out;
  out.reserve(text.size());
  for (const char c : text) {
    const auto byte = static_cast<unsigned char>(c);
    const bool forbidden = byte < 0x20 && byte != '\t' && byte != '\n' && byte != '\r';
    AppendUtf8(out, forbidden ? ' ' : byte);
  }
  return out;
}

}  // namespace

std::string XmlText(std::string_view codePageText) {
  std::string out;
  for (const char c : Utf8(codePageText)) {
    switch (c) {
      case '&': out += "&amp;"; break;
      case '<': out += "&lt;"; break;
      case '>': out += "&gt;"; break;
      default: out += c;
    }
  }
  return out;
}

std::string CDataText(std::string_view codePageText) {
  return ReplaceAll(Utf8(codePageText), "]]>", "]]]]><![CDATA[>");
}

}  // namespace benchlog
