// A set of characters given as a UTF-8 string, as a match of the exposed search.
#pragma once

#include "text/chars.h"

#include <bitset>

namespace kiln::text {

class CharSet {
public:
  explicit CharSet(const char* members) : members_(members) {
    for (const char* p = members; *p != '\0';) {
      const unsigned c = read_char(p);
      if (c < 128) ascii_.set(c);
      else has_other_ = true;
    }
  }
  bool operator()(unsigned c) const {
    if (c < 128) return ascii_.test(c);
    if (!has_other_) return false;
    for (const char* p = members_; *p != '\0';)
      if (read_char(p) == c) return true;
    return false;
  }

private:
  const char* members_;
  std::bitset<128> ascii_;
  bool has_other_ = false;
};

}  // namespace kiln::text
