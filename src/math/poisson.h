// Poisson deviates drawn from the library's uniform generator.
#pragma once

#include <cstdint>

namespace kiln::math {

// A Poisson deviate of the given mean, every uniform drawn by
// uniform_deviate(seed). Exact for every mean: below 10 the count of uniforms
// whose running product stays above e^-mean; from 10 on the transformed
// rejection with squeeze (PTRS). A mean that is negative, infinite, NaN or the
// missing value gives the missing value with math error code 1; 0 gives 0.
double poisson_deviate(double mean, std::int32_t& seed);

}  // namespace kiln::math
