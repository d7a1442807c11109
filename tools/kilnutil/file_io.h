// Files named on the command line, read and written in chunks: "-" is
// standard input (or output); every failure keeps the system's reason.
#pragma once

#include <cstdint>
#include <cstdio>
#include <string>

namespace kilnutil_cli {

class InputFile {
public:
  InputFile() = default;
  ~InputFile();
  InputFile(const InputFile&) = delete;
  InputFile& operator=(const InputFile&) = delete;

  // Opens a file, or standard input for "-"; false with error() set.
  bool open(const std::string& name);
  // Closes a file the object opened (standard input stays open); the
  // destructor does it too.
  void close();
  const std::string& name() const { return name_; }

  // Reads up to size bytes; 0 at the end or on a read error (see failed()).
  std::size_t read(char* buffer, std::size_t size);
  // Fills the buffer as far as the input goes (a pipe may give less per read).
  std::size_t read_full(char* buffer, std::size_t size);
  bool failed() const { return !error_.empty(); }
  const std::string& error() const { return error_; }

  // Bytes read so far: the position of the next byte in the input.
  std::uint64_t offset() const { return offset_; }
  // Whether seek_back works: regular files, not pipes or terminals.
  bool seekable() const { return seekable_; }
  bool seek_back(std::uint64_t offset);
  // The size of a regular file, else 0 (unknown).
  std::uint64_t size() const { return size_; }

  // Continues reading from `stream` (positioned at the same input offset),
  // such as a spooled copy of the rest of a pipe.
  void adopt(std::FILE* stream, std::uint64_t offset);

private:
  std::string name_;
  std::string error_;
  std::FILE* stream_ = nullptr;
  bool owned_ = false;
  bool seekable_ = false;
  std::uint64_t offset_ = 0;
  std::uint64_t size_ = 0;
};

class OutputFile {
public:
  OutputFile() = default;
  ~OutputFile();
  OutputFile(const OutputFile&) = delete;
  OutputFile& operator=(const OutputFile&) = delete;

  // Standard output for "" or "-", else the named file (created or emptied).
  bool open(const std::string& name);
  // The file's name, "standard output" for "-".
  std::string name() const { return name_ == "-" ? "standard output" : name_; }
  bool write(const char* bytes, std::size_t size);
  bool write(const std::string& text) { return write(text.data(), text.size()); }
  // Flushes and closes; false when anything failed (error() says why).
  bool finish();
  const std::string& error() const { return error_; }

private:
  std::string name_;
  std::string error_;
  std::FILE* stream_ = nullptr;
  bool owned_ = false;
};

}  // namespace kilnutil_cli
