#include "platform/progress.hpp"

namespace benchlog {

void Progress::Show() {
  visible_ = true;
  Refresh();
}

void Progress::Hide() {
  visible_ = false;
  Refresh();
}

void Progress::Refresh() {
  if (observer) observer(*this);
}

}  // namespace benchlog
