// kilnutil color: colour strings in every colour model, the colour list, and
// colour ramps.
//   color TEXT... [--to MODEL]   one line per text and model: TEXT, model, values
//   color --list                 index (1-based), name and #RRGGBB of each list colour
//   color --ramp START END N [--three]
#include "commands.h"

#include <kilnutil/color.h>

#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace kilnutil_cli {

namespace {

constexpr std::string_view kModels[] = {"rgb", "html", "hsl", "hsv", "lab",  "lch",
                                        "luv", "xyz",  "yxy", "cmy", "cmyk", "hunterlab"};
constexpr int kMaxRampCount = 100000;

bool is_model(std::string_view name) {
  for (std::string_view model : kModels) {
    if (model == name) return true;
  }
  return name == "all";
}

std::string html_of(unsigned rgb) {
  char text[KILNUTIL_COLOR_TEXT_SIZE];
  return KILNUTIL_RGB_to_HTML(text, rgb);
}

std::string numbers(std::initializer_list<double> values) {
  std::string out;
  for (double v : values) {
    char text[32];
    std::snprintf(text, sizeof text, "%s%.6g", out.empty() ? "" : " ", v);
    out += text;
  }
  return out;
}

// The model's components of an RGB triple, through the ColorSpace classes.
std::string model_values(std::string_view model, unsigned rgb) {
  const ColorSpace::Rgb source(rgb & 0xFF, (rgb >> 8) & 0xFF, (rgb >> 16) & 0xFF);
  using namespace ColorSpace;
  if (model == "rgb") return numbers({source.r, source.g, source.b});
  if (model == "html") return html_of(rgb);
  if (model == "hsl") {
    Hsl t;
    t.FromRgb(source);
    return numbers({t.h, t.s, t.l});
  }
  if (model == "hsv") {
    Hsv t;
    t.FromRgb(source);
    return numbers({t.h, t.s, t.v});
  }
  if (model == "lab") {
    Lab t;
    t.FromRgb(source);
    return numbers({t.l, t.a, t.b});
  }
  if (model == "lch") {
    Lch t;
    t.FromRgb(source);
    return numbers({t.l, t.c, t.h});
  }
  if (model == "luv") {
    Luv t;
    t.FromRgb(source);
    return numbers({t.l, t.u, t.v});
  }
  if (model == "xyz") {
    Xyz t;
    t.FromRgb(source);
    return numbers({t.x, t.y, t.z});
  }
  if (model == "yxy") {
    Yxy t;
    t.FromRgb(source);
    return numbers({t.Y, t.x, t.y});
  }
  if (model == "cmy") {
    Cmy t;
    t.FromRgb(source);
    return numbers({t.c, t.m, t.y});
  }
  if (model == "cmyk") {
    Cmyk t;
    t.FromRgb(source);
    return numbers({t.c, t.m, t.y, t.k});
  }
  HunterLab t;
  t.FromRgb(source);
  return numbers({t.l, t.a, t.b});
}

// The RGB triple of a colour string: an RGB value, or a 1-based list number.
bool rgb_of_text(const char* text, unsigned& rgb, std::string& reason) {
  const int value = KILNUTIL_str2vcolor(text, 0);
  if (value == 0) {
    reason = "not a colour";
    return false;
  }
  if (value == KILNUTIL_COLOR_NONE) {
    reason = "no colour (None)";
    return false;
  }
  if ((static_cast<unsigned>(value) & KILNUTIL_COLOR_RGB_TEST_MASK) == KILNUTIL_COLOR_RGB_MARKER) {
    rgb = static_cast<unsigned>(value) & 0xFFFFFF;
    return true;
  }
  int status = 0;
  rgb = color_index_to_rgb((value & 0xFFFF) - 1, KILNUTIL_COLOR_INDEX_AS_IS, &status);
  if (status != KILNUTIL_COLOR_STATUS_OK) reason = "colour " + std::to_string(value) + " is not in the colour list";
  return status == KILNUTIL_COLOR_STATUS_OK;
}

int text_error(const char* text, const std::string& reason) {
  std::fprintf(stderr, "kilnutil: %s: %s\n", text, reason.c_str());
  return kInputFailed;
}

// A true-colour swatch only on a terminal that says it takes 24-bit colour,
// and never with NO_COLOR set.
bool use_swatches() {
  const char* no_color = std::getenv("NO_COLOR");
  if (no_color != nullptr && *no_color != '\0') return false;
  const char* colorterm = std::getenv("COLORTERM");
  if (colorterm == nullptr) return false;
  const std::string_view term = colorterm;
  return (term == "truecolor" || term == "24bit") && isatty(STDOUT_FILENO) != 0;
}

int print_list() {
  const bool swatches = use_swatches();
  const int count = KILNUTIL_Color_ex(nullptr, 0, nullptr, KILNUTIL_COLOR_CMD_COUNT, 0);
  for (int i = 0; i < count; ++i) {
    char name[KILNUTIL_COLOR_NAME_SIZE];
    color_index_to_name(i, name, sizeof name);
    const unsigned rgb = color_index_to_rgb(i, KILNUTIL_COLOR_INDEX_AS_IS, nullptr);
    if (swatches) std::printf("\x1b[48;2;%u;%u;%um    \x1b[0m ", rgb & 0xFF, (rgb >> 8) & 0xFF, (rgb >> 16) & 0xFF);
    std::printf("%d\t%s\t%s\n", i + 1, name, html_of(rgb).c_str());
  }
  return kOk;
}

int print_ramp(Args args) {
  const bool three = args.size() == 4 && std::strcmp(args[3], "--three") == 0;
  if (args.size() != 3 && !three) return usage_error("color --ramp takes START END N [--three]");
  char* end = nullptr;
  const long n = std::strtol(args[2], &end, 10);
  if (*end != '\0' || n < 1 || n > kMaxRampCount) {
    return usage_error("color --ramp: N must be a whole number from 1 to " + std::to_string(kMaxRampCount));
  }
  unsigned start = 0, stop = 0;
  std::string reason;
  if (!rgb_of_text(args[0], start, reason)) return text_error(args[0], reason);
  if (!rgb_of_text(args[1], stop, reason)) return text_error(args[1], reason);
  std::vector<unsigned> ramp(static_cast<std::size_t>(n));
  colormap_rgb_ramp(start, stop, static_cast<int>(n), ramp.data(), three ? 1 : 0, 0);
  for (std::size_t i = 0; i < ramp.size(); ++i) std::printf("%zu\t%s\n", i, html_of(ramp[i]).c_str());
  return kOk;
}

}  // namespace

