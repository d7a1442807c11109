// The byte-state scan of the preamble. A line is "clean" while it holds no
// printable byte (33 to 126) outside its header name.
#include "files/preamble_scan.h"

namespace kiln::files {

namespace {

enum class ScanState { kLine, kName, kAfterHeader };

bool is_printable(int byte) { return byte >= 33 && byte <= 126; }

// The end of the text: the end of the file or a byte 0xFF.
bool ends_text(int byte) { return byte == EOF || byte == 0xFF; }

}  // namespace

long long preamble_length(FILE* stream) {
  ScanState state = ScanState::kLine;
  bool clean = true;
  long long line_start = 0;
  long long position = 0;
  for (int byte = std::getc(stream); !ends_text(byte); byte = std::getc(stream), ++position) {
    switch (state) {
      case ScanState::kLine:
        if (byte == '\n') {
          line_start = position + 1;
          clean = true;
        } else if (byte == '[' && clean) {
          state = ScanState::kName;
        } else if (is_printable(byte)) {
          clean = false;
        }
        break;
      case ScanState::kName:
        if (byte == ']') {
          state = ScanState::kAfterHeader;
          clean = true;
        }
        break;
      case ScanState::kAfterHeader:
        if (byte == '\n') {
          if (clean) {
            const int next = std::getc(stream);
            // A header line that ends the file belongs to the preamble.
            if (next == EOF) return position + 1;
            return line_start;
          }
          line_start = position + 1;
          clean = true;
          state = ScanState::kLine;
        } else if (is_printable(byte)) {
          clean = false;
        }
        break;
    }
  }
  return position;
}

}  // namespace kiln::files
