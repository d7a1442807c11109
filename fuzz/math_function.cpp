// Any command, index, unit and arguments through KilnMath_function: every
// argument array is sized from what the command (or the entry's argument
// count) reads, and every result from what it writes (a double, a 16-bit
// index, or a text buffer of KILNUTIL_MATHFN_TEXT_SIZE chars), so a read or
// write outside them is caught. Input: 4 bytes command, 2 bytes unit, then
// the argument bytes.
#include <kilnutil/math.h>

#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <memory>

namespace {

void check(bool condition) {
  if (!condition) std::abort();
}

template <typename T>
T take(const std::uint8_t*& data, std::size_t& size) {
  T value{};
  const std::size_t n = size < sizeof(T) ? size : sizeof(T);
  std::memcpy(&value, data, n);
  data += n;
  size -= n;
  return value;
}

// Doubles from the remaining bytes (missing bytes read as 0).
std::unique_ptr<double[]> doubles(const std::uint8_t*& data, std::size_t& size, std::size_t count) {
  std::unique_ptr<double[]> values(new double[count]);
  for (std::size_t i = 0; i < count; ++i) values[i] = take<double>(data, size);
  return values;
}

unsigned call(unsigned command, void* arguments, void* result, unsigned short unit) {
  return KilnMath_function(nullptr, command, arguments, result, unit);
}

void find(const std::uint8_t* data, std::size_t size, unsigned short unit) {
  std::unique_ptr<char[]> name(new char[size + 1]);
  std::memcpy(name.get(), data, size);
  name[size] = '\0';
  std::unique_ptr<std::uint16_t> index(new std::uint16_t(0xFFFF));
  const unsigned count = call(KILNUTIL_MATHFN_FIND, name.get(), index.get(), unit);
  check(count <= 3);
  check(count == 0 || *index < KILNUTIL_MATHFN_COUNT);
}

void text(unsigned command, unsigned short unit) {
  std::unique_ptr<char[]> buffer(new char[KILNUTIL_MATHFN_TEXT_SIZE]);
  check(call(command, nullptr, buffer.get(), unit) == 0);
  check(std::memchr(buffer.get(), '\0', KILNUTIL_MATHFN_TEXT_SIZE) != nullptr);
}

unsigned index_of(const char* name) {
  std::unique_ptr<char[]> text(new char[std::strlen(name) + 1]);
  std::strcpy(text.get(), name);
  std::uint16_t index = 0;
  call(KILNUTIL_MATHFN_FIND, text.get(), &index, 0);
  return index;
}

// The runtime's Bessel functions of order n take time proportional to n; the
// orders stay below 10000 so that one input runs in milliseconds.
bool is_bessel_of_order_n(unsigned index) {
  static const unsigned jn = index_of("JN");
  static const unsigned yn = index_of("YN");
  return index == jn || index == yn;
}

void evaluate(unsigned command, const std::uint8_t* data, std::size_t size, unsigned short unit) {
  const unsigned count = call(KILNUTIL_MATHFN_COMMAND(KILNUTIL_MATHFN_ARG_COUNT, command >> 16), nullptr, nullptr, 0);
  check(count <= 3);
  std::unique_ptr<double[]> arguments = doubles(data, size, count);
  if (is_bessel_of_order_n(command >> 16) && !(std::abs(arguments[0]) < 1e4)) arguments[0] = 7;
  std::unique_ptr<double> result(new double(0));
  check(call(command, arguments.get(), result.get(), unit) <= 3);
}

// Commands that read `count` doubles and write one double.
void on_doubles(unsigned command, const std::uint8_t* data, std::size_t size, std::size_t count, unsigned short unit) {
  std::unique_ptr<double[]> arguments = doubles(data, size, count);
  std::unique_ptr<double> result(new double(0));
  call(command, arguments.get(), result.get(), unit);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const auto command = take<std::uint32_t>(data, size);
  const auto unit = take<std::uint16_t>(data, size);
  switch (command & 0xFFFFu) {
    case KILNUTIL_MATHFN_FIND: find(data, size, unit); break;
    case KILNUTIL_MATHFN_EVALUATE: evaluate(command, data, size, unit); break;
    case KILNUTIL_MATHFN_SEED: {
      std::unique_ptr<std::int32_t> seed(new std::int32_t(take<std::int32_t>(data, size)));
      check(call(command, seed.get(), nullptr, unit) == 0);
      break;
    }
    case KILNUTIL_MATHFN_RND:
    case KILNUTIL_MATHFN_POISSON:
    case KILNUTIL_MATHFN_PROB:
    case KILNUTIL_MATHFN_QUANTILE: on_doubles(command, data, size, 1, unit); break;
    case KILNUTIL_MATHFN_PREC: on_doubles(command, data, size, 2, unit); break;
    case KILNUTIL_MATHFN_UNIFORM:
    case KILNUTIL_MATHFN_NORMAL:
    case KILNUTIL_MATHFN_SIZE: on_doubles(command, data, size, 0, unit); break;
    case KILNUTIL_MATHFN_NAME:
    case KILNUTIL_MATHFN_DESCRIPTION:
    case KILNUTIL_MATHFN_HELP: text(command, unit); break;
    case KILNUTIL_MATHFN_ARG_COUNT:
    case KILNUTIL_MATHFN_IS_SEEDED: check(call(command, nullptr, nullptr, unit) <= 3); break;
    default: check(call(command, nullptr, nullptr, unit) == KILNUTIL_MATHFN_UNKNOWN); break;
  }
  return 0;
}
