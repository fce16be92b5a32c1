#pragma once
// The names of an export's files, all formed from the one name the user chose: the chosen name
// loses its extension (the part of its file name from the last "." on; a name without one stays
// whole), and each output adds its ending to that stem.
#include <string>

namespace benchlog {

struct ExportNames {
  std::string stem;
  std::string hcl;  // horizontal listing
  std::string vcl;  // vertical listing
  std::string gpkg;  // database, a GeoPackage
  std::string sa6;  // Street Atlas file, "_sa6.txt"
  std::string msf;  // Microstation script
  std::string err;  // only stored: no error listing is written
  std::string gwp;  // "_gwp.txt", only formed
  std::string des;  // only stored
};

// "out.txt" gives "out.hcl", "out" gives "out.hcl", "a.b.c" gives "a.b.hcl". A "." in a folder
// name is no extension: "/data/v1.2/out" gives "/data/v1.2/out.hcl".
ExportNames ExportNamesOf(const std::string& outFileName);

}  // namespace benchlog
