// The numbered commands of the math dispatcher; owner of the dispatcher's seed
// (see docs/state.md).
#include "math/function_dispatcher.h"

#include <kilnutil/math.h>

#include "frame/missing_value.h"
#include "math/catalogue_routines.h"
#include "math/error_code.h"
#include "math/function_catalogue.h"
#include "math/function_texts.h"
#include "math/nint.h"
#include "math/normal.h"
#include "math/poisson.h"
#include "math/random.h"
#include "platform/clock.h"

#include <algorithm>
#include <atomic>
#include <cstring>
#include <string>

namespace kiln::math {

namespace {

constexpr std::int32_t kTickSeedModulus = 54773;

std::atomic<std::int32_t> g_dispatcher_seed{1};

std::size_t entry_index(std::uint32_t command) { return command >> 16; }

// The catalogue entry the command's high 16 bits name, or null past the end.
const CatalogueEntry* entry_of(std::uint32_t command) {
  const std::span<const CatalogueEntry> functions = catalogue_functions();
  const std::size_t index = entry_index(command);
  return index < functions.size() ? &functions[index] : nullptr;
}

void write_double(void* result, double value) {
  if (result != nullptr) *static_cast<double*>(result) = value;
}

// Copies text into the caller's KILNUTIL_MATHFN_TEXT_SIZE buffer, cut to fit.
void write_text(void* result, const std::string& text) {
  if (result == nullptr) return;
  char* buffer = static_cast<char*>(result);
  const std::size_t length = std::min<std::size_t>(text.size(), KILNUTIL_MATHFN_TEXT_SIZE - 1);
  std::memcpy(buffer, text.data(), length);
  buffer[length] = '\0';
}

std::uint32_t find_by_name(const void* arguments, void* result) {
  const std::optional<std::size_t> index = find_catalogue_function(static_cast<const char*>(arguments));
  if (!index) return 0;
  if (result != nullptr) *static_cast<std::uint16_t*>(result) = static_cast<std::uint16_t>(*index);
  return catalogue_functions()[*index].argument_count;
}

std::uint32_t evaluate(std::uint32_t command, const void* arguments, void* result, unsigned unit) {
  double value = 0.0;
  const auto* values = static_cast<const double*>(arguments);
  const unsigned code = evaluate_catalogue_function(entry_index(command), values, value, unit);
  write_double(result, value);
  return code;
}

std::uint32_t argument_count(std::uint32_t command) {
  const CatalogueEntry* entry = entry_of(command);
  return entry != nullptr ? entry->argument_count : 0;
}

std::uint32_t seed_dispatcher(const void* arguments) {
  const bool from_clock = arguments != nullptr && *static_cast<const std::int32_t*>(arguments) != 0;
  const auto seed = from_clock ? static_cast<std::int32_t>(platform::tick_count() % kTickSeedModulus) : 1;
  g_dispatcher_seed.store(seed, std::memory_order_relaxed);
  return 0;
}

std::uint32_t seed_and_reset(void* arguments) {
  if (arguments != nullptr) {
    double& argument = *static_cast<double*>(arguments);
    argument = script_rnd(truncate_to_int32(argument));
  }
  reset_normal_deviate();
  return 0;
}

// Draws with the dispatcher's seed, keeping what the generator writes back.
template <typename Draw>
std::uint32_t draw_with_dispatcher_seed(void* result, Draw draw) {
  std::int32_t seed = g_dispatcher_seed.load(std::memory_order_relaxed);
  const double value = draw(seed);
  g_dispatcher_seed.store(seed, std::memory_order_relaxed);
  write_double(result, value);
  return 0;
}

double first_argument(const void* arguments) {
  return arguments != nullptr ? *static_cast<const double*>(arguments) : frame::kMissingValue;
}

// A routine of one argument with the error code cleared first; returns the code.
std::uint32_t apply_with_error_code(UnaryRoutine routine, const void* arguments, void* result) {
  clear_error_code();
  write_double(result, routine(first_argument(arguments)));
  return error_code();
}

std::uint32_t entry_text(std::uint32_t operation, std::uint32_t command, void* result) {
  const CatalogueEntry* entry = entry_of(command);
  if (entry == nullptr) {
    write_text(result, {});
    return 0;
  }
  if (operation == KILNUTIL_MATHFN_NAME) {
    write_text(result, entry->name);
  } else if (operation == KILNUTIL_MATHFN_DESCRIPTION) {
    const FunctionText* text = find_function_text(entry->help_id);
    const bool shown = text != nullptr && (entry->flags & KILNUTIL_MATHFN_FLAG_NO_DESCRIPTION) == 0;
    write_text(result, shown ? text->description : "");
  } else {
    write_text(result, function_help_text(entry->help_id, entry->flags));
  }
  return 0;
}

std::uint32_t precision(const void* arguments, void* result) {
  clear_error_code();
  if (arguments == nullptr) {
    set_error_code(KILNUTIL_MATH_ERR_DOMAIN);
    return error_code();
  }
  write_double(result, prec_of(static_cast<const double*>(arguments)));
  return error_code();
}

}  // namespace

std::int32_t dispatcher_seed() { return g_dispatcher_seed.load(std::memory_order_relaxed); }

std::uint32_t run_math_function(std::uint32_t command, void* arguments, void* result, unsigned unit) {
  const std::uint32_t operation = command & 0xFFFFu;
  switch (operation) {
    case KILNUTIL_MATHFN_FIND: return find_by_name(arguments, result);
    case KILNUTIL_MATHFN_EVALUATE: return evaluate(command, arguments, result, unit);
    case KILNUTIL_MATHFN_ARG_COUNT: return argument_count(command);
    case KILNUTIL_MATHFN_SEED: return seed_dispatcher(arguments);
    case KILNUTIL_MATHFN_IS_SEEDED: return dispatcher_seed() != 1 ? 1 : 0;
    case KILNUTIL_MATHFN_RND: return seed_and_reset(arguments);
    case KILNUTIL_MATHFN_UNIFORM: return draw_with_dispatcher_seed(result, uniform_deviate);
    case KILNUTIL_MATHFN_NORMAL: return draw_with_dispatcher_seed(result, normal_deviate);
    case KILNUTIL_MATHFN_POISSON: {
      const double mean = first_argument(arguments);
      return draw_with_dispatcher_seed(result, [mean](std::int32_t& seed) { return poisson_deviate(mean, seed); });
    }
    case KILNUTIL_MATHFN_PROB: return apply_with_error_code(normal_probability_unchecked, arguments, result);
    case KILNUTIL_MATHFN_QUANTILE: return apply_with_error_code(normal_quantile_as241, arguments, result);
    case KILNUTIL_MATHFN_SIZE: write_double(result, KILNUTIL_MATHFN_COUNT + 1); return 0;
    case KILNUTIL_MATHFN_NAME:
    case KILNUTIL_MATHFN_DESCRIPTION:
    case KILNUTIL_MATHFN_HELP: return entry_text(operation, command, result);
    case KILNUTIL_MATHFN_PREC: return precision(arguments, result);
    default: return KILNUTIL_MATHFN_UNKNOWN;
  }
}

}  // namespace kiln::math
