#pragma once
// Texts of the single-byte code page (Windows-1252) made fit for a UTF-8 XML file.
#include <string>
#include <string_view>

namespace benchlog {

// The text in UTF-8, with "&", "<" and ">" written as entities. Control characters that XML 1.0
// forbids (below 32, other than tab, LF and CR) become blanks. A text of plain ASCII without
// those characters comes out as it went in.
std::string XmlText(std::string_view codePageText);

// The text in UTF-8 for a CDATA section: "]]>", which would end the section, is split across two.
std::string CDataText(std::string_view codePageText);

}  // namespace benchlog