int run_color(Args args) {
  if (args.size() == 1 && std::strcmp(args[0], "--list") == 0) return print_list();
  if (!args.empty() && std::strcmp(args[0], "--ramp") == 0) return print_ramp(args.subspan(1));

  std::string model = "all";
  std::vector<const char*> texts;
  for (std::size_t i = 0; i < args.size(); ++i) {
    if (std::strcmp(args[i], "--to") == 0) {
      if (i + 1 >= args.size() || !is_model(args[i + 1])) {
        return usage_error(
            "color --to takes one of rgb, hsl, hsv, lab, lch, luv, xyz, yxy, cmy, cmyk, hunterlab, "
            "html, all");
      }
      model = args[++i];
    } else if (args[i][0] == '-' && args[i][1] == '-') {
      return usage_error(std::string("color: unknown option ") + args[i]);
    } else {
      texts.push_back(args[i]);
    }
  }
  if (texts.empty())
    return usage_error("color takes one or more colour texts, --list or --ramp (see 'kilnutil help color')");

  int result = kOk;
  for (const char* text : texts) {
    unsigned rgb = 0;
    std::string reason;
    if (!rgb_of_text(text, rgb, reason)) {
      result = text_error(text, reason);
      continue;
    }
    for (std::string_view name : kModels) {
      if (model == "all" || model == name)
        std::printf("%s\t%s\t%s\n", text, name.data(), model_values(name, rgb).c_str());
    }
  }
  return result;
}

}  // namespace kilnutil_cli
