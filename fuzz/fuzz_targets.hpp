#pragma once
// The fuzz bodies: one function per reader of outside text. Each takes any bytes and must return
// 0 without a crash, a hang or a sanitizer report; the reader's own failures (RuntimeFailure) are
// the clear message it may answer with. libFuzzer calls them through fuzz_entry.cpp, and the
// replay test runs every kept input of tests/data/fuzz/<name>/ through them.
#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>

namespace benchlog::fuzz {

int FuzzMarkIndex(const std::uint8_t* data, std::size_t size);
int FuzzDescription(const std::uint8_t* data, std::size_t size);
int FuzzMarkList(const std::uint8_t* data, std::size_t size);
int FuzzServiceAnswer(const std::uint8_t* data, std::size_t size);
int FuzzDelimited(const std::uint8_t* data, std::size_t size);
int FuzzGpx(const std::uint8_t* data, std::size_t size);
int FuzzGarmin(const std::uint8_t* data, std::size_t size);
int FuzzAngleText(const std::uint8_t* data, std::size_t size);
int FuzzCountry(const std::uint8_t* data, std::size_t size);
int FuzzTowns(const std::uint8_t* data, std::size_t size);
int FuzzZoneTable(const std::uint8_t* data, std::size_t size);

struct FuzzTarget {
  std::string_view name;  // the executable is fuzz_<name>; its inputs are kept in tests/data/fuzz/<name>/
  int (*run)(const std::uint8_t*, std::size_t);
};

std::span<const FuzzTarget> FuzzTargets();

}  // namespace benchlog::fuzz
