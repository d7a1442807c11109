// The script output indent: a run of "--" steps, one per nesting level.
#include <kilnutil/frame.h>

#include <cstring>

namespace {

constexpr int kIndentBufferSize = 240;
constexpr int kStepLength = 2;
constexpr char kStep[] = "--";

char g_indent[kIndentBufferSize] = "";
char g_printable_indent[kIndentBufferSize] = "";

}  // namespace

extern "C" char* KILNUTIL_access_quill_output_indent(int op) {
  switch (op) {
    case 1:  // one level deeper; the outermost level shows no indent
      // Callers keep below 119 levels; a deeper call stays at the deepest
      // level the buffer holds instead of writing past it.
      if (std::strlen(g_indent) + kStepLength < kIndentBufferSize) std::strcat(g_indent, kStep);
      return g_indent + kStepLength;
    case 2: {  // one level shallower
      const int shallower = static_cast<int>(std::strlen(g_indent)) - kStepLength;
      if (shallower >= 0) g_indent[shallower] = '\0';
      return g_indent;
    }
    case 3: {  // printable form: the indent from its second step on, in spaces
      const size_t length = std::strlen(g_indent);
      const char* from = length >= kStepLength ? g_indent + kStepLength : g_indent + length;
      std::strcpy(g_printable_indent, from);
      for (char* c = g_printable_indent; *c != '\0'; ++c) {
        if (*c == '-') *c = ' ';
      }
      return g_printable_indent;
    }
    default: return g_indent;
  }
}
