#include "platform/clock.hpp"

#include <ctime>
#include <thread>

namespace benchlog {

int Clock::CurrentYear() {
  const std::time_t now = std::time(nullptr);
  std::tm local{};
  localtime_r(&now, &local);
  return local.tm_year + 1900;
}

Clock::TimePoint SystemClock::Now() { return std::chrono::steady_clock::now(); }
void SystemClock::Sleep(Duration duration) { std::this_thread::sleep_for(duration); }

}  // namespace benchlog
