// The random-number exports: forwards to the generators of math/random.h.
#include <kilnutil/math.h>

#include "math/random.h"

#include <cstdint>

namespace {

// The caller's seed, or a local seed of 1 when the pointer is null.
std::int32_t& seed_or_local(int* seed, std::int32_t& local) { return seed != nullptr ? *seed : local; }

}  // namespace

extern "C" {

double ran1_export(int* seed) {
  std::int32_t local = 1;
  return kiln::math::uniform_deviate(seed_or_local(seed, local));
}

int ran1_dev_export_ptr(int seed, double* result) {
  std::int32_t copy = seed;
  const double value = kiln::math::uniform_deviate(copy);
  if (result != nullptr) *result = value;
  return 0;
}

double gasdevex_export(int* seed, unsigned char reset) {
  std::int32_t local = 1;
  return kiln::math::normal_deviate_or_reset(seed_or_local(seed, local), reset);
}

int norm_dev_export_ptr(int seed, double* result) {
  std::int32_t copy = seed;
  const double value = kiln::math::normal_deviate(copy);
  if (result != nullptr) *result = value;
  return 0;
}

double rnd(int n) { return kiln::math::script_rnd(n); }

double grnd(int n) { return kiln::math::script_grnd(n); }

}  // extern "C"
