// The tool's standard input and output carry bytes unchanged on every system,
// so piped binary data and the line ends of the output are the same on
// Windows as on POSIX.
#pragma once

namespace kilnutil_cli {

// Puts standard input and standard output in binary mode (a no-op on POSIX).
void use_binary_standard_streams();

}  // namespace kilnutil_cli
