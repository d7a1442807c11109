// Arbitrary doubles (and the NaN, infinities, missing value, subnormals and
// huge degrees of freedom the byte stream selects often) into every scalar
// special-function and distribution export: each call returns, the `_ptr`
// forms return 0, and nothing reads or writes outside its block.
#include <kilnutil/frame.h>
#include <kilnutil/math.h>

#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <limits>

namespace {

void check(bool condition) {
  if (!condition) std::abort();
}

constexpr double kSpecial[] = {std::numeric_limits<double>::quiet_NaN(),
                               std::numeric_limits<double>::infinity(),
                               -std::numeric_limits<double>::infinity(),
                               KILNUTIL_NANUM,
                               std::numeric_limits<double>::denorm_min(),
                               0.0,
                               -0.0,
                               1.0,
                               -1.0,
                               0.5,
                               0.7,
                               -0.7,
                               1e300,
                               4294967295.0,
                               2147483648.0,
                               1e-300};

// Reads one double per call: 9 bytes, the first choosing a special value
// (when below 0x80) or the raw bits of the next eight.
class Doubles {
public:
  Doubles(const std::uint8_t* data, std::size_t size) : data_(data), size_(size) {}

  double next() {
    std::uint8_t bytes[9] = {};
    for (std::uint8_t& b : bytes) b = pos_ < size_ ? data_[pos_++] : 0;
    if (bytes[0] < 0x80) return kSpecial[bytes[0] % (sizeof kSpecial / sizeof kSpecial[0])];
    double value;
    std::memcpy(&value, bytes + 1, sizeof value);
    return value;
  }

  int next_int() { return static_cast<int>(next_unsigned()); }

  unsigned next_unsigned() {
    const double d = next();
    if (d == d && d >= 0 && d < 4294967296.0) return static_cast<unsigned>(d);
    std::uint32_t bits = 0;
    std::memcpy(&bits, &d, sizeof bits);
    return bits;
  }

private:
  const std::uint8_t* data_;
  std::size_t size_;
  std::size_t pos_ = 0;
};

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  Doubles in(data, size);
  const double x = in.next();
  const double y = in.next();
  const double z = in.next();
  const int i1 = in.next_int();
  const int i2 = in.next_int();
  const unsigned u1 = in.next_unsigned();
  const unsigned u2 = in.next_unsigned();

  gammaln(x);
  gammln_export(x);
  beta(x, y);
  incgamma(x, y);
  incbeta(x, y, z);
  inverf(x);
  inv_erf_export(x);
  error_func_export(x);
  invncp(x);
  invncp1(x);
  invncp2(x);
  gauss_inv_export(x);
  prob(x);
  cum_gauss_export(x);
  invprob(x);
  inv_prob_export(x);
  KILNUTIL_cum_gauss_plus_one(x);
  KILNUTIL_cum_gauss(x);
  KILNUTIL_percent_prob(x);
  invt(x, i1);
  probt(x, i1);
  tTable(x, i1);
  invf(x, i1, i2);
  Ftable(x, u1, u2);
  invchisq(x, u1);
  ChisqDist(x, u1);

  const double block[] = {x, y, z};
  double out = 0;
  check(t_dist_export_ptr(block, &out) == 0);
  check(F_dist_export_ptr(block, &out) == 0);
  check(Chisqr_dist_export_ptr(block, &out) == 0);
  check(incomp_beta_export_ptr(block, &out) == 0);
  check(ln_gamma_export_ptr(x, &out) == 0);
  check(bico_export_ptr(u1, u2, &out) == 0);
  check(norm_prob_export_ptr(x, &out) == 0);
  check(inv_prob_export_ptr(x, &out) == 0);
  check(chisquare_prob_Q_export_ptr(&out, x, y) == 0);
  out = x;
  check(error_func_export_ptr(&out) == 0);
  // A probability that is a number lies in [0, 1].
  const double tail = invchisq(x, u1);
  check(tail != tail || tail == KILNUTIL_NANUM || (tail >= 0 && tail <= 1));
  return 0;
}
