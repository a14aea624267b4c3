#include "generator/random_source.h"

#include <chrono>
#include <utility>

namespace generator {

namespace {

constexpr std::uint64_t Increment = 0x9E3779B97F4A7C15U; // 2^64 / golden ratio, made odd

std::uint64_t Mix(std::uint64_t bits)
{
    bits = (bits ^ (bits >> 30U)) * 0xBF58476D1CE4E5B9U;
    bits = (bits ^ (bits >> 27U)) * 0x94D049BB133111EBU;
    return bits ^ (bits >> 31U);
}

} // namespace

RandomSource::RandomSource(Clock clock) : ReadClock(std::move(clock)), State(Mix(ReadClock())) {}

void RandomSource::Reseed() { State = Mix((State ^ ReadClock()) + Increment); }

int RandomSource::DrawBelow(int count)
{
    State += Increment;
    return static_cast<int>(((Mix(State) >> 40U) * static_cast<std::uint64_t>(count)) >> 24U);
}

std::uint64_t RandomSource::SystemClock()
{
    return static_cast<std::uint64_t>(std::chrono::system_clock::now().time_since_epoch().count());
}

} // namespace generator
