#pragma once
// The base of every window model. A modal dialog tells its result through its tag: "Canceled",
// "Okay" or a result text, read by the caller after the modal show.
#include <string>

namespace benchlog {

class DialogModel {
 public:
  virtual ~DialogModel() = default;
  std::string Tag;
};

}  // namespace benchlog
