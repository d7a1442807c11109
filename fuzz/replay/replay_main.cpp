// Replays saved inputs through a fuzz target without libFuzzer: every file
// named on the command line, and every file of every folder named there, is
// fed to LLVMFuzzerTestOneInput once, after the empty input. A failed
// property aborts, which fails the test that runs this program.
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <vector>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

namespace {

int replay_file(const std::filesystem::path& path) {
  std::ifstream in(path, std::ios::binary);
  if (!in) {
    std::fprintf(stderr, "replay: %s: can't be read\n", path.string().c_str());
    return 1;
  }
  const std::vector<char> bytes{std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
  std::vector<std::uint8_t> input(bytes.begin(), bytes.end());
  input.push_back(0);  // never a null pointer, even for an empty file
  LLVMFuzzerTestOneInput(input.data(), input.size() - 1);
  return 0;
}

}  // namespace

int main(int argc, char** argv) {
  const std::uint8_t nothing = 0;
  LLVMFuzzerTestOneInput(&nothing, 0);
  int failures = 0;
  int replayed = 0;
  for (int i = 1; i < argc; ++i) {
    const std::filesystem::path path(argv[i]);
    if (std::filesystem::is_directory(path)) {
      for (const auto& entry : std::filesystem::directory_iterator(path)) {
        if (!entry.is_regular_file()) continue;
        failures += replay_file(entry.path());
        ++replayed;
      }
    } else if (std::filesystem::exists(path)) {
      failures += replay_file(path);
      ++replayed;
    }
  }
  std::printf("replayed %d saved inputs\n", replayed);
  return failures == 0 ? 0 : 1;
}
