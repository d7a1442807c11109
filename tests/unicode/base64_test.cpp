#include "unicode/base64.h"

#include <kilnutil/unicode.h>

#include <gtest/gtest.h>

#include <random>
#include <string>
#include <vector>

#ifdef _OPENMP
#  include <omp.h>
#endif

namespace {

std::string encode(const std::string& bytes) {
  const auto* src = reinterpret_cast<const unsigned char*>(bytes.data());
  const int n = static_cast<int>(bytes.size());
  std::string out(static_cast<size_t>(KILNUTIL_encode_base64(src, n, nullptr)), '\0');
  EXPECT_EQ(KILNUTIL_encode_base64(src, n, out.data()), static_cast<int>(out.size()));
  return out;
}

std::string decode(const std::string& text) {
  const int n = static_cast<int>(text.size());
  const int size = KILNUTIL_decode_base64(text.data(), n, nullptr);
  std::string out(static_cast<size_t>(size), '\0');
  EXPECT_EQ(KILNUTIL_decode_base64(text.data(), n, reinterpret_cast<unsigned char*>(out.data())), size);
  return out;
}

// A plain one-group-at-a-time encoder, the reference for the fast paths.
std::string reference_encode(const std::vector<unsigned char>& bytes) {
  static const char alphabet[] = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
  std::string out;
  for (size_t i = 0; i < bytes.size(); i += 3) {
    const size_t left = bytes.size() - i;
    const unsigned v = (bytes[i] << 16) | ((left > 1 ? bytes[i + 1] : 0) << 8) | (left > 2 ? bytes[i + 2] : 0);
    out += alphabet[v >> 18];
    out += alphabet[(v >> 12) & 63];
    out += left > 1 ? alphabet[(v >> 6) & 63] : '=';
    out += left > 2 ? alphabet[v & 63] : '=';
  }
  return out;
}

std::vector<unsigned char> random_bytes(size_t n, unsigned seed) {
  std::mt19937 generator(seed);
  std::vector<unsigned char> bytes(n);
  for (auto& b : bytes) b = static_cast<unsigned char>(generator());
  return bytes;
}

TEST(Base64, Rfc4648Vectors) {
  const std::pair<const char*, const char*> vectors[] = {
      {"f", "Zg=="}, {"fo", "Zm8="}, {"foo", "Zm9v"}, {"foob", "Zm9vYg=="}, {"fooba", "Zm9vYmE="}, {"foobar", "Zm9vYmFy"},
  };
  for (const auto& [plain, encoded] : vectors) {
    EXPECT_EQ(encode(plain), encoded);
    EXPECT_EQ(decode(encoded), plain);
  }
}

TEST(Base64, BothNamesAgree) {
  const unsigned char bytes[] = {0xFB, 0xFF, 0x00, 0x10};
  char a[8], b[8];
  ASSERT_EQ(KILNUTIL_encode_base64(bytes, 4, a), 8);
  ASSERT_EQ(encode_base64(bytes, 4, b), 8);
  EXPECT_EQ(std::string(a, 8), "+/8AEA==");
  EXPECT_EQ(std::string(a, 8), std::string(b, 8));
  unsigned char c[4], d[4];
  EXPECT_EQ(KILNUTIL_decode_base64(a, 8, c), 4);
  EXPECT_EQ(decode_base64(a, 8, d), 4);
  EXPECT_EQ(std::string(reinterpret_cast<char*>(c), 4), std::string(reinterpret_cast<char*>(d), 4));
}

TEST(Base64, SizesWithoutDestination) {
  EXPECT_EQ(KILNUTIL_encode_base64(nullptr, 10, nullptr), 16);
  EXPECT_EQ(KILNUTIL_encode_base64(nullptr, 0, nullptr), 0);
  EXPECT_EQ(KILNUTIL_decode_base64(nullptr, 10, nullptr), 13);
  EXPECT_EQ(KILNUTIL_decode_base64("Zm9v", 0, nullptr), 0);
  EXPECT_EQ(KILNUTIL_decode_base64("Zm9v", -5, nullptr), 0);
  EXPECT_EQ(KILNUTIL_decode_base64("Zm9vYmE=", 8, nullptr), 5);
}

TEST(Base64, EmptyInputStillEncodesOneGroupIntoAGivenDestination) {
  const unsigned char bytes[] = {'f', 'o', 'o'};
  char out[5] = "....";
  EXPECT_EQ(KILNUTIL_encode_base64(bytes, 0, out), 0);
  EXPECT_EQ(std::string(out, 4), "Zm9v");
}

TEST(Base64, DecodingSkipsEverythingOutsideTheAlphabet) {
  EXPECT_EQ(decode("Zm9v\r\nYmFy"), "foobar");
  EXPECT_EQ(decode("Z m9v-Ym*Fy==\n"), "foobar");
  EXPECT_EQ(decode("=Zm=9vYm=Fy"), "foobar");
  EXPECT_EQ(decode("\n\n\n"), "");
}

TEST(Base64, LeftoverValues) {
  EXPECT_EQ(decode("Zm9vY").size(), 3u);  // the fifth value alone is dropped
  EXPECT_EQ(decode("Zm9vYm"), "foob");    // six values give four bytes
  EXPECT_EQ(decode("Zm9vYmE"), "fooba");
}

TEST(Base64, LineBrokenRoundTrips) {
  for (size_t n : {1u, 2u, 3u, 57u, 58u, 1000u, 4099u}) {
    const auto bytes = random_bytes(n, static_cast<unsigned>(n));
    const std::string plain(bytes.begin(), bytes.end());
    std::string text = encode(plain);
    ASSERT_EQ(text, reference_encode(bytes));
    std::string broken;
    for (size_t i = 0; i < text.size(); i += 76) broken += text.substr(i, 76) + "\r\n";
    EXPECT_EQ(decode(broken), plain) << n;
    // Breaks at odd places too, inside groups.
    std::string odd;
    for (size_t i = 0; i < text.size(); i += 7) odd += text.substr(i, 7) + "\n";
    EXPECT_EQ(decode(odd), plain) << n;
  }
}

TEST(Base64, LargeInputsMatchThePlainEncoder) {
#ifdef _OPENMP
  const int threads = omp_get_max_threads();
  omp_set_num_threads(4);  // the parallel path needs 3 threads or more
#endif
  for (size_t n : {size_t{524288}, size_t{524289}, size_t{524290}, size_t{1000003}, size_t{3 << 20}}) {
    const auto bytes = random_bytes(n, static_cast<unsigned>(n));
    std::string out(static_cast<size_t>(KILNUTIL_encode_base64(bytes.data(), static_cast<int>(n), nullptr)), '\0');
    KILNUTIL_encode_base64(bytes.data(), static_cast<int>(n), out.data());
    ASSERT_EQ(out, reference_encode(bytes)) << n;
    const std::string plain(bytes.begin(), bytes.end());
    EXPECT_EQ(decode(out), plain) << n;
  }
#ifdef _OPENMP
  omp_set_num_threads(threads);
#endif
}

TEST(Base64, ParallelChunksCoverEveryGroup) {
  // Group counts that don't divide evenly among the workers, and fewer groups
  // than workers.
  for (size_t groups : {size_t{1}, size_t{2}, size_t{5}, size_t{7}, size_t{1001}}) {
    const auto bytes = random_bytes(groups * 3 + 1, static_cast<unsigned>(groups));
    for (unsigned workers : {3u, 4u, 7u}) {
      std::string out(groups * 4, '.');
      kiln::unicode::encode_base64_groups_parallel(bytes.data(), groups, out.data(), workers);
      std::vector<unsigned char> full(bytes.begin(), bytes.begin() + static_cast<long>(groups * 3));
      EXPECT_EQ(out, reference_encode(full)) << groups << " groups, " << workers << " workers";
    }
  }
}

}  // namespace
