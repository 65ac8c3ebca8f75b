#pragma once

#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <iterator>

namespace history {

/// Random numbers that are the same on every machine.
class Dice {
 public:
  explicit Dice(std::uint64_t seed) : state_(seed) {}

  std::uint64_t Next() {
    std::uint64_t mixed = state_ += 0x9E3779B97F4A7C15U;
    mixed = (mixed ^ (mixed >> 30)) * 0xBF58476D1CE4E5B9U;
    mixed = (mixed ^ (mixed >> 27)) * 0x94D049BB133111EBU;
    return mixed ^ (mixed >> 31);
  }
  /// 0 to below `end`.
  int Below(std::size_t end) { return static_cast<int>(Next() % end); }
  bool Chance(int percent) { return Below(100) < percent; }
  template <class Things>
  const auto& One(const Things& things) {
    return *std::next(std::begin(things), Below(std::size(things)));
  }
  template <class Thing>
  Thing One(std::initializer_list<Thing> things) {
    return *std::next(things.begin(), Below(things.size()));
  }
  /// The index of a weight, drawn with a probability in proportion to it.
  template <class Weights>
  std::size_t ByWeight(const Weights& weights) {
    int all = 0;
    for (const auto& weight : weights) all += weight.second;
    int left = Below(static_cast<std::size_t>(all));
    std::size_t place = 0;
    for (const auto& weight : weights) {
      if (left < weight.second) break;
      left -= weight.second;
      ++place;
    }
    return place;
  }

 private:
  std::uint64_t state_;
};

}  // namespace history
