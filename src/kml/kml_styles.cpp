#include "kml/kml_styles.hpp"

namespace benchlog {
namespace {

constexpr const char* kIconServer = "http://maps.google.com/mapfiles/kml/shapes/";

struct IconStyle {
  const char* id;
  const char* color;  // aabbggrr, written as it stands
  const char* shape;
};

constexpr IconStyle kIconStyles[] = {
    {"PnkStar", "ffff80ff", "star"},   {"PnkTri", "ffff80ff", "triangle"}, {"BrnTri", "ffffC080", "triangle"},
    {"RedTri", "ff0000ff", "triangle"}, {"BluTri", "ffff0000", "triangle"}, {"BlkTri", "ff000000", "triangle"},
    {"BluSqr", "ffff0000", "square"},  {"RedSqr", "ff0000ff", "square"},   {"BlkSqr", "ff000000", "square"},
    {"WhtSqr", "ffffffff", "square"},
};

std::string IconStyleBlock(const IconStyle& style) {
  return std::string("  <Style id=\"") + style.id + "\">\r\n" +
         "    <IconStyle>\r\n"
         "      <color>" + style.color + "</color>\r\n"
         "      <colorMode>normal</colorMode>\r\n"
         "      <scale>0.75</scale>\r\n"
         "      <Icon>\r\n"
         "        <href>" + kIconServer + style.shape + ".png</href>\r\n"
         "      </Icon>\r\n"
         "    </IconStyle>\r\n"
         "  </Style>\r\n";
}

std::string LineStyleBlock(const char* id, const char* width) {
  return std::string("  <Style id=\"") + id + "\">\r\n" +
         "    <LineStyle>\r\n"
         "      <color>ffffffff</color>\r\n"
         "      <width>" + width + "</width>\r\n"
         "    </LineStyle>\r\n"
         "  </Style>\r\n";
}

}  // namespace

std::string KmlStyleBlocks() {
  std::string text;
  for (const auto& style : kIconStyles) text += IconStyleBlock(style);
  text += LineStyleBlock("LevLin", "1");
  text += LineStyleBlock("DblLevLin", "4");
  return text;
}

std::string_view StyleOfOrders(std::string_view horzOrder, std::string_view vertOrder) {
  if (horzOrder == "S") return "PnkStar";
  if (horzOrder == "A" || horzOrder == "0") return "PnkTri";
  if (horzOrder == "B") return "BrnTri";
  if (horzOrder == "1") return "BluTri";
  if (horzOrder == "2") return "RedTri";
  if (horzOrder == "3") return "BlkTri";
  if (vertOrder == "1") return "BluSqr";
  if (vertOrder == "2") return "RedSqr";
  return "BlkSqr";
}

}  // namespace benchlog
