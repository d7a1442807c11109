// The real parser against correctly rounded references (the C library's
// strtod in the "C" locale and std::from_chars), bit for bit, over a large
// generated table of ordinary decimal texts.
#include <kilnutil/numeric.h>

#include <gtest/gtest.h>

#include <charconv>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <random>
#include <string>
#include <vector>

namespace {

std::uint64_t bits_of(double x) {
  std::uint64_t bits;
  std::memcpy(&bits, &x, sizeof bits);
  return bits;
}

std::string random_digits(std::mt19937_64& random, int count) {
  std::string digits;
  for (int i = 0; i < count; ++i) digits += static_cast<char>('0' + random() % 10);
  return digits;
}

// Texts of the shapes found in data files: digit strings with a point, with
// and without a sign, printed doubles at every precision, long mantissas beyond
// 19 digits, and numbers just beside halfway points between doubles.
std::vector<std::string> generate_texts(std::size_t count) {
  std::mt19937_64 random(20261122);
  std::vector<std::string> texts;
  texts.reserve(count);
  char buffer[512];
  while (texts.size() < count) {
    switch (texts.size() % 4) {
      case 0: {
        std::string text = random() % 4 == 0 ? "-" : "";
        text += random_digits(random, 1 + static_cast<int>(random() % 9));
        text += "." + random_digits(random, static_cast<int>(random() % 12));
        texts.push_back(text);
        break;
      }
      case 1: {
        double x;
        do {
          const std::uint64_t bits = random();
          std::memcpy(&x, &bits, sizeof x);
        } while (!std::isfinite(x) || std::fabs(x) > 1e22 || std::fabs(x) < 1e-22);
        std::snprintf(buffer, sizeof buffer, "%.*f", 1 + static_cast<int>(random() % 29), x);
        texts.push_back(buffer);
        break;
      }
      case 2: {
        const std::string integer = random_digits(random, static_cast<int>(random() % 25));
        texts.push_back(integer + "." + random_digits(random, 1 + static_cast<int>(random() % 30)));
        break;
      }
      default: {
        // Halfway between two neighbouring doubles, nudged by one digit.
        const double x = std::ldexp(static_cast<double>(random() >> 11), static_cast<int>(random() % 40) - 20);
        std::snprintf(buffer, sizeof buffer, "%.40f", (x + std::nextafter(x, INFINITY)) / 2);
        std::string text = buffer;
        if (random() % 2) text.back() = static_cast<char>('0' + random() % 10);
        texts.push_back(text);
        break;
      }
    }
  }
  return texts;
}

TEST(CorrectRounding, MatchesStrtodAndFromCharsBitForBit) {
  const std::vector<std::string> texts = generate_texts(1000000);
  std::size_t mismatches = 0;
  for (const std::string& original : texts) {
    std::string text = original;
    double value = 0;
    ASSERT_EQ(KILNUTIL_cvtstr2real(text.data(), &value), 2u) << original;
    const double by_strtod = std::strtod(original.c_str(), nullptr);
    double by_from_chars = 0;
    std::from_chars(original.data(), original.data() + original.size(), by_from_chars);
    ASSERT_EQ(bits_of(by_strtod), bits_of(by_from_chars)) << original;
    if (bits_of(value) != bits_of(by_strtod) && ++mismatches <= 10) {
      ADD_FAILURE() << original << ": " << value << " instead of " << by_strtod;
    }
  }
  EXPECT_EQ(mismatches, 0u);
}

// Parses one text expecting a real with a fraction, bit-identical to
// strtod's, and the text left as it was.
void expect_as_strtod(const std::string& original) {
  std::string text = original;
  double value = 0;
  ASSERT_EQ(KILNUTIL_cvtstr2real(text.data(), &value), 2u) << original;
  EXPECT_EQ(bits_of(value), bits_of(std::strtod(original.c_str(), nullptr))) << original;
  EXPECT_EQ(text, original);
}

// Every split of up to 9 + 9 digits around the point, with and without
// sign and trailing blanks.
TEST(CorrectRounding, EveryShapeOfShortTexts) {
  std::mt19937_64 random(5);
  for (int integer_digits = 0; integer_digits <= 9; ++integer_digits) {
    for (int fraction_digits = 0; fraction_digits <= 9; ++fraction_digits) {
      if (integer_digits + fraction_digits == 0) continue;
      for (int trial = 0; trial < 200; ++trial) {
        std::string original = random_digits(random, integer_digits) + "." + random_digits(random, fraction_digits);
        if (trial % 7 == 0) original = "-" + original;
        if (trial % 11 == 0) original += " ";
        expect_as_strtod(original);
      }
    }
  }
}

// The 2^53 edge of the scaled mantissa, halfway cases, and the largest and
// the smallest (subnormal) doubles written out in full.
TEST(CorrectRounding, HardCases) {
  for (const char* original :
       {"89999999.99999999", "90000000.00000001", "99999999.99999999", "5.", ".5", "00000000.00000000",
        "9007199254740993.0", "9007199254740992.5", "0.1", "0.3", "1.7976931348623157", "123456789012345678.5",
        "2.2250738585072011", "0.000000000000000000000000000001"}) {
    expect_as_strtod(original);
  }
  expect_as_strtod("17976931348623157" + std::string(292, '0') + ".0");
  expect_as_strtod("17976931348623159" + std::string(292, '0') + ".0");  // rounds up to infinity
  expect_as_strtod("0." + std::string(323, '0') + "49406564584124654");
  expect_as_strtod("0." + std::string(323, '0') + "24703282292062328");  // just above half the smallest
}

TEST(CorrectRounding, OutOfRangeGivesInfinityOrZero) {
  std::string huge = std::string(400, '9') + ".5";
  std::string tiny = "0." + std::string(400, '0') + "1";
  double value = 0;
  EXPECT_EQ(KILNUTIL_cvtstr2real(huge.data(), &value), 2u);
  EXPECT_EQ(value, HUGE_VAL);
  EXPECT_EQ(KILNUTIL_cvtstr2real(tiny.data(), &value), 2u);
  EXPECT_EQ(value, 0.0);
}

}  // namespace
