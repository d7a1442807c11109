// The library's uniform and normal pseudo-random generators. One process-wide
// state: three linear congruential generators g1, g2, g3 and a 97-entry table
// shuffled by g3, plus the normal generator's saved deviate. The sequences are
// exact integer and double arithmetic, so a seed gives the same numbers on
// every machine.
#pragma once

#include <cstdint>

namespace kiln::math {

// The next uniform deviate. A negative *seed, or a generator never drawn from,
// (re)initialises the state from *seed and then sets *seed to 1. A table index
// outside the table (possible only after seeding an uninitialised generator
// with a seed above 54773) sets the math error code to 1.
double uniform_deviate(std::int32_t& seed);

// The next standard normal deviate, drawn in pairs by the polar method; the
// second of a pair is saved and returned by the next call.
double normal_deviate(std::int32_t& seed);

// Forgets the saved normal deviate.
void reset_normal_deviate();

// The normal generator as the host drives it: with bit 0 of reset_flags set it
// forgets the saved deviate and returns 0, otherwise normal_deviate(seed).
double normal_deviate_or_reset(std::int32_t& seed, unsigned reset_flags);

// Returns the generators to their state at load: never drawn from, no saved
// normal deviate (a host restarting its script session; the tests).
void restart_random_state();

// rnd(n): n < 1 the next uniform deviate (seed 1 for a fresh generator);
// n >= 1 re-initialises with -n, discards that draw and returns 0.
double script_rnd(std::int32_t n);

// grnd(n): n < 1 the next normal deviate; n >= 1 re-initialises the uniform
// generator with -n, forgets the saved normal deviate and returns 0.
double script_grnd(std::int32_t n);

}  // namespace kiln::math
