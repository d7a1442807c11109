// Every command of the kilnutil tool; the table in main.cpp lists them.
#pragma once

#include "cli.h"

namespace kilnutil_cli {

int run_help(Args args);
int run_version(Args args);
int run_chars(Args args);
int run_preview(Args args);
int run_split(Args args);
int run_number(Args args);
int run_date(Args args);
int run_detect(Args args);
int run_to_utf8(Args args);
int run_base64(Args args);
int run_fn(Args args);
int run_random(Args args);
int run_smith(Args args);
int run_stat(Args args);
int run_sort(Args args);
int run_invert(Args args);
int run_color(Args args);
int run_section(Args args);
int run_strip_comments(Args args);
int run_path(Args args);
int run_language(Args args);

}  // namespace kilnutil_cli
