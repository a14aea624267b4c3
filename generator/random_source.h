#pragma once

#include <cstdint>
#include <functional>

namespace generator {

/// The random numbers of a puzzle: the 64-bit generator SplitMix64, with Sebastiano Vigna's constants. It is seeded
/// from a clock and gives the same numbers on every platform. A copy continues with the same numbers.
class RandomSource {
public:
    using Clock = std::function<std::uint64_t()>;

    /// Reads `clock` once now and once in every Reseed.
    explicit RandomSource(Clock clock = SystemClock);

    /// Mixes a clock reading into the state. The sequence does not start over, even when the clock has not advanced.
    void Reseed();

    /// Returns 0..count - 1, equally likely: floor(count * u) for a u >= 0 and < 1 of 24 random bits. `count` must be
    /// 1..2^24 - 1.
    int DrawBelow(int count);

private:
    static std::uint64_t SystemClock();

    Clock ReadClock;
    std::uint64_t State;
};

} // namespace generator
