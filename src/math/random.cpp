// Owner of the random generator state (see docs/state.md).
#include "math/random.h"

#include "math/error_code.h"

#include <array>
#include <atomic>
#include <cmath>
#include <cstddef>

namespace kiln::math {

namespace {

struct Congruential {
  std::int32_t multiplier;
  std::int32_t increment;
  std::int32_t modulus;
};

constexpr Congruential kG1{7141, 54773, 259200};
constexpr Congruential kG2{8121, 28411, 134456};
constexpr Congruential kG3{4561, 51349, 243000};

// 1/259200 and 1/134456, applied as multiplications.
constexpr double kInverseModulus1 = 3.858024691358025e-6;
constexpr double kInverseModulus2 = 7.437377283274826e-6;

constexpr std::size_t kTableSize = 97;

std::atomic<bool> g_initialised{false};
std::atomic<std::int32_t> g_state1{0};
std::atomic<std::int32_t> g_state2{0};
std::atomic<std::int32_t> g_state3{0};
std::array<std::atomic<double>, kTableSize> g_table{};
std::atomic<bool> g_has_saved_normal{false};
std::atomic<double> g_saved_normal{0.0};

// A 32-bit value as the processor's two's-complement arithmetic leaves it.
std::int32_t wrap32(std::int64_t value) {
  return static_cast<std::int32_t>(static_cast<std::uint32_t>(static_cast<std::uint64_t>(value)));
}

// (multiplier * g + increment) mod modulus, the remainder taking the sign of
// the dividend (C++ '%' on signed integers does exactly that). The product of
// any reachable state fits in 32 bits.
std::int32_t advance(const Congruential& c, std::int32_t g) { return (c.multiplier * g + c.increment) % c.modulus; }

void advance_state(std::atomic<std::int32_t>& state, const Congruential& c) {
  state.store(advance(c, state.load(std::memory_order_relaxed)), std::memory_order_relaxed);
}

double table_value() {
  const double g1 = g_state1.load(std::memory_order_relaxed);
  const double g2 = g_state2.load(std::memory_order_relaxed);
  return (g1 + g2 * kInverseModulus2) * kInverseModulus1;
}

void initialise(std::int32_t seed) {
  g_initialised.store(true, std::memory_order_relaxed);
  std::int32_t g1 = wrap32(std::int64_t{kG1.increment} - seed) % kG1.modulus;
  g1 = advance(kG1, g1);
  g_state2.store(g1 % kG2.modulus, std::memory_order_relaxed);
  g1 = advance(kG1, g1);
  g_state3.store(g1 % kG3.modulus, std::memory_order_relaxed);
  g_state1.store(g1, std::memory_order_relaxed);
  for (std::atomic<double>& entry : g_table) {
    advance_state(g_state1, kG1);
    advance_state(g_state2, kG2);
    entry.store(table_value(), std::memory_order_relaxed);
  }
}

// The table slot for g3. A negative g3 (a state started from a negative g1)
// gives a negative index; it is reported like any index outside the table
// and mirrored into it, so that no read leaves the table.
std::size_t table_index() {
  const std::int32_t j = (97 * g_state3.load(std::memory_order_relaxed)) / kG3.modulus;
  if (j >= 0 && j < static_cast<std::int32_t>(kTableSize)) return static_cast<std::size_t>(j);
  set_error_code(KILNUTIL_MATH_ERR_DOMAIN);
  const std::int32_t mirrored = j < 0 ? -j : j;
  return static_cast<std::size_t>(mirrored) % kTableSize;
}

}  // namespace

double uniform_deviate(std::int32_t& seed) {
  if (seed < 0 || !g_initialised.load(std::memory_order_relaxed)) {
    initialise(seed);
    seed = 1;
  }
  advance_state(g_state1, kG1);
  advance_state(g_state2, kG2);
  advance_state(g_state3, kG3);
  std::atomic<double>& entry = g_table[table_index()];
  const double result = entry.load(std::memory_order_relaxed);
  entry.store(table_value(), std::memory_order_relaxed);
  return result;
}

double normal_deviate(std::int32_t& seed) {
  if (g_has_saved_normal.load(std::memory_order_relaxed)) {
    g_has_saved_normal.store(false, std::memory_order_relaxed);
    return g_saved_normal.load(std::memory_order_relaxed);
  }
  double a = 0;
  double b = 0;
  double r = 0;
  do {
    a = 2.0 * uniform_deviate(seed) - 1.0;
    b = 2.0 * uniform_deviate(seed) - 1.0;
    r = a * a + b * b;
  } while (r >= 1.0 || r == 0.0);
  const double factor = std::sqrt(-2.0 * std::log(r) / r);
  g_saved_normal.store(a * factor, std::memory_order_relaxed);
  g_has_saved_normal.store(true, std::memory_order_relaxed);
  return b * factor;
}

void reset_normal_deviate() { g_has_saved_normal.store(false, std::memory_order_relaxed); }

double normal_deviate_or_reset(std::int32_t& seed, unsigned reset_flags) {
  if ((reset_flags & KILNUTIL_RANDOM_RESET_NORMAL) != 0) {
    reset_normal_deviate();
    return 0.0;
  }
  return normal_deviate(seed);
}

void restart_random_state() {
  g_initialised.store(false, std::memory_order_relaxed);
  reset_normal_deviate();
}

namespace {

// Re-initialises the uniform generator from -n (n >= 1) and discards the draw.
void reseed(std::int32_t n) {
  std::int32_t seed = -n;
  uniform_deviate(seed);
}

}  // namespace

double script_rnd(std::int32_t n) {
  if (n >= 1) {
    reseed(n);
    return 0.0;
  }
  std::int32_t seed = 1;
  return uniform_deviate(seed);
}

double script_grnd(std::int32_t n) {
  if (n >= 1) {
    reseed(n);
    reset_normal_deviate();
    return 0.0;
  }
  std::int32_t seed = 1;
  return normal_deviate(seed);
}

}  // namespace kiln::math
