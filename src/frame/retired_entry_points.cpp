// Entry points kept only so that old callers still link. In-memory narrow
// text is UTF-8 throughout the library, never double-byte text, so these do
// no work and answer "no character".
#include <kilnutil/frame.h>

extern "C" {

unsigned short getc_two(const char*) { return 0; }
unsigned short getc_two_adv(char**) { return 0; }
unsigned short getc_two_alt(const char*) { return 0; }
unsigned short getc_two_adv_alt(char**) { return 0; }
unsigned short get_two_at_offset_reverse(const char*, int) { return 0; }
int is_lead_char_for_2byte(unsigned char) { return 0; }
int KILNUTIL_CopyStrWithMBCSCheck(char*, const char*, int) { return 0; }
char* setc_two_alt(char* dest, unsigned int) { return dest; }

}  // extern "C"
