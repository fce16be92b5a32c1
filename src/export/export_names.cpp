#include "export/export_names.hpp"

#include "common/paths.hpp"

namespace benchlog {

ExportNames ExportNamesOf(const std::string& outFileName) {
  ExportNames names;
  names.stem = WithoutExtension(outFileName);
  names.hcl = names.stem + ".hcl";
  names.vcl = names.stem + ".vcl";
  names.gpkg = names.stem + ".gpkg";
  names.sa6 = names.stem + "_sa6.txt";
  names.msf = names.stem + ".msf";
  names.err = names.stem + ".err";
  names.gwp = names.stem + "_gwp.txt";
  names.des = names.stem + ".des";
  return names;
}

}  // namespace benchlog
