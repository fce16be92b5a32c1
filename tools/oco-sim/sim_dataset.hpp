#pragma once
// The marks the simulator serves: every Description of a dataset file, with the few facts the
// service's answers need. The index builder's line rules give the PID, the name, the orders, the
// CORS class and the position texts, so the service sees a Description as the program does.
#include <string>
#include <vector>

namespace ocosim {

struct SimMark {
  std::string pid;
  std::string designation;  // trimmed
  std::string state;        // the two letters of the STATE/COUNTY line
  std::string county;       // the county's name there, trimmed
  std::string quad;         // the USGS quad's name, without its date
  char horzCode = '.';      // the index's order codes, "." where the Description has none
  char vertCode = '.';
  bool cors = false;
  bool hasPosition = false;
  std::string latitude;   // packed, hemisphere first: "N360342.56888"
  std::string longitude;  // "W0790718.55999"
  double latitudeDegrees = 0;   // positive north
  double longitudeDegrees = 0;  // positive west
  std::string positionSource;   // the word behind the position ("ADJUSTED", "SCALED", ...)
  std::vector<std::string> lines;  // the Description as the dataset holds it, without line ends
};

class SimDataset {
 public:
  // Reads every Description of the file (lines before the first header belong to none). A
  // Description without a PID line takes the PID of its first data line. Throws
  // benchlog::RuntimeFailure "File not found" when the file cannot be read.
  static SimDataset Read(const std::string& path);

  const std::vector<SimMark>& Marks() const { return marks_; }
  // The first mark of that PID (exact), or nullptr.
  const SimMark* Find(const std::string& pid) const;

 private:
  std::vector<SimMark> marks_;
};

// Great-circle distance in statute miles between two points in degrees (longitudes positive
// west); a sphere of 3,958.8 miles is close enough for choosing marks by radius.
double DistanceMiles(double latitude1, double longitude1, double latitude2, double longitude2);

}  // namespace ocosim
