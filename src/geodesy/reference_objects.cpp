#include "geodesy/reference_objects.hpp"

#include <array>

#include "common/number_text.hpp"
#include "common/rounding.hpp"
#include "common/runtime_failure.hpp"
#include "common/sort_by_column.hpp"
#include "common/text.hpp"
#include "geodesy/angle_text.hpp"
#include "geodesy/angles.hpp"
#include "geodesy/format_padded.hpp"
#include "geodesy/geographic.hpp"

namespace benchlog {
namespace {

constexpr std::size_t kAzimuthColumn = 68;
constexpr double kFeetPerMetre = 3.28083333333333;
constexpr int kLastReferenceMark = 10;

// Degrees, minutes and seconds numbers to radians: the sum divided by 180, times pi.
double Radians(std::string_view degrees, std::string_view minutes, std::string_view seconds) {
  return (Val(degrees) + Val(minutes) / 60 + Val(seconds) / 3600) / 180 * kPi;
}

std::string AngleText(double radians, std::int16_t format, std::int16_t decimals) {
  std::string text;
  RadToDms(radians, text, format, decimals, true, true);
  return text;
}

class ReportWriter {
 public:
  ReportWriter(const std::string& pid, const std::string& name, const std::vector<NearbyMark>& marks,
               const Ellipsoid& ellipsoid, Ui& ui)
      : pid_(pid), name_(name), marks_(marks), ellipsoid_(ellipsoid), ui_(ui) {
    text_ = std::string(kCrLf) + kCrLf + Space(30) + "Station " + name + kCrLf + kCrLf;
  }

  void Line(const std::string& line) {
    if (Mid(line, 8, 8) == "* NAD 83") {
      ReadPosition(line);
    } else if (Mid(line, 8, 2) == "| " && !IsBlank(Mid(line, 13, 3))) {
      rows_.push_back(line);
      inTable_ = true;
    } else if (inTable_) {
      AddNearbyMarks();
      WriteBox();
      inTable_ = false;
    }
  }

  std::string Finish() {
    text_ += " " + std::string(23, '-') + " approx. mark-mark dist " + std::string(23, '-') + kCrLf;
    for (int i = 1; i <= kLastReferenceMark; ++i) {
      if (!(rmLatitude_[i] > 0)) continue;
      for (int j = i + 1; j <= kLastReferenceMark; ++j) {
        if (!(rmLatitude_[j] > 0)) continue;
        double azimuth = 0, back = 0, d = 0;
        GeographicInverse(ellipsoid_, rmLatitude_[i], rmLongitude_[i], rmLatitude_[j], rmLongitude_[j], azimuth,
                          back, d, ui_);
        text_ += " FROM RM " + std::to_string(i) + " TO RM " + std::to_string(j) + " = " +
                 FormatPadded(d, "###0.00") + " METERS (" + FormatPadded(d * kFeetPerMetre, "###0.00") + " FEET)" +
                 kCrLf;
      }
    }
    return text_;
  }

 private:
  void ReadPosition(const std::string& line) {
    latitude_ = Radians(Mid(line, 25, 2), Mid(line, 28, 2), Mid(line, 31, 8));
    longitude_ = Radians(Mid(line, 46, 3), Mid(line, 50, 2), Mid(line, 53, 8));
    stationLine_ = " " + pid_ + " " + name_ + " " + Mid(line, 25, 14) + "  " + Mid(line, 46, 15);
  }

  // The dataset's marks near the station become rows in the box score's layout. A position that
  // cannot be read keeps the values of the mark before; so does an azimuth the inverse leaves alone.
  void AddNearbyMarks() {
    double latitude = 0, longitude = 0, azimuth = 0;
    for (const auto& mark : marks_) {
      ReadAngle(mark.latitude, latitude);
      ReadAngle(mark.longitude, longitude);
      double back = 0, d = 0;
      GeographicInverse(ellipsoid_, latitude_, longitude_, latitude, longitude, azimuth, back, d, ui_);
      const std::string azimuthText = AngleText(azimuth, kDmsPacked, 1);
      if (!(d >= 1 && d < 10000)) continue;
      const std::string head = " " + pid_ + "| " + mark.pid + " " + mark.designation + Space(6);
      if (d < 1000)
        rows_.push_back(head + FormatPadded(d, "##0.000") + " METERS " + azimuthText + " |");
      else if (mark.stabilityCode == "L")
        rows_.push_back(head + "APPROX." + FormatPadded(d / 1000, "#0.0") + " KM " + azimuthText + " |");
    }
  }

