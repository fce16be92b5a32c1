#include "platform/clock.hpp"

#include <thread>

namespace benchlog {

Clock::TimePoint SystemClock::Now() { return std::chrono::steady_clock::now(); }
void SystemClock::Sleep(Duration duration) { std::this_thread::sleep_for(duration); }

}  // namespace benchlog
