// File-system services in the library's terms: stream positions past 2 GiB,
// existence and access tests, removal, folders, temporary files and opening
// by path with explicit creation rules. Paths are UTF-8.
#pragma once

#include <cstdint>
#include <cstdio>
#include <string>

namespace kiln::platform {

// The stream's position, or -1 when it can't be had.
long long stream_position(std::FILE* stream);
// Moves to `offset` bytes from the start; false on failure.
bool seek_stream(std::FILE* stream, long long offset);
// Moves to the end; false on failure.
bool seek_stream_end(std::FILE* stream);

// Opens the file as std::fopen does, with a UTF-8 path (on Windows by the
// wide runtime call); null (errno set) on failure.
std::FILE* open_stream(const char* path, const char* mode);

bool file_exists(const char* path);
// The runtime's access test: mode 0 exists, 2 writable, 4 readable, 6 both.
// 0 when granted, -1 (errno set) when not.
int test_file_access(const char* path, int mode);
// Removes the file; false when it could not be removed.
bool remove_file(const char* path);
// Makes one folder; true when it exists afterwards.
bool make_folder(const char* path);

// The folder for temporary files: $TMPDIR, else /tmp.
std::string temporary_folder();
// A new empty file `<folder>/<prefix>XXXXXX`, open for binary writing and
// not inherited by child processes, with its path in `path`; null when none
// can be made (nothing is left behind then).
std::FILE* create_temporary_file(const std::string& folder, const char* prefix, std::string& path);

enum class OpenRule { kCreateNew, kCreateAlways, kOpenExisting, kOpenAlways, kTruncateExisting };

// A descriptor of the file opened for reading and/or writing, not inherited
// by child processes; a file created here is read-only when asked. -1 (errno
// set) on failure.
int open_file_descriptor(const char* path, bool reads, bool writes, OpenRule rule, bool create_read_only);

// The invalid file handle, (void*)-1 as on Windows.
inline void* invalid_file_handle() { return reinterpret_cast<void*>(static_cast<std::intptr_t>(-1)); }
// The file opened as by open_file_descriptor, as the system's file handle a
// host closes: on POSIX the descriptor as a pointer (closed by close()), on
// Windows a CreateFileW handle shared for reading and writing (closed by
// CloseHandle). invalid_file_handle() on failure.
void* open_file_handle(const char* path, bool reads, bool writes, OpenRule rule, bool create_read_only);
// Closes a handle of open_file_handle; false when it is no open handle.
bool close_file_handle(void* handle);

}  // namespace kiln::platform