  static void ReadAngle(const std::string& indexText, double& radians) {
    std::string text = ReplaceAll(indexText, " ", "");
    double value = 0;
    std::string error;
    DmsToRad(text, value, error);
    if (error.empty()) radians = value;
  }

  void WriteBox() {
    SortByColumn(rows_, kAzimuthColumn);
    const std::string front = " " + pid_;
    const std::string rule = front + "|" + std::string(69, '-') + "|" + kCrLf;
    text_ += rule;
    text_ += front + "| PID    Reference Object" + Space(21) + "Distance      Geod. Az  |" + kCrLf;
    text_ += front + "|" + Space(59) + "dddmmss.s |" + kCrLf;
    std::string lastPid;
    for (std::size_t i = 0; i < rows_.size(); ++i) {
      if (i == 0 || Mid(rows_[i], 10, 6) != Mid(rows_[i - 1], 10, 6)) text_ += rows_[i] + kCrLf;
      lastPid = Mid(rows_[i], 10, 6);
    }
    text_ += rule;
    text_ += " PID    Name" + Space(27) + "Latitude        Longitude" + kCrLf;
    text_ += stationLine_ + kCrLf;
    WritePositions(lastPid);
  }

  // Only reference marks get a line; the first is dropped when its PID is the one the box ended with.
  void WritePositions(std::string lastPid) {
    for (const auto& row : rows_) {
      const double distance = Val(Mid(row, 52, 8));
      if (!(distance > 0)) continue;
      const std::string pid = Mid(row, 10, 6);
      const std::string name = Mid(row, 17, 30);
      const std::string azimuthText = Mid(row, kAzimuthColumn, 9);
      const double azimuth = Radians(Left(azimuthText, 3), Mid(azimuthText, 4, 2), Mid(azimuthText, 6, 4));
      double latitude = 0, longitude = 0, back = 0;
      GeographicForward(ellipsoid_, latitude_, longitude_, latitude, longitude, azimuth, back, distance, ui_);
      const std::size_t rm = InStr(name, "RM");
      if (rm == 0 || pid == lastPid) continue;
      const int number = CInt(Val(Mid(name, rm + 3)));
      if (number < 0 || number > kLastReferenceMark) throw SubscriptOutOfRange();
      rmLatitude_[static_cast<std::size_t>(number)] = latitude;
      rmLongitude_[static_cast<std::size_t>(number)] = longitude;
      text_ += " " + pid + " " + name + " " + AngleText(latitude, kDmsBlank, 3) + Space(4) +
               AngleText(longitude, kDmsBlank, 3) + kCrLf;
      lastPid = pid;
    }
  }

  const std::string& pid_;
  const std::string& name_;
  const std::vector<NearbyMark>& marks_;
  const Ellipsoid& ellipsoid_;
  Ui& ui_;
  std::string text_;
  std::string stationLine_;
  double latitude_ = 0, longitude_ = 0;
  std::vector<std::string> rows_;
  bool inTable_ = false;
  std::array<double, kLastReferenceMark + 1> rmLatitude_{};
  std::array<double, kLastReferenceMark + 1> rmLongitude_{};
};

}  // namespace

std::string ReferenceObjectReport(const std::string& pid, const std::string& name,
                                  const std::vector<std::string>& descriptionLines,
                                  const std::vector<NearbyMark>& nearbyMarks, const Ellipsoid& ellipsoid, Ui& ui) {
  ReportWriter writer(pid, name, nearbyMarks, ellipsoid, ui);
  for (const auto& line : descriptionLines) writer.Line(line);
  return writer.Finish();
}

}  // namespace benchlog
