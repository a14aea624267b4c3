#pragma once

#include <cstdint>
#include <functional>

namespace generator {

/// The source of all chance in a puzzle: a 64-bit mixing generator (Sebastiano Vigna's SplitMix64), seeded from a
/// clock and the same on every platform. Copying it copies its state: both copies go on alike.
class RandomSource {
public:
    using Clock = std::function<std::uint64_t()>;

    /// Takes its first seed from `clock`, and one reading more for each Reseed.
    explicit RandomSource(Clock clock = SystemClock);

    /// Folds a clock reading into the state. Numbers already drawn do not come again, however often this is called
    /// within one tick of the clock.
    void Reseed();

    /// A number u with 0 <= u < 1, also at single precision: 24 random bits.
    float Draw();

    /// floor(count * u) of the next u: 0..count - 1 with equal chances; `count` is positive and below 2^24.
    int DrawBelow(int count);

private:
    static std::uint64_t SystemClock();

    Clock ReadClock;
    std::uint64_t State;
};

} // namespace generator
