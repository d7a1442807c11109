// kilnutil split [--statements|--terms|--tokens] [TEXT|-]: cuts script text
// into statements (the default), terms or tokens with the library's own
// scanners and prints one piece per line. Standard input is read and cut line
// by line.
#include "commands.h"

#include <kilnutil/text.h>

#include <cstdio>
#include <cstring>
#include <iostream>
#include <string>
#include <string_view>
#include <vector>

namespace kilnutil_cli {

namespace {

enum class Piece { kStatements, kTerms, kTokens };

void print_piece(const char* piece) { std::printf("%s\n", piece); }

// Statements as the library cuts them: a label keeps its colon, a brace
// block ends its statement. Returns false for an unclosed "{".
bool split_statements(char* text) {
  for (char* p = text; p != nullptr;) {
    char* first = nullptr;
    int status = 0;
    char* next = KILNUTIL_separate_one_statement(&first, p, &status);
    if (status == -1) return false;
    if (*first != '\0') print_piece(first);
    if (next != nullptr && status > 0) *next = static_cast<char>(status);  // hand the character back
    p = next;
  }
  return true;
}

bool is_closer(int c) { return c != 0 && std::strchr(")}]>", c) != nullptr; }

// Terms, each followed by the operator that ended it. Returns false for a
// bracketed term without its closer.
bool split_terms(char* text) {
  for (char* p = text; p != nullptr;) {
    char* term = nullptr;
    int op = 0;
    char* next = KILNUTIL_separate_one_term(&term, p, &op, nullptr);
    if (op == -1) return false;
    if (term != nullptr && *term != '\0') print_piece(term);
    if (op > 0 && !is_closer(op)) {
      const char operator_text[2] = {static_cast<char>(op), '\0'};
      print_piece(operator_text);
    }
    p = next;
  }
  return true;
}

// Tokens; a ";" (which ends a token without being taken) is a piece of its own.
bool split_tokens(char* text) {
  std::vector<char> token(std::strlen(text) + 1);
  for (const char* p = text; *p != '\0';) {
    const char* next = KILNUTIL_next_token(token.data(), p);
    if (token[0] != '\0') print_piece(token.data());
    if (next == p) {  // nothing taken: a ";"
      print_piece(";");
      ++next;
    }
    p = next;
  }
  return true;
}

bool split(std::string text, Piece piece) {
  switch (piece) {
    case Piece::kStatements: return split_statements(text.data());
    case Piece::kTerms: return split_terms(text.data());
    case Piece::kTokens: return split_tokens(text.data());
  }
  return false;
}

const char* failure_message(Piece piece) {
  return piece == Piece::kStatements ? "a \"{\" is never closed" : "a bracket is never closed";
}

}  // namespace

int run_split(Args args) {
  Piece piece = Piece::kStatements;
  std::size_t next = 0;
  if (next < args.size() && std::string_view(args[next]).starts_with("--")) {
    const std::string_view option = args[next++];
    if (option == "--statements") piece = Piece::kStatements;
    else if (option == "--terms") piece = Piece::kTerms;
    else if (option == "--tokens") piece = Piece::kTokens;
    else return usage_error("split: unknown option '" + std::string(option) + "'");
  }
  if (args.size() - next > 1) return usage_error("split takes one text: TEXT, or - for standard input");
  if (next < args.size() && std::strcmp(args[next], "-") != 0) {
    if (!split(args[next], piece)) return input_error(std::string("split: ") + failure_message(piece));
    return kOk;
  }
  std::string line;
  for (int number = 1; std::getline(std::cin, line); ++number) {
    if (!line.empty() && line.back() == '\r') line.pop_back();
    if (!split(line, piece))
      return input_error("split: line " + std::to_string(number) + ": " + failure_message(piece));
  }
  return kOk;
}

}  // namespace kilnutil_cli
