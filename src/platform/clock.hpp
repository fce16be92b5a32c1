#pragma once
// Monotonic time and waiting, and the year of the calendar. Waits sleep rather than spin, and tests
// swap in a manual clock.
#include <chrono>

namespace benchlog {

class Clock {
 public:
  using TimePoint = std::chrono::steady_clock::time_point;
  using Duration = std::chrono::steady_clock::duration;
  virtual ~Clock() = default;
  virtual TimePoint Now() = 0;
  virtual void Sleep(Duration duration) = 0;
  // The year of the system's date, in local time.
  virtual int CurrentYear();
};

class SystemClock final : public Clock {
 public:
  TimePoint Now() override;
  void Sleep(Duration duration) override;
};

}  // namespace benchlog
