// Terms and statements of script text: the next term and its operator, the
// term before a closing bracket or after an opening one, and the next
// statement.
#pragma once

namespace kiln::text {

// The work of KILNUTIL_separate_one_term, _get_preceeding_term,
// _get_remaining_term and _separate_one_statement, argument for argument.
char* separate_term(char** term, char* text, int* op, char** end);
char* preceding_term(char** term, char* closer, char* text);
char* remaining_term(char** term, char* text, unsigned short* brackets);
char* separate_statement(char** first, char* text, int* status);

}  // namespace kiln::text
