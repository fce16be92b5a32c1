#pragma once
// One Benchlog per user at a time: a lock file in the temporary folder, held while the program runs
// and freed by the system if the program dies.
#include <QLockFile>
#include <QString>

namespace benchlog::qt {

class SingleInstance {
 public:
  explicit SingleInstance(const QString& name = "benchlog");
  bool IsFirst() const { return first_; }

 private:
  QLockFile lock_;
  bool first_;
};

}  // namespace benchlog::qt
