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

TEST(Base64, Rfc4648VectorsUnderBothNames) {
  const std::pair<std::string, std::string> vectors[] = {
      {"f", "Zg=="},
      {"fo", "Zm8="},
      {"foo", "Zm9v"},
      {"foob", "Zm9vYg=="},
      {"fooba", "Zm9vYmE="},
      {"foobar", "Zm9vYmFy"},
      {std::string("\xFB\xFF\x00\x10", 4), "+/8AEA=="},
  };
  for (const auto& [plain, encoded] : vectors) {
    EXPECT_EQ(encode(plain), encoded);
    EXPECT_EQ(decode(encoded), plain);
    std::string other(encoded.size(), '\0');
    encode_base64(reinterpret_cast<const unsigned char*>(plain.data()), static_cast<int>(plain.size()), other.data());
    EXPECT_EQ(other, encoded);
    std::string back(plain.size(), '\0');
    decode_base64(encoded.data(), static_cast<int>(encoded.size()), reinterpret_cast<unsigned char*>(back.data()));
    EXPECT_EQ(back, plain);
  }
}

TEST(Base64, SizesWithoutDestination) {
  EXPECT_EQ(KILNUTIL_encode_base64(nullptr, 10, nullptr), 16);
  EXPECT_EQ(KILNUTIL_encode_base64(nullptr, 0, nullptr), 0);
  EXPECT_EQ(KILNUTIL_decode_base64(nullptr, 10, nullptr), 13);
  EXPECT_EQ(KILNUTIL_decode_base64("Zm9v", 0, nullptr), 0);
  EXPECT_EQ(KILNUTIL_decode_base64("Zm9v", -5, nullptr), 0);
  EXPECT_EQ(KILNUTIL_decode_base64("Zm9vYmE=", 8, nullptr), 5);
  // Empty input still encodes one group into a given destination.
  char out[5] = "....";
  EXPECT_EQ(KILNUTIL_encode_base64(reinterpret_cast<const unsigned char*>("foo"), 0, out), 0);
  EXPECT_EQ(std::string(out, 4), "Zm9v");
}

// Everything outside the alphabet is skipped; of leftover values a fifth
// alone is dropped, six give four bytes, seven five.
TEST(Base64, DecodingSkipsOthersAndKeepsLeftovers) {
  const std::pair<std::string, std::string> cases[] = {
      {"Zm9v\r\nYmFy", "foobar"},
      {"Z m9v-Ym*Fy==\n", "foobar"},
      {"=Zm=9vYm=Fy", "foobar"},
      {"\n\n\n", ""},
      {"Zm9vY", "foo"},
      {"Zm9vYm", "foob"},
      {"Zm9vYmE", "fooba"},
      // Two saved fuzz findings (fuzz/corpus/base64_decode/crash-*): two
      // whole groups with high bits set in every byte.
      {"nONNNNnn", "\x9C\xE3\x4D\x34\xD9\xE7"},
      {"yy++++++", "\xCB\x2F\xBE\xFB\xEF\xBE"},
  };
  for (const auto& [text, plain] : cases) EXPECT_EQ(decode(text), plain) << text;
}

// Small inputs and inputs large enough for the parallel encoder, against the
// plain encoder, and back from the text whole and broken into lines of 76 and of 7.
TEST(Base64, RoundTripsMatchThePlainEncoder) {
#ifdef _OPENMP
  const int threads = omp_get_max_threads();
  omp_set_num_threads(4);  // the parallel path needs 3 threads or more
#endif
  for (size_t n : {size_t{1}, size_t{2}, size_t{3}, size_t{57}, size_t{58}, size_t{4099}, size_t{524288},
                   size_t{524289}, size_t{524290}, size_t{1000003}, size_t{3 << 20}}) {
    const auto bytes = random_bytes(n, static_cast<unsigned>(n));
    const std::string plain(bytes.begin(), bytes.end());
    const std::string text = encode(plain);
    ASSERT_EQ(text, reference_encode(bytes)) << n;
    for (size_t line : {text.size() + 1, size_t{76}, size_t{7}}) {
      std::string broken;
      for (size_t i = 0; i < text.size(); i += line) broken += text.substr(i, line) + "\r\n";
      EXPECT_EQ(decode(broken), plain) << n << " in lines of " << line;
    }
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
