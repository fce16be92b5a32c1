#include "kml/kml_document.hpp"

#include "common/plain_number.hpp"
#include "common/runtime_failure.hpp"
#include "common/text.hpp"
#include "geodesy/angle_text.hpp"
#include "geodesy/angles.hpp"
#include "kml/kml_styles.hpp"
#include "kml/xml_text.hpp"
#include "session/index_extent.hpp"
#include "session/index_record.hpp"

namespace benchlog {
namespace {

// Decimal degrees of an index angle column with every blank removed; false when unreadable.
bool ReadDegrees(std::string_view record, IndexColumn column, double& degrees) {
  std::string text = ReplaceAll(IndexField(record, column), " ", "");
  double radians = 0;
  std::string error;
  DmsToRad(text, radians, error);
  if (!error.empty()) return false;
  degrees = DegOfRad(radians);
  return true;
}

// The view over the middle of the marks; high for a dataset that starts with a CORS.
std::string LookAtBlock(const MarkIndex& markIndex) {
  const IndexExtentDegrees extent = IndexExtent(markIndex);
  const double longitude = -((extent.minLongitude + extent.maxLongitude) / 2);
  const double latitude = (extent.minLatitude + extent.maxLatitude) / 2;
  const bool cors = IndexField(markIndex[0], kCorsFlagColumn) == "C";
  return "  <LookAt id=\"ID\">\r\n"
         "    <longitude>" + PlainNumber(longitude) + "</longitude>\r\n"
         "    <latitude>" + PlainNumber(latitude) + "</latitude>\r\n"
         "    <altitude>" + (cors ? "500000" : "5000") + "</altitude>\r\n"
         "    <heading>0</heading>\r\n"
         "    <tilt>0</tilt>\r\n"
         "  </LookAt>\r\n";
}

}  // namespace

std::string KmlPlacemark(std::string_view record, std::string_view dataSheetUrl) {
  double latitude = 0, longitude = 0;
  if (!ReadDegrees(record, kLatitudeColumn, latitude) || !ReadDegrees(record, kLongitudeColumn, longitude)) return "";
  longitude = -longitude;  // the index holds longitudes positive west
  const std::string name = Trim(IndexField(record, kDesignationColumn));
  std::string text = "  <Placemark>\r\n    <name>" + XmlText(name) + "</name>\r\n";
  if (!name.empty())
    text += "    <description><![CDATA[" + CDataText(std::string(dataSheetUrl) + IndexField(record, kPidColumn)) +
            "]]></description>\r\n";
  text += "    <altitudeMode>clampToGround</altitudeMode>\r\n";
  text += "    <styleUrl>#" +
          std::string(StyleOfOrders(IndexField(record, kHorzOrderColumn), IndexField(record, kVertOrderColumn))) +
          "</styleUrl>\r\n";
  text += "    <Point>\r\n      <coordinates>" + PlainNumber(longitude) + "," + PlainNumber(latitude) +
          "</coordinates>\r\n    </Point>\r\n  </Placemark>\r\n";
  return text;
}

std::string KmlDocument(const MarkIndex& markIndex, std::string_view dataSheetUrl) {
  std::string text =
      "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\r\n"
      "<kml xmlns=\"http://www.opengis.net/kml/2.2\">\r\n"
      "<Document>\r\n";
  text += KmlStyleBlocks();
  if (markIndex.Empty()) throw SubscriptOutOfRange();
  text += LookAtBlock(markIndex);
  for (const auto& record : markIndex.Elements()) text += KmlPlacemark(record, dataSheetUrl);
  text += "</Document>\r\n</kml>\r\n";
  return text;
}

}  // namespace benchlog
