#include "unicode/code_page_text.h"

#include "frame/settings.h"

namespace kiln::unicode {

unsigned resolve_code_page(int code_page) {
  const unsigned page = frame::effective_code_page(code_page);
  switch (page) {
    case 0:  // the system ANSI code page
    case 1:  // the OEM code page: POSIX has none apart from the ANSI one
    case 3:  // the thread's ANSI code page
      return platform::ansi_code_page();
    case 2:  // the Macintosh code page
      return 10000;
    default: return page;
  }
}

}  // namespace kiln::unicode
