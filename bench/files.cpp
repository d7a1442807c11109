// Sectioned files and the comment reader. A named section near the end of a
// 50 MB file, read by KILNUTIL_GetFileSection, beside a plain std::getline
// scan for the same header; the comment reader over a few megabytes of script
// beside a plain loop over the same characters.
#include <kilnutil/files.h>
#include <kilnutil/frame.h>
#include <kilnutil/platform.h>

#include <benchmark/benchmark.h>

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>

namespace {

constexpr std::size_t kFileBytes = 50 << 20;
constexpr std::size_t kScriptBytes = 4 << 20;

// A settings-like file: many sections of key=value lines, the wanted one
// among the last. `mark`: starts with the UTF-8 mark (read in place);
// without it the text goes through the code-page conversion into a copy.
std::string make_sectioned_file(bool mark) {
  const std::string path =
      (std::filesystem::temp_directory_path() / (mark ? "kiln-bench-mark.ini" : "kiln-bench-plain.ini")).string();
  std::ofstream out(path, std::ios::binary | std::ios::trunc);
  if (mark) out << "\xEF\xBB\xBF";
  std::size_t written = 0;
  for (int section = 0; written < kFileBytes; ++section) {
    const std::string header = "[Section" + std::to_string(section) + "]\r\n";
    out << header;
    written += header.size();
    for (int key = 0; key < 40; ++key) {
      const std::string line = "key" + std::to_string(key) + " = value " + std::to_string(section * key) + "\r\n";
      out << line;
      written += line.size();
    }
  }
  out << "[Target]\r\nwanted = 1\r\nalso = 2\r\n[After]\r\nx = 0\r\n";
  return path;
}

const std::string& sectioned_file(bool mark) {
  static const std::string with_mark = make_sectioned_file(true);
  static const std::string plain = make_sectioned_file(false);
  static const bool cleanup = [] {
    std::atexit([] {
      std::filesystem::remove(with_mark);
      std::filesystem::remove(plain);
    });
    return true;
  }();
  static_cast<void>(cleanup);
  return mark ? with_mark : plain;
}

void set_file_bytes(benchmark::State& state, const std::string& path) {
  state.SetBytesProcessed(state.iterations() *
                          static_cast<int64_t>(std::filesystem::file_size(path)));
}

void BM_GetlineSectionScan(benchmark::State& state) {
  const std::string& path = sectioned_file(state.range(0) != 0);
  for (auto _ : state) {
    std::ifstream in(path, std::ios::binary);
    std::string line, section;
    while (std::getline(in, line) && line != "[Target]\r") {
    }
    while (std::getline(in, line) && line.front() != '[') section += line + "\n";
    benchmark::DoNotOptimize(section);
  }
  set_file_bytes(state, path);
}
BENCHMARK(BM_GetlineSectionScan)->Arg(1)->Arg(0)->Unit(benchmark::kMillisecond);

void BM_GetFileSection(benchmark::State& state) {
  const std::string& path = sectioned_file(state.range(0) != 0);
  for (auto _ : state) {
    unsigned status = 0;
    HGLOBAL block = KILNUTIL_GetFileSection(path.c_str(), "target", &status);
    if (block == nullptr) state.SkipWithError("section not found");
    GlobalFree(block);
  }
  set_file_bytes(state, path);
}
BENCHMARK(BM_GetFileSection)->Arg(1)->Arg(0)->Unit(benchmark::kMillisecond);

const std::string& script() {
  static const std::string text = [] {
    static const char* const kLines[] = {
        "x1 = sin(t[i]) * 2.5e-3 + col(A)[i] / 1.25; // scale\n",
        "/* block comment\n   over two lines */ if (x1 > 0.5) {y = \"text /* kept */\";}\n",
        "string s$ = \"quoted \\\"escape\\\" inside\"; char c = '\"';\n",
        "for (int k = 0; k < 100; k++) { total += data[k] * 1e5 - offset; } /* end */\n",
    };
    std::string t;
    for (std::size_t i = 0; t.size() < kScriptBytes; ++i) t += kLines[i % std::size(kLines)];
    return t;
  }();
  return text;
}

void set_script_bytes(benchmark::State& state) {
  state.SetBytesProcessed(state.iterations() * static_cast<int64_t>(script().size()));
}

// The reference: every character of the same string source, no comment logic.
void BM_PlainCharacterLoop(benchmark::State& state) {
  for (auto _ : state) {
    VTextAccessFromString source(script().c_str());
    unsigned sum = 0;
    for (unsigned c = source.GetChar(0); !source.IsEOF(c); c = source.GetChar(0)) sum += c;
    benchmark::DoNotOptimize(sum);
  }
  set_script_bytes(state);
}
BENCHMARK(BM_PlainCharacterLoop)->Unit(benchmark::kMillisecond);

void BM_CommentReader(benchmark::State& state) {
  for (auto _ : state) {
    KILNUTIL_getc_skip_C_comments_ex(nullptr, nullptr, 0);
    VTextAccessFromString source(script().c_str());
    int lines = 0;
    unsigned sum = 0;
    for (;;) {
      const unsigned c = KILNUTIL_getc_skip_C_comments_ex(&source, &lines, 0);
      if (c == KILNUTIL_COMMENT_END || source.IsEOF(c)) break;
      sum += c;
    }
    benchmark::DoNotOptimize(sum);
    benchmark::DoNotOptimize(lines);
  }
  set_script_bytes(state);
}
BENCHMARK(BM_CommentReader)->Unit(benchmark::kMillisecond);

}  // namespace
