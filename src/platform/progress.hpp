#pragma once
// dlgProcessing: the one progress dialog of the program, as a model. Callers set the caption, the
// labels and the bar, show it without blocking, refresh it by hand and hide it at the end; the
// window on screen mirrors the model whenever it changes.
#include <functional>
#include <string>

namespace benchlog {

class Progress {
 public:
  std::string caption = "Processing";
  std::string lblProcessing;
  std::string lblInfo;
  int min = 0;
  int max = 100;
  int value = 0;
  bool barVisible = true;

  bool Visible() const { return visible_; }
  void Show();
  void Hide();
  void Refresh();  // repaints the window from the model

  std::function<void(const Progress&)> observer;  // the window that mirrors the model

 private:
  bool visible_ = false;
};

}  // namespace benchlog
